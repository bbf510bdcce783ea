#pragma once

#include <string>

#include "front/shots.h"
#include "scene/property.h"

namespace quintara {

class Program;

// Goes along with a game, keeps in mind what became of its shots, and says what just happened and what can be
// done now. It is the dispatcher's observer: it reads the Scene and never writes to it.
class Companion {
 public:
  // To be made before the program starts, and outlived by it.
  explicit Companion(Program& program);
  ~Companion();
  Companion(const Companion&) = delete;
  Companion& operator=(const Companion&) = delete;

  const ShotWatch& shots() const { return shots_; }
  // For the strip below the main form, as things are at this moment.
  std::string Sentence() const;

 private:
  void Look();

  Program& program_;
  ShotWatch shots_;
  ChangeCount readmeSeen_ = 0;
  // What else there was to say when the Readme was opened behind the profile: until the game has something
  // new to say, that of the Readme stands instead. Empty where none stands.
  std::string toldOfReadme_;
};

}  // namespace quintara
