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
  Bind(resetButton.Click, &QuintaraForm::cmdReset_Click);
  Bind(resetButton.MouseMove, &QuintaraForm::cmdReset_MouseMove);
  Bind(soundButton.Click, &QuintaraForm::cmdSound_Click);
  Bind(cancelButton.Click, &QuintaraForm::cmdCancel_Click);

  Bind(searchButton.Click, &QuintaraForm::cmdSearch_Click);
  Bind(driftRightTimer.Tick, &QuintaraForm::tmrBounce_Timer);
  Bind(driftLeftTimer.Tick, &QuintaraForm::tmrBounce2_Timer);
  Bind(magnifyButton.Click, &QuintaraForm::cmdMagnify_Click);

  Bind(elevationBar.Change, &QuintaraForm::VScroll1_Change);
  Bind(velocityBar.Change, &QuintaraForm::VScroll2_Change);
  Bind(flightTimeBar.Change, &QuintaraForm::HScroll1_Change);
  Bind(dragButton.Click, &QuintaraForm::cmdAdvanced_Click);

  Bind(fireButton.Click, &QuintaraForm::Image7_Click);
  Bind(fireButton.MouseMove, &QuintaraForm::Image7_MouseMove);
  Bind(firingPanel.MouseMove, &QuintaraForm::Picture8_MouseMove);
  Bind(shellTimer.Tick, &QuintaraForm::tmrShell_Timer);
  Bind(flashTimer.Tick, &QuintaraForm::Timer1_Timer);
  Bind(fragmentTimer.Tick, &QuintaraForm::tmrExplode_Timer);

  Bind(helpButton.Click, &QuintaraForm::cmdHelp_Click);
  Bind(introductionItem.Click, &QuintaraForm::mnuIntro_Click);
  Bind(scenarioItem.Click, &QuintaraForm::mnuScenario_Click);
  Bind(rulesItem.Click, &QuintaraForm::mnuRules_Click);
  Bind(physicsItem.Click, &QuintaraForm::mnuPhysics_Click);
  Bind(codeItem.Click, &QuintaraForm::mnuCodeSegment_Click);
  Bind(mastersItem.Click, &QuintaraForm::mnuMasters_Click);
  Bind(aboutItem.Click, &QuintaraForm::mnuAbout_Click);
  Bind(printingItem.Click, &QuintaraForm::mnuPrint_Click);
  Bind(readmeItem.Click, &QuintaraForm::mnuReadme_Click);
  Bind(closeReadmeButton.Click, &QuintaraForm::cmdCloseReadme_Click);
  Bind(uninstallItem.Click, &QuintaraForm::mnuUninstall_Click);
}

}  // namespace quintara
