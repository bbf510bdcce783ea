#pragma once

#include <optional>
#include <string>

#include "documents/main_form.h"
#include "documents/masters_controls.h"
#include "scene/message_box.h"

namespace quintara {

// The list of masters: a hall of fame in the file Masters.txt, one entry to a line, in the order in which the
// names came in. The window shows it, takes the name of a new master, and can erase it.
class MastersForm : public MastersControls {
 public:
  MastersForm(Scene& scene, const MainForm& mainForm);

  // What Enter adds to the list, with the name as it is typed so far; nothing where the score earns no title.
  std::optional<std::string> Entry() const;

 private:
  void ReadList();
  void EnterName(std::int16_t key);
  void RemoveNames();
  void RemoveIf(Answer answer);
  void SaveList();

  MainForm mainForm_;
  // Something lies in the file's place that could not be read, and must not be lost.
  bool fileIsUnread_ = false;
};

}  // namespace quintara
