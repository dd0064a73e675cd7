#include "blocks/MacroPool.h"

#include <algorithm>

namespace ostrel {
namespace {

/// Puts a line together of its number and its body in braces, at the next place.
void TakeMacro(std::string_view word, LineReader& line, ConfMacro& pool) {
  const auto number = RoundToEven<std::int32_t>(line.Number()).value_or(0);
  constexpr int kBody = 2;
  pool.LINE[pool.MacroPoolCount] = PoolLine(word, number, BracedFieldOfLine(line.Line(), kBody));
  ++pool.MacroPoolCount;
}

void ReadMacro(LineReader& line, DeviceConf& conf, const DeviceInfo&) {
  TakeMacro(kMacroWord, line, conf.Macro);
}

}  // namespace

const std::array<LineSection, 3> MacroPool::kLines{{
    {"MACROS", ReadMacro},
    {"MACRO", ReadMacro},
    {"F", [](LineReader& line, DeviceConf& conf,
             const DeviceInfo&) { TakeMacro(kEquationWord, line, conf.Macro); }},
}};

void MacroPool::Compose(const DeviceConf& conf, const Receiver&, int, StatementList& out) {
  out.Add(Statement("CLEARMACRO"));
  for (int place = 0; place < kMacroPlacesSent; ++place)
    if (const std::string& line = conf.Macro.LINE[place]; !line.empty()) out.Add(line);
}

void MacroPool::AsSent(DeviceConf& read, const DeviceConf& sent, const Receiver&) {
  ConfMacro held;
  int count = 0;
  for (int place = 0; place < kMacroPlacesSent; ++place)
    if (const std::string& line = sent.Macro.LINE[place]; !line.empty()) held.LINE[count++] = line;
  if (!std::ranges::equal(held.LINE, read.Macro.LINE)) return;
  std::copy_n(sent.Macro.LINE.begin(), kMacroPlacesSent, read.Macro.LINE.begin());
}

}  // namespace ostrel
