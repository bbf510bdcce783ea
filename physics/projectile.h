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
  // What runs: ball 1, ball 2, or all three.
  enum class Run { None, Linear, Fall, Combined };

  // projectile.cpp
  void SetUp();
  void UnloadRailNumbers();
  void StartBall1();
  void StartBall2();
  void StartBall3();
  void PutBack();
  void StopOrGo();
  void TickBalls();
  void LoadScales();
  void LayDial();
  void Start(Run started);
  void StartTimer();
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
  void RunOn();
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

  static constexpr double dialX = 500, dialY = 500;  // centre of the dial, twips
  static constexpr double dialNumberRadius = 400, handLength = 280;
  static constexpr Single dialStep = 141.372 / 180;  // angle between two positions of the hand, radians

  Run run_ = Run::None;
  Single way_;           // twips that the run has gone so far; ball 1 stands 500 further
  Single fallVelocity_;  // m/s, negative downwards
  Single fallHeight_;    // metres, negative downwards, 0 at the start
  bool paused_ = false;  // the next click on the Stop button lets the timer run
};

}  // namespace quintara
