#include "game/quintara.h"

namespace quintara {

QuintaraForm::QuintaraForm(Scene& owner, MastersForm& masters)
    : QuintaraControls(owner), frmMasters(masters) {
  Bind(Load, &QuintaraForm::Form_Load);
  Bind(QueryUnload, &QuintaraForm::Form_QueryUnload);
  Bind(cmdReset.Click, &QuintaraForm::cmdReset_Click);
  Bind(cmdReset.MouseMove, &QuintaraForm::cmdReset_MouseMove);
  Bind(cmdSound.Click, &QuintaraForm::cmdSound_Click);
  Bind(cmdCancel.Click, &QuintaraForm::cmdCancel_Click);

  Bind(cmdSearch.Click, &QuintaraForm::cmdSearch_Click);
  Bind(tmrBounce.Tick, &QuintaraForm::tmrBounce_Timer);
  Bind(tmrBounce2.Tick, &QuintaraForm::tmrBounce2_Timer);
  Bind(cmdMagnify.Click, &QuintaraForm::cmdMagnify_Click);

  Bind(VScroll1.Change, &QuintaraForm::VScroll1_Change);
  Bind(VScroll2.Change, &QuintaraForm::VScroll2_Change);
  Bind(HScroll1.Change, &QuintaraForm::HScroll1_Change);
  Bind(cmdAdvanced.Click, &QuintaraForm::cmdAdvanced_Click);

  Bind(Image7.Click, &QuintaraForm::Image7_Click);
  Bind(Image7.MouseMove, &QuintaraForm::Image7_MouseMove);
  Bind(Picture8.MouseMove, &QuintaraForm::Picture8_MouseMove);
  Bind(tmrShell.Tick, &QuintaraForm::tmrShell_Timer);
  Bind(Timer1.Tick, &QuintaraForm::Timer1_Timer);
  Bind(tmrExplode.Tick, &QuintaraForm::tmrExplode_Timer);

  Bind(cmdHelp.Click, &QuintaraForm::cmdHelp_Click);
  Bind(mnuMasters.Click, &QuintaraForm::mnuMasters_Click);
}

}  // namespace quintara
