#pragma once

#include "documents/analysis_controls.h"
#include "documents/help_topics.h"
#include "documents/main_form.h"
#include "physics/projectile.h"
#include "physics/trajectory.h"
#include "scene/form_handle.h"

namespace quintara {

// The window in which the documents are read. From the physics document it opens the two demonstration
// windows.
class AnalysisForm : public AnalysisControls {
 public:
  AnalysisForm(Scene& scene, const MainForm& mainForm, ProjectileForm& bench, TrajectoryForm& simulator);

  // Lays the window out for a topic, reads its document and shows it. An open window takes on the new one.
  void Open(HelpTopic topic);

 private:
  void OfferCopy();
  void CopySelection();
  void OpenBench();
  void OpenSimulator();
  void CloseWithDemonstrations();
  void TakePosition(DocumentPosition position);
  void PlaceBesideMainForm(Form& demonstration);

  FormHandle<AnalysisForm> self_;  // this form, for what goes on after its own unloading
  MainForm mainForm_;
  FormHandle<ProjectileForm> bench_;
  FormHandle<TrajectoryForm> simulator_;
};

// Reads a document of the program's folder into a box. Where it can't be read, the box says so and names the
// file.
void ReadDocumentInto(RichTextBox& box, const std::string& folder, std::string_view name);

}  // namespace quintara
