#include "Invariants.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "base/CodePage.h"
#include "blocks/Configuration.h"
#include "link/LinkTimes.h"
#include "sim/wire/LineComposer.h"
#include "sim/wire/StatementParser.h"

namespace ostrel::campaign {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr std::array<std::pair<std::string_view, Claim>, 9> kOutcomes{{
    {"", Claim::Nothing},
    {"the logger's configuration is unchanged", Claim::AsBefore},
    {"the logger's former configuration stays in force", Claim::AsBefore},
    {"whether the logger has taken the configuration over is not known: read it back",
     Claim::Either},
    {"the logger has taken the new configuration over, which is not verified", Claim::TakenOver},
    {"the logger's voice-call list may be erased or incomplete: write it again",
     Claim::ListDoubtful},
    {"the logger's flash is erased and holds no firmware: leave it powered and connected, and "
     "start the update again with the same files",
     Claim::NoFirmware},
    {"the logger's flash may be erased: leave it powered and connected; if it tells of itself in a "
     "new session, it is not; else start the update again with the same files",
     Claim::FirmwareDoubtful},
    {"nothing of the image was sent: if the logger still answers, its firmware is as it was",
     Claim::FirmwareKept},
}};

constexpr int kInformation = 3;  ///< messages that asking for the information counts as
constexpr int kMostNames = 40;   ///< requests for names, or for values
constexpr seconds kHold = std::chrono::duration_cast<seconds>(kLongestHold);

/// Reading, with the information once more ahead of it.
Duration LongestReading(const Line& line, std::size_t records) {
  const milliseconds reply(line.ReplyTimeout);
  const Duration attempt = kLongestStreamQuiet + kLinkAttempts * (kLongestStale + reply) +
                           static_cast<int>(records + 2) * reply;
  return 2 * line.TimeFor(kInformation) + kLinkAttempts * attempt + kHold;
}

Duration LongestWriting(const Line& line, std::size_t statements) {
  const Duration attempt =
      static_cast<int>(statements + 2) * milliseconds(kRefusalMs) + milliseconds(line.ReplyTimeout);
  return 2 * line.TimeFor(kInformation) + kLinkAttempts * attempt + kHold;
}

/// A message that is tried three times, each time behind a quiet line.
Duration LongestAsking(const Line& line, int messages, Duration extra = {}) {
  return messages * kLinkAttempts * (kLongestStale + milliseconds(line.ReplyTimeout) + extra) +
         kHold;
}

}  // namespace

std::optional<Claim> ClaimOf(const std::string& outcome) {
  const auto found = std::ranges::find(kOutcomes, std::string_view(outcome),
                                       &std::pair<std::string_view, Claim>::first);
  if (found == kOutcomes.end()) return {};
  return found->second;
}

sim::Configuration HeldBy(const sim::Logger& logger) {
  sim::Configuration held = logger.Conf();
  held.voice = {};
  return held;
}

std::optional<sim::Configuration> After(const sim::Configuration& held, const sim::Identity& self,
                                        const DeviceConf& sent, const Receiver& receiver) {
  sim::Configuration after = held;
  for (const std::string& statement : ComposeStatements(sent, receiver))
    if (!sim::ApplyStatement(ToCodePage(statement), self, after).empty()) return {};
  return after;
}

DeviceConf ReadOff(const sim::Configuration& held, const sim::Identity& self,
                   const Configurator& program) {
  DeviceConf read =
      EmptyConfiguration(program.profile, [](std::string_view text) { return std::string(text); });
  for (const Block& block : Blocks())
    if (block.beginStream) block.beginStream(read);
  for (const std::string& line : LinesOf(held, self)) {
    const std::string_view key = std::string_view(line).substr(6, line.find(',') - 6);
    for (const Block& block : Blocks())
      for (const LineSection& section : block.lines)
        if (LineReader reader(line); section.key == key) section.read(reader, read, program.info);
  }
  return read;
}

std::vector<std::string> LinesOf(const sim::Configuration& held, const sim::Identity& self) {
  std::vector<std::string> lines = sim::ConfigurationRecords(held, self);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::string number = std::to_string(i);
    number.insert(0, 3 - std::min<std::size_t>(3, number.size()), '0');
    lines[i] = "#BD" + number + FromCodePage(lines[i]);
  }
  return lines;
}

Duration LongestOf(Step step, Configurator& program, const sim::Logger& logger) {
  Line& line = program.comms.TheLine();
  const auto reading = [&] {
    return LongestReading(line, sim::ConfigurationRecords(logger.Conf(), logger.Self()).size());
  };
  const auto writing = [&] {
    return LongestWriting(line, program.comms.ComposeStatements().size());
  };
  switch (step) {
    case Step::Open:
      return kLongestOpeningQuiet + kLongestDialling + (kCodePasses + 1) * line.TimeFor(1) +
             5 * line.TimeFor(kInformation) + line.TimeFor(kMostNames) + line.TimeFor(1);
    case Step::Read:
      return reading();
    case Step::WritePlain:
      return writing();
    case Step::WriteGuarded:
      return reading() + writing() + reading();
    case Step::Live:
      return 2 * line.TimeFor(kMostNames) + line.TimeFor(kInformation);
    case Step::Clock:
    case Step::Total:
    case Step::Output:
      return line.TimeFor(1);
    case Step::VoiceWrite:
      return kLinkAttempts * (kLongestStreamQuiet + LongestAsking(line, 4, milliseconds(kEraseMs)) +
                              sim::kVoiceNumbers * milliseconds(kRefusalMs + kVoicePauseMs));
    case Step::VoiceRead:
      return kLinkAttempts * (kLongestStreamQuiet + LongestAsking(line, 2) +
                              (sim::kVoiceNumbers + 3) * milliseconds(line.ReplyTimeout));
    case Step::Firmware:
      return milliseconds(kFlashAnswerMs + kFlashEraseMs + kImageEndMs + kLoaderAnswerMs) +
             4 * kHold + seconds(60);
    default:
      return {};  // takes no time
  }
}

std::string WrongAtRest(const Configurator& program) {
  const SessionPhase phase = program.session.State().phase;
  if (program.comms.LinkBusy) return "the link stays busy";
  if (program.ComBusy) return "the model stays busy";
  if (program.session.VoiceList() != ListWork::None) return "the voice-call list stays at work";
  if (phase != (program.Connected ? SessionPhase::Open : SessionPhase::Closed))
    return "the phase is not that of the session";
  if (program.Connected != program.comms.PortOpen()) return "a session without its port";
  return {};
}

}  // namespace ostrel::campaign
