#pragma once

#include <QtWidgets/QLabel>

#include <array>

#include "desktop/footer.h"
#include "desktop/shot_log.h"
#include "desktop/strip_actions.h"
#include "desktop/strip_button.h"
#include "desktop/trace_layer.h"

namespace quintara {
class Companion;
class Program;
}  // namespace quintara

namespace quintara::desktop {

class FormWindow;
class Session;

// The strip below the main form: a sentence on what just happened and what can be done now, and buttons for
// what stands around the game.
class Strip final : public Footer {
 public:
  // A child of the main form's window. All must outlive it.
  Strip(FormWindow& window, Session& session, Program& program, const Companion& companion);

  int HeightBelow() const override;
  void Follow(const Zoom& zoom) override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void LayOut();
  void ShowSentence();

  FormWindow& window_;
  Session& session_;
  const Companion& companion_;
  // These two belong to other widgets.
  ShotLog* log_;
  TraceLayer* trace_;
  StripActions actions_;
  QLabel sentence_;
  QString said_;
  std::array<StripButton, 6> buttons_;
  Zoom zoom_;
};

// Gives the main form's window its strip, when it is made. All must outlive the session's windows.
void SeatStrip(Session& session, Program& program, const Companion& companion);

}  // namespace quintara::desktop
