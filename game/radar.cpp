#include "game/quintara.h"
#include "numbers/trigonometry.h"
#include "scene/scene.h"

namespace quintara {
namespace {

// Where along the landscape each profile picture is shown: strictly between two places, so that a target
// exactly on one keeps the picture it had.
struct ProfileBand {
  double above, below;
  const char* file;
};
constexpr double noLimit = 1e30;
constexpr ProfileBand profileBands[] = {
    {0, 2500, "Graphics\\Profile1.bmp"},      {2500, 3250, "Graphics\\Profile2.bmp"},
    {3250, 4750, "Graphics\\Profile3.bmp"},   {4750, 6250, "Graphics\\Profile4.bmp"},
    {6250, 7750, "Graphics\\Profile5.bmp"},   {7750, 9250, "Graphics\\Profile6.bmp"},
    {9250, 10750, "Graphics\\Profile7.bmp"},  {10750, 12250, "Graphics\\Profile8.bmp"},
    {12250, 13750, "Graphics\\Profile9.bmp"}, {13750, noLimit, "Graphics\\Profile10.bmp"},
};

}  // namespace

void QuintaraForm::Search() {
  flight.dt = 0.05;
  beam.X1 = 1800;
  beam.Y1 = 2040;
  target.Left = 1560;
  target.Top = 1920;
  target.Visible = true;
  beam.Visible = true;
  scene().Randomize();
  lockOnDescent_ = CInt(Int(scene().Rnd() * 6000 + 1));
  advice.Caption = "  Target aquisition in progress";
  flight.x = 0;
  flight.y = 0;
  radarToMortar.Visible = true;
  mortarMark.Visible = true;
  mortarTag.Visible = true;
  driftRightTimer.Interval = 50;
  driftRightTimer.Enabled = true;
  searchButton.Enabled = false;
}

void QuintaraForm::DriftRight() {
  DriftTarget({driftRightTimer, driftLeftTimer, 1});
}
void QuintaraForm::DriftLeft() {
  DriftTarget({driftLeftTimer, driftRightTimer, -1});
}

// One tick of the target's run. At an edge the two timers change over, and the tick goes on all the same: a
// lock-on in that very tick stops only its own timer, so the other runs once more and locks on a second time.
void QuintaraForm::DriftTarget(const Drift& drift) {
  SetTrackSpeed();
  flight.x = flight.x + drift.direction * (flight.dt * trackSpeed_);
  flight.y = flight.y + flight.dt * 500;
  target.Left = flight.x;
  target.Top = flight.y + 2000;

  const bool atEdge = drift.direction > 0 ? target.Left > 14500 : target.Left < 0;
  if (atEdge) {
    scene().Beep();
    drift.timer.Interval = 0;
    drift.timer.Enabled = false;
    drift.opposite.Enabled = true;
    drift.opposite.Interval = 50;
  }
  ShowProfilePicture();

  if (!(flight.y > lockOnDescent_)) {
    GrowTarget();
  } else if (flight.x > 200) {
    LockOn(drift.timer);
  }
}

// The two rules do not meet at 7360, and exactly there the speed stays: the target is fastest near the middle
// and crawls at the right edge.
void QuintaraForm::SetTrackSpeed() {
  if (flight.x < 7360) trackSpeed_ = (flight.x * 4 + 3000) * 3;
  if (flight.x > 7360) trackSpeed_ = (58880 - flight.x * 4) * 3;
}

void QuintaraForm::ShowProfilePicture() {
  for (const ProfileBand& band : profileBands) {
    if (flight.x > band.above && flight.x < band.below) {
      scene().LoadPictureInto(scope, shared.programFolder + band.file);
      return;
    }
  }
}

// The target grows to the right and downwards, and the beam ends on its centre.
void QuintaraForm::GrowTarget() {
  target.Visible = true;
  target.Width = (500 - (12000 - flight.x) / 60) * (flight.y / 4800 + 5.0 / 8);
  target.Height = target.Width / 2;
  beam.X1 = target.Left + target.Width / 2;
  beam.Y1 = target.Top + target.Height / 2;
}

void QuintaraForm::LockOn(Timer& running) {
  if (!shared.soundIsOff) scene().Beep();
  DrawSightings();
  MeasureRange();

  targetTag.Left = targetMark.Left - 200;
  targetTag.Top = targetMark.Top + 120;
  targetTag.Caption = " Target at " + std::string(quintara::Left(ToText(targetKm_), 4)) + " km";
  targetTag.Visible = true;
  magnifyButton.Enabled = true;
  running.Interval = 0;
  running.Enabled = false;
  advice.Caption =
      " Click Magnify (M) to display the     Terrain Profile and start the           Ballistic Simulator";
}

// The sightings of target and mortar meet at a point of the line between the two, which the target's bearing
// places.
void QuintaraForm::DrawSightings() {
  // The bearing, in degrees, takes flight.y as it is, without the 2000 that the target's place on the
  // landscape adds.
  const Single bearing = (180 / pi) * Atn((flight.x - radarToMortar.X1) / (flight.y - radarToMortar.Y1));
  const Single ratio = (bearing + 101.6) / 458.6;
  beam.X1 = flight.x;
  beam.Y1 = flight.y + 2000;
  sightingOfTarget.X1 = beam.X1;
  sightingOfTarget.Y1 = beam.Y1;
  sightingOfMortar.X1 = (beam.X1 * ratio + radarToMortar.X2) / (ratio + 1);
  sightingOfMortar.Y1 = ((sightingOfMortar.X1 - radarToMortar.X2) * beam.Y1 +
                         (beam.X1 - sightingOfMortar.X1) * radarToMortar.Y2) /
                        (beam.X1 - radarToMortar.X2);
  sightingOfTarget.X2 = sightingOfMortar.X1;
  sightingOfTarget.Y2 = sightingOfMortar.Y1;
  targetMark.Left = beam.X1 - targetMark.Width / 2;
  targetMark.Top = beam.Y1 - targetMark.Height / 2;
  beam.BorderColor = 255;
  sightingOfTarget.Visible = true;
  sightingOfMortar.Visible = true;
  targetMark.Visible = true;
  target.Visible = false;
}

void QuintaraForm::MeasureRange() {
  const double dx = beam.X1 - radarToMortar.X2;
  const double dy = beam.Y1 - radarToMortar.Y2;
  targetKm_ = Sqr(dx * dx + dy * dy);
  targetKm_ = targetKm_ * 0.00182 + 7.45;
  if (targetKm_ < Single(10.7)) targetKm_ = 10.7;  // a near target is reported, and stands, at 10.7 km
}

}  // namespace quintara
