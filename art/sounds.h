#pragma once

#include <cstdint>
#include <vector>

namespace quintara::art {

using Samples = std::vector<std::int16_t>;

Samples HeavyGun();
Samples GroundBurst();
Samples TargetExplosion();
Samples TempleGong();

}  // namespace quintara::art
