#include "game/quintara.h"
#include "scene/scene.h"

namespace quintara {

void QuintaraForm::SetUp() {
  Left = (scene().ScreenWidth() - Width) / 2;
  Top = (scene().ScreenHeight() - Height) / 2 - 200;  // a little above the centre
  landscape.Visible = true;
  SetAppFolder();
  flightTimeBar.Value = 15;
  StoreFlightTimeSetting();
  mShellArmed = 0;

  for (gLoopIndex = 1; gLoopIndex <= 4; ++gLoopIndex) {
    scopeRows.Load(gLoopIndex);
    scopeRows(gLoopIndex).Visible = true;
    shellMarks.Load(gLoopIndex);
    shellMarks(gLoopIndex).Visible = true;
  }
  for (gLoopIndex = 1; gLoopIndex <= 6; ++gLoopIndex) {
    scopeColumns.Load(gLoopIndex);
    scopeColumns(gLoopIndex).Visible = true;
  }
  LayScopeGrid();

  // The first step up the column of shells is shorter than the others: shellMarks(0) stands at 700.
  for (gLoopIndex = 1; gLoopIndex <= 4; ++gLoopIndex) shellMarks(gLoopIndex).Top = 735 - 135 * gLoopIndex;
  DrawFragmentWidths();
}

// All data files are found through shared.programFolder. At the root of a drive the path ends in the
// separator already.
void QuintaraForm::SetAppFolder() {
  shared.programFolder = scene().AppPath();
  if (Right(shared.programFolder, 1) != "\\") shared.programFolder += "\\";
}

void QuintaraForm::LayScopeGrid() {
  for (gLoopIndex = 1; gLoopIndex <= 4; ++gLoopIndex) {
    scopeRows(gLoopIndex).Y1 = 60 + 90 * gLoopIndex;
    scopeRows(gLoopIndex).Y2 = 60 + 90 * gLoopIndex;
  }
  for (gLoopIndex = 1; gLoopIndex <= 6; ++gLoopIndex) {
    scopeColumns(gLoopIndex).X1 = 80 + 90 * gLoopIndex;
    scopeColumns(gLoopIndex).X2 = 80 + 90 * gLoopIndex;
  }
}

void QuintaraForm::DrawFragmentWidths() {
  scene().Randomize();
  for (Shape* fragment : Fragments()) fragment->Width = Int(scene().Rnd() * 50 + 30);
}

// Record 5 of extra.txt carries the setting of flightTimeBar from one target to the next.
void QuintaraForm::StoreFlightTimeSetting() {
  if (scene().files().WriteRecord(shared.programFolder + "extra.txt", 5, ToText(flightTimeBar.Value))) return;
  scene().TellFault(
      "The flight time setting could not be saved in the file extra.txt. The file was left as it is, and the "
      "game goes on.");
}

}  // namespace quintara
