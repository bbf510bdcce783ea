#include "front/trace.h"

#include "front/shots.h"

namespace quintara {

QuintaraForm::Place PlaceOfTrace(const QuintaraForm& form, const PathPoint& point) {
  const QuintaraForm::Place corner = QuintaraForm::InProfile(point.x, point.y);
  const double half = form.shells(0).Width / 2;
  return {corner.x + half, corner.y + half};
}

double TopOfTrace(const QuintaraForm& form) {
  return form.backdrop.Top;
}

}  // namespace quintara
