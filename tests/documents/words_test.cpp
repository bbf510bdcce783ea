// What the documents say of the game is held against the running game.

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <map>
#include <regex>
#include <string>
#include <vector>

#include "numbers/numbers.h"
#include "tests/support/game.h"

namespace quintara {
namespace {

const char* const introduction = "Help/Introduction.rtf";
const char* const rules = "Help/Rules.rtf";
const char* const analysis = "Help/Analysis.rtf";

const std::filesystem::path dataFolder = PROJECT_FOLDER "/data";

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
  return text;
}

// What the groups of a pattern catch at each of its places in a document; [N] is a group for a number.
// Blanks and minus signs are plain ones, and every line has a line end before and behind it.
std::vector<std::vector<std::string>> Found(const std::string& file, const std::string& pattern) {
  std::string text = "\n" + ReadRichText(BytesOf(dataFolder / file)).PlainText() + "\n";
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

// The numbers of a sentence that stands there once.
std::vector<double> Numbers(const std::string& file, const std::string& pattern) {
  const auto found = Found(file, pattern);
  EXPECT_EQ(found.size(), 1u) << pattern;
  std::vector<double> numbers;
  for (const std::string& group : found.at(0)) numbers.push_back(std::stod(group));
  return numbers;
}

std::int16_t Short(double number) {
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
  double Points() const { return Val(form.score.Caption); }

  // Where FireTo sends a shell.
  static constexpr double target = 22052, besideIt = 12000;
};

// Whether a laying hits the targets that are shown at this range, such as "22.0". All of them have to agree.
bool Hits(const std::string& range, double elevation, double velocity, double flightTime = 15) {
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
    if (gun.Points() == 5) ++hits;
  }
  EXPECT_NE(first, last) << "no target at " << range;
  EXPECT_TRUE(hits == 0 || hits == targets.count(range)) << "not all of the targets at " << range;
  return hits != 0;
}

TEST(IntroductionTest, ItsLayingsHit) {
  for (const auto& row : Found(introduction, "\n\t[N] km\t[N] degrees\t[N] m/s"))
    EXPECT_TRUE(Hits(row[0], std::stod(row[1]), std::stod(row[2]))) << row[0];
  const auto worked = Found(introduction, "at ([0-9.]+) km: .* Try [N] degrees and [N] m/s").at(0);
  EXPECT_TRUE(Hits(worked[0], std::stod(worked[1]), std::stod(worked[2])));
}

TEST(RulesTest, TheTargetIsAsLongAsTheySay) {
  const auto zone = Numbers(rules, "less than [N] m in front of the target or less than [N] m behind it");
  EXPECT_EQ(Numbers(introduction, "less than [N] m in front of it or less than [N] m behind it"), zone);
  for (const auto& [x, points] :
       {std::pair{-zone[0] - 2, 0}, {-zone[0] + 2, 5}, {zone[1] - 2, 5}, {zone[1] + 2, 0}}) {
    Gun gun;
    gun.OpenProfile();
    gun.FireTo(Gun::target + x, -1);
    EXPECT_EQ(gun.Points(), points) << x;
  }
}

TEST(RulesTest, TheSampleGameEndsAsTheySay) {
  Gun gun;
  int shells = 0;
  for (const auto& row : Found(rules, "\n([A-Z][^\t\n]+)\t([0-9]+)\t([0-9]*)(?=\n)")) {
    const std::string& event = row[0];
    if (event == "The profile opens") gun.OpenProfile();
    if (event == "Drag switched on") gun.TurnDragOn(0.005);
    if (event.find("Reset") != std::string::npos) gun.GoOn();
    if (event.starts_with("Shell")) {
      EXPECT_EQ(gun.form.dragConstant.Caption != "0", event.ends_with("with drag")) << event;
      EXPECT_EQ(Val(event.substr(6)), ++shells);
      gun.FireTo(event.find("hits") != std::string::npos ? Gun::target : Gun::besideIt, -1);
    }
    EXPECT_EQ(gun.form.score.Caption, row[1]) << event;
    EXPECT_EQ(gun.form.bestScore.Visible ? gun.form.bestScore.Caption.Get() : "", row[2]) << event;
  }
  EXPECT_EQ(shells, 6);
}

TEST(RulesTest, MastersNeedThePointsTheySay) {
  const auto needed = Numbers(rules, "your score to [N] or more makes you a Master[^;]*; [N] or more");
  const struct {
    double score;
    const char* entry;
  } cases[] = {{needed[0] - 1, nullptr},
               {needed[0], " - Master of Quintara"},
               {needed[1] - 1, " - Master of Quintara"},
               {needed[1], " - Grand Master of Quintara"}};
  for (const auto& [score, entry] : cases) {
    Gun gun;
    gun.OpenProfile();
    for (int shell = 1; shell <= 5; ++shell) gun.FireTo(Gun::besideIt, -1);
    gun.form.score.Caption = ToText(score - 5);
    gun.FireTo(Gun::target, -1);
    MastersForm& masters = gun.program.masters();
    EXPECT_EQ(masters.IsVisible(), entry != nullptr) << score;
    if (entry == nullptr) continue;
    UserTypes(masters.nameBox, 13);
    EXPECT_EQ(masters.list.List(0), entry);
  }
}

TEST(AnalysisTest, TheSimulatorShowsItsNumbers) {
  Gun gun;
  TrajectoryForm& window = gun.program.trajectory();
  window.Show();
  for (const auto& row : Found(analysis, "\n\t[N]\t[N]\t[N]\t[N]\t[N]\t[N]\t[N](?=\n)")) {
    // In the order that the text asks for; the last bar is moved even where it stands right.
    UserDragsTo(window.dragBar, Short(std::stod(row[2]) * 100));
    UserDragsTo(window.velocityBar, Short(std::stod(row[1])));
    for (const int degrees : {50, 0})
      UserDragsTo(window.elevationBar, Short(370 - degrees - std::stod(row[0])));
    const std::vector<std::string> shown = {window.elevationText.Caption, window.velocityText.Caption,
                                            window.dragText.Caption,      window.rangeText.Caption,
                                            window.heightText.Caption,    window.speedText.Caption,
                                            window.timeText.Caption};
    EXPECT_EQ(shown, row);
  }
}

TEST(AnalysisTest, TheStepMovesTheImpactAsItSays) {
  const auto shot = Numbers(analysis, "For [N] degrees and [N] m/s the parabola ends at [N] m");
  const std::map<std::string, double> settings = {{"Slow", 1}, {"Middle", 8}, {"Fast", 15}};
  const auto table = Found(analysis, "\n(Slow|Middle|Fast)\t[N] s\t[N] m\t[N] s");
  EXPECT_EQ(table.size(), settings.size());
  for (const auto& row : table) {
    Gun gun;
    gun.OpenProfile();
    UserDragsTo(gun.form.flightTimeBar, Short(settings.at(row[0])));
    gun.Lay(shot[0], shot[1]);
    EXPECT_TRUE(gun.form.timeToImpact.Caption.Get().ends_with(" " + row[3] + " (sec)"));
    gun.Fire();
    EXPECT_NEAR(gun.form.flight.dt, std::stod(row[1]), 1e-6);
    EXPECT_NEAR(gun.form.flight.x, std::stod(row[2]), 0.501);
  }
}

}  // namespace
}  // namespace quintara
