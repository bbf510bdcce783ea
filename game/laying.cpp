#include "game/quintara.h"

namespace quintara {

void QuintaraForm::PrepareBonusShot() {
  mBonusShot = 1;
  gElevationRad = Val(Label1.Caption) * 3.1416 / 180;
  gMuzzleVelocity = Val(Label6.Caption);
}

}  // namespace quintara
