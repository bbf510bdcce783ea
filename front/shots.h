#pragma once

#include <span>
#include <string>
#include <vector>

namespace quintara {

class QuintaraForm;

// Where a shell stood: metres from the gun and above the ground, seconds since it was fired.
struct PathPoint {
  double x = 0, y = 0, time = 0;
};

// A shell, what it was fired with, and what became of it.
struct Shot {
  enum class End {
    InTheAir,
    Mountain,   // it burst on the outline or the foot of the mountain
    Ground,     // it burst on the ground behind the mountain
    Buried,     // it went under ground where nothing makes it burst
    Hit,        // it struck the target
    NextFired,  // it was lost when the next one was fired
    LaidAnew,   // it was lost when a bar or drag was touched while it flew
    Left,       // it was lost when its target was left
  };

  int shell = 0;           // 1 to 6; the sixth is the bonus shell
  int target = 0;          // counts the targets of the game, from 1
  double elevation = 0;    // degrees
  double velocity = 0;     // m/s
  double drag = 0;         // the drag constant; 0 without drag
  double targetRange = 0;  // metres
  End end = End::InTheAir;
  double x = 0, y = 0;          // where it ended, metres; of a lost one where it was seen last
  int points = 0;               // won by a hit
  std::vector<PathPoint> path;  // from the gun on, where it stood after each tick

  // How far beyond the target it fell, in metres; below 0 it fell short.
  double Miss() const { return x - targetRange; }
  bool IsLost() const { return end >= End::NextFired; }
};

// "Shell 4 fell at 23.3 km, 1.6 km beyond the target."
std::string SentenceOn(const Shot& shot);
// The places of the path where a mark stands: each simulated second, or each tenth where a tick is longer
// than half a second, so that marks can be told apart.
std::vector<PathPoint> MarksOn(const Shot& shot);

// Watches the main form and finds out what becomes of each shell. It reads the form and never writes to it.
class ShotWatch {
 public:
  explicit ShotWatch(const QuintaraForm& form) : form_(form) {}

  // To be called after each handler and each tick.
  void Look();

  // The shots of this game, the last one at the back.
  const std::vector<Shot>& shots() const { return shots_; }
  // Counts the targets of this game.
  int target() const { return target_; }
  // Those of them that were fired at the present target.
  std::span<const Shot> AtThisTarget() const;
  // Grows whenever shots() has changed.
  unsigned changes() const { return changes_; }

 private:
  // What is kept of the form from one look to the next.
  struct Seen {
    double shotsFired = 0, score = 0, flightTime = 0;
    bool searches = false;
  };

  Seen SeeForm() const;
  bool HasShotInTheAir() const { return !shots_.empty() && shots_.back().end == Shot::End::InTheAir; }
  void BeginShot();
  void FollowShot(const Seen& now);
  void EndShot(Shot::End end);
  Shot::End EndOfFlight(const Seen& now) const;

  const QuintaraForm& form_;
  std::vector<Shot> shots_;
  int target_ = 0;
  unsigned changes_ = 0;
  Seen seen_;
};

}  // namespace quintara
