#include "art/ornaments.h"

#include "art/noise.h"

namespace quintara::art {
namespace {

Box Around(Point p, double reach) {
  return {static_cast<int>(p.x - reach), static_cast<int>(p.y - reach), static_cast<int>(p.x + reach),
          static_cast<int>(p.y + reach)};
}

Color Gold(double light) {
  return light < 0.5 ? Mix(Rgb(0x5C3808), Rgb(0xD09830), Clamp01(light * 2))
                     : Mix(Rgb(0xD09830), Rgb(0xFFF4B0), Clamp01(light * 2 - 1));
}

// A pointed leaf with a rib, its root and tip given.
void PaintLeaf(Brush& brush, Point root, Point tip, double breadth) {
  const double length = Length(tip.x - root.x, tip.y - root.y);
  const double ux = (tip.x - root.x) / length;
  const double uy = (tip.y - root.y) / length;
  const auto along = [=](Point p) { return ((p.x - root.x) * ux + (p.y - root.y) * uy) / length; };
  const auto across = [=](Point p) { return (p.y - root.y) * ux - (p.x - root.x) * uy; };
  const auto shape = [=](double margin) {
    return [=](Point p) {
      const double t = along(p);
      const double width = breadth * 4 * Clamp01(t) * (1 - Clamp01(t)) * (1.25 - 0.5 * t);
      return std::max(std::fabs(across(p)) - width, std::max(-t, t - 1) * length) - margin;
    };
  };
  const Box box = Around({(root.x + tip.x) / 2, (root.y + tip.y) / 2}, length);
  brush.Fill(
      box,
      [&](Point p) {
        return shape(0.8)({p.x + 1.6, p.y - 1.6});
      },
      Rgb(0x2C2030), 0.45);
  brush.Fill(box, shape(0.5), Rgb(0x503008));
  brush.Fill(box, shape(-0.2), [=](Point p) {
    const double side = across(p) / breadth;
    // The half which is turned to the sun depends on how the leaf lies.
    const double lit = side * (-uy * 0.8 - ux * 0.6);
    const double rib = std::fabs(across(p)) < 0.5 ? -0.22 : 0;
    return Gold(0.52 + 0.55 * lit + rib + 0.12 * along(p));
  });
}

void PaintMedallion(Brush& brush, Point center, double radius) {
  const Box box = Around(center, radius + 6);
  const auto disc = [&](double size) { return [=](Point p) { return DiscDistance(p, center, size); }; };
  const auto slant = [=](Point p) { return (p.x - center.x - p.y + center.y) / (2 * radius); };
  brush.Fill(box, disc(radius + 2), Rgb(0x3C2408));
  brush.Fill(box, disc(radius), [&](Point p) { return Gold(0.5 + 0.6 * slant(p)); });
  brush.Fill(box, disc(radius - 4), [&](Point p) { return Gold(0.5 - 0.6 * slant(p)); });
  const auto within = [=](Point p) { return DiscDistance(p, center, radius - 5.5); };
  brush.Fill(box, within, [=](Point p) {
    return Mix(Rgb(0x28308C), Rgb(0xB8A8E8), Clamp01(0.5 + (p.y - center.y) / radius));
  });
  const auto peak = [=](Point p) {
    const double x = p.x - center.x + radius * 0.3;
    const double top = center.y - radius * 0.42 + std::fabs(x) * (x < 0 ? 1.5 : 1.15);
    return std::max(within(p), (top - p.y) * 0.6);
  };
  brush.Fill(box, peak, [=](Point p) {
    const double x = p.x - center.x + radius * 0.3 - 1.2 * Noise(p.y * 0.3, 0.5, 321);
    const bool snow = p.y < center.y - radius * 0.02 + 2.5 * Noise(p.x * 0.3, 0.5, 322);
    if (x > 0) return snow ? Rgb(0xFFFCF0) : Rgb(0xD8A880);
    return snow ? Rgb(0x9498DC) : Rgb(0x6C5488);
  });
  const auto meadow = [=](Point p) {
    return std::max(within(p), center.y + radius * 0.46 + 1.5 * Sine(p.x / 40) - p.y);
  };
  brush.Fill(box, meadow,
             [=](Point p) { return Mix(Rgb(0x90A848), Rgb(0x305028), Clamp01((p.y - center.y) / radius)); });
  for (int bead = 0; bead <= 8; ++bead) {
    const double t = bead / 8.0;
    const Point at{center.x + radius * (-0.18 + 0.8 * t), center.y + radius * (0.1 - 2.0 * t + 2.35 * t * t)};
    brush.Fill(
        box, [=](Point p) { return DiscDistance(p, at, 1.7); }, Rgb(0x402008));
    brush.Fill(
        box, [=](Point p) { return DiscDistance(p, at, 1.1); }, Rgb(0xFFE43C));
  }
}

// Fire licks upward in tongues which noise bends; hotter toward the middle of its foot.
void PaintFire(Brush& brush, Point foot, double height) {
  const auto heat = [=](Point p) {
    const double up = (foot.y - p.y) / height;
    const double sway = 0.55 * up * Noise(p.x * 0.03 + 3, p.y * 0.045, 323) * height * 0.5;
    const double tongues = 0.34 * Noise(p.x * 0.12, p.y * 0.055 + 8, 324) * (0.3 + up);
    const double side = std::fabs(p.x - foot.x + sway) / (height * 0.36);
    return 1 - up * 1.02 - 0.75 * side * side + tongues;
  };
  const Box box{static_cast<int>(foot.x - height), static_cast<int>(foot.y - height * 1.4),
                static_cast<int>(foot.x + height), static_cast<int>(foot.y)};
  const auto shell = [&](double least) { return [=](Point p) { return (least - heat(p)) * height * 0.3; }; };
  brush.Fill(box, shell(0.08), Rgb(0xC82808), 0.75);
  brush.Fill(box, shell(0.20), Rgb(0xF06010), 0.9);
  brush.Fill(box, shell(0.36), Rgb(0xFFB020));
  brush.Fill(box, shell(0.56), Rgb(0xFFE868));
  brush.Fill(box, shell(0.76), Rgb(0xFFFCD8));
}

// The light a fire throws around itself, in many thin layers.
void PaintGlow(Brush& brush, Box box, Point fire) {
  const auto glow = [=](Point p) { return Clamp01(1 - Length(p.x - fire.x, p.y - fire.y) / 120); };
  for (int ring = 1; ring <= 24; ++ring) {
    brush.Fill(
        box, [=](Point p) { return (ring / 25.0 - glow(p)) * 40; }, Rgb(0xFFC060), 0.022);
  }
}

Color Bronze(double side) {
  return Mix(Rgb(0x2C1C10), Rgb(0xE0B068),
             Clamp01(0.32 + 0.55 * side - 0.5 * Square(std::max(side - 0.45, 0.0))));
}

}  // namespace

void PaintWreath(Brush& brush, Point center, double radius) {
  for (int side : {-1, 1}) {
    for (int leaf = 0; leaf < 13; ++leaf) {
      // From the knot at the foot up to the opening at the top; leaves grow outward, inward and along.
      const double turn = 0.25 + side * (0.025 + leaf * 0.031);
      const double ahead = turn + side * 0.052;
      for (double lean : {-0.17, 0.19, 0.0}) {
        const Point root{center.x + radius * Cosine(turn), center.y + radius * Sine(turn)};
        const double reach = radius * (1 + lean);
        const Point tip{center.x + reach * Cosine(ahead), center.y + reach * Sine(ahead)};
        PaintLeaf(brush, root, tip, 4.6 - 0.1 * leaf);
      }
    }
  }
  const Point knot{center.x, center.y + radius};
  const Box box = Around(knot, 34);
  for (int side : {-1, 1}) {
    const Point end{knot.x + side * 21, knot.y + 17};
    brush.Fill(
        box, [=](Point p) { return StrokeDistance(p, knot, end, 2.5, 5.0); }, Rgb(0x580C14));
    brush.Fill(
        box, [=](Point p) { return StrokeDistance(p, knot, end, 1.6, 4.0); },
        [=](Point p) {
          return Mix(Rgb(0x8C101C), Rgb(0xF04838), Clamp01(0.5 + Sine((p.x - p.y) / 15) * 0.5));
        });
  }
  brush.Fill(
      box, [=](Point p) { return DiscDistance(p, knot, 6.5); }, Rgb(0x500C10));
  brush.Fill(
      box, [=](Point p) { return DiscDistance(p, knot, 5.4); },
      [=](Point p) {
        return Mix(Rgb(0x8C101C), Rgb(0xFF7058), Clamp01(0.5 + (p.x - knot.x - p.y + knot.y) / 12));
      });
  PaintMedallion(brush, center, radius * 0.62);
}

void PaintBrazier(Brush& brush, Point foot) {
  const Point rim{foot.x, foot.y - 92};
  const Box box = Around({foot.x, foot.y - 126}, 136);
  const auto bronze = [=](Point p) { return Bronze((p.x - foot.x) / 30); };
  PaintGlow(brush, box, {rim.x, rim.y - 34});
  brush.Fill(
      box,
      [=](Point p) {
        return EllipseDistance(p, {foot.x - 14, foot.y}, 44, 5);
      },
      Rgb(0x2C2440), 0.4);
  for (double lean : {-22.0, 22.0, 0.0}) {
    const Point end{foot.x + lean, foot.y - (lean == 0 ? -3 : 0)};
    const Point top{rim.x + lean * 0.55, rim.y + 20};
    brush.Fill(
        box, [=](Point p) { return StrokeDistance(p, top, end, 2.6, 2.0); }, bronze);
    brush.Fill(
        box, [=](Point p) { return EllipseDistance(p, end, 4.6, 2.8); }, bronze);
  }
  brush.Fill(
      box,
      [=](Point p) {
        return EllipseDistance(p, {foot.x, foot.y - 38}, 16, 2.6);
      },
      bronze);
  PaintFire(brush, {rim.x, rim.y + 4}, 62);
  const auto band = [=](double bottom) {
    return [=](Point p) { return BoxDistance(p, {rim.x - 33, rim.y - 3}, {rim.x + 33, rim.y + bottom}); };
  };
  brush.Fill(
      box, [=](Point p) { return std::max(EllipseDistance(p, rim, 31, 25), rim.y - p.y); }, bronze);
  brush.Fill(box, band(3), bronze);
  brush.Fill(box, band(-1.6), Rgb(0xFFE8A0), 0.7);
}

}  // namespace quintara::art
