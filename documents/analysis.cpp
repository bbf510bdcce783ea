#include "documents/analysis.h"

#include "scene/scene.h"

namespace quintara {

AnalysisForm::AnalysisForm(Scene& owner, const MainForm& main, ProjectileForm& benchForm,
                           TrajectoryForm& simulatorForm)
    : AnalysisControls(owner), self(*this), mainForm(main), bench(benchForm), simulator(simulatorForm) {
  Bind(documentBox.SelChange, &AnalysisForm::OfferCopy);
  Bind(copyButton.Click, &AnalysisForm::CopySelection);
  Bind(benchButton.Click, &AnalysisForm::OpenBench);
  Bind(simulatorButton.Click, &AnalysisForm::OpenSimulator);
  Bind(cancelButton.Click, &AnalysisForm::CloseWithDemonstrations);
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
  mainForm.valleyName.Visible = document.placeNames;
  mainForm.peakName.Visible = document.placeNames;
  simulatorButton.Visible = document.demonstrations;
  benchButton.Visible = document.demonstrations;
  ReadDocumentInto(documentBox, mainForm.shared.programFolder, document.file);
  Show();
}

void AnalysisForm::TakePosition(DocumentPosition position) {
  if (position == DocumentPosition::Beside) {
    Left = mainForm.form.Left + 80;
    Top = mainForm.form.Top + 340;
    return;
  }
  Left = mainForm.form.Width / 2 - Width / 2;
  Top = mainForm.form.Height / 2 - (position == DocumentPosition::Centred ? Height / 2 : 0);
}

// Nothing switches the button off again while the window stays open.
void AnalysisForm::OfferCopy() {
  if (documentBox.SelLength() > 0) copyButton.Enabled = true;
}

void AnalysisForm::CopySelection() {
  if (documentBox.SelLength() > 0) scene().platform().PutOnClipboard(documentBox.SelText());
}

void AnalysisForm::OpenBench() {
  bench->Show();
  PlaceBesideMainForm(*bench);
}

void AnalysisForm::OpenSimulator() {
  simulator->Show();
  PlaceBesideMainForm(*simulator);
}

void AnalysisForm::PlaceBesideMainForm(Form& demonstration) {
  demonstration.Left = mainForm.form.Left + 6200;
  demonstration.Top = mainForm.form.Top + 1500;
}

void AnalysisForm::CloseWithDemonstrations() {
  self.Unload();
  mainForm.valleyName.Visible = false;
  mainForm.peakName.Visible = false;
  simulator.Unload();
  bench.Unload();
  // This touch loads the form again, hidden; it is meant so that the next opening starts with the button off.
  self->copyButton.Enabled = false;
}

void ReadDocumentInto(RichTextBox& box, const std::string& folder, std::string_view name) {
  const auto document = box.form().scene().files().ReadWhole(folder + std::string(name));
  box.TextRTF = document ? *document : "The document " + std::string(name) + " could not be read.";
}

}  // namespace quintara
