#pragma once

#include "documents/about.h"
#include "documents/analysis.h"
#include "documents/masters.h"
#include "game/quintara.h"
#include "physics/projectile.h"
#include "physics/trajectory.h"
#include "scene/platform.h"
#include "scene/scene.h"

namespace quintara {

// One running game: the Scene with all its forms. Several can live side by side; they share nothing.
class Program {
 public:
  // The platform must outlive the program.
  explicit Program(Platform& platform);

  // Builds the main form, runs its Load handler and shows it. Comes once.
  void Start();

  Scene& scene() { return scene_; }
  QuintaraForm& quintara() { return quintara_; }
  MastersForm& masters() { return masters_; }
  AnalysisForm& analysis() { return analysis_; }
  AboutForm& about() { return about_; }
  ProjectileForm& projectile() { return projectile_; }
  TrajectoryForm& trajectory() { return trajectory_; }

 private:
  Scene scene_;
  QuintaraForm quintara_;
  ProjectileForm projectile_;
  TrajectoryForm trajectory_;
  MastersForm masters_;
  AnalysisForm analysis_;
  AboutForm about_;
};

}  // namespace quintara
