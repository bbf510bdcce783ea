#include "game/quintara.h"
#include "numbers/trigonometry.h"
#include "scene/scene.h"

namespace quintara {
namespace {

// One segment of the mountain's outline.
struct OutlineSegment {
  const Line& line;
  const Line& run;  // where the run of its slope is taken from
  bool rising;      // towards the summit, seen from the gun
};

// Whether the point lies in the right triangle between the segment and the corner of its bounds on the
// mountain's side. A point on any bound lies outside.
bool LiesUnder(const OutlineSegment& segment, Single x, Single y) {
  const Line& s = segment.line;
  const double across = (y - s.Y2) * (s.X2 - s.X1);
  const Single placeAtHeight = segment.rising ? s.X2 - across / (s.Y1 - s.Y2) : across / (s.Y2 - s.Y1) + s.X2;
  const bool onMountainSide = segment.rising ? placeAtHeight < x : placeAtHeight > x;
  const bool withinHeight = segment.rising ? y > s.Y2 && y < s.Y1 : y > s.Y1 && y < s.Y2;
  return onMountainSide && x > s.X1 && x < s.X2 && withinHeight;
}

}  // namespace

// Looks whether the shell has arrived anywhere. The first test that holds acts and is the last. Only the
// point of this tick counts: a fast shell may pass through a thin place between two ticks.
void QuintaraForm::TestForImpact() {
  if (StrikesFoot()) {
    BurstOnFoot();
  } else if (const std::optional<Single> slope = SlopeStruck()) {
    BurstOnSlope(*slope);
  } else if (StrikesTarget()) {
    HitTarget();
  } else if (flight.y < 0 && flight.x > 10000) {
    BurstOnGround();
  }
}

bool QuintaraForm::StrikesFoot() const {
  const Single centre = shells(0).Left + shells(0).Width / 2;
  // By the Width, as the reach of the foot was tuned.
  const Single lowerEdge = shells(0).Top + shells(0).Width;
  // slope6.X2 counts in the mountain's box and is compared as it stands, without mountain.Left: the foot
  // reaches to 3460.
  return centre > mountainFoot.X1 && centre < slope6.X2 && lowerEdge > mountainFoot.Y1;
}

// The angle of the slope that the shell strikes, in radians; none where it strikes none.
std::optional<Single> QuintaraForm::SlopeStruck() const {
  // The run of a slope is meant to be the next segment's; only the last one has its own. The fans lean by it.
  const OutlineSegment outline[] = {{slope1, slope2, true},  {slope2, slope3, true},
                                    {slope3, slope4, true},  {slope4, slope5, false},
                                    {slope5, slope6, false}, {slope6, slope6, false}};
  const Single x = shells(1).Left + shells(1).Width / 2;
  const Single y = shells(1).Top + shells(1).Width / 2;
  for (const OutlineSegment& segment : outline) {
    if (!LiesUnder(segment, x, y)) continue;
    return Atn((segment.line.Y1 - segment.line.Y2) / (segment.run.X2 - segment.run.X1));
  }
  return std::nullopt;
}

bool QuintaraForm::StrikesTarget() const {
  return flight.y < 0 && flight.x > Single(targetKm_ * 1000 - 400) &&
         flight.x < Single(targetKm_ * 1000 + 200);
}

void QuintaraForm::HitTarget() {
  bestScore.Visible = false;
  if (dragIsOn_) {
    score.Caption = ToText(Val(score.Caption) + 10);
    dragIsOn_ = false;
  } else {
    score.Caption = ToText(Val(score.Caption) + 5);
  }

  if (shotsFired.Caption == "5") {
    ShowBonusHeader(bonusNextStep);
    dragButton.Caption = "OFF";
    dragButton.Enabled = false;
    dragConstant.Caption = "0";
    bonusShot_ = true;
  } else {
    ShowNormalHeader();
  }
  if (Val(shotsFired.Caption) == 6 && Val(score.Caption) >= 35 && bonusShot_) OfferListOfMasters();

  rangeBar.Visible = false;
  heightBar.Visible = false;
  targetOnScale.Visible = false;
  targetPicture.Visible = false;
  fireButton.Enabled = false;
  flames.Visible = true;
  flames.Left = targetPicture.Left;
  shared.PlayUnlessSoundIsOff(scene(), "bombex~2.wav");
  ThrowFragments();

  StartFlash();
  StopFlight();
  fragmentTimer.Enabled = true;
}

void QuintaraForm::OfferListOfMasters() {
  masters_->Show();
  masters_->namePanel.Visible = true;
  masters_->nameBox.Visible = true;
  masters_->nameBox.SetFocus();
}

}  // namespace quintara
