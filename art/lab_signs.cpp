#include <array>
#include <string_view>

#include "art/pictures.h"
#include "art/pixel_font.h"
#include "art/shapes.h"

namespace quintara::art {
namespace {

constexpr Color ink = Rgb(0x000000);

Canvas Sign(int width, int height, int left, int top, const Dots& dots) {
  Canvas canvas(width, height);
  DrawDots(canvas, left, top, dots, ink);
  return canvas;
}

// A glossy ball lit from the upper right.
void DrawBall(Canvas& canvas, Point center, double radius, Color color) {
  const auto disc = [&](Point p) { return DiscDistance(p, center, radius); };
  const auto shade = [&](Point p) {
    const double x = (p.x - center.x) / radius;
    const double y = (p.y - center.y) / radius;
    const double light = Clamp01(0.55 + 0.45 * x - 0.5 * y);
    const Color body = Mix(Scaled(color, 0.45), color, light);
    const double gloss = Clamp01(1 - Length(x - 0.38, y + 0.42) / 0.42);
    const double rim = SmoothStep(0.82, 1.0, Length(x, y));
    return Mix(Mix(body, Rgb(0xFFFFFF), 0.85 * gloss), Scaled(color, 0.22), 0.75 * rim);
  };
  Paint(canvas, Whole(canvas), disc, shade);
}

struct Experiment {
  std::string_view digit;
  std::string_view name;
  Color ball;
  Color digitColor;
};

constexpr std::array<Experiment, 3> experiments = {{
    {"1", "Linear Motion", Rgb(0xF4D020), Rgb(0x000000)},
    {"2", "Free Fall", Rgb(0x3458E8), Rgb(0xFFFFFF)},
    {"3", "Combined", Rgb(0xE03428), Rgb(0xFFFFFF)},
}};

}  // namespace

Canvas PaintBallFace(int number) {
  const Experiment& experiment = experiments.at(static_cast<std::size_t>(number - 1));
  Canvas canvas(85, 17);
  DrawBall(canvas, {8.5, 8.5}, 7.6, experiment.ball);
  DrawText(canvas, 9 - (TextWidth(experiment.digit) + 1) / 2, 5, experiment.digit, experiment.digitColor);
  DrawText(canvas, 21, 5, experiment.name, ink);
  return canvas;
}

Canvas PaintVIndexX() {
  return Sign(17, 17, 2, 3,
              {"##...##.......", ".##..##.......", ".##.##........", "..#.##........", "..####........",
               "..###.........", "...##...#...#.", "...#.....#.#..", "..........#...", ".........#.#..",
               "........#...#."});
}

Canvas PaintVIndexY() {
  return Sign(
      17, 17, 2, 3,
      {"##...##......", ".##..##......", ".##.##.......", "..#.##.......", "..####.......", "..###........",
       "...##...#..#.", "...#....#..#.", "........#..#.", ".........###.", "...........#.", ".........##.."});
}

Canvas PaintPlusVIndexY() {
  return Sign(17, 17, 0, 3,
              {".....##...##....", "......##..##....", "..#...##.##.....", "..#....#.##.....",
               "#####..####.....", "..#....###......", "..#.....##..#..#", "........#...#..#",
               "............#..#", ".............###", "...............#", ".............##."});
}

Canvas PaintMinusVIndexY() {
  return Sign(17, 17, 0, 3,
              {".....##...##....", "......##..##....", "......##.##.....", ".......#.##.....",
               "####...####.....", ".......###......", "........##..#..#", "........#...#..#",
               "............#..#", ".............###", "...............#", ".............##."});
}

// As narrow as the gap that its caption leaves for it.
Canvas PaintVIndexO() {
  return Sign(17, 17, 0, 4,
              {"#...#..", "#...#..", ".#.#...", ".#.#...", "..#.##.", "...#..#", "...#..#", "....##."});
}

Canvas PaintLetterV() {
  return Sign(10, 10, 1, 1,
              {"##...##", ".##..##", ".##..#.", ".##.##.", "..#.#..", "..###..", "..##...", "...#..."});
}

Canvas PaintAlpha() {
  return Sign(8, 8, 0, 2, {".##..#", "#..#.#", "#..##.", "#..#..", "#..##.", ".##..#"});
}

}  // namespace quintara::art
