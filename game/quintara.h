#pragma once

#include <array>
#include <optional>
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
// There is no game object. The state of a game is what the captions of shellInGun, shotsFired, score and
// bestScore (the most that can still be reached) say, which controls are enabled, and the few variables
// below.
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

  // Range of the target that was locked on last, in km; 0 before the first.
  Single targetKm() const { return targetKm_; }

  // Where the marker of a shell stands in the profile that is at this place, in metres from the gun and above
  // the ground; twips.
  struct Place {
    double x, y;
  };
  static Place InProfile(Single x, Single y);

  SharedSettings shared;

  // The shell's, the preview's and, with its place in twips, that of the radar's target: each of them sets
  // what it needs of it afresh when it starts. So a preview while a shell is in the air leaves that shell
  // deep under ground.
  Flight flight;

 private:
  static constexpr double pi = 3.1416;  // as the whole game has it: its flights rest on these five figures
  static constexpr double finestStep = 0.059;  // of a flight, in seconds: at the slowest setting
  static constexpr std::int16_t scopeRowCount = 4, scopeColumnCount = 6, shellMarkCount = 5;
  static constexpr std::int16_t rangeScaleEnd = 33, heightScaleEnd = 16;  // km
  static constexpr std::size_t fragmentCount = 5;
  static constexpr std::string_view bonusNextStep =
      " Adjust Muzzle Elevation Angle       and Muzzle Velocity. Then, click     the red Fire button.";

  // main_window.cpp
  void SetUp();
  void FindProgramFolder();
  void LayScopeGrid();
  void RandomizeFragmentWidths();
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
  void ShowBestScore();
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
  void LayGun(Laying changed);
  void TakeElevation();
  void TakeVelocity();
  Single LaidElevation() const;
  void TakeLaying();
  void DrawBarrel();
  void DrawFlashAndSightLine();
  void ClearProfileForPlot();
  void Preview(double dt, PreviewOf previewed);
  void PlotShell(Single x, Single y);
  void ShowTimeToImpact(Single seconds);
  void RepeatTimeToImpact();
  void SwitchDrag();
  void TurnDragOn();
  void TurnDragOff();

  // firing.cpp
  void Fire();
  void StartFlash();
  void CountShell();
  void FireBonusShell();
  void LockGun();
  void FlyShell();
  void MoveShell();
  Place InMountain(Single x, Single y) const;
  void LightRing();
  void DimRing();

  // collision.cpp
  void TestForImpact();
  bool StrikesFoot() const;
  std::optional<Single> SlopeStruck() const;
  bool StrikesTarget() const;
  void HitTarget();
  void OfferListOfMasters();

  // effects.cpp
  struct Ray {
    Line& line;
    double right, down;  // where it points to from the impact, twips
  };
  struct BurstRule {
    std::string_view nextStep;  // the advice after the fifth shell's burst
    bool restoresHeader;        // whether the normal header comes back after any other
    Shape& marker;
    double impactY;
    std::array<Ray, 3> rays;  // in the order in which they are drawn
  };
  void BurstOnSlope(double angle);
  void BurstOnGround();
  void BurstOnFoot();
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
  void LeaveGame();
  void SwitchSound();
  void Reset();
  void LayGunAtRest();
  void TakeDownTarget();
  void StartNewGame();
  void UnloadScales();

  // help.cpp
  void BindDocuments();
  void OpenHelpMenu();
  void ShowMasters();
  void ShowAbout();
  void OpenReadme();
  void CloseReadme();
  void ExplainUninstalling();

  FormHandle<ProjectileForm> bench_;
  FormHandle<TrajectoryForm> simulator_;
  FormHandle<MastersForm> masters_;
  FormHandle<AnalysisForm> documents_;
  FormHandle<AboutForm> about_;

  // What Fire and the previews launch a shell with. The fragments of a hit leave the speed of the last one
  // here: drag that is turned on among them is previewed with it.
  Single muzzleVelocity_;   // m/s
  Single muzzleElevation_;  // radians

  bool shellIsArmed_ = false;  // lets shellTimer work; Reset takes it away and leaves the timer running
  bool bonusShot_ = false;     // from the fifth Fire on: what is laid is the bonus shot, and is plotted
  bool dragIsOn_ = false;      // for the shell now laid, or in the air

  Single trackSpeed_;                // horizontal speed of the radar's target, twips a second
  std::int16_t lockOnDescent_ = 0;   // how far the target must come down before the lock-on, 1 to 6000 twips
  Single targetKm_;                  // range of the target, at least 10.7 km after a lock-on
  std::int16_t mountainHeight_ = 0;  // of the box and its outline, twips
  Single impactSeconds_;             // whole seconds to impact by the last preview of a laying

  std::array<std::int16_t, fragmentCount> fragmentOrigin_{};  // where each fragment starts, twips
  std::array<Single, fragmentCount> fragmentRun_{};           // how far it has run
};

}  // namespace quintara
