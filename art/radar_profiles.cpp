#include "art/noise.h"
#include "art/pictures.h"

namespace quintara::art {
namespace {

constexpr int width = 49;
constexpr int height = 37;
constexpr int slices = 10;

// Height of the land in dots above the scope's floor, along the whole of the target's path; the slices join.
double LandHeight(double along) {
  const double place = along / (width * slices);
  const double massif = 15 * (1 - SmoothStep(0.0, 0.2, place));
  const double gorge = -5 * (SmoothStep(0.40, 0.45, place) - SmoothStep(0.47, 0.52, place));
  const double hills = 8.5 * SmoothStep(0.52, 0.62, place) * (1 - 0.45 * SmoothStep(0.75, 0.95, place));
  const double rough = 9.0 * Ridged(along * 0.033, 0.5, 4, 61) + 3.8 * Fractal(along * 0.09, 7.5, 4, 62);
  return 2 + 1.4 * (massif + gorge + hills + rough * (1 - 0.4 * SmoothStep(0.6, 1, place)));
}

}  // namespace

Canvas PaintRadarProfile(int number) {
  Canvas canvas(width, height, Rgb(0x000000));
  for (int x = 0; x < width; ++x) {
    const double land = LandHeight((number - 1) * width + x);
    const double next = LandHeight((number - 1) * width + x + 1);
    for (int y = 0; y < height; ++y) {
      const double above = height - 1 - y;
      const bool grid = (x % 12 == 6 && y % 2 == 0) || (y % 9 == 4 && x % 2 == 0);
      if (grid) canvas.Blend(x, y, Rgb(0x003410), 1);
      if (above < land) {
        // Deeper ground gives a weaker echo, with every other line of the sweep left dim.
        const double echo = Clamp01(1 - (land - above) / 16) * (y % 2 == 0 ? 0.55 : 0.32);
        const double speckle = 0.7 + 0.6 * Chance(x + number * width, y, 63);
        canvas.Blend(x, y, Scaled(Rgb(0x20C848), echo * speckle), 1);
      }
      const double low = std::min(land, next) - 0.75;
      const double high = std::max(land, next) + 0.75;
      if (above > low && above < high) canvas.Blend(x, y, Rgb(0x60FF80), 1);
      const double glow = std::max(above - high, low - above);
      if (glow >= 0 && glow < 1) canvas.Blend(x, y, Rgb(0x109038), 1);
    }
  }
  return canvas;
}

}  // namespace quintara::art
