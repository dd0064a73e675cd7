// How long the window serves no event while the line is at work: transfers, a firmware update and
// live rounds with a simulated logger on a paced line of 9600 bit/s, on the same thread. A timer of
// 2 ms tells the gaps; now and then the window is moved and drawn anew. The counters give the
// longest gap of each work in milliseconds, the smallest and the greatest over its iterations. At
// most 50 ms are meant on a machine of two quiet cores; where others hold the machine up, the
// smallest one counts.

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <limits>
#include <stdexcept>

#include "desktop/Input.h"
#include "desktop/WindowWorld.h"
#include "platform/qt/QtEventLoop.h"
#include "tools/HexFiles.h"

namespace ostrel {
namespace {

using std::chrono::seconds;

void Need(bool done, const char* what) {
  if (!done) throw std::runtime_error(what);
}

/// A window in session with a logger on a paced line.
struct BusyWindow : WindowWorld<QtEventLoop> {
  BusyWindow(const std::string& target, sim::Model model) {
    StartBefore(target, "1");
    AddLogger(model);
    port.SetPaced(true);
    desktop = Make(&dialogs);
    desktop->Start("");
    desktop->Window().show();
    desktop->Window().GoTo("General");
    Session().IniCom_Click();
    loop.RunUntil([&] { return !Session().IniRequest; }, loop.Now() + seconds(20));
    Need(desktop->Core().Connected, "no session");
  }

  SessionFrame& Session() { return desktop->Core().general.Session(); }

  void Transfer(Button SessionFrame::*button, const char* success) {
    ModalScript modals;
    if (button == &SessionFrame::Escribir)
      modals.Expect([](QWidget* modal) { AgreeToWrite(modal, false); });
    (Session().*button).Click();
    loop.RunUntil([&] { return !Session().ReadRequest && !Session().WriteRequest; },
                  loop.Now() + seconds(60));
    Need(Session().ComStat.face.Key() == success, "the transfer did not come to its end");
  }

  VirtualDialogs dialogs;
  std::unique_ptr<Desktop> desktop;
};

/// Does the work once an iteration and tells the longest gaps.
void Measure(benchmark::State& state, BusyWindow& world, const std::function<void()>& work) {
  qint64 least = std::numeric_limits<qint64>::max(), greatest = 0;
  for ([[maybe_unused]] const auto _ : state) {
    QElapsedTimer since;
    qint64 longest = 0;
    int beats = 0;
    QTimer heart;
    heart.setTimerType(Qt::PreciseTimer);
    QObject::connect(&heart, &QTimer::timeout, &heart, [&] {
      longest = std::max(longest, since.restart());
      MainWindow& window = world.desktop->Window();
      if (beats++ % 20 == 0) window.move(beats % 100, 40);
      window.update();
    });
    since.start();
    heart.start(2);
    work();
    longest = std::max(longest, since.elapsed());  // what follows upon the end counts, too
    least = std::min(least, longest);
    greatest = std::max(greatest, longest);
  }
  state.counters["least_gap_ms"] = static_cast<double>(least);
  state.counters["greatest_gap_ms"] = static_cast<double>(greatest);
}

void GapsOfADownload(benchmark::State& state) {
  BusyWindow world("Tavro BQ", sim::Model::BQ);
  Measure(state, world,
          [&] { world.Transfer(&SessionFrame::Leer, "Configuracion descargada con exito"); });
}

void GapsOfAnUpload(benchmark::State& state) {
  BusyWindow world("Tavro BQ", sim::Model::BQ);
  world.Transfer(&SessionFrame::Leer, "Configuracion descargada con exito");
  Measure(state, world,
          [&] { world.Transfer(&SessionFrame::Escribir, "Configuracion escrita con exito"); });
}

void GapsOfAFirmwareUpdate(benchmark::State& state) {
  BusyWindow world("Tavro BQ", sim::Model::BQ);
  world.desktop->Window().GoTo("Firmware");
  const FirmwareFiles firmware{HexFile(200), ":"};
  Measure(state, world, [&] {
    Need(bool{world.desktop->Core().session.SendFirmware(firmware, [](FirmwareStage) {})},
         "the update failed");
  });
}

void GapsOfLiveRounds(benchmark::State& state) {
  BusyWindow world("Ostrel VR200", sim::Model::VR200);
  world.desktop->Window().GoTo("T_Real");
  Measure(state, world, [&] {
    int rounds = 0;
    const auto listener =
        world.desktop->Core().livePoll.OnRound([&rounds](const LiveRound&) { ++rounds; });
    world.loop.RunUntil([&] { return rounds > 2; }, world.loop.Now() + seconds(60));
    Need(rounds > 2, "no live rounds");
  });
}

BENCHMARK(GapsOfADownload)->Iterations(2)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(GapsOfAnUpload)->Iterations(2)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(GapsOfAFirmwareUpdate)->Iterations(2)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(GapsOfLiveRounds)->Iterations(3)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace ostrel
