#include "game/quintara.h"

namespace quintara {

QuintaraForm::QuintaraForm(Scene& owner, const SideForms& sideForms)
    : QuintaraControls(owner),
      bench_(sideForms.bench),
      simulator_(sideForms.simulator),
      masters_(sideForms.masters),
      documents_(sideForms.documents),
      about_(sideForms.about) {
  Bind(Load, &QuintaraForm::SetUp);
  Bind(QueryUnload, &QuintaraForm::CloseSideForms);
  Bind(resetButton.Click, &QuintaraForm::Reset);
  Bind(soundButton.Click, &QuintaraForm::SwitchSound);
  Bind(cancelButton.Click, &QuintaraForm::LeaveGame);

  Bind(searchButton.Click, &QuintaraForm::Search);
  Bind(driftRightTimer.Tick, &QuintaraForm::DriftRight);
  Bind(driftLeftTimer.Tick, &QuintaraForm::DriftLeft);
  Bind(magnifyButton.Click, &QuintaraForm::Magnify);

  Bind(elevationBar.Change, &QuintaraForm::LayElevation);
  Bind(velocityBar.Change, &QuintaraForm::LayVelocity);
  Bind(flightTimeBar.Change, &QuintaraForm::RepeatTimeToImpact);
  Bind(dragButton.Click, &QuintaraForm::SwitchDrag);

  Bind(fireButton.Click, &QuintaraForm::Fire);
  Bind(fireButton.MouseMove, &QuintaraForm::LightRing);
  Bind(firingPanel.MouseMove, &QuintaraForm::DimRing);
  Bind(resetButton.MouseMove, &QuintaraForm::DimRing);
  Bind(shellTimer.Tick, &QuintaraForm::FlyShell);
  Bind(flashTimer.Tick, &QuintaraForm::EndFlash);
  Bind(fragmentTimer.Tick, &QuintaraForm::FlyFragments);

  Bind(helpButton.Click, &QuintaraForm::OpenHelpMenu);
  BindDocuments();
  Bind(mastersItem.Click, &QuintaraForm::ShowMasters);
  Bind(aboutItem.Click, &QuintaraForm::ShowAbout);
  Bind(readmeItem.Click, &QuintaraForm::OpenReadme);
  Bind(closeReadmeButton.Click, &QuintaraForm::CloseReadme);
  Bind(uninstallItem.Click, &QuintaraForm::ExplainUninstalling);
}

}  // namespace quintara
