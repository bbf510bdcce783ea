#include "game/quintara.h"

namespace quintara {

QuintaraForm::QuintaraForm(Scene& owner, const SideForms& sideForms)
    : QuintaraControls(owner),
      projectile(sideForms.projectile),
      frmTrajectory(sideForms.frmTrajectory),
      frmMasters(sideForms.frmMasters),
      Analysis(sideForms.Analysis),
      About(sideForms.About) {
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
  Bind(mnuIntro.Click, &QuintaraForm::mnuIntro_Click);
  Bind(mnuScenario.Click, &QuintaraForm::mnuScenario_Click);
  Bind(mnuRules.Click, &QuintaraForm::mnuRules_Click);
  Bind(mnuPhysics.Click, &QuintaraForm::mnuPhysics_Click);
  Bind(mnuCodeSegment.Click, &QuintaraForm::mnuCodeSegment_Click);
  Bind(mnuMasters.Click, &QuintaraForm::mnuMasters_Click);
  Bind(mnuAbout.Click, &QuintaraForm::mnuAbout_Click);
  Bind(mnuPrint.Click, &QuintaraForm::mnuPrint_Click);
  Bind(mnuReadme.Click, &QuintaraForm::mnuReadme_Click);
  Bind(cmdCloseReadme.Click, &QuintaraForm::cmdCloseReadme_Click);
  Bind(mnuUninstall.Click, &QuintaraForm::mnuUninstall_Click);
}

}  // namespace quintara
