#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>

#include "art/files.h"
#include "art/pictures.h"
#include "art/sounds.h"
#include "art/track.h"

namespace quintara::art {
namespace {

void MakePictures(const std::filesystem::path& folder) {
  const auto plain = [&](const std::string& name, const Canvas& canvas) {
    WritePng(folder / (name + ".png"), Plain(canvas));
  };
  const auto dithered = [&](const std::string& name, const Canvas& canvas) {
    WritePng(folder / (name + ".png"), Dithered(canvas));
  };
  dithered("landscape", PaintLandscape());
  dithered("mountain", PaintMountain());
  dithered("backdrop", PaintBackdrop());
  dithered("ground", PaintGround());
  dithered("bench_ground", PaintBenchGround());
  dithered("masters", PaintMasters());
  plain("mortar", PaintMortar());
  plain("shell", PaintShell());
  plain("target", PaintTarget());
  plain("flames", PaintFlames());
  plain("fire", PaintFireButton());
  plain("mortar_tag", PaintMortarTag());
  plain("origin_mark", PaintOriginMark());
  plain("strip", PaintStrip());
  for (int ball = 1; ball <= 3; ++ball) plain("ball" + std::to_string(ball) + "_face", PaintBallFace(ball));
  plain("v_index_x", PaintVIndexX());
  plain("v_index_y", PaintVIndexY());
  plain("plus_v_index_y", PaintPlusVIndexY());
  plain("minus_v_index_y", PaintMinusVIndexY());
  plain("v_index_o", PaintVIndexO());
  plain("letter_v", PaintLetterV());
  plain("alpha", PaintAlpha());
  for (int size : {16, 24, 32, 48, 64, 128, 256, 512}) plain("icon_" + std::to_string(size), PaintIcon(size));
}

void MakeData(const std::filesystem::path& folder) {
  for (int slice = 1; slice <= 10; ++slice) {
    WriteBmp(folder / "Graphics" / ("Profile" + std::to_string(slice) + ".bmp"),
             Plain(PaintRadarProfile(slice)));
  }
  const auto sound = [&](const std::string& name, const Samples& samples) {
    WriteWav(folder / (name + ".wav"), samples, samplesPerSecond);
  };
  sound("biggun", HeavyGun());
  sound("bomb", GroundBurst());
  sound("bombex~2", TargetExplosion());
  sound("gong", TempleGong());
}

}  // namespace
}  // namespace quintara::art

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("Usage: quintara-art OUTPUT_ROOT\nMakes art/pictures and the game's data below OUTPUT_ROOT.\n",
               stderr);
    return 2;
  }
  try {
    const std::filesystem::path root = argv[1];
    quintara::art::MakePictures(root / "art" / "pictures");
    quintara::art::MakeData(root / "data");
  } catch (const std::exception& error) {
    std::fprintf(stderr, "quintara-art: %s\n", error.what());
    return 1;
  }
  return 0;
}
