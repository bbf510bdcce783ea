#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "files/file_system.h"
#include "files/files.h"
#include "scene/message_box.h"

namespace quintara {

class Form;
class Menu;

// What the program asks of the world outside: windows, sound, clipboard, clock and files. The desktop, the
// headless host and the tests each give their own.
class Platform {
 public:
  virtual ~Platform() = default;

  // The folder of the running program and its data files, without a trailing separator except at a drive's
  // root.
  virtual std::string ProgramFolder() = 0;
  virtual FileSystem& Disk() = 0;

  // The size of the screen in twips.
  virtual double ScreenWidth() = 0;
  virtual double ScreenHeight() = 0;
  // A number that differs from call to call, such as the system clock.
  virtual std::uint64_t Seed() = 0;

  // Starts a wave file and returns at once. It replaces a sound that still plays; one that can't be played is
  // silent.
  virtual void PlaySound(const DataFile& sound) = 0;
  virtual void Beep() = 0;

  // What the user is asked, one question at a time; see Questions. The platform calls `reply` once, in the
  // call or later, but not inside a handler that it lets run meanwhile.

  // Shows a modal box.
  virtual void ShowMessageBox(const MessageBox& box, std::function<void(Answer)> reply) = 0;

  // Opens a menu at a place on the form's inner area, in twips. The reply is an item that can be chosen, or
  // null where the menu was dismissed.
  virtual void OpenPopupMenu(Form& form, Menu& menu, double x, double y,
                             std::function<void(Menu*)> reply) = 0;

  virtual void PutOnClipboard(const std::string& text) = 0;

  // What happens to forms, told as it happens.
  virtual void FormShown(Form& form) = 0;
  virtual void FormUnloaded(Form& form) = 0;
  virtual void ProgramEnded() = 0;

  // The program found a fault of its own, such as an element that does not exist, and can't go on with the
  // handler that runs. A platform that has no way out of it returns, and the program ends at once.
  virtual void FaultFound(const std::string& what) = 0;
};

}  // namespace quintara
