#include <charconv>
#include <cstdint>
#include <system_error>

#include "sim/Logger.h"
#include "sim/StateText.h"
#include "sim/blocks/Block.h"
#include "sim/wire/StatementParser.h"

namespace ostrel::sim {
namespace {

constexpr int kFormat = 1;
constexpr std::string_view kFormatKey = "ostrel-sim-state";

/// Reads "2026-01-15 08:30:05"; an invalid time when it is none.
DateTime ReadClockText(std::string_view text) {
  constexpr std::string_view kForm = "0000-00-00 00:00:00";
  bool good = text.size() == kForm.size();
  for (std::size_t i = 0; good && i < text.size(); ++i)
    good = kForm[i] == '0' ? text[i] >= '0' && text[i] <= '9' : text[i] == kForm[i];
  if (!good) return {.month = 0};
  const auto part = [text](std::size_t at, std::size_t digits) {
    int value = 0;
    std::from_chars(text.data() + at, text.data() + at + digits, value);
    return value;
  };
  return {part(0, 4), part(5, 2), part(8, 2), part(11, 2), part(14, 2), part(17, 2)};
}

std::optional<int> KeyNumber(const std::string& text) {
  int value = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool good = parsed.ec == std::errc{} && parsed.ptr == text.data() + text.size();
  return good ? std::optional(value) : std::nullopt;
}

/// Keys "prefix<number>" with whole numbers behind them.
std::map<int, int> ReadIndexed(StateReader& in, const std::string& prefix) {
  std::map<int, int> numbers;
  for (const auto& [key, text] : in.TakeAll(prefix)) {
    const auto index = KeyNumber(key);
    const auto value = KeyNumber(text);
    if (!index || !value || *index < 0) {
      in.Fail(prefix + key + " is no number");
      continue;
    }
    numbers[*index] = *value;
  }
  return numbers;
}

}  // namespace

std::string Logger::SaveState() const {
  StateWriter out;
  out(std::string(kFormatKey), std::int64_t{kFormat});
  out("model", std::string(Self().Traits().word));
  out("clock", DateTimeText(Clock()));
  out("outputs", std::int64_t{outputs_});
  for (int i = 0; i < Self().Traits().flows; ++i)
    out("total." + std::to_string(i), std::int64_t{Total(i)});
  for (const auto& [index, value] : live_.ModulesSet(Seconds()))
    out("module." + std::to_string(index), std::int64_t{value});
  out("serial", options_.serial);
  for (const Block* block : Blocks()) block->save(conf_, out);
  return out.Take();
}

bool Logger::LoadState(std::string_view text, std::string& error) {
  StateReader in(text);
  std::int64_t format = 0;
  std::string model;
  std::string clock;
  std::string serial = options_.serial;
  std::int64_t outputs = 0;
  Configuration conf;
  in(std::string(kFormatKey), format);
  in("model", model);
  in("clock", clock);
  in("serial", serial);
  in("outputs", outputs);
  const auto totals = ReadIndexed(in, "total.");
  const auto modules = ReadIndexed(in, "module.");
  for (const Block* block : Blocks()) block->load(conf, in);
  // A former version saved further records as the statements that had set them; those that this
  // version refuses are left out.
  for (const auto& [slot, statement] : in.TakeAll("kept.")) ApplyStatement(statement, Self(), conf);

  const DateTime now = ReadClockText(clock);
  if (format != kFormat) in.Fail("this is no state of a simulated logger");
  if (ParseModel(model) != options_.model) in.Fail("the state is of model \"" + model + "\"");
  if (!IsValid(now)) in.Fail("the clock shows no time");
  if (outputs < 0 || outputs >> Self().Traits().outputs != 0) in.Fail("no such outputs");
  if (!in.Done()) {
    error = in.Error();
    return false;
  }
  conf_ = std::move(conf);
  SetClock(now);
  options_.serial = serial;
  outputs_ = static_cast<unsigned>(outputs);
  live_.ForgetModules();
  for (const auto& [index, value] : totals) live_.SetCounter(index, value, Seconds());
  for (const auto& [index, value] : modules) live_.SetModule(index, value, Seconds());
  return true;
}

}  // namespace ostrel::sim
