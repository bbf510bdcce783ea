#pragma once

#include <string>

namespace quintara {

class Scene;

// What the main form and the windows of this folder share.
struct SharedSettings {
  std::string programFolder;  // where the data files lie, with a trailing backslash
  bool soundIsOff = false;    // the switch of the main form; beeps that it leaves alone go on

  // Plays a wave file of the program's folder, unless the sound is switched off.
  void PlayUnlessSoundIsOff(Scene& scene, const std::string& name) const;
};

}  // namespace quintara
