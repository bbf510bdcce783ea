#include "art/noise.h"
#include "art/panorama.h"
#include "art/pictures.h"
#include "art/relief.h"
#include "art/thicket.h"
#include "art/valley.h"
#include "art/village.h"

namespace quintara::art {
namespace {

constexpr int width = 1019;
constexpr int height = 641;
constexpr int fine = 2;

Color Meadow(Point place) {
  const double dry = 0.5 + 0.6 * Fractal(place.x * 0.7, place.y * 0.7, 4, 251);
  const double tuft = Fractal(place.x * 28, place.y * 28, 3, 252) / (1 + 0.1 * place.y);
  const double blades = SmoothStep(4, 1.5, place.y) * Fractal(place.x * 190, place.y * 90, 2, 263);
  const Color grass = Mix(Rgb(0x4C7034), Rgb(0x94984C), Clamp01(dry));
  return Scaled(grass, 1 + 0.28 * tuft + 0.16 * blades);
}

Color FieldColor(const Field& field, Point place) {
  const double tuft = Fractal(place.x * 34, place.y * 34, 2, 253) / (1 + 0.2 * place.y);
  const double stripe = Sine(field.furrow * 46) / (1 + 0.25 * place.y * place.y);
  Color color = Rgb(0x78904C);
  if (field.kind < 0.22)
    color = Rgb(0xB4A058);
  else if (field.kind < 0.38)
    color = Scaled(Rgb(0x84683C), 1 + 0.2 * stripe);
  else if (field.kind < 0.60)
    color = Scaled(Rgb(0x60843C), 1 + 0.10 * stripe);
  else if (field.kind < 0.72)
    color = Rgb(0x9CA458);
  color = Scaled(color, 1 + 0.2 * tuft + 0.1 * (Chance(static_cast<int>(field.kind * 4096), 1, 254) - 0.5));
  const double hedge = 1 - SmoothStep(0.006 + 0.0006 * place.y, 0.012 + 0.002 * place.y, field.edge);
  return Mix(color, Rgb(0x34502C), 0.8 * hedge);
}

Color Wooded(Point place) {
  const double canopy = Fractal(place.x * 14, place.y * 14, 3, 255);
  return Mix(Rgb(0x1C3420), Rgb(0x50703C), Clamp01(0.42 + 0.5 * canopy));
}

Color Rock(const Ground& ground) {
  const double bands = Noise(ground.place.x * 1.5, ground.height * 26 + ground.place.y, 256);
  const double grain = Fractal(ground.place.x * 11, ground.place.y * 11 + ground.height * 9, 4, 257);
  return Scaled(Mix(Rgb(0x8C7C74), Rgb(0xBCA084), Clamp01(0.5 + 0.35 * bands)), 1 + 0.3 * grain);
}

Color Water(const Ground& ground, double middle) {
  const double ripple = Fractal(ground.place.x * 16, ground.place.y * 60, 3, 258);
  const Color deep = Mix(Rgb(0x7C9CC8), Rgb(0x38608C), middle);
  return Mix(deep, Rgb(0xE8ECFC), Clamp01(0.15 + 0.38 * ripple));
}

// Snow lies higher on the far ranges, which are the taller ones, and stays longest out of the wind.
double Snow(const Ground& ground, double day) {
  const Point place = ground.place;
  const double ragged = Fractal(place.x * 4, place.y * 4, 5, 260);
  if (place.y < 10) {
    return SmoothStep(-0.02, 0.03, ground.height - 0.76 + 0.24 * ragged - 0.10 * (day - 0.8));
  }
  const double line = 0.10 + 0.030 * place.y;
  return SmoothStep(-0.05, 0.12, ground.height - line + 0.25 * line * ragged);
}

// The river between its banks of sand, and the bridge which carries the road across.
Color WithRiver(Color land, const Ground& ground) {
  const double z = ground.place.y;
  const double across = ground.river / RiverHalfWidth(z);
  Color color = Mix(land, Rgb(0xC0B488), 0.7 * (1 - SmoothStep(1.1, 1.5, across)) * (z < 20 ? 1 : 0));
  color = Mix(Water(ground, Clamp01(1 - across)), color, SmoothStep(0.95, 1.1, across));
  if (across > 1.35 || ground.road > 0.026) return color;
  const Color parapet = ground.road > 0.017 ? Rgb(0x6C6060) : Rgb(0xD0BC98);
  return Mix(parapet, color, SmoothStep(0.022, 0.026, ground.road));
}

// Shadows of the passing clouds.
double CloudShade(Point place) {
  return SmoothStep(0.05, 0.3, Fractal(place.x * 0.55 + 3.1, place.y * 0.75, 4, 262));
}

// The land's own colour and then the light upon it.
Color LandColor(const Ground& ground) {
  const Point place = ground.place;
  const double z = place.y;
  Color color = Meadow(place);
  const Field field = FieldAt(place, ground.height);
  color = Mix(color, FieldColor(field, place), field.tilled);
  color = Mix(color, Wooded(place), Woods(place, ground.height, ground.river));
  const double steep =
      SmoothStep(0.30, 0.52, ground.height + 0.12 * Fractal(place.x * 3, place.y * 3, 4, 259));
  color = Mix(color, Rock(ground), steep);
  const double road = 1 - SmoothStep(0.010, 0.016 + 0.001 * z, ground.road);
  color = Mix(color, Rgb(0xC4AC7C), 0.85 * road);
  const double sun = ground.sunlight * (1 - ground.shadow) * (1 - 0.42 * CloudShade(place));
  const double day = 0.34 + 0.66 * sun;
  Color lit = Tinted(color, Mix(Rgb(0x6C74B0), Rgb(0xFFF4DC), Clamp01(day)));
  lit = Scaled(lit, 0.62 + 0.42 * std::min(day, 1.5));
  const double snow = Snow(ground, day);
  lit = Mix(lit, Mix(Rgb(0x9098D8), Rgb(0xFFFCF4), SmoothStep(0.25, 1.3, day)), snow);
  return WithRiver(lit, ground);
}

void PaintLand(Canvas& canvas, const Panorama& panorama) {
  for (int row = 0; row < canvas.height(); ++row) {
    for (int column = 0; column < canvas.width(); ++column) {
      const Ground ground = panorama.At(column, row);
      const double x = (column + 0.5) / fine;
      const double y = (row + 0.5) / fine;
      const Color color = ground.sky ? SkyAt(x, y * 1.6, 62, 261) : Hazed(LandColor(ground), ground.place.y);
      canvas.Blend(column, row, color, 1);
    }
  }
}

// The gun on its levelled ledge of the peak's shoulder.
void PaintEmplacement(Canvas& canvas) {
  Brush brush(canvas, fine);
  const Box box{105, 75, 140, 100};
  brush.Fill(
      box,
      [](Point p) {
        return EllipseDistance(p, {121, 90.4}, 8.5, 2.3);
      },
      [](Point p) { return Mix(Rgb(0x94805C), Rgb(0xE4D0A0), Clamp01(0.5 + (p.x - 121) / 14)); });
  brush.Fill(
      box,
      [](Point p) {
        return EllipseDistance(p, {118.5, 91}, 4.6, 0.9);
      },
      Rgb(0x40343C), 0.6);
  brush.Fill(
      box,
      [](Point p) {
        return PolygonDistance(p, {{117, 90.8}, {118.8, 87}, {122, 87}, {124, 90.8}});
      },
      Rgb(0x181820));
  brush.Fill(
      box,
      [](Point p) {
        return StrokeDistance(p, {119.8, 88.2}, {124.4, 83.8}, 1.3, 0.9);
      },
      Rgb(0x181820));
  brush.Fill(
      box,
      [](Point p) {
        return StrokeDistance(p, {120.6, 88}, {124.6, 84.2}, 0.35, 0.25);
      },
      Rgb(0x8088A0));
}

}  // namespace

Canvas PaintLandscape() {
  const Panorama panorama(width, height, fine);
  Canvas canvas(width * fine, height * fine);
  PaintLand(canvas, panorama);
  PlantTrees(canvas, panorama);
  BuildVillage(canvas, panorama);
  PaintEmplacement(canvas);
  return canvas.Reduced(fine);
}

}  // namespace quintara::art
