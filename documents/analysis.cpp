#include "documents/analysis.h"

#include "scene/scene.h"

namespace quintara {

AnalysisForm::AnalysisForm(Scene& owner, const MainForm& mainForm, ProjectileForm& bench,
                           TrajectoryForm& simulator)
    : AnalysisControls(owner), self_(*this), mainForm_(mainForm), bench_(bench), simulator_(simulator) {
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
  mainForm_.valleyName.Visible = document.placeNames;
  mainForm_.peakName.Visible = document.placeNames;
  simulatorButton.Visible = document.demonstrations;
  benchButton.Visible = document.demonstrations;
  ReadDocumentInto(documentBox, mainForm_.shared.programFolder, document.file);
  Show();
}

void AnalysisForm::TakePosition(DocumentPosition position) {
  if (position == DocumentPosition::Beside) {
    Left = mainForm_.form.Left + 80;
    Top = mainForm_.form.Top + 340;
    return;
  }
  Left = mainForm_.form.Width / 2 - Width / 2;
  Top = mainForm_.form.Height / 2 - (position == DocumentPosition::Centred ? Height / 2 : 0);
}

// Nothing switches the button off again while the window stays open.
void AnalysisForm::OfferCopy() {
  if (documentBox.SelLength() > 0) copyButton.Enabled = true;
}

void AnalysisForm::CopySelection() {
  if (documentBox.SelLength() > 0) scene().platform().PutOnClipboard(documentBox.SelText());
}

void AnalysisForm::OpenBench() {
  bench_->Show();
  PlaceBesideMainForm(*bench_);
}

void AnalysisForm::OpenSimulator() {
  simulator_->Show();
  PlaceBesideMainForm(*simulator_);
}

void AnalysisForm::PlaceBesideMainForm(Form& demonstration) {
  demonstration.Left = mainForm_.form.Left + 6200;
  demonstration.Top = mainForm_.form.Top + 1500;
}

void AnalysisForm::CloseWithDemonstrations() {
  self_.Unload();
  mainForm_.valleyName.Visible = false;
  mainForm_.peakName.Visible = false;
  simulator_.Unload();
  bench_.Unload();
  // This touch loads the form again, hidden; it is meant so that the next opening starts with the button off.
  self_->copyButton.Enabled = false;
}

void ReadDocumentInto(RichTextBox& box, const std::string& folder, std::string_view name) {
  const auto document = box.form().scene().files().ReadWhole(folder + std::string(name));
  box.TextRTF = document ? *document : "The document " + std::string(name) + " could not be read.";
}

}  // namespace quintara
