#include "documents/analysis.h"

#include "scene/scene.h"

namespace quintara {

AnalysisForm::AnalysisForm(Scene& owner, const MainForm& mainForm, ProjectileForm& projectileForm,
                           TrajectoryForm& trajectoryForm)
    : AnalysisControls(owner),
      Analysis(*this),
      main_(mainForm),
      projectile(projectileForm),
      frmTrajectory(trajectoryForm) {
  Bind(rtbMath.SelChange, &AnalysisForm::rtbMath_SelChange);
  Bind(cmdCopy.Click, &AnalysisForm::cmdCopy_Click);
  Bind(cmdFreeFall.Click, &AnalysisForm::cmdFreeFall_Click);
  Bind(cmdTrajectory.Click, &AnalysisForm::cmdTrajectory_Click);
  Bind(cmdCancel.Click, &AnalysisForm::cmdCancel_Click);
}

void AnalysisForm::Open(HelpTopic topic) {
  const HelpDocument& document = DocumentOn(topic);
  Height = document.height;
  Width = document.width;
  TakePosition(document.position);
  Caption = document.caption;
  rtbMath.Width = document.textWidth;
  rtbMath.Height = document.textHeight;
  cmdCancel.Left = document.cancelLeft;
  cmdCancel.Top = document.cancelTop;
  cmdCopy.Left = document.copyLeft;
  cmdCopy.Top = document.copyTop;
  main_.valleyName.Visible = document.placeNames;
  main_.peakName.Visible = document.placeNames;
  cmdTrajectory.Visible = document.demonstrations;
  cmdFreeFall.Visible = document.demonstrations;
  ReadDocumentInto(rtbMath, main_.shared.programFolder, document.file);
  Show();
}

void AnalysisForm::TakePosition(DocumentPosition position) {
  if (position == DocumentPosition::Beside) {
    Left = main_.form.Left + 80;
    Top = main_.form.Top + 340;
    return;
  }
  Left = main_.form.Width / 2 - Width / 2;
  Top = main_.form.Height / 2 - (position == DocumentPosition::Centred ? Height / 2 : 0);
}

// Nothing switches the button off again while the window stays open.
void AnalysisForm::rtbMath_SelChange() {
  if (rtbMath.SelLength() > 0) cmdCopy.Enabled = true;
}

void AnalysisForm::cmdCopy_Click() {
  if (rtbMath.SelLength() > 0) scene().platform().PutOnClipboard(rtbMath.SelText());
}

void AnalysisForm::cmdFreeFall_Click() {
  projectile->Show();
  PlaceBesideMainForm(*projectile);
}

void AnalysisForm::cmdTrajectory_Click() {
  frmTrajectory->Show();
  PlaceBesideMainForm(*frmTrajectory);
}

void AnalysisForm::PlaceBesideMainForm(Form& demonstration) {
  demonstration.Left = main_.form.Left + 6200;
  demonstration.Top = main_.form.Top + 1500;
}

void AnalysisForm::cmdCancel_Click() {
  Analysis.Unload();
  main_.valleyName.Visible = false;
  main_.peakName.Visible = false;
  frmTrajectory.Unload();
  projectile.Unload();
  // This touch loads the form again, hidden; it is meant so that the next opening starts with the button off.
  Analysis->cmdCopy.Enabled = false;
}

void ReadDocumentInto(RichTextBox& box, const std::string& folder, std::string_view name) {
  const auto document = box.form().scene().files().ReadWhole(folder + std::string(name));
  box.TextRTF = document ? *document : "The document " + std::string(name) + " could not be read.";
}

}  // namespace quintara
