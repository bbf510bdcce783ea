#include "art/canvas.h"

#include <algorithm>
#include <array>

namespace quintara::art {
namespace {

// The palette holds the values 3, 12, 21 ... 255, among them 192 and 255, so that the view's pale blue and
// the buttons' grey come out even.
constexpr double paletteStep = 9;
constexpr double paletteStart = 3;

constexpr std::array<int, 64> bayer = {0,  32, 8,  40, 2,  34, 10, 42, 48, 16, 56, 24, 50, 18, 58, 26,
                                       12, 44, 4,  36, 14, 46, 6,  38, 60, 28, 52, 20, 62, 30, 54, 22,
                                       3,  35, 11, 43, 1,  33, 9,  41, 51, 19, 59, 27, 49, 17, 57, 25,
                                       15, 47, 7,  39, 13, 45, 5,  37, 63, 31, 55, 23, 61, 29, 53, 21};

std::uint8_t Byte(double value) {
  return static_cast<std::uint8_t>(std::floor(std::clamp(value, 0.0, 255.0) + 0.5));
}

std::uint8_t PaletteByte(double value, int x, int y) {
  const double threshold = (bayer[static_cast<std::size_t>((y & 7) * 8 + (x & 7))] + 0.5) / 64;
  const double step = std::floor((value - paletteStart) / paletteStep + threshold + 1e-9);
  return Byte(paletteStart + paletteStep * step);
}

template <class Round>
Bitmap Rounded(const Canvas& canvas, Round round) {
  Bitmap bitmap;
  bitmap.width = canvas.width();
  bitmap.height = canvas.height();
  for (int y = 0; y < canvas.height(); ++y) {
    for (int x = 0; x < canvas.width(); ++x) {
      const Color color = canvas.ColorAt(x, y);
      const std::uint8_t opacity = Byte(255 * canvas.AlphaAt(x, y));
      if (opacity != 255) bitmap.transparent = true;
      for (double channel : {color.r, color.g, color.b}) {
        bitmap.bytes.push_back(opacity == 0 ? std::uint8_t{0} : round(channel, x, y));
      }
      bitmap.bytes.push_back(opacity);
    }
  }
  return bitmap;
}

}  // namespace

Canvas::Canvas(int width, int height)
    : width_(width),
      height_(height),
      light_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)),
      alpha_(light_.size(), 0.0) {}

Canvas::Canvas(int width, int height, Color background) : Canvas(width, height) {
  std::fill(light_.begin(), light_.end(), background);
  std::fill(alpha_.begin(), alpha_.end(), 1.0);
}

void Canvas::Blend(int x, int y, Color color, double coverage) {
  if (x < 0 || y < 0 || x >= width_ || y >= height_ || coverage <= 0) return;
  const double amount = std::min(coverage, 1.0);
  Color& light = light_[Index(x, y)];
  light = Mix(light, color, amount);
  double& alpha = alpha_[Index(x, y)];
  alpha = Lerp(alpha, 1, amount);
}

Color Canvas::ColorAt(int x, int y) const {
  const double alpha = alpha_[Index(x, y)];
  return alpha > 0 ? Scaled(light_[Index(x, y)], 1 / alpha) : Color{};
}

Canvas Canvas::Reduced(int factor) const {
  Canvas reduced(width_ / factor, height_ / factor);
  const double share = 1.0 / (factor * factor);
  for (int y = 0; y < reduced.height_ * factor; ++y) {
    for (int x = 0; x < reduced.width_ * factor; ++x) {
      const std::size_t to = reduced.Index(x / factor, y / factor);
      const Color part = Scaled(light_[Index(x, y)], share);
      Color& light = reduced.light_[to];
      light = {light.r + part.r, light.g + part.g, light.b + part.b};
      reduced.alpha_[to] += alpha_[Index(x, y)] * share;
    }
  }
  return reduced;
}

Bitmap Plain(const Canvas& canvas) {
  return Rounded(canvas, [](double value, int, int) { return Byte(value); });
}

Bitmap Dithered(const Canvas& canvas) {
  Bitmap bitmap = Rounded(canvas, PaletteByte);
  bitmap.dithered = true;
  return bitmap;
}

}  // namespace quintara::art
