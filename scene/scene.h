#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "files/files.h"
#include "numbers/chance.h"
#include "scene/dispatcher.h"
#include "scene/picture_box.h"
#include "scene/platform.h"
#include "scene/questions.h"

namespace quintara {

// The retained model of a running program: its forms, their timers and dispatcher, and the way to the world
// outside. It knows nothing of a display; a front end reads it and hands the user's input in (see input.h).
class Scene {
 public:
  explicit Scene(Platform& platform);
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  Platform& platform() const { return platform_; }
  Dispatcher& dispatcher() { return dispatcher_; }
  Chance& chance() { return chance_; }
  const Files& files() const { return files_; }

  // All forms of the program, and those loaded now in the order of their loading.
  const std::vector<Form*>& forms() const { return forms_; }
  const std::vector<Form*>& loadedForms() const { return loadedForms_; }
  // Null where there is none of that name.
  Form* FindForm(std::string_view name) const;

  // Stops the program at once. No QueryUnload runs; all forms vanish.
  void End();
  bool ended() const { return ended_; }

  // App.Path: the program's folder without a trailing separator, except at a drive's root.
  std::string AppPath() const { return appPath_; }
  // The size of the screen in twips.
  Single ScreenWidth() const { return platform_.ScreenWidth(); }
  Single ScreenHeight() const { return platform_.ScreenHeight(); }

  Single Rnd() { return chance_.Rnd(); }
  void Randomize() { chance_.Randomize(platform_.Seed()); }

  // Starts a wave file given by its full path and returns at once.
  void PlaySound(const std::string& path);
  void Beep() { platform_.Beep(); }
  // Asks the user by a modal box. The handler that asks ends with it: `then` goes on, before any input that
  // waits, unless the form is unloaded first.
  void Ask(const MessageBox& box, Form& asker, std::function<void(Answer)> then);
  // Tells by a box that nobody waits for; nothing else happens until the user has closed it.
  void Tell(const std::string& text, const std::string& title);
  // Tells the player of something that went wrong and that the game goes on without.
  void TellFault(const std::string& text) { Tell(text, "Quintara"); }
  // Opens a menu at a place on the form's inner area, in twips. An item that is chosen raises its Click.
  void OfferMenu(Form& form, Menu& menu, double x, double y);

  // Ends the running handler, and the program where its platform knows no better: a fault in the program.
  [[noreturn]] void FaultFound(const std::string& what);

  // Shows a bitmap file in a box. One that can't be read leaves the box as it is.
  void LoadPictureInto(PictureBox& box, std::string_view path) const;

 private:
  friend class Form;
  void Join(Form& form) { forms_.push_back(&form); }
  void Leave(Form& form);
  void NoteLoaded(Form& form) { loadedForms_.push_back(&form); }
  void NoteUnloaded(Form& form);
  void DropWaiting(const Form& form);

  Platform& platform_;
  std::string appPath_;
  Files files_;
  Dispatcher dispatcher_;
  Questions questions_{dispatcher_};
  Chance chance_;
  std::vector<Form*> forms_;
  std::vector<Form*> loadedForms_;
  bool ended_ = false;
};

}  // namespace quintara
