#pragma once

#include <string>

namespace ostrel {

/// What went wrong in the last dialogue, in more words than its boolean result has.
struct LinkFault {
  enum class Kind {
    None,
    NoSuchPort,
    PortBusy,
    NoPermission,
    PortFailed,
    NoModem,          ///< no "OK" from the modem
    NoConnect,        ///< no "CONNECT"; `text` is the modem's answer
    NoHandshake,      ///< no "#BF"
    Silence,          ///< the logger fell silent; `number` is the record or statement expected next
    BadChecksum,      ///< frames arrived damaged; `number` as for Silence
    OutOfSequence,    ///< `number` is the record expected, `text` the line
    EmptyStream,      ///< the stream ended before its first record
    IndexOutOfRange,  ///< `number` is the record, `text` the line
    Refused,          ///< `number` is the statement last sent, `text` its text
    NotTakenOver,     ///< wrong answer to a closing message or a setting; `text` is the answer
    OutOfTime,        ///< the dialogue came to no end in its time; `number` as for Silence
    LineHeld,         ///< flow control held the line for too long; `number` as for Silence
    LineLost,         ///< the port's device has gone
    PortClosed,       ///< the port was closed in the middle
  } kind = Kind::None;
  int number = 0;
  std::string text{};

  /// True when lines came and were not what they should be, or not all came: asking again may help
  /// at once. A logger that said nothing at all is not damage.
  bool IsDamage() const;
};

}  // namespace ostrel
