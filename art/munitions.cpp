#include "art/noise.h"
#include "art/pictures.h"
#include "art/pixel_font.h"
#include "art/shapes.h"

namespace quintara::art {
namespace {

constexpr int fine = 6;

struct Flame {
  double x;
  double height;
  double halfWidth;
};

// Distance from the tongues of a row of flames which stand on the line y = base.
double FlameDistance(Point p, double base, double scale) {
  constexpr Flame tongues[] = {
      {2.6, 3.6, 2.2}, {6.0, 6.2, 2.5}, {9.8, 7.6, 2.9}, {13.6, 5.4, 2.5}, {17.2, 4.0, 2.3}};
  double nearest = 1e9;
  for (const Flame& tongue : tongues) {
    const double up = (base - p.y) / (tongue.height * scale);
    const double sway = 0.8 * up * up * Sine(tongue.x * 0.19);
    const double width = tongue.halfWidth * scale * std::sqrt(Clamp01(1 - up)) * (1 - 0.45 * up);
    const double side = std::fabs(p.x - tongue.x - sway) - width;
    nearest = std::min(nearest, std::max({side, p.y - base, (up - 1) * tongue.height}));
  }
  return nearest;
}

Point Unscaled(Point p) {
  return {p.x / fine, p.y / fine};
}

void PaintCarriage(Canvas& large) {
  const Color iron = Rgb(0x101014);
  const auto part = [&](auto distance) {
    Paint(
        large, Whole(large), [&](Point p) { return distance(Unscaled(p)) * fine; }, iron);
  };
  // Trail, wheel and breech of the carriage; the barrel turns about the trunnion and is drawn by the game.
  part([](Point p) { return StrokeDistance(p, {8, 38}, {1.6, 45.2}, 1.9, 1.2); });
  part([](Point p) { return PolygonDistance(p, {{5.4, 37}, {13.6, 37}, {15.2, 40.5}, {5.6, 41.5}}); });
  part([](Point p) { return std::fabs(DiscDistance(p, {13.2, 41.4}, 5.1)) - 0.75; });
  for (int spoke = 0; spoke < 4; ++spoke) {
    const double x = 5.0 * Cosine((spoke + 0.5) / 8.0);
    const double y = 5.0 * Sine((spoke + 0.5) / 8.0);
    part([=](Point p) { return StrokeDistance(p, {13.2 - x, 41.4 - y}, {13.2 + x, 41.4 + y}, 0.4, 0.4); });
  }
  part([](Point p) { return DiscDistance(p, {13.2, 41.4}, 1.6); });
  part([](Point p) { return StrokeDistance(p, {4.6, 35.6}, {13.8, 36.8}, 2.7, 2.0); });
  part([](Point p) { return DiscDistance(p, {2.2, 35.4}, 1.2); });
  const auto gleam = [&](Point p) {
    return StrokeDistance(Unscaled(p), {5.2, 34.2}, {12.6, 35.6}, 0.35, 0.25) * fine;
  };
  Paint(large, Whole(large), gleam, Rgb(0x7C84A0));
}

}  // namespace

Canvas PaintShell() {
  Canvas large(11 * fine, 22 * fine);
  // Half the shell's width from the nose at the top to the base.
  const auto halfWidth = [](double y) {
    if (y < 9.5) return 4.1 * std::sqrt(Clamp01(1 - Square((9.5 - y) / 9.1)));
    return y > 19.2 ? 4.1 - (y - 19.2) * 0.5 : 4.1;
  };
  const auto body = [&](double margin) {
    return [=](Point p) {
      const double x = p.x / fine - 5.5;
      const double y = p.y / fine;
      const double inside = std::max(std::fabs(x) - halfWidth(y) - margin, y - 20.8 - margin);
      return std::max(inside, 0.35 - margin - y) * fine;
    };
  };
  Paint(large, Whole(large), body(0.9), Rgb(0x30260C));
  const auto shade = [&](Point p) {
    const double x = (p.x / fine - 5.5) / 4.1;
    const double y = p.y / fine;
    Color paint = Rgb(0xF8D418);
    if (y < 4.6) paint = Rgb(0xC8C4BC);
    if (y > 10.2 && y < 11.6) paint = Rgb(0xC83018);
    if (y > 17.4 && y < 18.9) paint = Rgb(0xC87830);
    const Color lit = Mix(Scaled(paint, 0.42), paint, Clamp01(0.75 + 0.7 * x));
    return Mix(lit, Rgb(0xFFFFF0), 0.8 * Clamp01(1 - std::fabs(x - 0.42) / 0.26));
  };
  Paint(large, Whole(large), body(0), shade);
  return large.Reduced(fine);
}

// A dome of pale steel with a red band, which stands out from grass and earth alike.
Canvas PaintTarget() {
  Canvas large(13 * fine, 6 * fine);
  const auto dome = [](double margin) {
    return [=](Point p) {
      const Point at = Unscaled(p);
      const double cap = EllipseDistance(at, {6.5, 5.6}, 5.5 + margin, 5.1 + margin);
      return std::max(cap, at.y - 5.2 - margin) * fine;
    };
  };
  Paint(large, Whole(large), dome(0.8), Rgb(0x100C10));
  const auto shade = [](Point p) {
    const double x = (Unscaled(p).x - 6.5) / 5.5;
    const double y = (Unscaled(p).y - 5.6) / 5;
    const double light = Clamp01(0.45 + 0.5 * x - 0.45 * y);
    const bool band = Unscaled(p).y > 3.5 && Unscaled(p).y < 4.6;
    return band ? Mix(Rgb(0x80080C), Rgb(0xF83020), light) : Mix(Rgb(0x8C8C98), Rgb(0xFFFFFF), light);
  };
  Paint(large, Whole(large), dome(0), shade);
  return large.Reduced(fine);
}

Canvas PaintFlames() {
  Canvas large(20 * fine, 8 * fine);
  const auto tongues = [](double scale) {
    return [scale](Point p) { return FlameDistance({p.x / fine, p.y / fine}, 8.2, scale) * fine; };
  };
  const auto heat = [](Point p) { return Clamp01((8 - p.y / fine) / 8); };
  const auto outer = [&](Point p) { return Mix(Rgb(0xF03008), Rgb(0xA81004), heat(p)); };
  Paint(large, Whole(large), tongues(1), outer);
  const auto middle = [&](Point p) { return Mix(Rgb(0xFFC018), Rgb(0xFF6808), heat(p) * 1.3); };
  Paint(large, Whole(large), tongues(0.74), middle);
  const auto core = [&](Point p) { return Mix(Rgb(0xFFFFC8), Rgb(0xFFE030), Clamp01(heat(p) * 2)); };
  Paint(large, Whole(large), tongues(0.45), core);
  return large.Reduced(fine);
}

Canvas PaintMortar() {
  Canvas large(39 * fine, 64 * fine);
  const auto mound = [&](Point p) {
    const Point at = Unscaled(p);
    const double edge = 1.1 * Noise(at.x * 0.35, 0.5, 41) + 0.7 * Noise(at.x * 0.9, 3.5, 42);
    const double top = 44.5 + edge - 1.2 * Cosine(Clamp01(std::fabs(at.x - 14) / 30) * 0.5);
    return (top - at.y) * fine;
  };
  const auto soil = [&](Point p) {
    const Point at = Unscaled(p);
    const double mottle = 0.5 + 0.45 * Fractal(at.x * 0.23, at.y * 0.33, 4, 43);
    const Color earth = Mix(Rgb(0x5A4A28), Rgb(0xB4A068), Clamp01(mottle + (at.x - 20) * 0.006));
    const double grass = SmoothStep(0.1, 0.35, Noise(at.x * 0.3, at.y * 0.4, 47) + (46 - at.y) * 0.05);
    return Mix(earth, Mix(Rgb(0x3C5424), Rgb(0x86A048), Clamp01(mottle)), grass);
  };
  Paint(large, Whole(large), mound, soil);
  PaintCarriage(large);
  Canvas canvas = large.Reduced(fine);
  const int left = 20 - TextWidth("Mortar") / 2;
  DrawText(canvas, left + 1, 56, "Mortar", Rgb(0x302410));
  DrawText(canvas, left, 55, "Mortar", Rgb(0xFFFFFF));
  return canvas;
}

}  // namespace quintara::art
