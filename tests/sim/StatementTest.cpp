#include <gmock/gmock.h>

#include <fstream>

#include "sim/Random.h"
#include "sim/wire/LineComposer.h"
#include "sim/wire/StatementParser.h"

namespace ostrel::sim {
namespace {

using testing::Contains;
using testing::Not;
using testing::StartsWith;

constexpr std::uint32_t kAllFeatures = 0xFFFFFFFF;

/// The statement with up to three characters lost, turned or put in.
std::string Damaged(std::string statement, Random& random) {
  for (int hits = random.Between(1, 3); hits > 0 && !statement.empty(); --hits) {
    const auto at = static_cast<std::size_t>(random.Next() % statement.size());
    const int way = random.Between(0, 2);
    if (way == 0) statement.erase(at, 1);
    if (way == 1) statement[at] = static_cast<char>(random.Between(0, 255));
    if (way == 2) statement.insert(at, 1, random.Pick(std::string_view(", -=+0129.EA#\r{")));
  }
  return statement;
}

/// Takes statements; damaged ones are refused or leave something sound.
void Say(const std::string& statement, const Identity& self, Configuration& conf, Random& random) {
  const Configuration before = conf;
  EXPECT_EQ(ApplyStatement(statement, self, conf), "") << statement;
  for (int round = 0; round < 100; ++round) {
    const std::string damaged = Damaged(statement, random);
    Configuration spoilt = before;
    if (!ApplyStatement(damaged, self, spoilt).empty()) continue;
    for (const std::string& record : ConfigurationRecords(spoilt, self))
      ASSERT_EQ(record.find_first_of("\r\n"), std::string::npos) << "after " << damaged;
  }
}

/// Paragraphs of statements that a model takes ("<"), perhaps without some features, each with the
/// record (">") in which the last one shows; of statements that it refuses ("!"); and of records
/// that it does not tell ("~").
TEST(SimStatement, ShowsInItsRecordOrIsRefused) {
  std::ifstream goldens(OSTREL_GOLDEN_STATEMENTS);
  ASSERT_TRUE(goldens.is_open());
  Random random(77);
  for (std::string line; std::getline(goldens, line);) {
    SCOPED_TRACE(line);
    Identity self{ParseModel(line.substr(0, line.find(' '))).value(), kAllFeatures};
    if (line.find(" without ") != std::string::npos)
      self.features &=
          ~static_cast<std::uint32_t>(std::stoul(line.substr(line.rfind(' ')), nullptr, 16));
    Configuration conf;
    while (std::getline(goldens, line) && !line.empty()) {
      const std::string text = line.substr(2);
      if (line[0] == '<') Say(text, self, conf, random);
      EXPECT_TRUE(line[0] != '>' ||
                  testing::Value(ConfigurationRecords(conf, self), Contains(text)))
          << text;
      EXPECT_TRUE(line[0] != '~' ||
                  !testing::Value(ConfigurationRecords(conf, self), Contains(StartsWith(text))))
          << text;
      EXPECT_TRUE(line[0] != '!' || !ApplyStatement(text, self, conf).empty()) << text;
    }
  }
  Configuration conf;
  for (const char* control : {"ID=a\tb", "ID=a\x7F"})
    EXPECT_NE(ApplyStatement(control, {Model::BP, kAllFeatures}, conf), "");
}

TEST(SimStatement, TakingOutAlarmsAndInputs) {
  const Identity self{Model::VR200, kAllFeatures};
  Configuration conf;
  conf.digitals[1].name = "kept";
  conf.digitals[1].alarms[2] = {.text = "gone", .week = 127};
  conf.analogs[3].name = "gone";
  conf.analogs[3].interface = Interface::Volts5;
  conf.analogs[3].scale.valueAtEnd = 5;
  conf.analogs[3].alarms[0] = {.text = "kept", .week = 1};
  conf.analogs[3].alarms[3] = {.text = "gone", .week = 1};
  conf.flagAlarms[4] = {.text = "gone", .week = 1};
  conf.macros = {"MACRO0={X}"};
  conf.phones[0].number = "600";
  for (const char* statement :
       {"-ALMD1,INDEX= 2", "DISAI3", "-ALMA3,INDEX= 3", "-ALMF4,INDEX= 0", "CLEARMACRO", "CLRTLF"})
    EXPECT_EQ(ApplyStatement(statement, self, conf), "") << statement;
  Configuration rest;
  rest.digitals[1].name = "kept";
  rest.analogs[3].alarms[0] = {.text = "kept", .week = 1};
  EXPECT_EQ(conf, rest);
}

/// Programs send these blocks to a Tavro that is chosen behind another model.
TEST(SimStatement, ATavroPassesOverModbusAndProbes) {
  for (const Model model : {Model::BP, Model::BQ}) {
    const Identity self{model, TraitsOf(model).features};
    Configuration conf;
    for (const char* statement : {"BAUD= 9600", "DISMB31", "-ALMMB0,INDEX= 0", "DISONEW0"})
      EXPECT_EQ(ApplyStatement(statement, self, conf), "") << statement;
    EXPECT_EQ(conf, Configuration());
    for (const char* head : {"MODBUS", "ONEWIRE"})
      EXPECT_THAT(ConfigurationRecords(conf, self), Not(Contains(StartsWith(head))));
  }
}

TEST(SimStatement, AnExpansionInputForgetsWhatItsFormerModeHeld) {
  const Identity self{Model::S100, kAllFeatures};
  Configuration conf;
  const auto say = [&](const char* statement) {
    EXPECT_EQ(ApplyStatement(statement, self, conf), "") << statement;
  };
  const char* const digital = "EXPINPUTDCONF4=x,ADRS= 1,chanel= 2,group= 3,NC";
  const char* const alarm = "+ALMEXPINPUTD4=a,INDEX= 0,PC= 5,PO= 5,EQ= 2,ACTCLOSE=,ACTOPEN=";
  say(digital);
  say(alarm);
  say(digital);
  EXPECT_EQ(conf.expansion[4].alarms[0].text, "a") << "the mode is the same";
  say("EXPINPUTCCONF4=y,ADRS= 1,chanel= 2,group= 3,UNIT=m,RATIO=2");
  EXPECT_EQ(conf.expansion[4].alarms, ExpansionInput().alarms);
  EXPECT_NE(ApplyStatement(alarm, self, conf), "");
  say("DISEXPINPUT4");
  EXPECT_EQ(conf, Configuration());
  EXPECT_THAT(ConfigurationRecords(conf, self),
              testing::Not(testing::Contains(testing::StartsWith("EXPINPUT"))));
}

TEST(SimStatement, TheListHasTwentySlots) {
  const Identity self{Model::KA1, 0};
  Configuration conf;
  conf.phones[3].number = "600";
  int taken = 0;
  while (ApplyStatement("+TLF=60" + std::to_string(taken) + ",Prio=0,PRV0", self, conf).empty())
    ++taken;
  EXPECT_EQ(taken, 19);
  EXPECT_EQ(conf.phones[2].number, "602");
  EXPECT_EQ(conf.phones[3].number, "600");
  EXPECT_EQ(conf.phones[4].number, "603");
}

TEST(SimStatement, MacrosShareAMemoryOf1024Characters) {
  const Identity self{Model::KA1, kAllFeatures};
  Configuration conf;
  const auto add = [&](std::size_t length) {
    return ApplyStatement("F0={" + std::string(length - 5, 'x') + "}", self, conf).empty();
  };
  EXPECT_TRUE(add(1000));
  EXPECT_FALSE(add(25));
  EXPECT_TRUE(add(24)) << "the same number stands twice";
  EXPECT_FALSE(add(5));
  EXPECT_EQ(conf.macros.size(), 2U);
  EXPECT_EQ(ApplyStatement("CLEARMACRO", self, conf), "");
  int lines = 0;
  while (add(5)) ++lines;
  EXPECT_EQ(lines, 56) << "programs hold no more lines";
}

}  // namespace
}  // namespace ostrel::sim
