#include <QCoreApplication>
#include <exception>
#include <iostream>
#include <memory>
#include <vector>

#include "base/Printable.h"
#include "host/SimulatedLoggers.h"
#include "host/System.h"
#include "platform/Console.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/ServedLine.h"
#include "recording/Replay.h"
#include "sim/fixture/FixtureText.h"
#include "simulator/SimOptions.h"

namespace {

using namespace ostrel;

int Fail(ExitCode code, const std::string& sentence) {
  std::cerr << "ostrel-sim: " << sentence << std::endl;
  return static_cast<int>(code);
}

/// Keeps a logger in a file, where there is one: from the start on, at each exchange that changes
/// it, and at the end. So it is kept whatever ends the program.
class StateFile {
 public:
  StateFile(sim::Logger& logger, const std::string& path) : logger_(logger), path_(path) {}

  FileResult Take() { return path_.empty() ? FileResult{} : TakeState(files_, logger_, path_); }
  /// Exit code of having written it; says why it could not be.
  int Keep() {
    if (path_.empty()) return 0;
    const FileResult saved = SaveWhole(files_, path_, logger_.SaveState());
    return saved.Ok() ? 0 : Fail(ExitCode::BadFile, "cannot write " + path_ + ": " + saved.error);
  }
  void KeepAfter(const sim::Exchange& exchange) {
    for (const std::string_view head : {"#41", "#46", "#47", "#48", "#5C"})
      if (exchange.request.starts_with(head)) Keep();
  }

 private:
  SystemFiles files_;
  sim::Logger& logger_;
  std::string path_;
};

/// Tells where the device is, and runs until a signal.
int Serve(QtEventLoop& loop, ServedLine& line, const SimOptions& options) {
  bool isOver = false;
  const EndSignals watch(loop, [&] { isOver = true; });
  const std::string wrong = options.link.empty() ? std::string() : line.FindAs(options.link);
  if (!wrong.empty())
    return Fail(ExitCode::BadFile, "cannot make the link " + options.link + ": " + wrong);
  std::cout << line.Path() << std::endl;
  loop.RunUntil([&] { return isOver; }, kNever);
  return 0;
}

int RunReplay(const SimOptions& options) {
  SystemFiles files;
  std::string text, error;
  if (const FileResult read = files.ReadInto(options.replay, text); !read.Ok())
    return Fail(ExitCode::BadFile, "cannot read " + options.replay + ": " + read.error);
  auto recording = ReadRecording(text, error);
  if (!recording) return Fail(ExitCode::BadFile, options.replay + ": " + error);
  QtEventLoop loop;
  const auto line = ServeDevice(
      loop,
      [&](LineEnd& end) {
        auto replay = std::make_unique<Replay>(loop, end, std::move(*recording));
        replay->OnRequest([&loop](const ReplayedRequest& request) {
          std::cout << ReplayLine(loop.Now(), request) << std::endl;
        });
        return replay;
      },
      options.isPaced);
  return Serve(loop, *line, options);
}

/// Exit code of having read the file of the fixture; says what is wrong with it.
int TakeFixture(SimOptions& options) {
  if (options.fixture.empty()) return 0;
  SystemFiles files;
  std::string text;
  if (const FileResult read = files.ReadInto(options.fixture, text); !read.Ok())
    return Fail(ExitCode::BadFile, "cannot read " + options.fixture + ": " + read.error);
  const std::string wrong = sim::ReadFixture(text, options.logger.model, options.logger.fixture);
  return wrong.empty() ? 0 : Fail(ExitCode::BadFile, options.fixture + ": " + Printable(wrong));
}

int RunLogger(SimOptions options) {
  if (const int taken = TakeFixture(options); taken != 0) return taken;
  QtEventLoop loop;
  options.logger.clockStart = QtClock().LocalNow();
  sim::Logger* logger = nullptr;
  const auto line = ServeDevice(
      loop,
      [&](LineEnd& end) {
        auto made = std::make_unique<sim::Logger>(loop, end, options.logger);
        logger = made.get();
        return made;
      },
      options.isPaced);
  if (!options.isEmpty) logger->SetConf(sim::DemoConfiguration(options.logger.model));
  StateFile state(*logger, options.stateFile);
  if (const FileResult taken = state.Take(); !taken.Ok())
    return Fail(ExitCode::BadFile, options.stateFile + ": " + taken.error);
  // Found out now and not when a long session is to be kept.
  if (const int kept = state.Keep(); kept != 0) return kept;
  logger->OnExchange([&](const sim::Exchange& exchange) {
    state.KeepAfter(exchange);
    std::cout << ExchangeLine(exchange) << std::endl;
  });
  const int served = Serve(loop, *line, options);
  return served != 0 ? served : state.Keep();
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  SimOptions options;
  ExitCode code = ExitCode::Done;
  PrepareConsole();
  const std::vector<std::string> args = ArgumentsOf(argc, argv);
  if (!ParseSimOptions(args, options, std::cout, std::cerr, code)) return static_cast<int>(code);
  try {
    return options.replay.empty() ? RunLogger(std::move(options)) : RunReplay(options);
  } catch (const std::exception& error) {
    return Fail(ExitCode::NoSession, error.what());
  }
}
