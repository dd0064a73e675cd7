#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "link/Line.h"
#include "link/Progress.h"
#include "link/dialogues/NumberedStatements.h"
#include "model/ConfAutVoz.h"
#include "model/DeviceInfo.h"

namespace ostrel {

/// Moves the voice-call list, which is too long for the configuration's own dialogues, and makes
/// sure of it by a check sum. Whatever goes wrong, the whole of it is tried three times.
class VoiceDialogue {
 public:
  VoiceDialogue(Line& line, ProgressFeed& progress, const DeviceInfo& info);

  LinkFault Write(const ConfAutVoz& list);
  LinkFault Read(ConfAutVoz& list);

 private:
  LinkFault Attempts(DialogueKind kind, int expected, const std::function<LinkFault()>& attempt);
  LinkFault WriteOnce(const ConfAutVoz& list);
  LinkFault WriteNumbers(const ConfAutVoz& list);
  LinkFault WriteMacro(const ConfAutVoz& list);
  LinkFault ReadOnce(ConfAutVoz& list);
  /// Takes numbers up to the line that is none, which stays the line received.
  void ReadNumbers(ConfAutVoz& list);
  LinkFault ReadMacro(ConfAutVoz& list);
  LinkFault CheckSum(const ConfAutVoz& list);
  /// Sends an order that the logger is to confirm.
  LinkFault Order(std::string message, std::string_view head, int extraMs = 0);
  void Tell(Progress::Stage stage, int step);

  Line& line_;
  ProgressFeed& progress_;
  NumberedStatements statements_;
  DialogueKind kind_ = DialogueKind::VoiceReading;
  int expected_ = 0;
};

}  // namespace ostrel
