#include <stdexcept>
#include <string>

#include "sim/blocks/Block.h"
#include "sim/wire/StatementParser.h"

namespace ostrel::sim {

void Demonstration::Say(std::string_view statement) {
  const std::string why = ApplyStatement(statement, self_, conf_);
  if (!why.empty()) throw std::logic_error("demo statement " + std::string(statement) + ": " + why);
}

void Demonstration::SayAll(std::initializer_list<std::string_view> statements) {
  for (const std::string_view statement : statements) Say(statement);
}

void Demonstration::SayEach(std::initializer_list<std::string_view> patterns, int channels) {
  int channel = 0;
  for (const std::string_view pattern : patterns) {
    if (channel == channels) return;
    std::string statement(pattern);
    Say(statement.replace(statement.find('?'), 1, std::to_string(channel++)));
  }
}

Configuration DemoConfiguration(Model model) {
  const Identity self{model, TraitsOf(model).features};
  Configuration conf;
  Demonstration demo(self, conf);
  for (const Block* block : Blocks()) {
    if (block->stands(self)) block->demonstrate(demo);
  }
  return conf;
}

}  // namespace ostrel::sim
