#include "art/noise.h"
#include "art/pictures.h"
#include "art/ranges.h"
#include "art/relief.h"

namespace quintara::art {
namespace {

constexpr int width = 763;
constexpr int height = 158;
constexpr int fine = 2;

// How far the fog of a bank covers a place: its top billows and its body thins out downward.
double FogAt(double x, double y, double top, std::uint32_t seed) {
  const double swell = 13 * Fractal(x / 110, 0.5, 3, seed);
  const double billow = 3.2 * Ridged(x / 26, y / 15, 3, seed + 5) + 2 * Fractal(x / 9, y / 7, 2, seed + 9);
  return SmoothStep(0, 9, y - top - swell + billow);
}

// The foothills sink into a sea of fog, lit on its crests and further down of the view's own colour: below
// the picture there is only that.
void PaintFog(Canvas& canvas) {
  for (double bank : {124.0, 132.0, 139.0}) {
    const std::uint32_t seed = static_cast<std::uint32_t>(bank) + 100;
    for (int row = 105 * fine; row < canvas.height(); ++row) {
      const double y = (row + 0.5) / fine;
      for (int column = 0; column < canvas.width(); ++column) {
        const double x = (column + 0.5) / fine;
        const double cover = FogAt(x, y, bank, seed);
        const double rising = cover - FogAt(x + 3, y - 3, bank, seed);
        const Color lit = Mix(Rgb(0xB4B8E4), Rgb(0xF8F4FC), Clamp01(0.42 + 0.9 * rising));
        const double sunk = SmoothStep(bank - 4, bank + 30, y + (bank - 124));
        canvas.Blend(column, row, Mix(lit, viewBlue, sunk), 0.88 * cover);
      }
    }
  }
  for (int row = 134 * fine; row < canvas.height(); ++row) {
    for (int column = 0; column < canvas.width(); ++column) {
      canvas.Blend(column, row, viewBlue, SmoothStep(134, 157, (row + 0.5) / fine));
    }
  }
}

}  // namespace

Canvas PaintBackdrop() {
  Canvas large(width * fine, height * fine);
  for (int row = 0; row < height * fine; ++row) {
    for (int column = 0; column < width * fine; ++column) {
      large.Blend(column, row, SkyAt((column + 0.5) / fine, (row + 0.5) / fine, 102, 75), 1);
    }
  }
  PaintRange(large, fine, {74, 38, 58, Rgb(0xA0A4D8), Rgb(0xE4D4E0), 69, 81});
  PaintRange(large, fine, {95, 34, 46, Rgb(0x7C84BC), Rgb(0xDCC4C0), 72, 84});
  PaintRange(large, fine, {112, 27, 36, Rgb(0x5C6C98), Rgb(0xB8B09C), 0, 87});
  PaintRange(large, fine, {128, 17, 26, Rgb(0x44605C), Rgb(0x98A070), 0, 90});
  PaintFog(large);
  return large.Reduced(fine);
}

}  // namespace quintara::art
