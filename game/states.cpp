#include "game/quintara.h"
#include "scene/scene.h"

namespace quintara {

// The program ends with its last form: closing this one takes the others along.
void QuintaraForm::Form_QueryUnload() {
  projectile.Unload();
  frmTrajectory.Unload();
  frmMasters.Unload();
  Analysis.Unload();
  About.Unload();
}

void QuintaraForm::cmdCancel_Click() {
  scene().End();
}

void QuintaraForm::cmdSound_Click() {
  shared.soundIsOff = !shared.soundIsOff;
  cmdSound.Caption = shared.soundIsOff ? "Sound OFF" : "Sound ON";
}

// On to the next target, or to a new game once the sixth shell is fired.
void QuintaraForm::cmdReset_Click() {
  Picture4.Picture = Picture{};
  LayScopeGrid();
  mFragRun = {};
  mFragHeight = {};
  mShellArmed = 0;
  DrawFragmentWidths();
  Label6.Caption = "250";
  Shape1(0).Left = 0;
  Shape1(0).Top = 9200;
  StoreFlightTimeSetting();
  Line8.X1 = 500;
  Line9.Y2 = 9150;

  LayGunAtRest();
  TakeDownTarget();
  Label4.Caption = " To start Laser Radar Target          Aquisition, click Search (S)";
  Label31.Caption = "Real time to impact(sec) ";

  const double shell = Val(Label21.Caption);
  if (shell < 6) {
    mBonusShot = 0;
  } else if (shell == 6) {
    mBonusShot = 1;
  }
  if (Val(Label25.Caption) == 6) StartNewGame();
  UnloadScales();
  tmrExplode.Enabled = false;
}

// Writing the scroll bars runs their Change handlers, with the bonus shot as it still is; what follows in
// Reset overrides what they show.
void QuintaraForm::LayGunAtRest() {
  VScroll1.Value = 340;
  Label1.Caption = "30";
  VScroll2.Value = 250;
  // Taller than the gauge of 250 m/s would stand; it is set right by the next change of velocity.
  Image6.Height = 430;
  Image6.Top = 440;
}

void QuintaraForm::TakeDownTarget() {
  Line24.Visible = false;
  cmdAdvanced.Visible = false;
  Label5.Visible = false;
  cmdAdvanced.Enabled = true;
  cmdAdvanced.Caption = "OFF";
  if (Val(Label25.Caption) == 6) Label22.Visible = false;
  Label15.Caption = "0";
  Label28.Visible = false;
  Label29.Visible = false;
  Image7.Enabled = true;
  Image11.Visible = false;
  VScroll1.Enabled = true;
  VScroll2.Enabled = true;
  cmdReset.Enabled = false;
  Image8.Enabled = true;
  Label24.Visible = true;
  for (PictureBox* panel : {&Picture5, &Picture6, &Picture7, &Picture8}) panel->Visible = false;
  cmdSearch.Enabled = true;
  cmdMagnify.Enabled = false;
  Line2.Visible = false;
  Line2.BorderColor = 0x00FFFF;
  for (Line* line : {&Line3, &Line5, &Line6, &Line19}) line->Visible = false;
  Shape3.Visible = false;
}

void QuintaraForm::StartNewGame() {
  mBonusShot = 0;
  for (gLoopIndex = 0; gLoopIndex <= 4; ++gLoopIndex) Shape6(gLoopIndex).Visible = true;
  Label21.Caption = "1";
  Label25.Caption = "0";
  Label23.Caption = "30";
  Label17.Caption = "0";
  for (Label* label : {&Label12, &Label17, &Label23, &Label25, &Label5}) label->Visible = false;
  Line20.Visible = false;
  cmdSound.Visible = true;
  mDragOn = 0;
}

void QuintaraForm::UnloadScales() {
  for (gLoopIndex = 1; gLoopIndex <= 33; ++gLoopIndex) {
    Label3.Unload(gLoopIndex);
    Line10.Unload(gLoopIndex);
  }
  for (gLoopIndex = 1; gLoopIndex <= 16; ++gLoopIndex) {
    Label7.Unload(gLoopIndex);
    Line11.Unload(gLoopIndex);
  }
}

}  // namespace quintara
