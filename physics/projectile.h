#pragma once

#include "physics/projectile_controls.h"

namespace quintara {

// The projectile demonstration: ball 1 runs along a rail at a constant pace, ball 2 falls freely, and ball 3
// does both at once, taking its x from ball 1 and its y from ball 2.
//
// What the scales, the dial and the arrows say is not computed from the motion. A ball passes through bands,
// and each band has its fixed numbers; only the fall is integrated.
class ProjectileForm : public ProjectileControls {
 public:
  explicit ProjectileForm(Scene& scene);

 private:
  // What runs, as run says it.
  static constexpr std::int16_t idle = 0, linear = 1, falling = 2, combined = 3;

  // projectile.cpp
  void SetUp();
  void UnloadRailNumbers();
  void StartBall1();
  void StartBall2();
  void StartBall3();
  void PutBack();
  void StopOrGo();
  void cmdCancel_Click();
  void TickBalls();
  void LoadScales();
  void LayDial();
  void Start(std::int16_t mode);
  void StopTimer();
  void ForgetRun();
  void PutBallsBack();
  void PutBenchBack();
  void HideScales();
  void HideVectors();

  // projectile_balls.cpp
  void StepBall1();
  void StepBall2();
  void StepBall3();
  void PassRailBand();
  void Fall();
  void DrawFall();
  void PassFallBand();
  void LaySightLineDown();
  void LayResultant();
  void MoveHand(int position);
  void OfferReset();
  // Length of the y arrow, twips: it grows with the way that ball 2 has fallen, not with its velocity.
  double FallArrow() const { return (ball2.Top - 480) * 0.26; }

  template <typename... Controls>
  static void SetVisible(bool visible, Controls&... controls) {
    ((controls.Visible = visible), ...);
  }
  static void Place(Box& box, double left, double top) {
    box.Left = left;
    box.Top = top;
  }

  std::int16_t run = idle;
  std::int16_t rate = 0;  // twips a second that the steps of balls 1 and 2 each add to wayRun
  Single wayRun;          // twips run so far; ball 1 stands at wayRun + 500
  Single fallVelocity;    // m/s, negative downwards
  Single fallHeight;      // metres, negative downwards, 0 at the start
  Single shownVelocity;   // what vyText says, a whole multiple of -9.8 m/s
  Single paused;          // 1: the next click on stopButton lets the timer run

  Single dialX, dialY;  // centre of the dial, twips
  Single dialBase;      // what its radii are counted from
  Single dialStep;      // angle between two of its positions, radians

  Single angle, complement;  // angle of the resultant arrow below the horizontal, and what is left
                             // of a right angle
  std::int16_t loopIndex = 0;
};

}  // namespace quintara
