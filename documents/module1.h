#pragma once

#include <cstdint>
#include <string>

#include "numbers/single.h"

namespace quintara {

class Scene;

// The public variables of the program, which all its forms share. The radar, the preview and the flight use
// the same gDt, gPosX and gPosY: each of them sets them afresh when it starts.
struct Module1 {
  std::string gAppPath;         // the program's folder with a trailing backslash
  std::int16_t gLoopIndex = 0;  // counter of the loops over scales and arrays
  Single gDt;                   // seconds in one step
  Single gMuzzleVelocity;       // m/s
  Single gVx, gVy, gSpeed;      // velocity along the ground and upwards, and its length, m/s
  Single gPosX, gPosY;          // the shell, metres from the gun; the radar's target, twips
  Single gFlightTime;           // simulated seconds of the flight
  Single gAx, gAy, gDragTerm;   // accelerations and drag term of the last step, m/s²
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
