#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string_view>

#include "cli/CommandContext.h"

namespace ostrel::cli {

/// A session of one command with a logger. Each step says on standard error why it failed and gives
/// the exit code. The port is closed when the session goes.
///
/// An interrupt ends the dialogue under way by closing the port.
class LoggerSession {
 public:
  LoggerSession(CommandContext& context, Configurator& configurator, PortChoice port);
  ~LoggerSession();
  LoggerSession(const LoggerSession&) = delete;
  LoggerSession& operator=(const LoggerSession&) = delete;

  /// Opens the session and makes sure that the logger has told who it is, unless any will do.
  ExitCode Open(OpenTo wanted = OpenTo::Working);
  /// Downloads into an emptied model, so that nothing of a former one shows through.
  ExitCode Download();
  ExitCode Upload();
  /// Runs a short dialogue.
  ExitCode Run(const std::function<LinkResult()>& dialogue);
  /// Writes the voice-call list, whose count and check sum are up to date.
  ExitCode WriteVoiceList(const ConfAutVoz& list);
  /// Replaces the logger's firmware; the session is to be closed then.
  ExitCode SendFirmware(const FirmwareFiles& files, const FirmwareDialogue::OnStage& onStage);
  /// Says why a short dialogue failed.
  ExitCode Failed(const LinkResult& result);
  void Close();

  bool Interrupted() const { return interrupted_; }
  const PortChoice& Port() const { return port_; }

 private:
  /// Runs a transfer with its progress shown.
  bool Move(std::string_view label, bool (SessionDriver::*transfer)());
  SessionFault FaultOf(const LinkResult& result) const;
  ExitCode Fault(ExitCode code, const SessionFault& fault);
  ExitCode StartTrace();
  ExitCode TakeSimulatedState();

  CommandContext& context_;
  Configurator& configurator_;
  PortChoice port_;
  std::unique_ptr<std::ostream> trace_;
  bool interrupted_ = false;
};

}  // namespace ostrel::cli
