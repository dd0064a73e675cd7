#include <cstdint>
#include <utility>

#include "sim/Logger.h"
#include "sim/blocks/Block.h"
#include "sim/wire/NumberText.h"

namespace ostrel::sim {
namespace {

bool ToAny(const Identity&) { return true; }
template <Model kModel>
bool To(const Identity& self) {
  return self.model == kModel;
}
bool WithVoiceList(const Identity& self) { return kVoiceBlock.stands(self); }

/// "=" and a whole number of 32 bits without a place for its sign.
int ReadTotal(StatementCursor& in) {
  in.Expect("=");
  const bool negative = in.Has("-");
  const int value = in.Plain(0, kMost32);
  in.End();
  return negative ? -value : value;
}

std::string HexText(std::uint16_t number) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (int shift = 12; shift >= 0; shift -= 4) text += kDigits[number >> shift & 15U];
  return text;
}

}  // namespace

const Logger::Order Logger::kOrders[] = {
    {"CNT", ToAny, &Logger::SetTotal},
    {"EXP", ToAny, &Logger::SetModuleTotal},
    {"CLRTEL", WithVoiceList, &Logger::ClearVoiceNumbers},
    {"VCAUTMACRO", WithVoiceList, &Logger::SetVoiceMacro},
    {"CLRVCAUTMACRO", WithVoiceList, &Logger::ClearVoiceMacro},
    {"VO", To<Model::BP>, &Logger::DriveVolts},
    {"OUT", To<Model::KA2>, &Logger::DriveSwitches},
    {"ONEWCONF", To<Model::KA2>, &Logger::TakeProbe},
    {"DISPOF", To<Model::BQ>, &Logger::TakeDisplayOff},
};

bool Logger::AnswerOrder(std::string_view rest) {
  for (const Order& order : kOrders) {
    StatementCursor in(rest);
    if (!in.Has(order.word) || !order.known(Self())) continue;
    if (plan_.Count(FaultKind::RefuseCommand))
      in.Fail("by fault");
    else
      (this->*order.carryOut)(in);
    exchange_.note = in.Why();
    Reply(in.Failed() ? "#BE0" : "#BE1");
    return true;
  }
  return false;
}

void Logger::SetTotal(StatementCursor& in) {
  const int index = in.Plain(0, Self().Traits().flows - 1);
  const int value = ReadTotal(in);
  if (!in.Failed()) live_.SetCounter(index, value, Seconds());
}

void Logger::SetModuleTotal(StatementCursor& in) {
  const int index = in.Plain(0, Self().Traits().modules - 1);
  const int value = ReadTotal(in);
  if (!in.Failed()) live_.SetModule(index, value, Seconds());
}

/// The list is empty from here on; the numbers come as statements, which may be none.
void Logger::ClearVoiceNumbers(StatementCursor& in) {
  in.End();
  if (in.Failed()) return;
  conf_.voice.numbers.clear();
  upload_.Begin(conf_);
  sender_.Wait(options_.eraseTime);
}

void Logger::SetVoiceMacro(StatementCursor& in) {
  in.Expect("=");
  const int macro = in.Plain(0, kMostVoiceMacro);
  in.End();
  if (!in.Failed()) conf_.voice.macro = macro;
}

void Logger::ClearVoiceMacro(StatementCursor& in) {
  in.End();
  if (!in.Failed()) conf_.voice.macro = kNoMacro;
}

bool Logger::AnswerVoiceSum(std::string_view rest) {
  if (!rest.empty() || !WithVoiceList(Self())) return false;
  const std::uint16_t sum = VoiceSum(conf_.voice);
  const bool wrong = plan_.Count(FaultKind::WrongSum).has_value();
  Reply("#B1" + HexText(wrong ? static_cast<std::uint16_t>(sum ^ 1U) : sum));
  return true;
}

bool Logger::AnswerVoiceList(std::string_view rest) {
  if (!rest.empty() || !WithVoiceList(Self())) return false;
  Reply("#B00");
  int told = 0;
  for (const std::string& number : conf_.voice.numbers) {
    Reply("#B01" + number);
    if (plan_.At(FaultKind::SilentAfterNumber, ++told)) {
      exchange_.note = "cut by fault";
      return true;
    }
  }
  Reply("#B02");
  const int macro = conf_.voice.macro;
  Reply(macro == kNoMacro ? "#B03" : "#B03" + std::to_string(macro));
  return true;
}

bool Logger::AnswerProbeIdentity(std::string_view rest) {
  if (!rest.empty() || Self().Traits().probes == 0) return false;
  Reply("#05" + IdentityText(options_.probe));
  return true;
}

}  // namespace ostrel::sim
