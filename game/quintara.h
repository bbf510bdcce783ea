#pragma once

#include <array>
#include <string_view>

#include "ballistics/ballistic_step.h"
#include "documents/about.h"
#include "documents/analysis.h"
#include "documents/masters.h"
#include "game/quintara_controls.h"
#include "scene/form_handle.h"

namespace quintara {

// The main form, which is the whole game: one source per subject of it.
//
// There is no game object. The state of a game is what the captions say (shellInGun the shell in the gun,
// shotsFired the shots fired, score and bestScore the scores), which controls are enabled, and the few
// variables below.
class QuintaraForm : public QuintaraControls {
 public:
  // The windows that it opens, or closes when it closes.
  struct SideForms {
    ProjectileForm& bench;
    TrajectoryForm& simulator;
    MastersForm& masters;
    AnalysisForm& documents;
    AboutForm& about;
  };

  QuintaraForm(Scene& scene, const SideForms& sideForms);

  // What the documents' windows use of this form.
  MainForm ForDocuments() { return {*this, score, valleyName, peakName, shared}; }

  SharedSettings shared;

  // The shell's, the preview's and, with its place in twips, that of the radar's target: each of them sets
  // what it needs of it afresh when it starts.
  Flight flight;
  std::int16_t gLoopIndex = 0;  // counter of the loops over scales and arrays
  Single gMuzzleVelocity;       // m/s
  Single gElevationRad;         // elevation of the shot
  Single gBarrelRad;            // elevation of the drawn barrel
  Single gElevationScroll;      // elevationBar.Value
  std::int16_t gStepCount = 0;  // counter of the preview loops

 private:
  static constexpr std::size_t fragmentCount = 5;
  static constexpr std::string_view bonusNextStep =
      " Adjust Muzzle Elevation Angle       and Muzzle Velocity. Then, click     the red Fire button.";

  // main_window.cpp
  void SetUp();
  void SetAppFolder();
  void LayScopeGrid();
  void DrawFragmentWidths();
  void StoreFlightTimeSetting();
  std::array<Shape*, fragmentCount> Fragments() {
    return {&fragment1, &fragment2, &fragment3, &fragment4, &fragment5};
  }

  // radar.cpp
  struct Drift {
    Timer& timer;      // the one that ticks
    Timer& opposite;   // the one that takes over at the edge
    double direction;  // 1 to the right, -1 to the left
  };
  void Search();
  void DriftRight();
  void DriftLeft();
  void DriftTarget(const Drift& drift);
  void SetTrackSpeed();
  void ShowProfilePicture();
  void GrowTarget();
  void LockOn(Timer& running);
  void DrawSightings();
  void MeasureRange();

  // profile.cpp
  void Magnify();
  void ShowPanels();
  void ShowMaximumScore();
  void RaiseTerrain();
  void LayOutline();
  void BuildScales();
  void ShowBonusHeader(std::string_view nextStep);
  void ShowNormalHeader();

  // laying.cpp
  enum class Laying { Elevation, Velocity };
  enum class PreviewOf { Laying, Drag };
  void LayElevation();
  void LayVelocity();
  void RepeatTimeToImpact();
  void SwitchDrag();
  void LayGun(Laying changed);
  void TakeElevation();
  void TakeVelocity();
  void DrawBarrel();
  void DrawSightLines();
  void ClearProfileForPlot();
  void Preview(double dt, PreviewOf previewed);
  void ShowTimeToImpact(Single seconds);
  void PlotShell(Single x, Single y);
  void TurnDragOn();
  void TurnDragOff();
  void PrepareBonusShot();

  // firing.cpp
  void Fire();
  void FlyShell();
  void CountShell();
  void FireBonusShell();
  void MoveShell();
  void LightRing();
  void DimRing();

  // collision.cpp
  void TestForImpact();
  bool StrikesFoot();
  bool StrikesOutline();
  bool StrikesTarget();
  void HitTarget();
  void OfferListOfMasters();

  // effects.cpp
  struct Ray {
    Line& line;
    double right, down;  // where it points to from the impact, twips
  };
  struct BurstRule {
    std::string_view nextStep;  // what advice says after the fifth shell's burst
    bool restoresHeader;        // whether the normal header comes back after any other
    Shape& marker;
    double impactY;
    std::array<Ray, 3> rays;  // in the order in which they are drawn
  };
  void BurstOnProfile();
  void BurstOnGround();
  void BurstOnMountainFace();
  std::array<Ray, 3> LevelFan();
  void Burst(const BurstRule& rule);
  void ChargeMiss();
  void StopFlight();
  void EndFlash();
  void ThrowFragments();
  void FlyFragments();
  void MoveFragment(std::size_t i);

  // states.cpp
  void CloseSideForms();
  void Reset();
  void SwitchSound();
  void LeaveGame();
  void LayGunAtRest();
  void TakeDownTarget();
  void StartNewGame();
  void UnloadScales();

  // help.cpp
  void OpenHelpMenu();
  void ReadIntroduction();
  void ReadScenario();
  void ReadRules();
  void ReadPhysics();
  void ReadCode();
  void ShowMasters();
  void ShowAbout();
  void ReadPrinting();
  void OpenReadme();
  void CloseReadme();
  void ExplainUninstalling();

  FormHandle<ProjectileForm> bench_;
  FormHandle<TrajectoryForm> simulator_;
  FormHandle<MastersForm> masters_;
  FormHandle<AnalysisForm> documents_;
  FormHandle<AboutForm> about_;

  std::int16_t mShellArmed = 0;  // 1 lets shellTimer work
  std::int16_t mBonusShot = 0;   // 1: the bonus shot is armed
  std::int16_t mDragOn = 0;      // 1: drag is on for the shell now laid

  Single mTrackSpeed;  // horizontal speed of the radar's target, twips a second
  std::int16_t mTargetAltitude =
      0;               // the descent that the target must pass before the lock-on, 1 to 6000 twips
  Single mBearingDeg;  // bearing of the target at the lock-on
  Single mSightRatio;  // places the meeting point of the sight lines
  Single mTargetKm;    // range of the target, at least 10.7 km after a lock-on

  std::int16_t mProfileHeight = 0;  // height of mountain, twips
  Single mImpactSeconds;            // whole seconds to impact by the last preview of a laying
  Single mImpactSlope;              // angle of the slope struck, radians

  std::array<std::int16_t, fragmentCount> mFragOrigin{};  // where each fragment starts, twips
  std::array<Single, fragmentCount> mFragRun{};           // how far it has run
  std::array<Single, fragmentCount> mFragHeight{};
  Single mFragRange, mFragApex;  // the parabola of the fragment moved last
};

}  // namespace quintara
