#ifndef QUINTARA_ART_SOUNDS_H
#define QUINTARA_ART_SOUNDS_H

#include <cstdint>
#include <vector>

namespace quintara::art {

using Samples = std::vector<std::int16_t>;

Samples HeavyGun();
Samples GroundBurst();
Samples TargetExplosion();
Samples TempleGong();

}  // namespace quintara::art

#endif
