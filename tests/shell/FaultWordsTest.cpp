#include <gtest/gtest.h>

#include <set>

#include "shell/session/FaultWords.h"

namespace ostrel {
namespace {

using FaultKind = LinkFault::Kind;

/// What is told of a fault, in one line.
std::string Told(const SessionFault& fault) {
  const FaultWords words = WordsOf(fault, "COM7");
  return Filled(words.what) + "|" + Filled(words.remedy) + "|" + Filled(words.outcome);
}

TEST(FaultWords, TellEachFaultDifferently) {
  std::set<std::string> told;
  constexpr int kKinds = static_cast<int>(FaultKind::LineTooLong) + 1;
  for (int kind = 0; kind < kKinds; ++kind)
    told.insert(Told({.link = {static_cast<FaultKind>(kind), 12, "text"}}));
  EXPECT_EQ(told.size(), static_cast<std::size_t>(kKinds));
}

TEST(FaultWords, TellPlaceTextRemedyAndHowTheLoggerStands) {
  using enum SessionPhase;
  const std::string former = "the logger's former configuration stays in force";
  const std::string unknown =
      "whether the logger has taken the configuration over is not known: read it back";
  const std::string unchanged = "the logger's configuration is unchanged";
  for (const auto& [fault, told] : std::vector<std::pair<SessionFault, std::string>>{
           {{.during = Reading, .link = {FaultKind::Silence, 6, ""}},
            "the logger fell silent at record 6||" + unchanged},
           {{.during = Writing, .link = {FaultKind::Silence, 6, ""}},
            "the logger fell silent at statement 6||" + former},
           {{.during = Reading, .link = {FaultKind::Silence, 6, ""}, .unverified = true},
            "the logger fell silent at record 6||the logger has taken the new configuration over, "
            "which is not verified"},
           {{.during = Writing, .link = {FaultKind::BadChecksum, 6, ""}, .allSent = true},
            "lines arrived damaged at statement 6|check cable and earthing|" + unknown},
           {{.during = Writing, .link = {FaultKind::Refused, 3, "50%1%2"}},
            "the logger refused statement 3: \"50%1%2\"||" + former},
           {{.during = Writing, .link = {FaultKind::NotTakenOver, 9, ""}, .allSent = true},
            "the logger did not say that it took the configuration over||" + unknown},
           {{.link = {FaultKind::NotTakenOver, 0, "#BE0"}},
            "the logger refused the setting: \"#BE0\"||"},
           {{.during = Opening,
           .link = {FaultKind::NoHandshake, 0, ""},
           .code = CodeAnswer::NotGiven},
            "the logger wants an access code||"},
           {{.during = Opening, .link = {FaultKind::PortClosed, 0, ""}, .brokenOff = true},
            "interrupted before a session stood||" + unchanged},
           {{.link = {FaultKind::PortClosed, 0, ""}, .brokenOff = true, .writingVoiceList = true},
            "interrupted||the logger's voice-call list may be erased or incomplete: write it "
            "again"},
           {{.during = Writing, .link = {FaultKind::PortClosed, 4, ""}, .brokenOff = true},
            "interrupted||" + former}})
    EXPECT_EQ(Told(fault), told);
}

}  // namespace
}  // namespace ostrel
