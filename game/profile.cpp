#include "game/quintara.h"
#include "scene/scene.h"

namespace quintara {

// Opens the profile between gun and target. The further the target, the taller the mountain.
void QuintaraForm::Magnify() {
  fireButton.Enabled = false;
  advice.Caption =
      " Adjust Muzzle Elevation Angle       and Muzzle Velocity. If Drag is       desired, click the OFF "
      "button.        Then, click the red Fire button.";
  ShowPanels();
  ShowBestScore();
  // The setting of the last target. A record that is no number, or none in range, counts as the nearest
  // bound.
  if (const auto record = scene().files().ReadRecord(shared.programFolder + "extra.txt", 5)) {
    flightTimeBar.Value = CInt(Val(*record));
  }

  RaiseTerrain();
  LayOutline();
  targetPicture.Left = targetKm_ * 446 - 390;
  targetPicture.Visible = true;
  targetOnScale.Left = targetPicture.Left + 340;
  targetOnScale.Visible = true;
  BuildScales();

  TakeElevation();
  DrawBarrel();
  if (bonusShot_) {
    ShowBonusHeader(bonusNextStep);
  } else {
    ShowNormalHeader();
  }
}

void QuintaraForm::ShowPanels() {
  consoleStrip.Visible = true;
  for (Label* label : {&scoreBoard, &score, &scoreHeadings, &bestScore, &shotsFired}) label->Visible = true;
  scoreDivider.Visible = true;
  shotsDivider.Visible = true;
  for (PictureBox* panel : {&profile, &rangeScale, &heightScale, &firingPanel}) panel->Visible = true;
  dragButton.Visible = true;
  if (Val(shellInGun.Caption) == 6) dragButton.Enabled = false;  // no drag on the sixth shell
  magnifyButton.Enabled = false;
  searchButton.Enabled = false;
  shellGauge.Visible = true;
  shellInGun.Visible = true;
}

void QuintaraForm::ShowBestScore() {
  const double shell = Val(shellInGun.Caption);
  const double actual = Val(score.Caption);
  if (shell <= 5) {
    bestScore.Caption = ToText(actual + 50 - Val(shotsFired.Caption) * 10);
  } else if (shell == 6) {
    bestScore.Caption = ToText(actual + 5);
  }
}

void QuintaraForm::RaiseTerrain() {
  backdrop.Top = 480;
  backdrop.Height = (targetKm_ + 18) / 0.0125;
  backdropPicture.Height = (targetKm_ + 18) / 0.0125;
  mountainHeight_ = CInt(targetKm_ * 136 - 500);
  mountain.Height = mountainHeight_;
  mountainPicture.Height = mountainHeight_ + 20;
  mountain.Top = 8640 - mountain.Height;  // the mountain's foot stands at 8640 for every range
}

// The outline that the collision reads. Neighbouring segments overlap a little along the ground; that is
// meant.
void QuintaraForm::LayOutline() {
  slope1.X1 = mountainPicture.Left;
  slope1.Y1 = mountainPicture.Height + mountainPicture.Top;
  slope1.Y2 = mountainHeight_ * 0.7;
  slope2.Y1 = slope1.Y2;
  slope2.Y2 = mountainHeight_ * 0.2;
  slope3.Y1 = slope2.Y2;
  slope3.Y2 = mountainHeight_ * 0.12;
  slope4.Y1 = slope3.Y2;
  slope4.Y2 = mountainHeight_ * 0.2;
  slope5.Y1 = slope4.Y2;
  slope5.Y2 = mountainHeight_ * 0.75;
  slope6.Y1 = slope5.Y2;
  slope6.X2 = mountainPicture.Width + mountainPicture.Left;
  slope6.Y2 = mountainPicture.Height + mountainPicture.Top;
}

void QuintaraForm::BuildScales() {
  rangeUnit.Visible = true;
  rangeNumbers(0).Visible = true;
  heightNumbers(0).Visible = true;
  heightUnit.Visible = true;
  for (std::int16_t km = 1; km <= rangeScaleEnd; ++km) {
    rangeNumbers.Load(km);
    rangeTicks.Load(km);
    rangeNumbers(km).Left = km * 438 + 240;
    rangeNumbers(km).Caption = ToText(km);
    rangeNumbers(km).Visible = true;
    rangeTicks(km).X1 = km * 438 + 350;
    rangeTicks(km).X2 = km * 438 + 350;
    rangeTicks(km).Visible = true;
  }
  for (std::int16_t km = 1; km <= heightScaleEnd; ++km) {
    heightNumbers.Load(km);
    heightTicks.Load(km);
    heightNumbers(km).Top = 9100 - km * 542;
    heightNumbers(km).Caption = ToText(km);
    heightNumbers(km).Visible = true;
    heightTicks(km).Y1 = 9200 - km * 542;
    heightTicks(km).Y2 = 9200 - km * 542;
    heightTicks(km).Visible = true;
  }
  rangeTicks(0).Visible = true;
  heightTicks(0).Visible = true;
}

void QuintaraForm::ShowBonusHeader(std::string_view nextStep) {
  header.BackColor = 0x80FFFF;
  header.ForeColor = 0x80000003;
  header.Caption = "Bonus Shot using Advanced Trajectory Simulator";
  advice.Caption = nextStep;
}

void QuintaraForm::ShowNormalHeader() {
  header.BackColor = 0x80000003;
  header.ForeColor = 0x80FFFF;
  header.Caption = "Terrain Profile and Ballistic Simulator";
}

}  // namespace quintara
