#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
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
  void Advance(std::int64_t milliseconds) {
    program.scene().dispatcher().AdvanceTo(program.scene().dispatcher().now() + milliseconds);
  }
  void Click(Object& object) { ASSERT_EQ(UserClicks(object), InputResult::Done) << FullName(object); }

  std::string Bytes(const std::string& name) const {
    std::ifstream file(folder.path() / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
};

}  // namespace quintara
