#include "shell/session/FaultWords.h"

#include <cstddef>

#include "link/WireText.h"

namespace ostrel {
namespace {

using Kind = LinkFault::Kind;

constexpr const char* kPlugIn = "check that the adapter is plugged in";
constexpr const char* kLooksAtCable = "check cable and earthing";

/// The words for a place in a dialogue that counts something; `plain` for one that does not.
Phrase AtPlace(const SessionFault& fault, const char* plain, const char* atRecord,
               const char* atStatement) {
  const std::string number = std::to_string(fault.link.number);
  if (fault.during == SessionPhase::Reading) return {atRecord, {number}};
  if (fault.during == SessionPhase::Writing) return {atStatement, {number}};
  return {plain};
}

FaultWords NoHandshake(const SessionFault& fault, const std::string& port) {
  switch (fault.code) {
    case CodeAnswer::NotAsked:
      break;
    case CodeAnswer::NotGiven:
      return {{"the logger wants an access code"}};
    case CodeAnswer::Given:
      return {{"the logger did not accept the access code"}};
  }
  return {{"no logger answers at %1", {port}}, {"check cable and supply"}};
}

FaultWords NotTakenOver(const SessionFault& fault) {
  const std::string& answer = fault.link.text;
  if (fault.during != SessionPhase::Writing)
    return {{"the logger refused the setting: \"%1\"", {answer}}};
  if (answer.empty()) return {{"the logger did not say that it took the configuration over"}};
  return {{"the logger did not take the configuration over: \"%1\"", {answer}}};
}

FaultWords LinkWords(const SessionFault& fault, const std::string& port) {
  const LinkFault& link = fault.link;
  const std::string number = std::to_string(link.number);
  switch (link.kind) {
    case Kind::None:
      break;
    case Kind::NoSuchPort:
      return {{"there is no port %1", {port}}, {kPlugIn}};
    case Kind::PortBusy:
      return {{"%1 is in use by another program", {port}}, {"close that program and try again"}};
    case Kind::NoPermission:
      return {{"there is no permission to open %1", {port}},
              {"join the group of serial devices with \"sudo usermod -aG dialout $USER\", then log "
               "out and in again"}};
    case Kind::PortFailed:
      return {{"%1 cannot be opened as a serial port", {port}}};
    case Kind::NoModem:
      return {{"no modem answers at %1", {port}}};
    case Kind::NoConnect:
      if (link.text.empty()) return {{"the call was not answered"}};
      return {{"the call failed: the modem says \"%1\"", {link.text}}};
    case Kind::NoHandshake:
      return NoHandshake(fault, port);
    case Kind::Silence:
      return {AtPlace(fault, "the logger fell silent", "the logger fell silent at record %1",
                      "the logger fell silent at statement %1")};
    case Kind::BadChecksum:
      return {AtPlace(fault, "lines arrived damaged", "lines arrived damaged at record %1",
                      "lines arrived damaged at statement %1"),
              {kLooksAtCable}};
    case Kind::OutOfSequence:
      return {{"record %1 was expected and \"%2\" arrived", {number, link.text}}};
    case Kind::EmptyStream:
      return {{"the logger sent an empty configuration"}};
    case Kind::IndexOutOfRange:
      return {{"record %1 is about a channel that does not exist: \"%2\"", {number, link.text}}};
    case Kind::Refused:
      return {{"the logger refused statement %1: \"%2\"", {number, link.text}}};
    case Kind::NotTakenOver:
      return NotTakenOver(fault);
    case Kind::SumDiffers:
      return {{"the check sum of the logger's list differs"},
              {"lines were lost or arrived damaged: try again"}};
    case Kind::WrongAnswer:
      return {{"the logger answered something else: \"%1\"", {link.text}}};
    case Kind::Busy:
      return {{"another dialogue with the logger is under way"}};
    case Kind::OutOfTime:
      return {AtPlace(fault, "the logger came to no end", "the logger came to no end at record %1",
                      "the logger came to no end at statement %1")};
    case Kind::Unsendable:
      return {AtPlace(fault, "a text with a control character cannot be sent",
                      "a text with a control character cannot be sent",
                      "statement %1 holds a control character and cannot be sent"),
              {"type that text anew"}};
    case Kind::PeriodTooLong:
      return {{"the period of long timer %1 does not fit a statement", {number}},
              {"choose at most 24855 days"}};
    case Kind::LineHeld:
      return {{"the line at %1 was held", {port}},
              {"check that the logger is switched on and that the cable has RTS and CTS"}};
    case Kind::LineLost:
      return {{"%1 has gone in the middle of the dialogue", {port}}, {kPlugIn}};
    case Kind::LineTooLong:
      return {AtPlace(fault, "a line arrived that is longer than any of a logger",
                      "record %1 is longer than any line of a logger",
                      "the answer to statement %1 is longer than any line of a logger"),
              {"check that a logger is what is connected"}};
    case Kind::NoAliveMark:
      return {{"the logger gave no sign of life by octet %1 of the image", {number}},
              {kLooksAtCable}};
    case Kind::PortClosed:
      return {{"%1 was closed in the middle of the dialogue", {port}}};
  }
  return {{"the logger did not answer, or not as expected"}};
}

Phrase FlashWords(FlashState flash) {
  switch (flash) {
    case FlashState::Kept:
      break;
    case FlashState::InDoubt:
      return {
          "the logger's flash may be erased: leave it powered and connected; if it tells of itself "
          "in a new session, it is not; else start the update again with the same files"};
    case FlashState::Erased:
      return {
          "the logger's flash is erased and holds no firmware: leave it powered and connected, and "
          "start the update again with the same files"};
  }
  return {"nothing of the image was sent: if the logger still answers, its firmware is as it was"};
}

Phrase Outcome(const SessionFault& fault) {
  if (fault.writingVoiceList)
    return {"the logger's voice-call list may be erased or incomplete: write it again"};
  if (fault.unverified)
    return {"the logger has taken the new configuration over, which is not verified"};
  switch (fault.during) {
    case SessionPhase::Writing:
      if (fault.allSent)
        return {"whether the logger has taken the configuration over is not known: read it back"};
      return {"the logger's former configuration stays in force"};
    case SessionPhase::Updating:
      return FlashWords(fault.flash);
    case SessionPhase::Opening:
      if (!fault.brokenOff) return {};
      [[fallthrough]];
    case SessionPhase::Reading:
      return {"the logger's configuration is unchanged"};
    default:
      return {};
  }
}

}  // namespace

FaultWords WordsOf(const SessionFault& occurred, std::string_view port) {
  SessionFault fault = occurred;
  fault.link.text = MaskPasswords(occurred.link.text);
  FaultWords words;
  if (!fault.brokenOff)
    words = LinkWords(fault, std::string(port));
  else if (fault.during == SessionPhase::Opening)
    words.what = {"interrupted before a session stood"};
  else
    words.what = {"interrupted"};
  words.outcome = Outcome(fault);
  if (fault.during == SessionPhase::Reading)
    words.pages = {"the pages show what was there before the reading"};
  return words;
}

}  // namespace ostrel
