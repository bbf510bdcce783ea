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
    BurstOnMountainFace();
  } else if (StrikesOutline()) {
    BurstOnProfile();
  } else if (StrikesTarget()) {
    HitTarget();
  } else if (flight.y < 0 && flight.x > 10000) {
    BurstOnGround();
  }
}

bool QuintaraForm::StrikesFoot() {
  const Single centre = Shape1(0).Left + Shape1(0).Width / 2;
  const Single lowerEdge =
      Shape1(0).Top + Shape1(0).Width;  // by the Width, as the reach of the foot was tuned
  // Line35.X2 counts in Picture11 and is compared as it stands, without Picture11.Left: the foot reaches to
  // 3460.
  return centre > Line13.X1 && centre < Line35.X2 && lowerEdge > Line13.Y1;
}

bool QuintaraForm::StrikesOutline() {
  // The run of a slope is meant to be the next segment's; only the last one has its own. The fans lean by it.
  const OutlineSegment outline[] = {{Line27, Line31, true},  {Line31, Line32, true},
                                    {Line32, Line33, true},  {Line33, Line34, false},
                                    {Line34, Line35, false}, {Line35, Line35, false}};
  const Single x = Shape1(1).Left + Shape1(1).Width / 2;
  const Single y = Shape1(1).Top + Shape1(1).Width / 2;
  for (const OutlineSegment& segment : outline) {
    if (!LiesUnder(segment, x, y)) continue;
    mImpactSlope = Atn((segment.line.Y1 - segment.line.Y2) / (segment.run.X2 - segment.run.X1));
    return true;
  }
  return false;
}

bool QuintaraForm::StrikesTarget() {
  return flight.y < 0 && flight.x > Single(mTargetKm * 1000 - 400) &&
         flight.x < Single(mTargetKm * 1000 + 200);
}

void QuintaraForm::HitTarget() {
  Label23.Visible = false;
  if (mDragOn == 0) {
    Label17.Caption = ToText(Val(Label17.Caption) + 5);
  } else {
    Label17.Caption = ToText(Val(Label17.Caption) + 10);
    mDragOn = 0;
  }

  if (Label25.Caption == "5") {
    ShowBonusHeader(bonusNextStep);
    cmdAdvanced.Caption = "OFF";
    cmdAdvanced.Enabled = false;
    Label15.Caption = "0";
    mBonusShot = 1;
  } else {
    ShowNormalHeader();
  }
  if (Val(Label25.Caption) == 6 && Val(Label17.Caption) >= 35 && mBonusShot == 1) OfferListOfMasters();

  Line8.Visible = false;
  Line9.Visible = false;
  Label11.Visible = false;
  Image5.Visible = false;
  Image7.Enabled = false;
  Image8.Visible = true;
  Image8.Left = Image5.Left;
  shared.PlayUnlessSoundIsOff(scene(), "bombex~2.wav");
  ThrowFragments();

  Timer1.Enabled = true;
  Timer1.Interval = 400;
  StopFlight();
  tmrExplode.Enabled = true;
}

void QuintaraForm::OfferListOfMasters() {
  frmMasters->Show();
  frmMasters->Picture1.Visible = true;
  frmMasters->Text1.Visible = true;
  frmMasters->Text1.SetFocus();
}

}  // namespace quintara
