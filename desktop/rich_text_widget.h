#pragma once

#include <QtWidgets/QTextEdit>

#include <optional>

#include "desktop/control.h"
#include "scene/text_controls.h"

namespace quintara::desktop {

// Shows a document for reading and selecting.
class RichTextWidget final : public QTextEdit, public Control {
 public:
  RichTextWidget(RichTextBox& box, QWidget& parent, Session& session);

  void Follow(const Zoom& zoom) override;

 protected:
  void ShowLooks() override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ShowDocument();
  void HandInSelection();
  void ShowSelection();
  int CharactersBefore(int position) const;
  int PositionOf(int characters) const;

  RichTextBox& box_;
  std::optional<ChangeCount> shown_;  // the count of the document on show
  Zoom shownAt_;
  bool opens_ = false;  // another document is about to show
};

}  // namespace quintara::desktop
