#include "front/narrator.h"

#include "documents/masters.h"
#include "front/shots.h"
#include "game/quintara.h"
#include "numbers/numbers.h"

namespace quintara {
namespace {

const Shot* LastAtThisTarget(const ShotWatch& watch) {
  const auto shots = watch.AtThisTarget();
  return shots.empty() ? nullptr : &shots.back();
}

// Of a shell that was lost to the next one, both are told.
std::string WhatHappened(const ShotWatch& watch) {
  const auto shots = watch.AtThisTarget();
  if (shots.empty()) return {};
  if (shots.back().end != Shot::End::InTheAir) return SentenceOn(shots.back());
  const Shot* before = shots.size() > 1 ? &shots[shots.size() - 2] : nullptr;
  return before != nullptr && before->end == Shot::End::NextFired ? SentenceOn(*before) : std::string();
}

std::string WhatResetDoes(const QuintaraForm& form) {
  return Val(form.shotsFired.Caption) == 6 ? "starts a new game" : "goes on to the next target";
}

std::string WhileInTheAir(const QuintaraForm& form, const Shot& shot, bool isAlone) {
  if (!isAlone) return SentenceOn(shot);
  if (form.resetButton.Enabled) return SentenceOn(shot) + " Wait: Reset " + WhatResetDoes(form) + " at once.";
  return SentenceOn(shot) + " It is lost if you fire again or touch elevation, velocity or drag.";
}

std::string ReadyToFire(const QuintaraForm& form, bool isAlone) {
  const bool isBonus = Val(form.shellInGun.Caption) == 6;
  if (isBonus && isAlone && !form.profile.dots().empty())
    return "Dots show the path of the bonus shell. Let it clear the mountain, then F or the red button "
           "fires.";
  return "F or the red button fires " +
         (isBonus ? "the bonus shell." : "shell " + form.shellInGun.Caption.Get() + ".");
}

// What the player can do in the profile.
std::string WhatIsPossible(const QuintaraForm& form, const Shot* last, bool isAlone) {
  if (last != nullptr && last->end == Shot::End::InTheAir) return WhileInTheAir(form, *last, isAlone);
  if (form.resetButton.Enabled) return "Reset (R) " + WhatResetDoes(form) + ".";
  if (last != nullptr && last->end == Shot::End::Hit) return "Wait until the fragments have come down.";
  if (!form.fireButton.Enabled) return "Fire is off until you move elevation or velocity.";
  return ReadyToFire(form, isAlone);
}

std::string WhatTheRadarDoes(const QuintaraForm& form) {
  if (form.searchButton.Enabled) return "Click S or press S to look for a target.";
  if (!form.magnifyButton.Enabled) return "The radar is tracking the target. Wait until it has locked on.";
  // As many figures as the landscape shows.
  return "Target at " + std::string(Left(ToText(form.targetKm()), 4)) +
         " km. Click M or press M to open the terrain.";
}

std::string Joined(const std::string& happened, const std::string& possible) {
  return happened.empty() ? possible : happened + " " + possible;
}

}  // namespace

std::string SentenceOnGame(const QuintaraForm& form, const ShotWatch& watch) {
  const Shot* last = LastAtThisTarget(watch);
  if (!form.profile.Visible) {
    const bool leftOne = last != nullptr && last->end == Shot::End::Left;
    return Joined(leftOne ? SentenceOn(*last) : std::string(), WhatTheRadarDoes(form));
  }
  const std::string happened = WhatHappened(watch);
  return Joined(happened, WhatIsPossible(form, last, happened.empty()));
}

std::string SentenceOnName(const MastersForm& masters) {
  if (!masters.IsVisible() || !masters.namePanel.Visible) return {};
  const auto entry = masters.Entry();
  if (!entry) return "Enter writes no name: the points for it are gone.";
  const std::string writes = "Enter writes \"" + *entry + "\"";
  return writes + (masters.nameBox.Text.Get().empty() ? ": the name may be left empty." : " into the list.");
}

std::string SentenceOnHiddenReadme(const QuintaraForm& form) {
  return std::string("The Readme lies on the landscape, behind the profile. Reset (R) shows it") +
         (form.resetButton.Enabled ? "." : ", after a hit or the bonus shell.");
}

}  // namespace quintara
