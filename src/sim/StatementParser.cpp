#include "sim/StatementParser.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "sim/AlarmStatement.h"
#include "sim/KeptStatements.h"
#include "sim/StatementCursor.h"

namespace ostrel::sim {
namespace {

constexpr int kMostSeconds = std::numeric_limits<std::int32_t>::max();
constexpr int kLeast16 = std::numeric_limits<std::int16_t>::min();
constexpr int kMost16 = std::numeric_limits<std::int16_t>::max();

/// A statement in work: the cursor stands behind its leading word.
struct Work {
  StatementCursor& in;
  const Identity& self;
  Configuration& conf;

  void Need(std::uint32_t features) const {
    if (!self.Has(features)) in.Fail("unknown to this firmware");
  }
  std::size_t Channel(int count) const { return static_cast<std::size_t>(in.Plain(0, count - 1)); }
  DigitalInput& Digital() const { return conf.digitals[Channel(self.Traits().digitals)]; }
  AnalogInput& Analog() const { return conf.analogs[Channel(self.Traits().analogs)]; }
};

void SetText(const Work& w, std::string& text) {
  w.in.Expect("=");
  text = w.in.Text();
  w.in.End();
}

void SetWhole(const Work& w, int& number, int last) {
  w.in.Expect("=");
  number = w.in.Whole(0, last);
  w.in.End();
}

void SampleRate(const Work& w) {
  w.Need(kSampleRate);
  if (w.self.model != Model::BQ) w.in.Fail("unknown to this model");
  w.in.Expect("=");
  w.conf.sampleRate = w.in.Plain(0, 1);
  w.in.End();
}

/// ",D0".. and ",A0".. of firmware without extended masks, in any order.
void ReadShortMask(StatementCursor& in, Phone& phone) {
  std::size_t count = 0;
  while (!in.Failed() && !in.Rest().empty()) {
    if (count == phone.channels.size()) return in.Fail("more than 16 channels");
    if (in.Has(",D"))
      phone.channels[count++] = 21 + in.Plain(0, 7);
    else if (in.Has(",A"))
      phone.channels[count++] = in.Plain(0, 3);
    else
      in.Fail("channel expected");
  }
  if (count == 0) return;
  phone.maskMode = 1;
  // Kept as bits: digital inputs come before analog ones, each once.
  const auto digitalFirst = [](int channel) { return channel >= 21 ? channel - 21 : channel + 8; };
  const auto end = phone.channels.begin() + static_cast<std::ptrdiff_t>(count);
  std::ranges::sort(phone.channels.begin(), end, {}, digitalFirst);
  std::fill(std::unique(phone.channels.begin(), end), phone.channels.end(), kNoChannel);
}

void ReadExtendedMask(StatementCursor& in, Phone& phone) {
  const bool masked = in.Has(",MASK=");
  if (masked) {
    for (int& channel : phone.channels) channel = in.Whole(0, kNoChannel);
  }
  in.Expect(",MASKMODE");
  phone.maskMode = in.Plain(masked ? 1 : 0, masked ? 2 : 0);
}

void AddPhone(const Work& w) {
  Phone phone;
  w.in.Expect("=");
  phone.number = w.in.Text();
  if (phone.number.empty()) w.in.Fail("number expected");
  w.in.Expect(",Prio=");
  phone.priority = w.in.Plain(0, 8);
  w.in.Expect(",PRV");
  phone.privilege = w.in.Plain(0, 3);
  if (w.self.Has(kExtendedMasks))
    ReadExtendedMask(w.in, phone);
  else
    ReadShortMask(w.in, phone);
  w.in.End();
  const auto slot = std::ranges::find(w.conf.phones, std::string(), &Phone::number);
  if (slot == w.conf.phones.end()) return w.in.Fail("no free slot");
  *slot = std::move(phone);
}

void NameDigital(const Work& w) {
  DigitalInput& input = w.Digital();
  w.in.Expect("=");
  input.name = w.in.Text();
  if (w.self.Has(kNormallyClosed)) input.normallyClosed = w.in.HasToken(",NC");
  w.in.End();
}

void ScaleAnalog(const Work& w) {
  AnalogScale& held = w.Analog().scale;
  AnalogScale scale;
  w.in.Expect("=");
  scale.name = w.in.Text();
  w.in.Expect(",UNIT=");
  scale.unit = w.in.Text();
  // Without a word for the interface, the one in force stays.
  scale.interface = w.in.HasToken(",CURRENT")    ? Interface::Current
                    : w.in.HasToken(",5V")       ? Interface::Volts5
                    : w.in.HasToken(",10V")      ? Interface::Volts10
                    : w.in.HasToken(",PRESSURE") ? Interface::Pressure
                                                 : held.interface;
  w.in.Expect(",BSVAL=");
  scale.signalStart = w.in.Decimal();
  w.in.Expect(",FSVAL=");
  scale.signalEnd = w.in.Decimal();
  w.in.Expect(",BSUNIT=");
  scale.valueAtStart = w.in.Decimal();
  w.in.Expect(",FSUNIT=");
  scale.valueAtEnd = w.in.Decimal();
  w.in.Expect(",GROUP=");
  scale.group = w.in.Whole(0, 3);
  w.in.End();
  held = std::move(scale);
}

void DisableAnalog(const Work& w) {
  w.Analog().scale = {};
  w.in.End();
}

void SetGroup(const Work& w) {
  PowerGroup& group = w.conf.groups[w.Channel(w.self.Traits().analogs)];
  w.in.Expect("=");
  group.output = w.in.Whole(kLeast16, kMost16);
  w.in.Expect(",T=");
  group.period = w.in.Decimal();
  w.in.Expect(",V=");
  group.volts = w.in.Whole(kLeast16, kMost16);
  w.in.End();
}

void RemoveAlarm(const Work& w, AlarmRow& row) {
  row[static_cast<std::size_t>(ReadAlarmIndex(w.in, kAlarms))] = {};
  w.in.End();
}

void AddFlagAlarm(const Work& w) {
  w.Need(kFlagAlarms);
  ReadFlagAlarm(w.in, w.conf.flagAlarms[w.Channel(kFlags)]);
}

void RemoveFlagAlarm(const Work& w) {
  w.Need(kFlagAlarms);
  w.conf.flagAlarms[w.Channel(kFlags)] = {};
  ReadAlarmIndex(w.in, 1);
  w.in.End();
}

struct Rule {
  std::string_view word;
  void (*apply)(const Work& w);
};

constexpr Rule kRules[] = {
    {"ID", [](const Work& w) { SetText(w, w.conf.name); }},
    {"CSM", [](const Work& w) { SetText(w, w.conf.smsCentre); }},
    {"PTLF", [](const Work& w) { SetText(w, w.conf.ownNumber); }},
    {"REST", [](const Work& w) { SetText(w, w.conf.restoredText); }},
    {"RETRYMAX",
     [](const Work& w) {
       w.Need(kResendRules);
       SetWhole(w, w.conf.resendCount, kMost16);
     }},
    {"RETRYTIME",
     [](const Work& w) {
       w.Need(kResendRules);
       SetWhole(w, w.conf.resendSeconds, kMostSeconds);
     }},
    {"SAMPLERATE", SampleRate},
    {"CLRTLF",
     [](const Work& w) {
       w.in.End();
       w.conf.phones.fill({});
     }},
    {"+TLF", AddPhone},
    {"DINAME", NameDigital},
    {"+ALMD", [](const Work& w) { ReadDigitalAlarm(w.in, w.Digital().alarms); }},
    {"-ALMD", [](const Work& w) { RemoveAlarm(w, w.Digital().alarms); }},
    {"AICONF", ScaleAnalog},
    {"DISAI", DisableAnalog},
    {"+ALMA",
     [](const Work& w) {
       ReadAnalogAlarm(w.in, w.Analog().alarms, w.self.Has(kAnalogPersistence));
     }},
    {"-ALMA", [](const Work& w) { RemoveAlarm(w, w.Analog().alarms); }},
    {"AGRP", SetGroup},
    {"+ALMF", AddFlagAlarm},
    {"-ALMF", RemoveFlagAlarm},
};

/// The letters at the head of a statement, with a sign in front of them.
std::string_view LeadingWord(std::string_view statement) {
  std::size_t length = statement.starts_with('+') || statement.starts_with('-') ? 1 : 0;
  while (length < statement.size() && statement[length] >= 'A' && statement[length] <= 'Z')
    ++length;
  return statement.substr(0, length);
}

bool HasControls(std::string_view statement) {
  return std::ranges::any_of(
      statement, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; });
}

}  // namespace

std::string ApplyStatement(std::string_view statement, const Identity& self, Configuration& conf) {
  if (HasControls(statement)) return "control character in the statement";
  const std::string_view word = LeadingWord(statement);
  StatementCursor in(statement.substr(word.size()));
  const auto* rule = std::ranges::find(kRules, word, &Rule::word);
  if (rule != std::ranges::end(kRules))
    rule->apply({in, self, conf});
  else if (!KeepStatement(word, statement, in, self, conf))
    in.Fail("unknown statement");
  return in.Why();
}

}  // namespace ostrel::sim
