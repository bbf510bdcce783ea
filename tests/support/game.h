#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "program/program.h"
#include "scene/input.h"
#include "tests/support/recording_platform.h"

namespace quintara {

// A game in a folder of its own, started, with what it does to the outside recorded.
struct RunningGame {
  TemporaryFolder folder;
  RecordingPlatform platform{folder.text()};
  Program program{platform};
  QuintaraForm& form = program.quintara();
  Chance& chance = program.scene().chance();

  void Start() {
    program.Start();
    platform.log.clear();
  }
  void Advance(std::int64_t milliseconds) { program.scene().dispatcher().Advance(milliseconds); }
  void Click(Object& object) { ASSERT_EQ(UserClicks(object), InputResult::Done) << FullName(object); }

  // Searches until the target that comes down past `altitude` (1 to 6000 twips) is locked on, and opens the
  // profile. 380 gives a range of 22.052 km.
  void OpenProfile(int altitude = 380) {
    chance.Queue((altitude - 0.5) / 6000);
    Click(form.searchButton);
    while (!form.magnifyButton.Enabled) Advance(50);
    Advance(50);  // a lock-on at the turn runs once more
    Click(form.magnifyButton);
  }

  // Fires, and steers the shell so that the next tick finds it at this place, in metres, coming straight
  // down.
  void FireTo(double x, double y) {
    form.fireButton.Enabled = true;
    Click(form.fireButton);
    const double dt = Single(form.flightTimeBar.Value * 0.059);
    form.flight.vx = 0;
    form.flight.x = x;
    form.flight.y = std::max(y, 0.0) + 1;
    form.flight.vy = (y - form.flight.y + 4.9 * dt * dt) / dt + 9.8 * dt;
    Advance(17);
  }
};

}  // namespace quintara
