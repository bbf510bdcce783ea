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
  Bind(documentBox.SelChange, &AnalysisForm::rtbMath_SelChange);
  Bind(copyButton.Click, &AnalysisForm::cmdCopy_Click);
  Bind(benchButton.Click, &AnalysisForm::cmdFreeFall_Click);
  Bind(simulatorButton.Click, &AnalysisForm::cmdTrajectory_Click);
  Bind(cancelButton.Click, &AnalysisForm::cmdCancel_Click);
}

void AnalysisForm::Open(HelpTopic topic) {
  const HelpDocument& document = DocumentOn(topic);
  Height = document.height;
  Width = document.width;
  TakePosition(document.position);
  Caption = document.caption;
  documentBox.Width = document.textWidth;
  documentBox.Height = document.textHeight;
  cancelButton.Left = document.cancelLeft;
  cancelButton.Top = document.cancelTop;
  copyButton.Left = document.copyLeft;
  copyButton.Top = document.copyTop;
  main_.valleyName.Visible = document.placeNames;
  main_.peakName.Visible = document.placeNames;
  simulatorButton.Visible = document.demonstrations;
  benchButton.Visible = document.demonstrations;
  ReadDocumentInto(documentBox, main_.shared.programFolder, document.file);
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
  if (documentBox.SelLength() > 0) copyButton.Enabled = true;
}

void AnalysisForm::cmdCopy_Click() {
  if (documentBox.SelLength() > 0) scene().platform().PutOnClipboard(documentBox.SelText());
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
  Analysis->copyButton.Enabled = false;
}

void ReadDocumentInto(RichTextBox& box, const std::string& folder, std::string_view name) {
  const auto document = box.form().scene().files().ReadWhole(folder + std::string(name));
  box.TextRTF = document ? *document : "The document " + std::string(name) + " could not be read.";
}

}  // namespace quintara
