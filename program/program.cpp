#include "program/program.h"

namespace quintara {

// The forms know each other by reference from the start; none is used before all are built.
Program::Program(Platform& platform)
    : scene_(platform),
      quintara_(scene_, {projectile_, trajectory_, masters_, analysis_, about_}),
      projectile_(scene_),
      trajectory_(scene_),
      masters_(scene_, quintara_.ForDocuments()),
      analysis_(scene_, quintara_.ForDocuments(), projectile_, trajectory_),
      about_(scene_) {}

void Program::Start() {
  scene_.dispatcher().Run(quintara_, [this] { quintara_.Show(); });
}

}  // namespace quintara
