#include "front/coverage.h"

#include <algorithm>

#include "scene/visit.h"

namespace quintara {
namespace {

bool Overlap(const Rectangle& one, const Rectangle& other) {
  return one.left < other.left + other.width && other.left < one.left + one.width &&
         one.top < other.top + other.height && other.top < one.top + one.height;
}

}  // namespace

double CoveredAtItsEnd(const Box& box) {
  const Rectangle place = box.Surface();
  const double end = place.top + place.height;
  double covered = 0;
  for (const Object* object : box.container()->children()) {
    if (object == &box) break;  // the others lie behind it
    if (object->IsGraphical() || !object->IsVisible()) continue;
    const auto rectangle = Visit(
        *object, [](const Box& over) { return over.Surface(); }, [](const Object&) { return Rectangle{}; });
    if (rectangle.top > place.top && Overlap(place, rectangle))
      covered = std::max(covered, end - rectangle.top);
  }
  return covered;
}

}  // namespace quintara
