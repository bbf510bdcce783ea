#include "front/bar_values.h"

#include <gtest/gtest.h>

#include "front/assistance.h"
#include "tests/support/game.h"

namespace quintara {
namespace {

using Value = std::optional<std::int32_t>;

struct BarValuesTest : testing::Test {
  template <typename Bar>
  BarValues Of(const Bar& bar) const {
    return {bar, table.ScaleOf(bar)};
  }
  static Value Typed(const BarValues& values, std::string_view keys) {
    TypedValue typed(values);
    for (const char key : keys) typed.Type(key);
    return typed.Take();
  }

  RunningGame game;
  AssistanceTable table{game.program};
  QuintaraForm& main = game.form;
  TrajectoryForm& simulator = game.program.trajectory();
};

// What stands beside the bar is what a bubble and a typed value have to say, at each value it can have.
TEST_F(BarValuesTest, AreTheNumbersOfTheCaptions) {
  game.Start();
  game.OpenProfile();
  const auto expectCaptions = [this](ScrollBar& bar, const Label& caption) {
    const BarValues values = Of(bar);
    for (int value = std::min(bar.Min, bar.Max); value <= std::max(bar.Min, bar.Max); ++value) {
      UserDragsTo(bar, static_cast<std::int16_t>(value));
      const std::string text = values.TextOf(value);
      EXPECT_EQ(text.substr(0, text.find(' ')), caption.Caption.Get()) << bar.name();
      EXPECT_EQ(Typed(values, caption.Caption.Get()), Value(value)) << bar.name();
    }
  };
  expectCaptions(main.elevationBar, main.elevation);
  expectCaptions(main.velocityBar, main.velocity);
  simulator.Show();
  expectCaptions(simulator.elevationBar, simulator.elevationText);
  expectCaptions(simulator.velocityBar, simulator.velocityText);
  simulator.dragBar.Value = 1;  // what raises nothing shows nothing
  expectCaptions(simulator.dragBar, simulator.dragText);
}

TEST_F(BarValuesTest, HaveUnitsAndRanges) {
  EXPECT_EQ(Of(main.elevationBar).TextOf(325), "45 deg");
  EXPECT_EQ(Of(main.elevationBar).Range(), "30 to 80 deg");
  EXPECT_EQ(Of(main.velocityBar).Range(), "250 to 750 m/s");
  EXPECT_EQ(Of(main.flightTimeBar).TextOf(12), "12 of 15");
  EXPECT_EQ(Of(simulator.elevationBar).Range(), "20 to 80 deg");
  EXPECT_EQ(Of(simulator.distanceSlider).TextOf(50), "4950 m");
}

TEST_F(BarValuesTest, UpIsUpWhicheverEndIsTheLarger) {
  const struct {
    BarValues values;
    int from;
    std::array<int, 6> to;  // in the order of BarMove
  } rows[] = {{Of(main.elevationBar), 325, {324, 326, 315, 335, 340, 290}},
              {Of(main.velocityBar), 500, {510, 490, 510, 490, 250, 750}},
              {Of(main.velocityBar), 745, {750, 735, 750, 735, 250, 750}},
              {Of(main.flightTimeBar), 1, {2, 1, 2, 1, 1, 15}},
              {Of(simulator.elevationBar), 350, {349, 350, 340, 350, 350, 290}},
              {Of(simulator.distanceSlider), 50, {51, 49, 55, 45, 0, 100}}};
  for (const auto& [values, from, to] : rows) {
    for (std::size_t move = 0; move < to.size(); ++move)
      EXPECT_EQ(values.Moved(from, static_cast<BarMove>(move)), to[move]) << values.Range() << ' ' << move;
  }
}

TEST_F(BarValuesTest, ANotchOfTheWheelIsOneStep) {
  WheelTurns wheel;
  EXPECT_EQ(wheel.Turn(120), 1);
  EXPECT_EQ(wheel.Turn(-240), -2);
  EXPECT_EQ(wheel.Turn(50), 0);
  EXPECT_EQ(wheel.Turn(50), 0);
  EXPECT_EQ(wheel.Turn(50), 1);
  EXPECT_EQ(wheel.Turn(-110), 0) << "what was left of the way up is forgotten";
  EXPECT_EQ(wheel.Turn(-10), -1);
}

TEST_F(BarValuesTest, ATypedValueIsTakenTakenBackOrOutOfRange) {
  const BarValues values = Of(main.elevationBar);
  TypedValue typed(values);
  EXPECT_EQ(typed.Told(), "");
  EXPECT_FALSE(typed.Type('f'));
  EXPECT_FALSE(typed.Type('.')) << "whole degrees";
  EXPECT_TRUE(typed.Type('6'));
  EXPECT_TRUE(typed.Type('1'));
  EXPECT_EQ(typed.Told().substr(0, 3), "61_");
  typed.RubOut();
  typed.Type('0');
  EXPECT_EQ(typed.Take(), Value(310));
  EXPECT_TRUE(typed.IsEmpty());
  for (const char key : {'8', '1'}) typed.Type(key);
  EXPECT_EQ(typed.Take(), Value());
  EXPECT_EQ(typed.Told(), "81 is out of range: 30 to 80 deg");
  typed.Type('3');
  EXPECT_EQ(typed.Told().substr(0, 2), "3_") << "the next digit begins anew";
  typed.Drop();
  EXPECT_EQ(typed.Told(), "");
  for (const char* beyond : {"29", "0", "999999999"}) EXPECT_EQ(Typed(values, beyond), Value()) << beyond;

  const BarValues drag = Of(simulator.dragBar);
  EXPECT_EQ(Typed(drag, "0.05"), Value(5));
  EXPECT_EQ(Typed(drag, ",1"), Value(10));
  EXPECT_EQ(Typed(drag, "0.0.6"), Value(6)) << "a second point is none";
  EXPECT_EQ(Typed(drag, "."), Value());
  EXPECT_EQ(Typed(Of(simulator.distanceSlider), "5000"), Value(51)) << "the nearest that there is";
}

}  // namespace
}  // namespace quintara
