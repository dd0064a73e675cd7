#include "sim/wire/StatementParser.h"

#include <algorithm>

#include "sim/blocks/Block.h"

namespace ostrel::sim {
namespace {

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

/// Programs keep the counts of MODBUS channels and probes when a Tavro is chosen behind another
/// model, and then send it those blocks. It has neither, and passes over them.
bool PassesOver(const Block& block, const Identity& self) {
  const bool isTavro = self.model == Model::BP || self.model == Model::BQ;
  return isTavro &&
         (&block == &kModbusBusBlock || &block == &kModbusBlock || &block == &kProbeBlock);
}

/// Hands a statement to the block that knows its word.
void ApplyByBlock(std::string_view word, const Work& w) {
  for (const Block* block : Blocks()) {
    const auto rule = std::ranges::find(block->rules, word, &StatementRule::word);
    if (rule == block->rules.end()) continue;
    if (PassesOver(*block, w.self)) return;
    if (!block->stands(w.self) || !w.self.Has(rule->features))
      return w.in.Fail("unknown to this logger");
    return rule->apply(w);
  }
  w.in.Fail("unknown statement");
}

}  // namespace

std::string ApplyStatement(std::string_view statement, const Identity& self, Configuration& conf) {
  if (HasControls(statement)) return "control character in the statement";
  const std::string_view word = LeadingWord(statement);
  StatementCursor in(statement.substr(word.size()));
  ApplyByBlock(word, {statement, in, self, conf});
  return in.Why();
}

}  // namespace ostrel::sim
