#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "factory/Station.h"
#include "host/SimulatedLoggers.h"
#include "lang/Lang.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "platform/PortFacts.h"

namespace ostrel::cli {

/// All that a command has of the world, so that it runs in a test as it does in a shell.
struct Environment {
  /// Asks the operator for one line, without echo when `echo` is false; nothing when it ends.
  using Ask = std::function<std::optional<std::string>(std::string_view prompt, bool echo)>;

  Platform platform;  ///< ports with the simulated loggers at their numbers; dialogs ask nobody
  SimulatedLoggers& simulated;
  PortInspector& inspector;  ///< of the machine's own ports
  std::ostream& out;
  std::ostream& err;
  bool errIsTerminal = false;
  bool outIsTerminal = false;
  Ask ask;  ///< empty when no operator sits at the terminal
  /// Reads an open descriptor to its end, or to the end of its first line, which it leaves out.
  std::function<FileResult(int descriptor, bool lineOnly, std::string& octets)> readDescriptor;
  std::int16_t lang =
      kSpanishColumn;       ///< column of the language table that the user's language asks for
  std::string code;         ///< access code of the environment; empty for none
  std::string dataFolder;   ///< the user's own; made when needed
  Station station{};        ///< of factory tests, where none is stored
  std::string shippedLang;  ///< the installed translation table
  /// Number of a device path; 0 when there is none to give.
  std::function<int(const std::string& path)> numberOfDevice;
  /// Opens a file for the trace of the line, in place of a former one; null when it may not be
  /// written, which `why` tells.
  OpenLogFile openTrace;
  /// The same for a recording of live values, and for one of the line.
  OpenLogFile openRecording{}, openLineRecording{};
  /// Opens a file to which the words of a console are added.
  OpenLogFile openLog;
  /// Gives the lines of standard input as they come, and then its end, for as long as the result
  /// lives; empty where there is no input.
  std::function<std::shared_ptr<void>(std::function<void(std::string line)> onLine,
                                      std::function<void()> onEnd)>
      watchInput;
  /// A text of this program in a language such as "es"; empty where there is English alone.
  std::function<std::string(std::string_view language, std::string_view text)> translate{};
  /// A document in HTML as the octets of a PDF file; empty when it cannot be made.
  std::function<std::string(const std::string& html)> makePdf{};
  /// What an interrupt does; set by a command for as long as it has a port open.
  std::function<void()> onInterrupt;
  /// Whether a signal has come that ends the program, served or not; empty where none can come.
  std::function<bool()> interrupted;
};

}  // namespace ostrel::cli
