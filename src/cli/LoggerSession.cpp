#include "cli/LoggerSession.h"

#include <utility>

#include "host/SimulatedLoggers.h"
#include "shell/RecordCounts.h"

namespace ostrel::cli {

LoggerSession::LoggerSession(CommandContext& context, Configurator& configurator, PortChoice port)
    : context_(context), configurator_(configurator), port_(std::move(port)) {
  context_.environment.onInterrupt = [this] {
    interrupted_ = true;
    configurator_.comms.Abort();
  };
}

LoggerSession::~LoggerSession() {
  Close();
  context_.environment.onInterrupt = nullptr;
  configurator_.comms.Trace = nullptr;
  if (trace_ && !trace_->flush()) context_.traceLost = true;
}

void LoggerSession::Close() {
  if (configurator_.comms.PortOpen()) configurator_.session.Close(!context_.options.phone.empty());
}

void LoggerSession::StartTrace() {
  if (context_.options.trace.empty()) return;
  trace_ = context_.environment.openLog(context_.options.trace);
  traceFailed_ = trace_ == nullptr;
  if (trace_)
    configurator_.comms.Trace = [this](const std::string& line) { *trace_ << line << std::endl; };
}

ExitCode LoggerSession::Open() {
  StartTrace();
  if (traceFailed_)
    return context_.console.Fail(ExitCode::BadFile, "cannot write " + context_.options.trace);
  if (!port_.simulatedModel.empty() && !context_.options.simState.empty() &&
      !context_.environment.simulated.UseStateFile(context_.environment.files, port_.simulatedModel,
                                                   context_.options.simState))
    return context_.console.Fail(ExitCode::BadFile,
                                 context_.options.simState + " holds no simulated logger");
  if (!configurator_.session.Open(port_.number, context_.options.phone)) return OpenFault();
  if (interrupted_) return Failed();
  // What is sent depends on what the firmware can do: without knowing it nothing may start.
  const bool isKnown = configurator_.session.CompleteInfo();
  if (interrupted_) return Failed();
  if (isKnown) return ExitCode::Done;
  return context_.console.Fail(ExitCode::DialogueFailed,
                               "the logger did not tell who it is: lines were lost or arrived "
                               "damaged. Check cable and earthing");
}

ExitCode LoggerSession::OpenFault() {
  Console& console = context_.console;
  if (interrupted_)
    return console.Fail(ExitCode::DialogueFailed,
                        "interrupted before a session stood: the logger is unchanged");
  std::string sentence = FaultText(configurator_.comms.Fault(), port_.name, Transfer::None);
  if (configurator_.comms.Fault().kind == LinkFault::Kind::NoHandshake &&
      context_.dialogs.CodesAsked() > 0)
    sentence = context_.dialogs.CodesGiven() > 0
                   ? "the logger did not accept the access code"
                   : "the logger wants an access code: --code gives one";
  return console.Fail(ExitCode::NoSession, sentence);
}

ExitCode LoggerSession::Run(const std::function<bool()>& dialogue) {
  return dialogue() && !interrupted_ ? ExitCode::Done : Failed();
}

bool LoggerSession::Move(std::string_view label, int steps, bool (SessionDriver::*transfer)(),
                         int& farthest) {
  Progress progress(context_.console, context_.environment.loop, configurator_.comms, label, steps,
                    context_.environment.errIsTerminal);
  const bool done = (configurator_.session.*transfer)();
  farthest = progress.Farthest();
  return done;
}

ExitCode LoggerSession::Download() {
  configurator_.conf = DeviceConf{};
  int farthest = 0;
  RecordCounts records(context_.environment.settings);
  const std::string& type = configurator_.profile.TargetType;
  const bool done = Move("download", records.Expected(type), &SessionDriver::Download, farthest);
  if (done) records.Keep(type, farthest);
  return done && !interrupted_ ? ExitCode::Done : Fault(Transfer::Download);
}

ExitCode LoggerSession::Upload() {
  const auto statements = static_cast<int>(configurator_.comms.ComposeStatements().size());
  int farthest = 0;
  written_ = Move("upload", statements, &SessionDriver::Upload, farthest);
  if (written_) return ExitCode::Done;
  return Fault(Transfer::Upload, farthest >= statements);
}

ExitCode LoggerSession::Fault(Transfer transfer, bool mayHaveClosed) {
  std::string sentence =
      interrupted_ ? "interrupted" : FaultText(configurator_.comms.Fault(), port_.name, transfer);
  if (transfer == Transfer::Upload)
    sentence += mayHaveClosed
                    ? "; whether the logger has taken the configuration over is not known: read "
                      "it back"
                    : "; the logger's former configuration stays in force";
  else if (written_)
    sentence += "; the logger has taken the new configuration over, which is not verified";
  else if (transfer == Transfer::Download || interrupted_)
    sentence += "; the logger's configuration is unchanged";
  return context_.console.Fail(ExitCode::DialogueFailed, sentence);
}

}  // namespace ostrel::cli
