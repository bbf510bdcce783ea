#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "art/numeric.h"

namespace quintara::art {

// Light of a pixel; each channel runs from 0 to 255.
struct Color {
  double r = 0;
  double g = 0;
  double b = 0;
};

constexpr Color Rgb(int hex) {
  return {static_cast<double>(hex >> 16 & 255), static_cast<double>(hex >> 8 & 255),
          static_cast<double>(hex & 255)};
}

inline Color Mix(Color a, Color b, double t) {
  return {Lerp(a.r, b.r, t), Lerp(a.g, b.g, t), Lerp(a.b, b.b, t)};
}

inline Color Scaled(Color c, double factor) {
  return {c.r * factor, c.g * factor, c.b * factor};
}

inline Color Tinted(Color c, Color light) {
  return {c.r * light.r / 255, c.g * light.g / 255, c.b * light.b / 255};
}

// The pale blue which the game's views have behind everything.
inline constexpr Color viewBlue = Rgb(0xC0C0FF);

// A picture being painted; it begins wholly transparent or with a background.
class Canvas {
 public:
  Canvas(int width, int height);
  Canvas(int width, int height, Color background);

  int width() const { return width_; }
  int height() const { return height_; }
  // Lays a colour over a pixel; pixels outside the canvas are passed over.
  void Blend(int x, int y, Color color, double coverage);
  // The colour of a pixel without its transparency.
  Color ColorAt(int x, int y) const;
  double AlphaAt(int x, int y) const { return alpha_[Index(x, y)]; }
  // The picture at a whole fraction of the size, each pixel the mean of those it covers.
  Canvas Reduced(int factor) const;

 private:
  std::size_t Index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
  }

  int width_;
  int height_;
  std::vector<Color> light_;  // Multiplied by alpha_.
  std::vector<double> alpha_;
};

// A finished picture of bytes: red, green, blue, opacity.
struct Bitmap {
  int width = 0;
  int height = 0;
  bool transparent = false;
  bool dithered = false;
  std::vector<std::uint8_t> bytes;
};

// Rounds to the full range of colours.
Bitmap Plain(const Canvas& canvas);

// Rounds to a coarse palette by a regular pattern, which gives all the large pictures one grain.
Bitmap Dithered(const Canvas& canvas);

}  // namespace quintara::art
