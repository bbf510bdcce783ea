#include "art/ranges.h"

#include "art/noise.h"
#include "art/relief.h"

namespace quintara::art {
namespace {

double CrestAt(const Range& range, double x) {
  const double peaks = Ridged(x / (range.foldSize * 3), range.seed * 3.7, 5, range.seed) - 0.45;
  const double swell = Fractal(x / 310, range.seed * 1.9, 2, range.seed + 7);
  return range.crest - range.rise * (peaks * 1.15 + swell * 0.55);
}

}  // namespace

void PaintRange(Canvas& canvas, int fine, const Range& range) {
  for (int column = 0; column < canvas.width(); ++column) {
    const double x = (column + 0.5) / fine;
    const double crest = CrestAt(range, x);
    for (int row = static_cast<int>(crest * fine) - 1; row < canvas.height(); ++row) {
      const double y = (row + 0.5) / fine;
      const double light = RockLight(x + 0.3 * (y - crest), y - 0.6 * crest, range.foldSize, range.seed + 20);
      const double grain = 0.10 * Fractal(x * 0.35, y * 0.5, 2, range.seed + 30);
      Color color = Mix(range.shade, range.light, Clamp01(light + grain));
      const double cold = range.snowLine - y + 7 * (light - 0.5);
      if (cold > 0) color = Mix(color, Mix(Rgb(0xA8B0E4), Rgb(0xFFFAF4), light), SmoothStep(0, 3, cold));
      // Mist lies at the foot of each chain.
      color = Mix(color, Rgb(0xCCCCE8), 0.55 * SmoothStep(range.crest + 4, range.crest + 32, y));
      canvas.Blend(column, row, color, (y - crest) * fine + 0.5);
    }
  }
}

}  // namespace quintara::art
