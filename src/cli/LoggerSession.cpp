#include "cli/LoggerSession.h"

#include <utility>

#include "cli/FaultText.h"
#include "cli/TransferLine.h"
#include "host/SimulatedLoggers.h"

namespace ostrel::cli {

LoggerSession::LoggerSession(CommandContext& context, Configurator& configurator, PortChoice port)
    : context_(context), configurator_(configurator), port_(std::move(port)) {
  context_.environment.onInterrupt = [this] {
    interrupted_ = true;
    configurator_.session.BreakOff();
  };
  configurator_.session.OnModelDoubt = [this](const Phrase& doubt) {
    context_.console.Note("warning: " + Filled(doubt));
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
  if (trace_) {
    configurator_.comms.TracesPasswords = context_.options.secrets;
    configurator_.comms.Trace = [this](const std::string& line) { *trace_ << line << std::endl; };
  }
}

ExitCode LoggerSession::Open() {
  StartTrace();
  if (traceFailed_)
    return context_.console.Fail(ExitCode::BadFile, "cannot write " + context_.options.trace);
  if (!port_.simulatedModel.empty() && !context_.options.simState.empty() &&
      !context_.environment.simulated.UseStateFile(context_.platform.files, port_.simulatedModel,
                                                   context_.options.simState))
    return context_.console.Fail(ExitCode::BadFile,
                                 context_.options.simState + " holds no simulated logger");
  if (!configurator_.session.Open(port_.number, context_.options.phone))
    return Fault(interrupted_ ? ExitCode::DialogueFailed : ExitCode::NoSession,
                 *configurator_.session.State().failed);
  // What is sent depends on what the firmware can do: without knowing it nothing may start.
  const bool isKnown = configurator_.session.CompleteInfo();
  if (interrupted_) return Failed({});
  if (isKnown) return ExitCode::Done;
  return context_.console.Fail(ExitCode::DialogueFailed,
                               "the logger did not tell who it is: lines were lost or arrived "
                               "damaged. Check cable and earthing");
}

ExitCode LoggerSession::Run(const std::function<LinkResult()>& dialogue) {
  const LinkResult result = dialogue();
  return result && !interrupted_ ? ExitCode::Done : Failed(result);
}

ExitCode LoggerSession::Failed(const LinkResult& result) {
  SessionFault fault = configurator_.session.FaultDuring(SessionPhase::Open);
  fault.link = result.Fault();
  return Fault(ExitCode::DialogueFailed, fault);
}

bool LoggerSession::Move(std::string_view label, bool (SessionDriver::*transfer)()) {
  const TransferLine shown(context_.console, configurator_.session.Watch(), label,
                           context_.environment.errIsTerminal);
  return (configurator_.session.*transfer)();
}

ExitCode LoggerSession::Download() {
  configurator_.conf = DeviceConf{};
  const bool done = Move("download", &SessionDriver::Download);
  if (done && !interrupted_) return ExitCode::Done;
  return Fault(ExitCode::DialogueFailed, configurator_.session.FaultDuring(SessionPhase::Reading));
}

ExitCode LoggerSession::Upload() {
  written_ = Move("upload", &SessionDriver::Upload);
  if (written_) return ExitCode::Done;
  return Fault(ExitCode::DialogueFailed, *configurator_.session.State().failed);
}

ExitCode LoggerSession::Fault(ExitCode code, const SessionFault& fault) {
  FaultWords words = WordsOf(fault, port_.name);
  if (fault.code == CodeAnswer::NotGiven) words.remedy = {"--code gives one"};
  if (written_)
    words.outcome = {"the logger has taken the new configuration over, which is not verified"};
  return context_.console.Fail(code, FaultText(words));
}

}  // namespace ostrel::cli
