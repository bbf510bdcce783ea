#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "host/session.h"
#include "tests/host/trial_forms.h"
#include "tests/support/recording_platform.h"

namespace quintara::host {

// A host with the two trial forms. Say hands it lines and gives what it prints.
class HostTest : public ::testing::Test {
 protected:
  std::string Say(const std::string& lines) {
    out.str("");
    std::istringstream in(lines);
    session.Run(in);
    return out.str();
  }
  void Start() { ASSERT_EQ(Say("start"), "! show Trial\nok\n"); }
  // What the handlers noted since the last call.
  std::string Noted() {
    std::string noted = trial.lblLog.Caption;
    trial.lblLog.Caption = "";
    return noted;
  }

  TemporaryFolder folder;
  std::ostringstream out;
  HostPlatform platform{folder.path(), out};
  Scene scene{platform};
  SideForm side{scene};
  TrialForm trial{scene, side};
  Session session{scene, platform, out, [this] { scene.dispatcher().Run(trial, [this] { trial.Show(); }); }};
};

// Whether a command was refused and printed nothing but that.
inline bool IsRefusal(const std::string& reply) {
  return reply.starts_with("error: ") && reply.find('\n') == reply.size() - 1;
}

}  // namespace quintara::host
