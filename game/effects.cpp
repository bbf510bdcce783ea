#include "game/quintara.h"

namespace quintara {

// One tick clears whatever flashed up: the muzzle flash, the flames on the target, the fans of a burst.
void QuintaraForm::Timer1_Timer() {
  Line12.Visible = false;
  Image8.Visible = false;
  for (Line* ray : {&Line28, &Line29, &Line30, &Line37, &Line36, &Line38}) ray->Visible = false;
  Timer1.Enabled = false;
}

}  // namespace quintara
