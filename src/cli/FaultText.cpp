#include "cli/FaultText.h"

namespace ostrel::cli {
namespace {

std::string Quote(std::string_view text) { return '"' + std::string(text) + '"'; }

/// " at record 12", where the dialogue counts something.
std::string Place(const LinkFault& fault, Transfer transfer) {
  const std::string number = std::to_string(fault.number);
  switch (transfer) {
    case Transfer::None:
      return {};
    case Transfer::Download:
      return " at record " + number;
    case Transfer::Upload:
      return " at statement " + number;
  }
  return {};
}

}  // namespace

std::string FaultText(const LinkFault& fault, std::string_view port, Transfer transfer) {
  using Kind = LinkFault::Kind;
  const std::string name(port);
  switch (fault.kind) {
    case Kind::None:
      return "the logger did not answer, or not as expected";
    case Kind::NoSuchPort:
      return "there is no port " + name;
    case Kind::PortBusy:
      return name + " is in use by another program";
    case Kind::NoPermission:
      return "no permission to open " + name +
             ": join the group of serial devices with \"sudo usermod -aG dialout $USER\" and log "
             "in again";
    case Kind::PortFailed:
      return name + " cannot be opened as a serial port";
    case Kind::NoModem:
      return "no modem answers at " + name;
    case Kind::NoConnect:
      return fault.text.empty() ? "the call was not answered"
                                : "the call failed: the modem says " + Quote(fault.text);
    case Kind::NoHandshake:
      return "no logger answers at " + name;
    case Kind::Silence:
      return "the logger fell silent" + Place(fault, transfer);
    case Kind::BadChecksum:
      return "frames arrived damaged" + Place(fault, transfer) + ": check cable and earthing";
    case Kind::OutOfSequence:
      return "record " + std::to_string(fault.number) + " was expected and " + Quote(fault.text) +
             " arrived";
    case Kind::EmptyStream:
      return "the logger sent an empty configuration";
    case Kind::IndexOutOfRange:
      return "record " + std::to_string(fault.number) +
             " is about a channel that no logger has: " + Quote(fault.text);
    case Kind::Refused:
      return "the logger refused statement " + std::to_string(fault.number) + ": " +
             Quote(fault.text);
    case Kind::NotTakenOver:
      if (transfer == Transfer::None) return "the logger refused the setting: " + Quote(fault.text);
      return fault.text.empty()
                 ? "the logger did not say that it took the configuration over"
                 : "the logger did not take the configuration over: " + Quote(fault.text);
    case Kind::WrongAnswer:
      return "the logger answered something else: " + Quote(fault.text);
    case Kind::Busy:
      return "another dialogue with the logger is under way";
    case Kind::OutOfTime:
      return "the logger came to no end" + Place(fault, transfer);
    case Kind::LineHeld:
      return "the line at " + name + " was held" + Place(fault, transfer) +
             ": check that the logger is switched on and that the cable has RTS and CTS";
    case Kind::LineLost:
      return name + " has gone in the middle of the dialogue";
    case Kind::PortClosed:
      return name + " was closed in the middle of the dialogue";
  }
  return "the dialogue failed";
}

}  // namespace ostrel::cli
