#include "documents/module1.h"

#include "scene/scene.h"

namespace quintara {

void Module1::PlayUnlessSoundIsOff(Scene& scene, const std::string& name) {
  if (gSoundOff != 0) return;
  gSoundFlags = 1;
  scene.sndPlaySoundA(gAppPath + name, gSoundFlags);
}

}  // namespace quintara
