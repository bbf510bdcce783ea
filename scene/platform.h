#pragma once

#include <cstdint>
#include <string>

#include "files/file_system.h"
#include "files/files.h"

namespace quintara {

class Form;
class Menu;

// The numbers of a message box: what its style adds up, and the buttons that it answers with.
namespace message_box {
inline constexpr std::int32_t yesAndNo = 4, exclamation = 48;
inline constexpr std::int32_t ok = 1, yes = 6, no = 7;

// Whether it has the buttons Yes and No; any other has OK alone.
constexpr bool AsksYesOrNo(std::int32_t style) {
  return (style & 0x0F) == yesAndNo;
}
constexpr bool HasExclamation(std::int32_t style) {
  return (style & 0xF0) == exclamation;
}
// The button that changes nothing.
constexpr std::int32_t SafeAnswer(std::int32_t style) {
  return AsksYesOrNo(style) ? no : ok;
}
}  // namespace message_box

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

  // Shows a modal box and returns the number of the button chosen.
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
