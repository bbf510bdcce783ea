#include "game/quintara.h"
#include "scene/scene.h"

namespace quintara {

// Opens the profile between gun and target. The further the target, the taller the mountain.
void QuintaraForm::cmdMagnify_Click() {
  Image7.Enabled = false;
  Label4.Caption =
      " Adjust Muzzle Elevation Angle       and Muzzle Velocity. If Drag is       desired, click the OFF "
      "button.        Then, click the red Fire button.";
  ShowPanels();
  ShowMaximumScore();
  // The setting of the last target. A record that is no number, or none in range, counts as the nearest
  // bound.
  if (const auto record = scene().files().ReadRecord(shared.programFolder + "extra.txt", 5)) {
    HScroll1.Value = CInt(Val(*record));
  }

  RaiseTerrain();
  LayOutline();
  Image5.Left = mTargetKm * 446 - 390;
  Image5.Visible = true;
  Label11.Left = Image5.Left + 340;
  Label11.Visible = true;
  BuildScales();

  TakeElevation();
  DrawBarrel();
  if (mBonusShot == 1) ShowBonusHeader(bonusNextStep);
  if (mBonusShot == 0) ShowNormalHeader();
}

void QuintaraForm::ShowPanels() {
  Image11.Visible = true;
  for (Label* label : {&Label12, &Label17, &Label22, &Label23, &Label25}) label->Visible = true;
  Line19.Visible = true;
  Line20.Visible = true;
  for (PictureBox* panel : {&Picture5, &Picture6, &Picture7, &Picture8}) panel->Visible = true;
  cmdAdvanced.Visible = true;
  if (Val(Label21.Caption) == 6) cmdAdvanced.Enabled = false;  // no drag on the sixth shell
  cmdMagnify.Enabled = false;
  cmdSearch.Enabled = false;
  Image6.Visible = true;
  Label21.Visible = true;
}

void QuintaraForm::ShowMaximumScore() {
  const double shell = Val(Label21.Caption);
  const double actual = Val(Label17.Caption);
  if (shell <= 5) {
    Label23.Caption = ToText(actual + 50 - Val(Label25.Caption) * 10);
  } else if (shell == 6) {
    Label23.Caption = ToText(actual + 5);
  }
}

void QuintaraForm::RaiseTerrain() {
  Picture10.Top = 480;
  Picture10.Height = (mTargetKm + 18) / 0.0125;
  Image9.Height = (mTargetKm + 18) / 0.0125;
  mProfileHeight = CInt(mTargetKm * 136 - 500);
  Picture11.Height = mProfileHeight;
  Image1.Height = mProfileHeight + 20;
  Picture11.Top = 8640 - Picture11.Height;  // the mountain's foot stands at 8640 for every range
}

// The outline that the collision reads. Neighbouring segments overlap a little along the ground; that is
// meant.
void QuintaraForm::LayOutline() {
  Line27.X1 = Image1.Left;
  Line27.Y1 = Image1.Height + Image1.Top;
  Line27.Y2 = mProfileHeight * 0.7;
  Line31.Y1 = Line27.Y2;
  Line31.Y2 = mProfileHeight * 0.2;
  Line32.Y1 = Line31.Y2;
  Line32.Y2 = mProfileHeight * 0.12;
  Line33.Y1 = Line32.Y2;
  Line33.Y2 = mProfileHeight * 0.2;
  Line34.Y1 = Line33.Y2;
  Line34.Y2 = mProfileHeight * 0.75;
  Line35.Y1 = Line34.Y2;
  Line35.X2 = Image1.Width + Image1.Left;
  Line35.Y2 = Image1.Height + Image1.Top;
}

void QuintaraForm::BuildScales() {
  Label8.Visible = true;
  Label3(0).Visible = true;
  Label7(0).Visible = true;
  Label26.Visible = true;
  for (gLoopIndex = 1; gLoopIndex <= 33; ++gLoopIndex) {
    Label3.Load(gLoopIndex);
    Line10.Load(gLoopIndex);
    Label3(gLoopIndex).Left = gLoopIndex * 438 + 240;
    Label3(gLoopIndex).Caption = ToText(gLoopIndex);
    Label3(gLoopIndex).Visible = true;
    Line10(gLoopIndex).X1 = gLoopIndex * 438 + 350;
    Line10(gLoopIndex).X2 = gLoopIndex * 438 + 350;
    Line10(gLoopIndex).Visible = true;
  }
  for (gLoopIndex = 1; gLoopIndex <= 16; ++gLoopIndex) {
    Label7.Load(gLoopIndex);
    Line11.Load(gLoopIndex);
    Label7(gLoopIndex).Top = 9100 - gLoopIndex * 542;
    Label7(gLoopIndex).Caption = ToText(gLoopIndex);
    Label7(gLoopIndex).Visible = true;
    Line11(gLoopIndex).Y1 = 9200 - gLoopIndex * 542;
    Line11(gLoopIndex).Y2 = 9200 - gLoopIndex * 542;
    Line11(gLoopIndex).Visible = true;
  }
  Line10(0).Visible = true;
  Line11(0).Visible = true;
}

void QuintaraForm::ShowBonusHeader(std::string_view nextStep) {
  Label24.BackColor = 0x80FFFF;
  Label24.ForeColor = 0x80000003;
  Label24.Caption = "Bonus Shot using Advanced Trajectory Simulator";
  Label4.Caption = nextStep;
}

void QuintaraForm::ShowNormalHeader() {
  Label24.BackColor = 0x80000003;
  Label24.ForeColor = 0x80FFFF;
  Label24.Caption = "Terrain Profile and Ballistic Simulator";
}

}  // namespace quintara
