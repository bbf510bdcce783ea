#include "game/quintara.h"
#include "scene/scene.h"

namespace quintara {

// The program ends with its last form: closing this one takes the others along.
void QuintaraForm::CloseSideForms() {
  bench_.Unload();
  simulator_.Unload();
  masters_.Unload();
  documents_.Unload();
  about_.Unload();
}

void QuintaraForm::LeaveGame() {
  scene().End();
}

void QuintaraForm::SwitchSound() {
  shared.soundIsOff = !shared.soundIsOff;
  soundButton.Caption = shared.soundIsOff ? "Sound OFF" : "Sound ON";
}

// On to the next target, or to a new game once the sixth shell is fired.
void QuintaraForm::Reset() {
  scope.Picture = Picture{};
  LayScopeGrid();
  fragmentRun_ = {};
  shellIsArmed_ = false;
  RandomizeFragmentWidths();
  velocity.Caption = "250";
  shells(0).Left = 0;
  shells(0).Top = 9200;
  StoreFlightTimeSetting();
  rangeBar.X1 = 500;
  heightBar.Y2 = 9150;

  LayGunAtRest();
  TakeDownTarget();
  advice.Caption = " To start Laser Radar Target          Aquisition, click Search (S)";
  timeToImpact.Caption = "Real time to impact(sec) ";

  const double shell = Val(shellInGun.Caption);
  if (shell < 6) {
    bonusShot_ = false;
  } else if (shell == 6) {
    bonusShot_ = true;
  }
  if (Val(shotsFired.Caption) == 6) StartNewGame();
  UnloadScales();
  fragmentTimer.Enabled = false;
}

// Writing the scroll bars lays the gun, with the bonus shot as it still is; what follows in
// Reset overrides what they show.
void QuintaraForm::LayGunAtRest() {
  elevationBar.Value = 340;
  elevation.Caption = "30";
  velocityBar.Value = 250;
  // Taller than the gauge of 250 m/s would stand; it is set right by the next change of velocity.
  shellGauge.Height = 430;
  shellGauge.Top = 440;
}

void QuintaraForm::TakeDownTarget() {
  sightLine.Visible = false;
  dragButton.Visible = false;
  targetTag.Visible = false;
  dragButton.Enabled = true;
  dragButton.Caption = "OFF";
  if (Val(shotsFired.Caption) == 6) scoreHeadings.Visible = false;
  dragConstant.Caption = "0";
  valleyName.Visible = false;
  peakName.Visible = false;
  fireButton.Enabled = true;
  consoleStrip.Visible = false;
  elevationBar.Enabled = true;
  velocityBar.Enabled = true;
  resetButton.Enabled = false;
  flames.Enabled = true;
  header.Visible = true;
  for (PictureBox* panel : {&profile, &rangeScale, &heightScale, &firingPanel}) panel->Visible = false;
  searchButton.Enabled = true;
  magnifyButton.Enabled = false;
  beam.Visible = false;
  beam.BorderColor = 0x00FFFF;
  for (Line* line : {&sightingOfTarget, &sightingOfMortar, &radarToMortar, &scoreDivider})
    line->Visible = false;
  targetMark.Visible = false;
}

void QuintaraForm::StartNewGame() {
  bonusShot_ = false;
  for (std::int16_t mark = 0; mark < shellMarkCount; ++mark) shellMarks(mark).Visible = true;
  shellInGun.Caption = "1";
  shotsFired.Caption = "0";
  bestScore.Caption = "30";
  score.Caption = "0";
  for (Label* label : {&scoreBoard, &score, &bestScore, &shotsFired, &targetTag}) label->Visible = false;
  shotsDivider.Visible = false;
  soundButton.Visible = true;
  dragIsOn_ = false;
}

void QuintaraForm::UnloadScales() {
  for (std::int16_t km = 1; km <= rangeScaleEnd; ++km) {
    rangeNumbers.Unload(km);
    rangeTicks.Unload(km);
  }
  for (std::int16_t km = 1; km <= heightScaleEnd; ++km) {
    heightNumbers.Unload(km);
    heightTicks.Unload(km);
  }
}

}  // namespace quintara
