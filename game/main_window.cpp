#include "game/quintara.h"
#include "scene/scene.h"

namespace quintara {

void QuintaraForm::SetUp() {
  Left = (scene().ScreenWidth() - Width) / 2;
  Top = (scene().ScreenHeight() - Height) / 2 - 200;  // a little above the centre
  landscape.Visible = true;
  FindProgramFolder();
  flightTimeBar.Value = 15;
  StoreFlightTimeSetting();
  shellIsArmed_ = false;

  const auto load = [](auto& elements, std::int16_t i) {
    elements.Load(i);
    elements(i).Visible = true;
  };
  for (std::int16_t row = 1; row <= scopeRowCount; ++row) load(scopeRows, row);
  for (std::int16_t column = 1; column <= scopeColumnCount; ++column) load(scopeColumns, column);
  LayScopeGrid();

  // The first step up the column of marks is shorter than the others: shellMarks(0) stands at 700.
  for (std::int16_t mark = 1; mark < shellMarkCount; ++mark) {
    load(shellMarks, mark);
    shellMarks(mark).Top = 735 - 135 * mark;
  }
  RandomizeFragmentWidths();
}

// All data files are found through shared.programFolder. At the root of a drive the path ends in the
// separator already.
void QuintaraForm::FindProgramFolder() {
  shared.programFolder = scene().AppPath();
  if (Right(shared.programFolder, 1) != "\\") shared.programFolder += "\\";
}

void QuintaraForm::LayScopeGrid() {
  for (std::int16_t row = 1; row <= scopeRowCount; ++row) {
    scopeRows(row).Y1 = 60 + 90 * row;
    scopeRows(row).Y2 = 60 + 90 * row;
  }
  for (std::int16_t column = 1; column <= scopeColumnCount; ++column) {
    scopeColumns(column).X1 = 80 + 90 * column;
    scopeColumns(column).X2 = 80 + 90 * column;
  }
}

void QuintaraForm::RandomizeFragmentWidths() {
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
