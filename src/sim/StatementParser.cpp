#include "sim/StatementParser.h"

#include <algorithm>

#include "sim/KeptStatements.h"
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

/// Hands a statement to the block that knows its word. Returns whether there is one.
bool ApplyByBlock(std::string_view word, const Work& w) {
  for (const Block* block : Blocks()) {
    const auto rule = std::ranges::find(block->rules, word, &StatementRule::word);
    if (rule == block->rules.end()) continue;
    if (!block->stands(w.self) || !w.self.Has(rule->features))
      w.in.Fail("unknown to this logger");
    else
      rule->apply(w);
    return true;
  }
  return false;
}

}  // namespace

std::string ApplyStatement(std::string_view statement, const Identity& self, Configuration& conf) {
  if (HasControls(statement)) return "control character in the statement";
  const std::string_view word = LeadingWord(statement);
  StatementCursor in(statement.substr(word.size()));
  if (!ApplyByBlock(word, {in, self, conf}) && !KeepStatement(word, statement, in, self, conf))
    in.Fail("unknown statement");
  return in.Why();
}

}  // namespace ostrel::sim
