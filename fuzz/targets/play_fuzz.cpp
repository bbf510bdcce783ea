// A user who does anything at any moment: the game keeps its order.

#include "fuzz/game_order.h"
#include "fuzz/player.h"
#include "fuzz/scene_order.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quintara::fuzz;
  // An input that lets more time go by would only be slower, not find more.
  constexpr std::int64_t mostTime = 120'000;
  Bytes bytes(AsText(data, size));
  quintara::MemoryDisk disk(ShippedFiles());
  AnsweringPlatform platform(disk);
  quintara::Program program(platform);
  SceneOrder order(program.scene());
  program.Start();
  Player player(program, disk, platform, bytes);
  quintara::Scene& scene = program.scene();
  while (!bytes.empty() && !scene.ended() && scene.dispatcher().now() < mostTime) {
    player.Act();
    order.RequireHolds();
    RequireGameOrder(program);
  }
  return 0;
}
