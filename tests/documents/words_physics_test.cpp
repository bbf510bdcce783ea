#include <gtest/gtest.h>

#include "numbers/trigonometry.h"
#include "tests/documents/words.h"

namespace quintara::words {
namespace {

// ---- The physics ----

// What the formulas say of a shot in metres and seconds.
struct Parabola {
  Parabola(double degrees, double velocity) {
    const double angle = degrees * std::numbers::pi / 180;
    range = velocity * velocity * std::sin(2 * angle) / 9.8;
    height = std::pow(velocity * std::sin(angle), 2) / 19.6;
    time = 2 * velocity * std::sin(angle) / 9.8;
  }
  double range, height, time;
};

// To half of the last decimal that is shown.
constexpr double whole = 0.501, tenth = 0.0501;

TEST(AnalysisTest, TheProjectileWindowShowsItsNumbers) {
  Gun gun;
  ProjectileForm& bench = gun.program.projectile();
  // What a label says while the hand stands on each number, by that number.
  using Readings = std::map<int, std::string>;
  Readings across, fall, velocity;
  const auto run = [&](CommandButton& button, ControlArray<Label>& marks, Readings& metres) {
    for (gun.Click(button); bench.ballTimer.Enabled; gun.Advance(50)) {
      const double turn = std::atan2(bench.dialHand.X2 - 500, 500 - bench.dialHand.Y2) / std::numbers::pi * 4;
      const auto hand = static_cast<std::int16_t>(std::lround(turn + 8) % 8);
      if (hand == 0) continue;
      metres[hand] = marks(static_cast<std::int16_t>(hand - 1)).Caption;
      velocity[hand] = bench.vyText.Caption;
    }
    gun.Click(bench.resetButton);
  };
  bench.Show();
  run(bench.ball1Button, bench.railNumbers, across);
  run(bench.ball2Button, bench.fallNumbers, fall);
  const auto table = Rows(analysis, "\n\t[N]\t[N] m\t[N] m\t[N] m/s");
  EXPECT_EQ(table.size(), 6u);
  for (const auto& row : table) {
    const int second = static_cast<int>(row[0]);
    EXPECT_EQ(Val(across[second]), row[1]);
    EXPECT_EQ(Val(fall[second + 1]), row[2]);
    EXPECT_EQ(velocity[second + 1], "= " + ToText(-row[3]) + " m/s");
  }
  const auto read = Numbers(analysis, "hand stands on [N], you read [N] m and [N] m/s");
  EXPECT_EQ(Val(fall[static_cast<int>(read[0])]), read[1]);
  EXPECT_EQ(velocity[static_cast<int>(read[0])], "= " + ToText(read[2]) + " m/s");
}

struct Simulator : Gun {
  Simulator() { window.Show(); }
  // In the order that the text asks for; the last bar is moved even where it stands right.
  void Set(double drag, double velocity, double elevation) {
    UserDragsTo(window.dragBar, Short(drag * 100));
    UserDragsTo(window.velocityBar, Short(velocity));
    UserDragsTo(window.elevationBar, Short(370 - elevation + (elevation > 20 ? 1 : -1)));
    UserDragsTo(window.elevationBar, Short(370 - elevation));
  }
  TrajectoryForm& window = program.trajectory();
};

TEST(AnalysisTest, TheSimulatorShowsItsNumbers) {
  Simulator simulator;
  TrajectoryForm& window = simulator.window;
  const auto table = Found(analysis, "\n\t[N]\t[N]\t[N]\t[N]\t[N]\t[N]\t[N](?=\n)");
  EXPECT_GE(table.size(), 5u);
  for (const auto& row : table) {
    simulator.Set(std::stod(row[2]), std::stod(row[1]), std::stod(row[0]));
    const std::vector<std::string> shown = {window.elevationText.Caption, window.velocityText.Caption,
                                            window.dragText.Caption,      window.rangeText.Caption,
                                            window.heightText.Caption,    window.speedText.Caption,
                                            window.timeText.Caption};
    EXPECT_EQ(shown, row);
  }
  for (const auto& row : Rows(analysis, "\n\t[N]\t[N]\t[N]\t[N]\t[N]\t[N](?=\n)")) {
    const Parabola exact(row[0], row[1]);
    EXPECT_NEAR(exact.range, row[2], whole);
    EXPECT_NEAR(exact.height, row[3], whole);
    EXPECT_EQ(row[1], row[4]);
    EXPECT_NEAR(exact.time, row[5], tenth);
  }
}

TEST(AnalysisTest, TheSimulatorAnswersItsQuestions) {
  Simulator simulator;
  TrajectoryForm& window = simulator.window;
  const auto question = Numbers(analysis, "greatest range in the simulator for [N] m/s and a drag of [N]\\.");
  const auto answer = Numbers(analysis, "\n[N] degrees, with [N] m\\.");
  std::vector<double> farthest = {0, 0};
  for (int angle = 20; angle <= 80; ++angle) {
    simulator.Set(question[1], question[0], angle);
    if (const double range = Val(window.rangeText.Caption); range > farthest[1])
      farthest = {1.0 * angle, range};
  }
  EXPECT_EQ(farthest, answer);

  const auto shot = Numbers(analysis, "For [N] degrees, [N] m/s and no drag it finds the top");
  const auto top = Numbers(analysis, "top at x = [N] and y = [N]: [^:]* across is [N], .* speed is [N]\\.");
  simulator.Set(0, shot[1], shot[0]);
  std::vector<double> highest(4);
  for (int position = 1; position <= 90; ++position) {
    UserDragsTo(window.distanceSlider, position);
    const std::vector<double> shown = {Val(window.rangeText.Caption), Val(window.heightText.Caption),
                                       Val(window.vxText.Caption), Val(window.speedText.Caption)};
    if (shown[1] > highest[1]) highest = shown;
    EXPECT_EQ(shown[2], top[2]) << "everywhere";
  }
  EXPECT_EQ(highest, top);
}

TEST(AnalysisTest, TheFormulasGiveItsNumbers) {
  const auto example = Numbers(analysis, "[N] degrees and [N] m/s give R = [N] m, H = [N] m and T = [N] s");
  const Parabola exact(example[0], example[1]);
  EXPECT_NEAR(exact.range, example[2], whole);
  EXPECT_NEAR(exact.height, example[3], whole);
  EXPECT_NEAR(exact.time, example[4], tenth);
  const auto reach = Numbers(analysis, "For [N] km and [N] degrees that is [N] m/s");
  EXPECT_NEAR(std::sqrt(reach[0] * 1000 / Parabola(reach[1], 1).range), reach[2], 0.5);

  const auto drag = Numbers(analysis, "D = [N] \u00D7 0.001 \u00D7 [N] \u00D7 [N] = [N] m");
  EXPECT_NEAR(drag[0] * 0.001 * drag[1] * drag[2], drag[3], 1e-9);
  EXPECT_NEAR(Numbers(analysis, "gravity seems to be [N] m")[0], 9.8 + drag[3], 1e-9);
}

TEST(AnalysisTest, TheStepMovesTheImpactAsItSays) {
  const auto shot = Numbers(analysis, "For [N] degrees and [N] m/s the parabola ends at [N] m");
  EXPECT_NEAR(Parabola(shot[0], shot[1]).range, shot[2], whole);
  const std::map<std::string, double> settings = {{"Slow", 1}, {"Middle", 8}, {"Fast", 15}};
  const auto steps =
      Numbers(analysis, "needs almost [N] steps on Slow, which take [N] s .* only [N] on Fast");
  const auto table = Found(analysis, "\n(Slow|Middle|Fast)\t[N] s\t[N] m\t[N] s");
  EXPECT_EQ(table.size(), settings.size());
  for (const auto& row : table) {
    Gun gun;
    gun.OpenProfile();
    UserDragsTo(gun.form.flightTimeBar, Short(settings.at(row[0])));
    gun.Lay(shot[0], shot[1]);
    const std::string& time = gun.form.timeToImpact.Caption;
    EXPECT_EQ(time.substr(time.find_first_of("0123456789")), row[3] + " (sec)");
    const std::int64_t start = gun.program.scene().dispatcher().now();
    gun.Fire();
    const auto watched = static_cast<double>(gun.program.scene().dispatcher().now() - start);
    EXPECT_EQ(gun.Actual(), 5);
    EXPECT_NEAR(gun.form.flight.dt, std::stod(row[1]), 1e-6);
    EXPECT_NEAR(gun.form.flight.x, std::stod(row[2]), whole);
    const double made = std::round(gun.form.flight.time / gun.form.flight.dt);
    if (row[0] == "Slow") {
      EXPECT_TRUE(made < steps[0] && made > steps[0] - 10) << made;
      EXPECT_NEAR(watched / 1000, steps[1], 0.5);
    }
    if (row[0] == "Fast") {
      EXPECT_EQ(made, steps[2]);
      EXPECT_LT(watched, 2000);
    }
  }
  const auto check = Numbers(analysis, "[N] - 2 \u00D7 [N] \u00D7 [N] = [N], and [^=]* = [N]\\.");
  EXPECT_NEAR(check[0] - 2 * check[1] * check[2], check[3], 0.5);
  EXPECT_NEAR(steps[2] * check[1] * check[2], check[4], 0.5);

  const auto hits = Numbers(analysis, "does [N] m/s hit on Slow but not on Fast, and [N] m/s on Fast");
  const auto target =
      Found(analysis, "The target is [N] km away, and the elevation shall be [N] degrees").at(0);
  const double elevation = std::stod(target[1]);
  EXPECT_TRUE(Hits(target[0], elevation, hits[0], 1) && !Hits(target[0], elevation, hits[0], 15));
  EXPECT_TRUE(Hits(target[0], elevation, hits[1], 15) && !Hits(target[0], elevation, hits[1], 1));
  const double needed = std::sqrt(std::stod(target[0]) * 1000 / Parabola(elevation, 1).range);
  EXPECT_NEAR(Numbers(analysis, "sin 120\u00B0\\) = [N] m/s")[0], needed, 0.5);
}

TEST(AnalysisTest, DragShortensTheShotAsItSays) {
  const auto table = Rows(analysis, "\n\t[N]\t[N] km");
  EXPECT_EQ(table.size(), 4u);
  for (const auto& row : table) {
    Gun gun;
    gun.OpenProfile();
    UserDragsTo(gun.form.flightTimeBar, 1);
    if (row[0] > 0) gun.TurnDragOn(row[0]);
    gun.Lay(60, 500);
    gun.Fire();
    EXPECT_NEAR(gun.form.flight.x / 1000, row[1], tenth);
  }
}

// ---- The code ----

// What a tick of a flight works out, in the order of the nine lines.
std::vector<double> Flight(const QuintaraForm& form) {
  return {form.flight.dragTerm, form.flight.ax, form.flight.ay, form.flight.vx,  form.flight.vy,
          form.flight.speed,    form.flight.x,  form.flight.y,  form.flight.time};
}

// Works out the lines of the document, each stored with single precision.
class Reckoner {
 public:
  std::map<std::string, double> values;

  void Store(const std::string& name, const std::string& expression) {
    values[name] = Single(Work(expression));
  }
  double Work(const std::string& expression) {
    rest_ = Replaced(expression, " ", "");
    const double result = Sum();
    EXPECT_EQ(rest_, "") << expression;
    return result;
  }

 private:
  bool Take(char symbol) {
    if (!rest_.starts_with(symbol)) return false;
    rest_.erase(0, 1);
    return true;
  }
  double Sum() {
    double sum = Product();
    while (rest_.starts_with('+') || rest_.starts_with('-'))
      sum = Take('+') ? sum + Product() : (Take('-'), sum - Product());
    return sum;
  }
  double Product() {
    double product = Factor();
    while (rest_.starts_with('*') || rest_.starts_with('/'))
      product = Take('*') ? product * Factor() : (Take('/'), product / Factor());
    return product;
  }
  double Factor() {
    if (Take('-')) return -Factor();
    if (Take('(')) {
      const double inner = Sum();
      EXPECT_TRUE(Take(')'));
      return inner;
    }
    std::size_t length = rest_.find_first_of("+-*/()");
    const std::string word = rest_.substr(0, length);
    rest_.erase(0, word.size());
    if (word == "sqrt") return Sqr(Factor());
    if (word == "cos") return Cos(Factor());
    if (word == "sin") return Sin(Factor());
    if (values.contains(word)) return values[word];
    return std::stod(word, &length);
  }

  std::string rest_;
};

TEST(CodeTest, ItsLinesFlyTheShell) {
  const auto begin = Found(code, "\n(angle|vx|vy) = ([^\n]*)");
  const auto lines = Found(code, "\n[1-9]  ([a-z]+) += ([^\n=]*[a-z][^\n=]*)");
  ASSERT_EQ(begin.size(), 3u);
  ASSERT_EQ(lines.size(), 9u);
  Gun gun;
  gun.OpenProfile();
  gun.TurnDragOn(0.01);
  gun.Lay(61, 430);
  gun.Click(gun.form.fireButton);
  Reckoner shell;
  shell.values = {{"elevation", 61}, {"velocity", 430}, {"k", 0.01}, {"dt", Single(0.885)},
                  {"x", 0},          {"y", 0},          {"t", 0}};
  for (const auto& line : begin) shell.Store(line[0], line[1]);
  for (int step = 1; step <= 40; ++step) {
    gun.Advance(17);
    for (const auto& line : lines) shell.Store(line[0], line[1]);
    std::vector<double> document(lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) document[i] = shell.values[lines[i][0]];
    ASSERT_EQ(document, Flight(gun.form)) << "step " << step;
  }
}

TEST(CodeTest, ItsStepByHandIsRight) {
  Gun gun;
  gun.OpenProfile();
  const auto shot = Numbers(code, "Elevation [N] degrees, velocity [N] m/s, no drag, flight time on Fast");
  gun.Lay(shot[0] + 1, shot[1]);
  gun.Lay(shot[0], shot[1]);
  gun.Click(gun.form.fireButton);
  const auto before = Numbers(code, "vx = [N] m/s and vy = [N] m/s");
  EXPECT_NEAR(gun.form.flight.vx, before[0], tenth);
  EXPECT_NEAR(gun.form.flight.vy, before[1], tenth);
  gun.Advance(17);
  const std::vector<double> after = Flight(gun.form);
  const auto lines = Found(code, "\n([1-9])  [a-z]+ += (?:([^\n=]+) = )?[N](?=\n)");
  EXPECT_EQ(lines.size(), 9u);
  for (const auto& line : lines) {
    const double shown = std::stod(line[2]);
    EXPECT_NEAR(after[std::stoul(line[0]) - 1], shown, tenth) << line[0];
    EXPECT_NEAR(line[1].empty() ? shown : Reckoner().Work(line[1]), shown, 0.06) << line[0];
  }
  const auto place = Numbers(code, "the shell is [N] m away and [N] m high");
  EXPECT_NEAR(gun.form.flight.x, place[0], tenth);
  EXPECT_NEAR(gun.form.flight.y, place[1], tenth);
}

TEST(CodeTest, ItsStepsAreAsLongAsItSays) {
  Simulator simulator;
  TrajectoryForm& window = simulator.window;
  simulator.Set(0, 100, 45);
  UserDragsTo(window.distanceSlider, 1);
  const double slider = Numbers(code, "Simulator, curve and slider\t[N] s")[0];
  const double sliderSteps = Val(window.timeText.Caption) / slider;
  EXPECT_NEAR(sliderSteps, std::round(sliderSteps), 0.09);
  simulator.Click(window.fireButton);
  simulator.Advance(100);
  EXPECT_EQ(Val(window.timeText.Caption), Numbers(code, "Simulator, Fire button\t[N] s")[0]);
  const double slow = Numbers(code, "flight time on Slow\t[N] s")[0];
  EXPECT_EQ(Numbers(code, "each notch towards Fast\t[N] s more")[0], slow);
  const auto fast = Numbers(code, "flight time on Fast\t[N] \u00D7 [N] = [N] s");
  EXPECT_EQ(fast, (std::vector<double>{15, slow, 0.885}));
}

}  // namespace
}  // namespace quintara::words
