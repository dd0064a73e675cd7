#include "cli/Ostrelctl.h"

#include <QGuiApplication>
#include <QLocale>
#include <algorithm>
#include <exception>
#include <iostream>
#include <memory>
#include <string_view>
#include <vector>

#include "host/Folders.h"
#include "host/GrowingFiles.h"
#include "host/Machine.h"
#include "host/PdfText.h"
#include "host/System.h"
#include "host/Translator.h"
#include "host/UsualStation.h"
#include "platform/Console.h"
#include "platform/RunningProgram.h"
#include "platform/SilentDialogs.h"
#include "platform/qt/InputLines.h"
#include "platform/qt/QtProcesses.h"

namespace {

using namespace ostrel;
using namespace ostrel::cli;

/// The column of the language table that stands for the locale: Spanish, or else English.
std::int16_t LangColumn() {
  return QLocale::system().language() == QLocale::Spanish ? kSpanishColumn : kEnglishColumn;
}

int Run(const std::vector<std::string>& args) {
  Machine machine;
  QtProcesses processes(ShowDocument);
  SilentDialogs nobody;
  Environment environment{
      .platform = machine.With(nobody, processes),
      .simulated = machine.AddSimulatedLoggers(),
      .inspector = machine.Inspector(),
      .out = std::cout,
      .err = std::cerr,
      .errIsTerminal = ErrIsTerminal(),
      .outIsTerminal = OutIsTerminal(),
      .ask = {},
      .readDescriptor = ReadDescriptor,
      .lang = LangColumn(),
      .code = qEnvironmentVariable("OSTREL_CODE").toStdString(),
      .dataFolder = UserDataFolder(),
      .station = UsualStation(),
      .shippedLang = LangIn(ShippedFolder()),
      .numberOfDevice = [&](const std::string& path) { return machine.NumberOfDevice(path); },
      .openTrace = OpenTrace,
      .openRecording = OpenRecording,
      .openLineRecording = OpenLineRecording,
      .openLog = OpenLog,
      .watchInput =
          [&](auto onLine, auto onEnd) {
            return WatchInputLines(machine.loop, {std::move(onLine), std::move(onEnd)});
          },
      .translate = MakeTranslator(),
      .makePdf = PdfOf,
      .onInterrupt = {},
      .interrupted = EndSignals::HasCome};
  if (HasOperator()) environment.ask = AskOnTerminal;
  EndSignals watch(machine.loop, [&] {
    if (environment.onInterrupt) return environment.onInterrupt();
    std::cerr << "ostrelctl: interrupted" << std::endl;
    std::_Exit(static_cast<int>(ExitCode::Interrupted));
  });
  return static_cast<int>(RunOstrelctl(args, environment));
}

/// Setting pages takes an application that can draw texts, which no other command has to start.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv) {
  const bool setsPages = std::any_of(
      argv, argv + argc, [](const char* word) { return std::string_view(word).ends_with(".pdf"); });
  if (!setsPages) return std::make_unique<QCoreApplication>(argc, argv);
  DrawWithoutDisplay();
  return std::make_unique<QGuiApplication>(argc, argv);
}

}  // namespace

int main(int argc, char** argv) {
  HoldStandardInput();
  const auto application = MakeApplication(argc, argv);
  try {
    PrepareConsole();
    return Run(ArgumentsOf(argc, argv));
  } catch (const std::exception& error) {
    std::cerr << "ostrelctl: " << error.what() << std::endl;
    return static_cast<int>(ExitCode::DialogueFailed);
  }
}
