#include "game/quintara.h"

namespace quintara {

QuintaraForm::QuintaraForm(Scene& owner) : QuintaraControls(owner) {
  Bind(Load, &QuintaraForm::Form_Load);

  Bind(Image7.Click, &QuintaraForm::Image7_Click);
  Bind(Image7.MouseMove, &QuintaraForm::Image7_MouseMove);
  Bind(Picture8.MouseMove, &QuintaraForm::Picture8_MouseMove);
  Bind(cmdReset.MouseMove, &QuintaraForm::cmdReset_MouseMove);
  Bind(tmrShell.Tick, &QuintaraForm::tmrShell_Timer);
  Bind(Timer1.Tick, &QuintaraForm::Timer1_Timer);

  Bind(cmdCancel.Click, &QuintaraForm::cmdCancel_Click);
}

}  // namespace quintara
