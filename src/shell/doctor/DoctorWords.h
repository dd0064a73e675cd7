#pragma once

#include <string>
#include <vector>

#include "shell/words/Phrase.h"

namespace ostrel {

/// What the link doctor can say.
enum class DoctorWord {
  // What was looked at.
  Device,
  Permission,
  Users,
  PortOpening,
  CableLines,
  Listening,
  Attempt,
  Modem,
  Call,
  Damage,
  // What was found.
  DeviceThere,
  DeviceMissing,
  Simulated,
  Permitted,
  NotPermitted,
  NotPermittedGroup,
  NobodyElse,
  InUseBy,
  InUseByOther,
  Opened,
  NotOpened,
  NoLines,
  LinesUp,
  LinesDown,
  Quiet,
  TalksText,
  TalksFrames,
  Noise,
  NoAnswer,
  Held,
  Echo,
  BadFrames,
  OtherAnswer,
  OtherText,
  Greets,
  NoModem,
  ModemAnswers,
  CallStands,
  NoDamage,
  SomeDamage,
  NoneCame,
  Gone,
  // What to try next.
  PlugIn,
  JoinGroup,
  AskAdministrator,
  CloseProgram,
  CheckLines,
  CheckSpeed,
  TakePlugOff,
  GivePhone,
  CheckSupply,
  CheckEarthing,
  EndOther,
  AllWell,
  DialBySession,
  LookAtNumber
};

/// A word with what it is about.
Phrase Spoken(DoctorWord word, std::vector<std::string> arguments = {});

/// All phrases that may be said, for those who translate them.
std::vector<std::string> DoctorPhrases();

}  // namespace ostrel
