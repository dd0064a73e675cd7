#pragma once

#include <string>
#include <utility>

namespace ostrel {

/// What went wrong in a dialogue, in more words than its boolean result has.
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
    SumDiffers,       ///< the logger's list has another check sum than the one sent or read
    WrongAnswer,      ///< an answer to something else; `text` is the answer
    Busy,             ///< another dialogue is running, and goes on
    OutOfTime,        ///< the dialogue came to no end in its time; `number` as for Silence
    Unsendable,       ///< a message held a control character; `number` as for Silence
    PeriodTooLong,    ///< the period of long timer `number` overflows; nothing was sent
    LineHeld,         ///< flow control held the line for too long; `number` as for Silence
    LineLost,         ///< the port's device has gone
    PortClosed,       ///< the port was closed in the middle
    LineTooLong,      ///< a line without an end arrived; `number` as for Silence
    NoAliveMark,      ///< no sign of life came while an image was sent; `number` octets had left
  } kind = Kind::None;
  int number = 0;
  std::string text{};

  bool Ok() const { return kind == Kind::None; }
  /// True when lines came and were not what they should be, or not all came: asking again may help
  /// at once. A logger that said nothing at all is not damage.
  bool IsDamage() const;
};

/// What a dialogue came to: true when it did what it is for; else its fault tells why it did not.
class LinkResult {
 public:
  LinkResult() = default;
  LinkResult(LinkFault fault) : fault_(std::move(fault)) {}

  operator bool() const { return fault_.Ok(); }
  const LinkFault& Fault() const { return fault_; }

 private:
  LinkFault fault_;
};

}  // namespace ostrel
