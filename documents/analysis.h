#pragma once

#include "documents/help_topics.h"
#include "documents/main_form.h"
#include "physics/projectile.h"
#include "physics/trajectory.h"
#include "scene/controls.h"
#include "scene/form_handle.h"

namespace quintara {

// The window in which the documents are read. From the physics document it opens the two demonstration
// windows.
class AnalysisForm : public Form {
 public:
  AnalysisForm(Scene& scene, const MainForm& mainForm, ProjectileForm& projectile,
               TrajectoryForm& frmTrajectory);

  // Lays the window out for a topic, reads its document and shows it. An open window takes on the new one.
  void Open(HelpTopic topic);

  // clang-format off
  RichTextBox   rtbMath      {*this, "rtbMath",       {   0,    0, 6000, 8640}, {.backColor = 0x80000005}};
  CommandButton cmdFreeFall  {*this, "cmdFreeFall",   { 120, 8745,  975,  350}, {.caption = "Projectile"}};
  CommandButton cmdCopy      {*this, "cmdCopy",       {1680, 8745,  975,  350}, {.enabled = false, .caption = "Copy"}};
  CommandButton cmdCancel    {*this, "cmdCancel",     {3240, 8745,  975,  350}, {.caption = "Cancel"}};
  CommandButton cmdTrajectory{*this, "cmdTrajectory", {4800, 8745,  975,  350}, {.caption = "Trajectory"}};
  // clang-format on

 private:
  void rtbMath_SelChange();
  void cmdCopy_Click();
  void cmdFreeFall_Click();
  void cmdTrajectory_Click();
  void cmdCancel_Click();
  void TakePosition(DocumentPosition position);
  void PlaceBesideMainForm(Form& demonstration);

  FormHandle<AnalysisForm> Analysis;  // this form, for what goes on after its own unloading
  MainForm main_;
  FormHandle<ProjectileForm> projectile;
  FormHandle<TrajectoryForm> frmTrajectory;
};

// Reads a document of the program's folder into a box. Where it can't be read, the box says so and names the
// file.
void ReadDocumentInto(RichTextBox& box, const std::string& folder, std::string_view name);

}  // namespace quintara
