#pragma once

#include <gmock/gmock.h>

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <functional>
#include <initializer_list>
#include <regex>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "FakeInspector.h"
#include "cli/Ostrelctl.h"
#include "host/SimulatedLoggers.h"
#include "platform/SilentDialogs.h"
#include "platform/virtual/VirtualWorld.h"

namespace ostrel::cli {

/// A text in which something matches a regular expression, in full syntax on every system.
MATCHER_P(HasShape, shape, "") { return std::regex_search(arg, std::regex(shape)); }

/// Makes options of the simulated loggers with a change.
inline SimulatedLoggers::MakeOptions With(std::function<void(sim::LoggerOptions&)> change) {
  return [change = std::move(change)](sim::Model model) {
    sim::LoggerOptions options = sim::MakeDefaultOptions(model);
    change(options);
    return options;
  };
}
/// With these faults.
inline SimulatedLoggers::MakeOptions WithFaults(std::vector<std::string> faults) {
  return With([faults = std::move(faults)](sim::LoggerOptions& options) {
    std::string error;
    for (const std::string& text : faults)
      options.faults.push_back(sim::ParseFault(text, error).value());
  });
}

/// A shell in memory: the command line on virtual time with six simulated loggers and its own
/// files. Loggers and files live on from one command to the next.
struct World : VirtualWorld {
  explicit World(const SimulatedLoggers::MakeOptions& makeOptions = sim::MakeDefaultOptions)
      : simulated(loop, clock, makeOptions) {}

  SimulatedLoggers simulated;
  std::ostringstream outStream, errStream;
  SilentDialogs nobody;
  FakeInspector inspector;
  Environment environment{.platform = {.loop = loop,
                                       .port = simulated.Port(),
                                       .settings = settings,
                                       .dialogs = nobody,
                                       .files = files,
                                       .processes = processes,
                                       .clock = clock,
                                       .ledger = &ledger},
                          .simulated = simulated,
                          .inspector = inspector,
                          .out = outStream,
                          .err = errStream,
                          .errIsTerminal = false,
                          .outIsTerminal = false,
                          .ask = {},
                          .readDescriptor = {},
                          .code = {},
                          .dataFolder = "/home/user/data",
                          .shippedLang = "/share/Lang.txt",
                          .numberOfDevice = [](const std::string&) { return 0; },
                          .openTrace = {},
                          .openLog = {},
                          .watchInput = {},
                          .onInterrupt = {},
                          .interrupted = {}};

  std::string out, err;  ///< of the last command

  /// Runs a command line whose words are separated by blanks; gives the exit code.
  int Run(const std::string& line) {
    std::vector<std::string> args;
    std::istringstream words(line);
    for (std::string word; words >> word;) args.push_back(word);
    outStream.str("");
    errStream.str("");
    const ExitCode code = RunOstrelctl(args, environment);
    out = outStream.str();
    err = errStream.str();
    return static_cast<int>(code);
  }
  /// Runs a command line, which ends with a code and says something, as a result or a message.
  void Expect(const std::string& line, int code, const std::string& says) {
    EXPECT_EQ(Run(line), code) << line << '\n' << err;
    EXPECT_THAT(out + err, testing::HasSubstr(says)) << line;
  }
  /// What the last command wrote as JSON; a null document when that is none.
  QJsonDocument Json() const { return QJsonDocument::fromJson(QByteArray::fromStdString(out)); }

  sim::Logger& Logger(sim::Model model = sim::Model::VR200) { return simulated.LoggerOf(model); }
  /// Changes what the logger holds.
  void Alter(const std::function<void(sim::Configuration&)>& change) {
    sim::Configuration conf = Logger().Conf();
    change(conf);
    Logger().SetConf(conf);
  }
  /// Does something at each request to the logger that starts in some way.
  void Upon(std::string head, std::function<void()> act) {
    Logger().OnExchange([head, act](const sim::Exchange& exchange) {
      if (exchange.request.starts_with(head)) act();
    });
  }

  /// Puts a file there that holds what a simulated logger holds.
  void HaveFile(const std::string& path, const std::string& model = "VR200") {
    ASSERT_EQ(Run("download " + path + " --port sim:" + model), 0) << err;
  }
  /// Replaces the first occurrence of a text in a file.
  void Edit(const std::string& path, std::string_view from, std::string_view to) {
    std::string& text = files.contents.at(path);
    const std::size_t at = text.find(from);
    ASSERT_NE(at, std::string::npos) << from << " stands nowhere in\n" << text;
    text.replace(at, from.size(), to);
  }
  /// Sets a key of a section, which must be there.
  void SetKey(const std::string& path, const std::string& section, const std::string& key,
              const std::string& value) {
    std::string& text = files.contents.at(path);
    const std::size_t head = text.find("[" + section + "]\r\n");
    ASSERT_NE(head, std::string::npos) << section;
    const std::size_t at = text.find("\r\n" + key + "=", head);
    ASSERT_LT(at, text.find("\r\n[", head)) << section << " has no " << key;
    const std::size_t start = at + 2 + key.size() + 1;
    text.replace(start, text.find("\r\n", start) - start, value);
  }
  std::size_t Backups() const {
    std::size_t count = 0;
    for (const auto& [path, octets] : files.contents)
      count += path.starts_with("/home/user/data/backups/") && path.ends_with(".ocf") ? 1U : 0U;
    return count;
  }
};

/// Beside a file that holds what the simulated VR200 holds.
struct FileWorld : World {
  explicit FileWorld(const SimulatedLoggers::MakeOptions& makeOptions = sim::MakeDefaultOptions)
      : World(makeOptions) {
    HaveFile("/a.ocf");
  }
};

}  // namespace ostrel::cli
