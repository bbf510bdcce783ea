#pragma once

#include <cstdint>
#include <string>

#include "ballistics/ballistic_step.h"
#include "numbers/single.h"

namespace quintara {

class Scene;

// The public variables of the program, which all its forms share. The radar, the preview and the shell use
// the same flight: each of them sets what it needs of it afresh when it starts.
struct Module1 {
  std::string gAppPath;         // the program's folder with a trailing backslash
  std::int16_t gLoopIndex = 0;  // counter of the loops over scales and arrays
  Flight flight;                // the shell's, the preview's and, with its place in twips, the radar's target
  Single gMuzzleVelocity;       // m/s
  Single gElevationRad;         // elevation of the shot
  Single gBarrelRad;            // elevation of the drawn barrel
  Single gElevationScroll;      // VScroll1.Value
  std::int16_t gStepCount = 0;  // counter of the preview loops
  std::int16_t gSoundOff = 0;   // 1: wave sounds are off
  std::int32_t gSoundFlags = 0;
  std::string gMsgText, gMsgResult;  // text of a message box, and its result as text

  // Plays a wave file of the program's folder, unless the sound is switched off.
  void PlayUnlessSoundIsOff(Scene& scene, const std::string& name);
};

}  // namespace quintara
