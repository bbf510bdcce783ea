// What a player waits for: a change of the laying with and without its plot, a tick of radar and flight, a
// whole game, ten thousand of them. Each stands beside its floor: the nine lines of a step on plain numbers,
// a plain read and write.

#include <benchmark/benchmark.h>

#include <cmath>

#include "bench/silent_platform.h"
#include "program/program.h"
#include "scene/input.h"
#include "tests/support/resident_memory.h"

namespace quintara {
namespace {

struct Game {
  SilentPlatform platform;
  Program program{platform};
  QuintaraForm& form = program.quintara();

  Game() { program.Start(); }

  void Advance(std::int64_t milliseconds) { program.scene().dispatcher().Advance(milliseconds); }
  // Searches for a target at 22.052 km and opens its profile.
  void OpenProfile() {
    program.scene().chance().Queue(379.5 / 6000);
    UserClicks(form.searchButton);
    while (!form.magnifyButton.Enabled) Advance(50);
    UserClicks(form.magnifyButton);
  }
  void Lay(std::int16_t elevation, std::int16_t velocity) {
    UserDragsTo(form.elevationBar, static_cast<std::int16_t>(370 - elevation));
    UserDragsTo(form.velocityBar, velocity);
  }
  void Fire() {
    UserClicks(form.fireButton);
    while (form.shellTimer.Enabled) Advance(17);
  }
  TrajectoryForm& OpenSimulator() {
    TrajectoryForm& simulator = program.trajectory();
    simulator.Show();
    UserDragsTo(simulator.velocityBar, 300);
    return simulator;
  }
};

// The nine lines of 3749 steps, each result rounded to single, on numbers that a compiler may keep where it
// likes.
void BareLoop(benchmark::State& state) {
  for (auto _ : state) {
    double k = 0;
    benchmark::DoNotOptimize(k);
    const double dt = static_cast<double>(static_cast<float>(0.885));
    const auto round = [](double x) { return static_cast<double>(static_cast<float>(x)); };
    double vx = round(750 * std::cos(1.39)), vy = round(750 * std::sin(1.39)), x = 0, y = 0, time = 0,
           speed = 0;
    for (std::int64_t step = 0; step < state.range(0); ++step) {
      const double drag = round(((k * 0.001) * std::sqrt(vx * vx + vy * vy)) * vx);
      const double ax = -drag;
      const double ay = round(-9.8 - drag);
      vx = round(ax * dt + vx);
      vy = round(ay * dt + vy);
      speed = round(std::sqrt(vx * vx + vy * vy));
      benchmark::DoNotOptimize(speed);
      x = round((vx * dt + x) + dt * dt * (0.5 * ax));
      y = round((vy * dt + y) + dt * dt * (0.5 * ay));
      time = round(time + dt);
    }
    benchmark::DoNotOptimize(x + y + time);
  }
}
BENCHMARK(BareLoop)->ArgName("steps")->Arg(3749)->Arg(1499);

constexpr int manyTimes = 1000;

void ReadOfAPlainNumber(benchmark::State& state) {
  float place = 1;
  for (auto _ : state) {
    for (int i = 0; i < manyTimes; ++i) {
      benchmark::DoNotOptimize(place);
      benchmark::DoNotOptimize(static_cast<double>(place));
    }
  }
  state.SetItemsProcessed(state.iterations() * manyTimes);
}
BENCHMARK(ReadOfAPlainNumber);

void ReadOfAProperty(benchmark::State& state) {
  Game game;
  const Coordinate& place = game.form.shells(0).Left;
  for (auto _ : state) {
    for (int i = 0; i < manyTimes; ++i) {
      benchmark::ClobberMemory();
      benchmark::DoNotOptimize(static_cast<double>(place));
    }
  }
  state.SetItemsProcessed(state.iterations() * manyTimes);
}
BENCHMARK(ReadOfAProperty);

void WriteOfAPlainNumber(benchmark::State& state) {
  float place = 1;
  for (auto _ : state) {
    for (int i = 0; i < manyTimes; ++i) {
      double fresh = i;
      benchmark::DoNotOptimize(fresh);
      place = static_cast<float>(fresh);
      benchmark::DoNotOptimize(place);
    }
  }
  state.SetItemsProcessed(state.iterations() * manyTimes);
}
BENCHMARK(WriteOfAPlainNumber);

void WriteOfAProperty(benchmark::State& state) {
  Game game;
  Coordinate& place = game.form.shells(0).Left;
  for (auto _ : state) {
    for (int i = 0; i < manyTimes; ++i) {
      double fresh = i;
      benchmark::DoNotOptimize(fresh);
      place = fresh;
      benchmark::ClobberMemory();
    }
  }
  state.SetItemsProcessed(state.iterations() * manyTimes);
}
BENCHMARK(WriteOfAProperty);

void TickOfTheRadar(benchmark::State& state) {
  Game game;
  UserClicks(game.form.searchButton);
  for (auto _ : state) {
    if (!game.form.driftRightTimer.Enabled && !game.form.driftLeftTimer.Enabled) {
      state.PauseTiming();
      game.form.searchButton.Enabled = true;
      UserClicks(game.form.searchButton);
      state.ResumeTiming();
    }
    (game.form.driftRightTimer.Enabled ? game.form.driftRightTimer : game.form.driftLeftTimer).Tick.Raise();
  }
}
BENCHMARK(TickOfTheRadar);

void ChangeOfLaying(benchmark::State& state) {
  Game game;
  game.OpenProfile();
  game.Lay(80, 750);
  if (state.range(0) != 0) {
    for (int shell = 1; shell <= 5; ++shell) UserClicks(game.form.fireButton);
    game.form.shellTimer.Enabled = false;
  }
  std::int16_t elevation = 290;
  for (auto _ : state) {
    elevation = static_cast<std::int16_t>(581 - elevation);  // 80 degrees and 79 in turn
    game.form.elevationBar.Value = elevation;
  }
}
BENCHMARK(ChangeOfLaying)->ArgName("plotted")->Arg(0)->Arg(1);

void TickOfTheShell(benchmark::State& state) {
  Game game;
  game.OpenProfile();
  game.Lay(80, 750);
  UserDragsTo(game.form.flightTimeBar, 1);
  UserClicks(game.form.fireButton);
  for (auto _ : state) {
    if (!(game.form.flight.y > 5000 || game.form.flight.vy > 0)) {
      state.PauseTiming();
      game.form.shellInGun.Caption = "1";
      UserClicks(game.form.fireButton);
      state.ResumeTiming();
    }
    game.form.shellTimer.Tick.Raise();
  }
}
BENCHMARK(TickOfTheShell);

// A change of the elevation at 300 m/s: 1499 steps, every dot above the floor on the chart.
void ReplayOfTheSimulator(benchmark::State& state) {
  Game game;
  TrajectoryForm& form = game.OpenSimulator();
  std::int16_t elevation = 290;
  for (auto _ : state) {
    elevation = static_cast<std::int16_t>(581 - elevation);
    form.elevationBar.Value = elevation;
  }
}
BENCHMARK(ReplayOfTheSimulator);

// Each step of the slider flies the shell to its distance again.
void SliderOfTheSimulator(benchmark::State& state) {
  Game game;
  TrajectoryForm& form = game.OpenSimulator();
  std::int32_t position = 0;
  for (auto _ : state) {
    position = position == 100 ? 0 : position + 1;
    UserDragsTo(form.distanceSlider, position);
  }
}
BENCHMARK(SliderOfTheSimulator);

// Search, laying, so many flights and the Reset to the next game.
void PlayAGame(Game& game, int shells) {
  game.OpenProfile();
  for (int shell = 1; shell <= shells; ++shell) {
    game.Lay(static_cast<std::int16_t>(40 + 5 * shell), 600);
    game.Fire();
  }
  game.form.resetButton.Enabled = true;
  UserClicks(game.form.resetButton);
  game.Advance(1000);
}

void WholeGame(benchmark::State& state) {
  Game game;
  for (auto _ : state) PlayAGame(game, static_cast<int>(state.range(0)));
}
BENCHMARK(WholeGame)->ArgName("shells")->DenseRange(1, 6)->Unit(benchmark::kMillisecond);

void TenThousandGames(benchmark::State& state) {
  Game game;
  for (auto _ : state) {
    for (int i = 0; i < 100; ++i) PlayAGame(game, 6);
    const double before = ResidentMegabytes();
    for (int i = 100; i < 10'000; ++i) PlayAGame(game, 6);
    state.counters["megabytes_after_100"] = before;
    state.counters["megabytes_after_all"] = ResidentMegabytes();
  }
}
BENCHMARK(TenThousandGames)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace
}  // namespace quintara
