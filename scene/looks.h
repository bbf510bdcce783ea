#pragma once

#include <string_view>

#include "scene/colour.h"

// What forms and controls look like, as data for a renderer. No rule of the program depends on it.

namespace quintara {

struct Font {
  std::string_view name = "MS Sans Serif";
  double points = 8.25;
  bool bold = false;
  bool italic = false;
};

enum class Alignment { Left = 0, Right = 1, Centre = 2 };
enum class BackStyle { Transparent = 0, Opaque = 1 };
enum class FillStyle { Solid = 0, Transparent = 1 };
enum class ShapeKind { Rectangle = 0, Oval = 2, Circle = 3 };
enum class BorderStyle { None = 0, Solid = 1, Dotted = 3 };

// The place and size of a box in its form's table, in twips.
struct Rectangle {
  double left = 0, top = 0, width = 0, height = 0;
};

// The ends of a line; in its form's table, in twips.
struct Segment {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
};

}  // namespace quintara
