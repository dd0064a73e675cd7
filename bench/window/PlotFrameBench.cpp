// Frames of the plot as the operator pans through a day: six numbers and eight states, read twice a
// second, on 1200 x 600 pixels. A frame that takes at most 16.7 ms makes 60 of them a second. While
// the line is polled, a simulated logger on a paced line of 9600 bit/s is read on the same thread
// with no pause between two rounds; an iteration lasts three of them.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cmath>

#include "desktop/plot/PlotChart.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/virtual/LinePort.h"
#include "platform/virtual/VirtualClock.h"
#include "platform/virtual/VirtualDialogs.h"
#include "platform/virtual/VirtualFiles.h"
#include "platform/virtual/VirtualProcesses.h"
#include "platform/virtual/VirtualSettings.h"
#include "shell/Configurator.h"
#include "sim/Logger.h"

namespace ostrel {
namespace {

constexpr int kNumbers = 6, kStates = 8;
constexpr int kRoundsADay = 2 * 86'400;
constexpr std::int16_t kPort = 7;
constexpr std::chrono::milliseconds kTick{16};  // a little more often than 60 Hz
constexpr std::chrono::seconds kLongest{20};    // for a few live rounds

struct Day {
  Day() {
    constexpr LiveRead kCame{.hasCome = true, .missed = 0, .at = {}};
    LiveRound round;
    for (int i = 0; i < kStates; ++i)
      round.values.push_back({{LiveKind::Digital, i}, "", "", {}, true, kCame});
    for (int i = 0; i < kNumbers; ++i)
      round.values.push_back({{LiveKind::Flow, i}, "", i % 2 ? "bar" : "m3/h", 0., {}, kCame});
    for (int number = 0; number < kRoundsADay; ++number) {
      round.at.local = std::chrono::milliseconds(500) * number;
      for (LiveValue& value : round.values)
        if (IsState(value.id.kind))
          value.on = number / (40 + value.id.index * 13) % 2 == 0;
        else
          value.number =
              std::sin(number / 9000.0 + value.id.index) * 10 + number * 7919 % 100 / 40.0;
      history.Add(round);
    }
  }
  LiveHistory history;
};

/// The chart of a day, of which the argument tells the part in view, in thousandths.
struct DayChart : QObject {
  explicit DayChart(benchmark::State& state) {
    chart.resize(1200, 600);
    std::vector<LiveId> ids;
    for (const LiveSeries& series : day.history.Series()) ids.push_back(series.id);
    chart.Choose(ids);
    chart.ShowAll();
    chart.ZoomTime(static_cast<double>(state.range(0)) / 1000);
    chart.show();
    QApplication::processEvents();
    chart.installEventFilter(this);
  }
  /// Pans to and fro.
  void Pan() {
    constexpr double kPan = 0.005;
    chart.PanTime(pans++ / 40 % 2 == 0 ? -kPan : kPan);
  }
  /// Pans, and serves events until what is in view now is on the screen. It is drawn once, by the
  /// chart's own order.
  void Frame() {
    const int before = paints;
    Pan();
    while (paints == before) QApplication::processEvents();
  }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    const auto now = std::chrono::steady_clock::now();
    if (paints++ > 0) worst = std::max<Milliseconds>(worst, now - painted);
    painted = now;
    return false;
  }
  using Milliseconds = std::chrono::duration<double, std::milli>;
  inline static Day day;
  PlotChart chart{day.history, nullptr};
  int pans = 0, paints = 0;
  std::chrono::steady_clock::time_point painted;  ///< when the last frame was
  Milliseconds worst{};                           ///< longest time between two frames
};

void PanADay(benchmark::State& state) {
  DayChart chart(state);
  for ([[maybe_unused]] const auto _ : state) chart.Frame();
}
BENCHMARK(PanADay)->Arg(1000)->Arg(500)->Arg(10)->Unit(benchmark::kMillisecond);

/// A configurator in session with a simulated logger, on real time.
struct PolledLogger {
  PolledLogger() {
    const sim::LoggerOptions options = sim::MakeDefaultOptions(sim::Model::BP);
    port.AddDevice(kPort, "sim", "",
                   [&](LineEnd& end) { return std::make_unique<sim::Logger>(loop, end, options); });
    port.SetPaced(true);
    program.StartForCommand("Tavro BP", 1);
    program.session.Open(kPort, "");
    rounds = program.livePoll.OnRound([this](const LiveRound&) { ++count; });
    going = program.livePoll.KeepGoing();
  }
  QtEventLoop loop;
  LinePort port{loop};
  VirtualSettings settings;
  VirtualDialogs dialogs;
  VirtualFiles files;
  VirtualProcesses processes;
  VirtualClock clock;
  Configurator program{{loop, port, settings, dialogs, files, processes, clock},
                       {.programFolder = "", .langFile = "/Lang.txt"}};
  LivePoll::RoundFeed::Subscription rounds;
  std::shared_ptr<const void> going;
  int count = 0;
};

/// Pans at each tick of a display of 60 Hz for the time of three live rounds an iteration, and
/// tells how many frames a second were drawn and the longest time between two.
void PanADayWhileTheLineIsPolled(benchmark::State& state) {
  PolledLogger logger;
  DayChart chart(state);
  QTimer display;
  display.setTimerType(Qt::PreciseTimer);
  QObject::connect(&display, &QTimer::timeout, &chart, [&] { chart.Pan(); });
  display.start(kTick);
  const auto roundsCome = [&](int rounds) {
    const int last = logger.count + rounds;
    return logger.loop.RunUntil([&] { return logger.count >= last; }, logger.loop.Now() + kLongest);
  };
  if (!roundsCome(1)) return state.SkipWithError("no live rounds");
  const int first = logger.count;
  chart.paints = 0;
  chart.worst = {};
  for ([[maybe_unused]] const auto _ : state)
    if (!roundsCome(3)) return state.SkipWithError("no live rounds");
  using benchmark::Counter;
  state.counters["frames_a_second"] = Counter(chart.paints, Counter::kIsRate);
  state.counters["rounds_a_second"] = Counter(logger.count - first, Counter::kIsRate);
  state.counters["worst_ms"] = chart.worst.count();
}
BENCHMARK(PanADayWhileTheLineIsPolled)
    ->Arg(1000)
    ->MinTime(5)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ostrel

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
