#pragma once

#include <cstdint>
#include <map>
#include <optional>

namespace quintara {

class AssistanceTable;
class Object;

// Tells presses that are meant from those that hands and keyboards add: the second press of a double click,
// and the repetitions of a key that is held down. Times are milliseconds of any clock; some begin anew
// after weeks.
class Presses {
 public:
  using Time = std::int64_t;

  // The table says of which controls a second press is none; it must outlive this.
  explicit Presses(const AssistanceTable& table) : table_(table) {}

  // A button of the mouse, or a finger, goes down.
  void ButtonGoesDown(Time time);
  // A key goes down or comes up. It may be told several times of one press, on its way from window to
  // window. `repeats`: the keyboard says itself that it only repeats.
  void KeyGoesDown(int key, Time time, bool repeats);
  void KeyComesUp(int key, Time time);

  // Whether a control is pressed by what went down last, with which a press begins that may end later.
  // `doubleClick`: the time in which a second press makes a double click. To be asked once for each press of
  // a control that can be used.
  bool Counts(const Object& control, Time doubleClick);

 private:
  const AssistanceTable& table_;
  Time pressedAt_ = 0;
  bool repeats_ = false;
  struct Key {
    int key = 0;
    bool isDown = false;
    Time releasedAt = 0;
  };
  std::optional<Key> key_;  // the last one that went down
  std::map<const Object*, Time> pressedLast_;
};

}  // namespace quintara
