#pragma once

#include "documents/masters.h"
#include "game/quintara.h"
#include "scene/platform.h"
#include "scene/scene.h"

namespace quintara {

// One running game: the Scene with all its forms. Several can live side by side; they share nothing.
class Program {
 public:
  // The platform must outlive the program.
  explicit Program(Platform& platform)
      : scene_(platform), quintara_(scene_, masters_), masters_(scene_, quintara_, quintara_.Label17) {}

  // Builds the main form, runs its Load handler and shows it. Comes once.
  void Start();

  Scene& scene() { return scene_; }
  QuintaraForm& quintara() { return quintara_; }
  MastersForm& masters() { return masters_; }

 private:
  Scene scene_;
  QuintaraForm quintara_;
  MastersForm masters_;
};

}  // namespace quintara
