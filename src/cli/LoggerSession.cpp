#include "cli/LoggerSession.h"

#include <utility>

#include "cli/FaultText.h"
#include "cli/TransferLine.h"
#include "host/SimulatedLoggers.h"
#include "shell/writing/WriteDoubts.h"

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

ExitCode LoggerSession::StartTrace() {
  const std::string& path = context_.options.trace;
  if (path.empty()) return ExitCode::Done;
  std::string why;
  trace_ = context_.environment.openTrace(path, why);
  if (!trace_)
    return context_.console.Fail(ExitCode::BadFile,
                                 "cannot write the trace to " + path + ": " + why);
  configurator_.comms.TracesPasswords = context_.options.secrets;
  configurator_.comms.Trace = [this](const std::string& line) { *trace_ << line << std::endl; };
  return ExitCode::Done;
}

ExitCode LoggerSession::TakeSimulatedState() {
  const std::string& path = context_.options.simState;
  if (port_.simulatedModel.empty() || path.empty()) return ExitCode::Done;
  const FileResult taken = context_.environment.simulated.UseStateFile(context_.platform.files,
                                                                       port_.simulatedModel, path);
  if (taken.Ok()) return ExitCode::Done;
  return context_.console.Fail(ExitCode::BadFile,
                               path + " holds no simulated logger: " + taken.error);
}

ExitCode LoggerSession::Open(OpenTo wanted) {
  if (const ExitCode traced = StartTrace(); traced != ExitCode::Done) return traced;
  if (const ExitCode taken = TakeSimulatedState(); taken != ExitCode::Done) return taken;
  if (!configurator_.session.Open(port_.number, context_.options.phone, wanted))
    return Fault(interrupted_ ? ExitCode::DialogueFailed : ExitCode::NoSession,
                 *configurator_.session.State().failed);
  // What is sent depends on what the firmware can do: without knowing it nothing may start.
  const bool isKnown = wanted == OpenTo::AnyThatGreets || configurator_.session.CompleteInfo();
  if (interrupted_) return Failed({});
  if (isKnown) return ExitCode::Done;
  const LinkFault& told = configurator_.comms.InfoFault();
  if (!told.IsDamage() && told.kind != LinkFault::Kind::Silence) return Failed(told);
  const std::string doubt = Filled(*DoubtOfInformation(configurator_));
  return context_.console.Fail(ExitCode::DialogueFailed,
                               doubt + (told.IsDamage() ? ". Check cable and earthing"
                                                        : ", which \"ostrelctl firmware\" sends"));
}

ExitCode LoggerSession::Run(const std::function<LinkResult()>& dialogue) {
  const LinkResult result = dialogue();
  return result && !interrupted_ ? ExitCode::Done : Failed(result);
}

ExitCode LoggerSession::WriteVoiceList(const ConfAutVoz& list) {
  const LinkResult result = configurator_.session.WriteVoiceList(list);
  if (result && !interrupted_) return ExitCode::Done;
  SessionFault fault = FaultOf(result);
  fault.writingVoiceList = !result;
  return Fault(ExitCode::DialogueFailed, fault);
}

ExitCode LoggerSession::SendFirmware(const FirmwareFiles& files,
                                     const FirmwareDialogue::OnStage& onStage) {
  if (configurator_.session.SendFirmware(files, onStage)) return ExitCode::Done;
  return Fault(ExitCode::DialogueFailed, *configurator_.session.State().failed);
}

SessionFault LoggerSession::FaultOf(const LinkResult& result) const {
  SessionFault fault = configurator_.session.FaultDuring(SessionPhase::Open);
  fault.link = result.Fault();
  return fault;
}

ExitCode LoggerSession::Failed(const LinkResult& result) {
  return Fault(ExitCode::DialogueFailed, FaultOf(result));
}

bool LoggerSession::Move(std::string_view label, bool (SessionDriver::*transfer)()) {
  const TransferLine shown(context_.console, configurator_.session.Watch(), label,
                           context_.environment.errIsTerminal);
  return (configurator_.session.*transfer)();
}

ExitCode LoggerSession::Download() {
  *configurator_.received = DeviceConf{};
  const bool done = Move("download", &SessionDriver::Download);
  if (done && !interrupted_) return ExitCode::Done;
  return Fault(ExitCode::DialogueFailed, configurator_.session.FaultDuring(SessionPhase::Reading));
}

ExitCode LoggerSession::Upload() {
  if (Move("upload", &SessionDriver::Upload)) return ExitCode::Done;
  return Fault(ExitCode::DialogueFailed, *configurator_.session.State().failed);
}

ExitCode LoggerSession::Fault(ExitCode code, const SessionFault& fault) {
  FaultWords words = WordsOf(fault, port_.name);
  if (fault.code == CodeAnswer::NotGiven)
    words.remedy = {"--code, --code-file, --code-fd or OSTREL_CODE gives one"};
  return context_.console.Fail(code, FaultText(words));
}

}  // namespace ostrel::cli
