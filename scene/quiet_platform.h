#pragma once

#include <cstdio>

#include "scene/platform.h"
#include "scene/scale.h"

namespace quintara {

// A world outside in which nothing is heard or seen and nobody answers more than a box's OK, so that a run
// depends on its input alone. What a platform has of its own it puts over this.
class QuietPlatform : public Platform {
 public:
  double ScreenWidth() override { return 1920 * twipsPerPixel; }
  double ScreenHeight() override { return 1080 * twipsPerPixel; }
  std::uint64_t Seed() override { return ++seed_; }
  void PlaySound(const DataFile&) override {}
  void Beep() override {}
  void ShowMessageBox(const MessageBox&, std::function<void(Answer)> reply) override { reply(Answer::Ok); }
  void OpenPopupMenu(Form&, Menu&, double, double, std::function<void(Menu*)> reply) override {
    reply(nullptr);
  }
  void PutOnClipboard(const std::string&) override {}
  void FormShown(Form&) override {}
  void FormUnloaded(Form&) override {}
  void ProgramEnded() override {}
  void FaultFound(const std::string& what) override { std::fprintf(stderr, "quintara: %s\n", what.c_str()); }

 private:
  std::uint64_t seed_ = 0;
};

}  // namespace quintara
