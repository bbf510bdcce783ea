#pragma once

#include <cstdint>
#include <string>

#include "files/file_system.h"
#include "files/files.h"

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

  // Shows a modal box and returns the number of the button chosen (1 OK, 6 Yes, 7 No). `style` adds up the
  // buttons (0 OK, 4 Yes and No) and the icon (48 an exclamation mark).
  virtual std::int32_t ShowMessageBox(const std::string& text, std::int32_t style,
                                      const std::string& title) = 0;

  // Opens a menu at a place on the form's inner area, in twips, and returns the chosen item, one that can be
  // chosen, or null when dismissed.
  virtual Menu* RunPopupMenu(Form& form, Menu& menu, double x, double y) = 0;

  virtual void PutOnClipboard(const std::string& text) = 0;

  // What happens to forms, told as it happens.
  virtual void FormShown(Form& form) = 0;
  virtual void FormUnloaded(Form& form) = 0;
  virtual void ProgramEnded() = 0;
};

}  // namespace quintara
