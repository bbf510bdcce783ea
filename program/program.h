#pragma once

#include "game/quintara.h"
#include "scene/platform.h"
#include "scene/scene.h"

namespace quintara {

// One running game: the Scene with all its forms. Several can live side by side; they share nothing.
class Program {
 public:
  // The platform must outlive the program.
  explicit Program(Platform& platform) : scene_(platform), quintara_(scene_) {}

  // Builds the main form, runs its Load handler and shows it. Comes once.
  void Start();

  Scene& scene() { return scene_; }
  QuintaraForm& quintara() { return quintara_; }

 private:
  Scene scene_;
  QuintaraForm quintara_;
};

}  // namespace quintara
