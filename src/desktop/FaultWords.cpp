#include "desktop/FaultWords.h"

#include "desktop/Words.h"

namespace ostrel {

QString FaultWords(const LinkFault& fault, const QString& device) {
  using Kind = LinkFault::Kind;
  const QString text = ToQt(fault.text);
  switch (fault.kind) {
    case Kind::None:
      return {};
    case Kind::NoSuchPort:
      return Words::tr("There is no device at %1. Is the adapter plugged in?").arg(device);
    case Kind::PortBusy:
      return Words::tr("%1 is in use by another program. Close that program and try again.")
          .arg(device);
    case Kind::NoPermission:
      return Words::tr(
                 "You have no permission to open %1. Join the group of serial devices with "
                 "\"sudo usermod -aG dialout $USER\", then log out and in again.")
          .arg(device);
    case Kind::PortFailed:
      return Words::tr("%1 could not be opened as a serial port.").arg(device);
    case Kind::NoModem:
      return Words::tr("No modem answers at %1.").arg(device);
    case Kind::NoConnect:
      return text.isEmpty() ? Words::tr("The call was not answered.")
                            : Words::tr("The call failed. The modem says: %1").arg(text);
    case Kind::NoHandshake:
      return Words::tr("The port works, but no logger answers at %1. Check cable and supply.")
          .arg(device);
    case Kind::Silence:
      return Words::tr("The logger fell silent at step %1.").arg(fault.number);
    case Kind::BadChecksum:
      return Words::tr(
                 "Damaged lines arrived (bad checksums) at step %1. Check cable and earthing.")
          .arg(fault.number);
    case Kind::OutOfSequence:
      return Words::tr("Record %1 was expected, and this arrived: %2").arg(fault.number).arg(text);
    case Kind::EmptyStream:
      return Words::tr("The logger sent an empty configuration.");
    case Kind::IndexOutOfRange:
      return Words::tr("Record %1 is about a channel that does not exist: %2")
          .arg(fault.number)
          .arg(text);
    case Kind::Refused:
      return Words::tr("The logger refused statement %1: %2").arg(fault.number).arg(text);
    case Kind::NotTakenOver:
      return Words::tr(
                 "The logger did not take the configuration over. It keeps the former one. %1")
          .arg(text)
          .trimmed();
    case Kind::WrongAnswer:
      return Words::tr("The logger answered something else: %1").arg(text);
    case Kind::Busy:
      return Words::tr("Another dialogue with the logger is under way.");
    case Kind::OutOfTime:
      return Words::tr("The logger talks without coming to an end.");
    case Kind::LineHeld:
      return Words::
          tr("The line at %1 is held. Is the logger switched on, and has the cable RTS and CTS?")
              .arg(device);
    case Kind::LineLost:
      return Words::tr("%1 has gone. Was the adapter unplugged?").arg(device);
    case Kind::PortClosed:
      return Words::tr("The port was closed in the middle of the dialogue.");
  }
  return {};
}

}  // namespace ostrel
