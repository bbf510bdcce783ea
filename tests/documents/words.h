#pragma once

#include <cctype>
#include <cmath>
#include <filesystem>
#include <map>
#include <numbers>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "numbers/numbers.h"
#include "tests/support/game.h"
#include "text/rich_text_tokens.h"

// What the documents say is held against the running game: these find what they say.

namespace quintara::words {

namespace fs = std::filesystem;

struct Document {
  const char* file;
  int width;  // of its window, in twips
};
inline constexpr Document documents[] = {{"Help/Introduction.rtf", 6000},
                                         {"Help/Scenario.rtf", 5830},
                                         {"Help/Rules.rtf", 5730},
                                         {"Help/Analysis.rtf", 6000},
                                         {"Help/Code.rtf", 6800},
                                         {"Help/Printing.rtf", 5730},
                                         {"Readme.rtf", 8000}};
inline constexpr const char* introduction = documents[0].file;
inline constexpr const char* rules = documents[2].file;
inline constexpr const char* analysis = documents[3].file;
inline constexpr const char* code = documents[4].file;

inline fs::path DataFolder() {
  return PROJECT_FOLDER "/data";
}

inline std::string Source(const std::string& file) {
  return BytesOf(DataFolder() / file);
}

inline std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
  return text;
}

// What the groups of a pattern catch at each of its places in a document; [N] is a group for a number.
// Blanks and minus signs are plain ones, and every line has a line end before and behind it.
inline std::vector<std::vector<std::string>> Found(const std::string& file, const std::string& pattern) {
  std::string text = "\n" + ReadRichText(Source(file)).PlainText() + "\n";
  text = Replaced(Replaced(text, "\u00A0", " "), "\u2212", "-");
  const std::regex expression(Replaced(pattern, "[N]", "([-+]?[0-9.]*[0-9])"));
  std::vector<std::vector<std::string>> found;
  for (std::sregex_iterator place(text.begin(), text.end(), expression), end; place != end; ++place) {
    std::vector<std::string>& groups = found.emplace_back();
    for (std::size_t i = 1; i < place->size(); ++i) groups.push_back((*place)[i].str());
  }
  EXPECT_FALSE(found.empty()) << file << " says nothing like " << pattern;
  return found;
}

// A table: the numbers of every place that matches.
inline std::vector<std::vector<double>> Rows(const std::string& file, const std::string& pattern) {
  std::vector<std::vector<double>> rows;
  for (const auto& groups : Found(file, pattern)) {
    std::vector<double>& row = rows.emplace_back();
    for (const std::string& group : groups) row.push_back(std::stod(group));
  }
  return rows;
}

// The numbers of a sentence that stands there once.
inline std::vector<double> Numbers(const std::string& file, const std::string& pattern) {
  const auto rows = Rows(file, pattern);
  EXPECT_EQ(rows.size(), 1u) << pattern;
  return rows.at(0);
}

inline std::int16_t Short(double number) {
  return static_cast<std::int16_t>(std::lround(number));
}

// A started game with what the documents do in it.
struct Gun : RunningGame {
  Gun() { Start(); }

  void Lay(double elevation, double velocity) {
    UserDragsTo(form.elevationBar, Short(370 - elevation));
    UserDragsTo(form.velocityBar, Short(velocity));
  }
  void Fire() {
    Click(form.fireButton);
    while (form.shellTimer.Enabled) Advance(17);
  }
  void TurnDragOn(double constant) {
    chance.Queue(constant * 100 - 0.05);
    Click(form.dragButton);
    ASSERT_EQ(Val(form.dragConstant.Caption), constant);
  }
  // Next target, after the pieces of the last one have come down.
  void GoOn() {
    Advance(4000);
    Click(form.resetButton);
    OpenProfile();
  }
  double Actual() const { return Val(form.score.Caption); }
  double Max() const { return Val(form.bestScore.Caption); }

  // Where FireTo sends a shell.
  static constexpr double target = 22052, besideIt = 12000;
};

// Whether a laying hits the targets that are shown at this range, such as "22.0". All of them have to agree.
inline bool Hits(const std::string& range, double elevation, double velocity, double flightTime = 15) {
  // The altitudes at which the radar finds a target, by the range that it shows.
  static const std::multimap<std::string, int> targets = [] {
    std::multimap<std::string, int> all;
    for (int altitude = 15; altitude <= 6000; altitude += 25) {
      Gun gun;
      gun.OpenProfile(altitude);
      all.emplace(gun.form.targetTag.Caption.Get().substr(11, 4), altitude);
    }
    return all;
  }();
  std::size_t hits = 0;
  const auto [first, last] = targets.equal_range(range);
  for (auto found = first; found != last; ++found) {
    Gun gun;
    gun.OpenProfile(found->second);
    UserDragsTo(gun.form.flightTimeBar, Short(flightTime));
    gun.Lay(elevation, velocity);
    gun.Fire();
    if (gun.Actual() == 5) ++hits;
  }
  EXPECT_NE(first, last) << "no target at " << range;
  EXPECT_TRUE(hits == 0 || hits == targets.count(range)) << "not all of the targets at " << range;
  return hits != 0;
}

}  // namespace quintara::words
