// What the windows cost: the start to the first paint beside that of an empty window, a whole repaint beside
// the painting of one picture, the frames of a flight in real time, and an hour of play.
//
// It runs on the display that it is started on, or on a screen in memory where there is none.

#include <benchmark/benchmark.h>

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtGui/QWindow>
#include <QtWidgets/QLabel>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <random>
#include <string_view>
#include <utility>
#include <vector>

#include "desktop/application.h"
#include "desktop/form_window.h"
#include "desktop/session.h"
#include "desktop/strip.h"
#include "desktop/units.h"
#include "front/companion.h"
#include "front/tour_platform.h"
#include "program/program.h"
#include "scene/input.h"
#include "tests/support/resident_memory.h"

namespace quintara::desktop {
namespace {

// What is not on the screen is not painted either.
void WaitUntilOnScreen(const QWidget& window) {
  while (!window.windowHandle()->isExposed()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

constexpr int formWidth = 1015, formHeight = 713;

// What stands around the forms: nothing, the strip, or the strip with the trace switched on.
enum class Around { Nothing, Strip, Trace };

struct Game {
  TourPlatform platform{PROJECT_FOLDER "/data"};
  Program program{platform};
  Companion companion{program};
  Session session{program.scene(), AssistanceTable(program)};
  QuintaraForm& form = program.quintara();

  explicit Game(Around around = Around::Strip) {
    platform.Attach(&session);
    if (around != Around::Nothing) SeatStrip(session, program, companion);
    Settings settings;
    settings.trace = around == Around::Trace;
    session.Choose(settings);
    session.Run([this] { program.Start(); });
  }
  ~Game() { platform.Attach(nullptr); }

  void Click(Object& object) {
    session.Run([&] { UserClicks(object); });
  }
  void Advance(std::int64_t milliseconds) {
    session.Run([&] { program.scene().dispatcher().Advance(milliseconds); });
    QCoreApplication::processEvents();
    // Windows that were closed; only a loop of the application's own does away with them by itself.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  void OpenProfile() {
    program.scene().chance().Queue(0.06325);  // a target at 22 km
    Click(form.searchButton);
    while (!form.magnifyButton.Enabled) Advance(50);
    Click(form.magnifyButton);
  }
  void Lay(std::int16_t elevationBar, std::int16_t velocity) {
    session.Run([&] { UserDragsTo(form.elevationBar, elevationBar); });
    session.Run([&] { UserDragsTo(form.velocityBar, velocity); });
  }
};

// Ends the process as soon as its first window has been painted, and tells the one that waits for that.
class EndOfFirstPaint final : public QObject {
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      QTimer::singleShot(0, [] {
        std::fputs("painted\n", stdout);
        std::fflush(stdout);
        std::_Exit(0);
      });
    }
    return false;
  }
};

int PaintOnce(std::string_view what, int argumentCount, char** arguments) {
  EndOfFirstPaint end;
  if (what != "game") {
    QApplication application(argumentCount, arguments);
    application.installEventFilter(&end);
    QLabel window(what == "text" ? "Text takes fonts, which have to be found first." : "");
    window.setFixedSize(formWidth, formHeight);
    window.show();
    return QApplication::exec();
  }
  Application application(argumentCount, arguments);
  application.installEventFilter(&end);
  const Game game;
  return QApplication::exec();
}

void FirstPaint(benchmark::State& state, const char* what) {
  std::vector<double> seconds;
  for (auto _ : state) {
    QElapsedTimer time;
    time.start();
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {"--paint-once", what});
    const bool painted = process.waitForReadyRead(10'000);
    seconds.push_back(static_cast<double>(time.nsecsElapsed()) / 1e9);
    state.SetIterationTime(seconds.back());
    process.waitForFinished();
    if (!painted) {
      state.SkipWithError("nothing was painted");
      break;
    }
  }
  std::sort(seconds.begin(), seconds.end());
  state.counters["median_ms"] = seconds[seconds.size() / 2] * 1000;
}
BENCHMARK_CAPTURE(FirstPaint, empty, "empty")->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FirstPaint, text, "text")->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FirstPaint, game, "game")->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);

// One picture of the size of the window: the least that a painted window can cost.
void RepaintOfOnePicture(benchmark::State& state) {
  struct PictureWindow final : QWidget {
    QPixmap picture{formWidth, formHeight};
    void paintEvent(QPaintEvent*) override { QPainter(this).drawPixmap(0, 0, picture); }
  } window;
  window.setAttribute(Qt::WA_OpaquePaintEvent);
  window.picture.fill(Qt::darkGreen);
  window.setFixedSize(formWidth, formHeight);
  window.show();
  WaitUntilOnScreen(window);
  for (auto _ : state) window.repaint();
}
BENCHMARK(RepaintOfOnePicture)->Unit(benchmark::kMicrosecond);

void WholeRepaint(benchmark::State& state) {
  Game game;
  if (state.range(0) != 0) game.OpenProfile();
  FormWindow& window = *game.session.WindowOf(game.form);
  WaitUntilOnScreen(window);
  const auto all = window.findChildren<QWidget*>();
  for (auto _ : state) {
    for (QWidget* widget : all) widget->update();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(WholeRepaint)->ArgName("profile")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

double ProcessorSeconds() {
  timespec used{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
  return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) / 1e9;
}

// Flights in real time: how long the program works in a turn of its event loop in which the shell moves.
void FramesOfAFlight(benchmark::State& state) {
  Game game(static_cast<Around>(state.range(0)));
  WaitUntilOnScreen(*game.session.WindowOf(game.form));
  game.OpenProfile();
  game.Lay(300, 700);
  QCoreApplication::processEvents();
  std::vector<double> milliseconds;
  QElapsedTimer turn, all;
  double place = 0, processor = 0, seconds = 0;
  QObject guard;
  const auto* dispatcher = QAbstractEventDispatcher::instance();
  QObject::connect(dispatcher, &QAbstractEventDispatcher::awake, &guard, [&] { turn.start(); });
  QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, &guard, [&] {
    if (std::exchange(place, game.form.shells(0).Left) != game.form.shells(0).Left)
      milliseconds.push_back(static_cast<double>(turn.nsecsElapsed()) / 1e6);
  });
  for (auto _ : state) {
    game.Click(game.form.fireButton);
    all.start();
    processor -= ProcessorSeconds();
    while (game.form.shellTimer.Enabled && all.elapsed() < 20'000)
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    processor += ProcessorSeconds();
    seconds += static_cast<double>(all.nsecsElapsed()) / 1e9;
    game.Click(game.form.resetButton);
  }
  std::sort(milliseconds.begin(), milliseconds.end());
  state.counters["frames"] = static_cast<double>(milliseconds.size());
  state.counters["median_ms"] = milliseconds[milliseconds.size() / 2];
  state.counters["p99_ms"] = milliseconds[milliseconds.size() * 99 / 100];
  state.counters["processor_percent"] = processor / seconds * 100;
}
BENCHMARK(FramesOfAFlight)->ArgName("around")->DenseRange(0, 2)->Iterations(3)->Unit(benchmark::kSecond);

// The work of one tick of a slow flight and what it makes the windows paint, whatever else the machine does.
void TickOfAFlight(benchmark::State& state) {
  Game game(static_cast<Around>(state.range(0)));
  game.session.SetZoom(Zoom(static_cast<double>(state.range(1))));
  WaitUntilOnScreen(*game.session.WindowOf(game.form));
  game.OpenProfile();
  game.Lay(300, 700);
  constexpr std::int16_t slowest = 1;
  game.session.Run([&] { UserDragsTo(game.form.flightTimeBar, slowest); });
  game.Click(game.form.fireButton);
  QCoreApplication::processEvents();
  for (auto _ : state) game.Advance(17);
  if (!game.form.shellTimer.Enabled) state.SkipWithError("the flight was over too early");
}
BENCHMARK(TickOfAFlight)
    ->ArgNames({"around", "zoom"})
    ->ArgsProduct({{0, 1, 2}, {1, 2}})
    ->Iterations(2000)
    ->Unit(benchmark::kMicrosecond);

// Someone plays game after game and now and then reads a document or watches a demonstration.
void PlayASecond(Game& game, std::mt19937& random) {
  const auto any = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
  QuintaraForm& form = game.form;
  for (Object* button : {static_cast<Object*>(&form.searchButton), static_cast<Object*>(&form.magnifyButton),
                         static_cast<Object*>(&form.resetButton)})
    game.Click(*button);
  if (form.fireButton.Enabled && !form.shellTimer.Enabled) {
    game.Lay(static_cast<std::int16_t>(290 + any(70)), static_cast<std::int16_t>(250 + any(500)));
    game.Click(form.fireButton);
  }
  if (any(20) == 0) {
    Menu* const documents[] = {&form.scenarioItem, &form.rulesItem, &form.physicsItem, &form.mastersItem};
    game.platform.Choose(*documents[any(4)]);
    game.Click(form.helpButton);
    game.Click(game.program.analysis().simulatorButton);
    game.Click(game.program.analysis().benchButton);
    game.Click(game.program.trajectory().fireButton);
    game.Click(game.program.projectile().ball3Button);
  }
  if (any(20) == 0) game.Click(game.program.analysis().cancelButton);
  if (any(20) == 0) game.Click(game.program.masters().cancelButton);
  for (int frame = 0; frame < 20; ++frame) game.Advance(50);
}

void HourOfPlay(benchmark::State& state) {
  std::mt19937 random{1};
  for (auto _ : state) {
    Game game;
    // The session lets the game's clock follow real time. It never has to where that clock is far ahead.
    constexpr std::int64_t day = 86'400'000;
    game.program.scene().dispatcher().AdvanceTo(day);
    state.counters["megabytes_at_start"] = ResidentMegabytes();
    for (int second = 0; second < 3600; ++second) PlayASecond(game, random);
    state.counters["megabytes_at_end"] = ResidentMegabytes();
  }
}
BENCHMARK(HourOfPlay)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace
}  // namespace quintara::desktop

int main(int argumentCount, char** arguments) {
  using namespace quintara::desktop;
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  if (argumentCount == 3 && std::string_view(arguments[1]) == "--paint-once")
    return PaintOnce(arguments[2], argumentCount, arguments);
  // Qt's own event loop tells when it wakes and when it blocks.
  qputenv("QT_NO_GLIB", "1");
  benchmark::Initialize(&argumentCount, arguments);
  Application application(argumentCount, arguments);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
