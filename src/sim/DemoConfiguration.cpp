#include <stdexcept>
#include <string>

#include "sim/StatementParser.h"
#include "sim/blocks/Block.h"

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
  // What is kept as text.
  const ModelTraits& traits = self.Traits();
  demo.SayEach({"FLOWCONF?=Caudal entrada,UNIT=m\xB3/h,TB= 60,REGDAYMIN,RATIO=0.1",
                "FLOWCONF?=Caudal salida,UNIT=m\xB3/h,TB= 60,REGDAYMIN,RATIO=0.1",
                "FLOWCONF?=Riego parque,UNIT=l/min,TB= 30,REGDAYMIN,RATIO=1"},
               traits.flows);
  demo.SayEach({"MCCONF?=Balance,UNIT=m\xB3/h,EQ=Q0-Q1"}, traits.maths);
  demo.SayEach({"MBCONF?=Energ\xED"
                "a bomba 1,UNIT=kWh",
                "MBCONF?=Energ\xED"
                "a bomba 2,UNIT=kWh",
                "MBCONF?=Tensi\xF3n L1,UNIT=V"},
               traits.modbus);
  demo.SayEach({"EXPINPUTDCONF?=Puerta caseta", "EXPINPUTCCONF?=Contador barrio alto",
                "EXPINPUTACONF?=Nivel pozo 3,UNIT=m"},
               traits.modules);
  return conf;
}

}  // namespace ostrel::sim
