#pragma once

#include "game/quintara_controls.h"
#include "physics/ballistic_step.h"

namespace quintara {

// The main form, which is the whole game: one source per subject of it.
//
// There is no game object. The state of a game is what the captions say (Label21 the shell in the gun,
// Label25 the shots fired, Label17 and Label23 the scores), which controls are enabled, and the few variables
// below.
class QuintaraForm : public QuintaraControls, public Module1 {
 public:
  explicit QuintaraForm(Scene& scene);

 private:
  // main_window.cpp
  void Form_Load();
  void SetAppFolder();
  void LayScopeGrid();
  void DrawFragmentWidths();
  void StoreFlightTimeSetting();

  // firing.cpp
  void Image7_Click();
  void tmrShell_Timer();
  void CountShell();
  void FireBonusShell();
  void MoveShell();
  FlightVariables Flight() { return {gDragTerm, gAx, gAy, gVx, gVy, gSpeed, gPosX, gPosY, gFlightTime, gDt}; }
  void Image7_MouseMove();
  void Picture8_MouseMove();
  void cmdReset_MouseMove();

  // laying.cpp
  void PrepareBonusShot();

  // effects.cpp
  void Timer1_Timer();

  // states.cpp
  void cmdCancel_Click();

  std::int16_t mShellArmed = 0;     // 1 lets tmrShell work
  std::int16_t mBonusShot = 0;      // 1: the bonus shot is armed
  std::int16_t mProfileHeight = 0;  // height of Picture11, twips
};

}  // namespace quintara
