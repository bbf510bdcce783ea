#include "documents/shared_settings.h"

#include "scene/scene.h"

namespace quintara {

void SharedSettings::PlayUnlessSoundIsOff(Scene& scene, const std::string& name) const {
  if (!soundIsOff) scene.PlaySound(programFolder + name);
}

}  // namespace quintara
