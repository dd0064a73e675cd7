#include <gmock/gmock.h>

#include <map>

#include "SimWorld.h"

namespace ostrel {
namespace {

/// How a statement begins, up to its first number or sign: "DINAME", "-ALMD".
std::string HeadOf(const std::string& statement) {
  const auto isPlain = [](char c) { return c >= 'A' && c <= 'Z'; };
  const auto end = std::find_if_not(statement.begin() + 1, statement.end(), isPlain);
  return {statement.begin(), end};
}

/// The heads of a whole upload in the order in which they first come, each with its count.
std::string Heads(const std::vector<std::string>& statements) {
  std::vector<std::string> order;
  std::map<std::string, int> counts;
  for (const std::string& statement : statements)
    if (counts[HeadOf(statement)]++ == 0) order.push_back(HeadOf(statement));
  std::string heads;
  for (const std::string& head : order) heads += head + " " + std::to_string(counts[head]) + ", ";
  return heads;
}

TEST(Orders, AnUploadSendsItsBlocksInTheOrderThatLoggersExpect) {
  constexpr std::string_view kFlows8 = "FLOWCONF 8, TOTALRATIO 8, -ALMFLOW 32, ";
  constexpr std::string_view kFlows2 = "FLOWCONF 2, TOTALRATIO 2, -ALMFLOW 8, ";
  const auto inputs = [](std::string_view digitals, std::string_view analogs,
                         std::string_view flows, std::string_view behindFlags) {
    return std::string(digitals).append(analogs).append(flows).append(behindFlags);
  };
  for (const auto& [model, rest] : std::vector<std::pair<std::string, std::string>>{
           {"Ostrel KA1",
            inputs("DINAME 8, -ALMD 32, ", "", kFlows8, "-ALMF 16, DISONEW 4, -ALMOW 16, ")},
           {"Ostrel KA2",
            inputs("DINAME 9, -ALMD 36, ", "", kFlows8, "-ALMF 16, DISONEW 4, -ALMOW 16, ")},
           {"Ostrel VR200", inputs("DINAME 8, -ALMD 32, ", "DISAI 4, -ALMA 16, ", kFlows8,
                                   "AGRP 4, -ALMF 16, BAUD 1, MBSLAVE 1, MBSLAVEADD 1, MBCONF 4, "
                                   "-ALMMB 32, DISMB 28, ")},
           {"Ostrel S100", inputs("DINAME 2, -ALMD 8, ", "DISAI 2, -ALMA 8, ", kFlows2,
                                  "AGRP 2, -ALMF 16, DISEXPINPUT 96, ")},
           {"Tavro BP",
            inputs("DINAME 8, -ALMD 32, ", "DISAI 4, -ALMA 16, ", kFlows8, "AGRP 4, -ALMF 16, ")},
           {"Tavro BQ",
            inputs("DINAME 4, -ALMD 16, ", "DISAI 1, -ALMA 4, ", kFlows2, "AGRP 1, -ALMF 16, ")}}) {
    const std::string start =
        std::string("ID 1, CSM 1, PTLF 1, REST 1, RETRYMAX 1, RETRYTIME 1, ") +
        (model == "Tavro BQ" ? "SAMPLERATE 1, " : "") +
        "CLRTLF 1, +TLF 2, -LT 16, -CT 16, -WT 16, -MT 16, ";
    World world;
    Configurator program(world.platform, world.Options(false));
    program.StartForCommand(model, 1);
    program.conf.Phone[0].TLF = program.conf.Phone[7].TLF = "600";
    program.conf.Macro.LINE[39] = "MACRO0={X}";
    program.info.Features = -1;
    EXPECT_EQ(Heads(program.comms.ComposeStatements()),
              start + rest +
                  "DISMC 4, -ALMM 4, CLEARMACRO 1, MACRO 1, "
                  "APNSERVER 1, APNPASS 1, APNUSER 1, APNRETRIES 1, APNRETRYTIME 1, APNTIMEOUT 1, "
                  "APNALCON 1, SERVERIP 1, SERVERPORT 1, SERVERTIMEOUT 1, GPRSDIS 1, FTPIP 1, "
                  "FTPPATH 1, FTPUSER 1, FTPPASS 1, FTPRETRIES 1, FTPRETRYTIME 1, ")
        << model;
  }
}

/// A page without a place in the one order would show a former configuration's settings as the
/// logger's, without a place in the other the former ones.
TEST(Orders, ADownloadEmptiesAllPagesAndThenShowsThem) {
  sim::LoggerOptions options = sim::MakeDefaultOptions(sim::Model::BP);
  SimWorld world(options);
  world.logger->SetConf(sim::RandomConfiguration(options.model, options.features, 3, 1.0));
  Configurator program(world.platform, world.Options(false));
  program.StartForCommand(world.TargetName(), 1);
  ASSERT_TRUE(program.session.Open(SimWorld::kPort, ""));
  ASSERT_TRUE(program.session.Download());
  std::vector<std::string> order;
  for (Form* form : program.Forms())
    for (const ControlRef& control : form->Controls())
      if (std::holds_alternative<TextBox*>(control) || std::holds_alternative<ComboBox*>(control) ||
          std::holds_alternative<TimePicker*>(control))
        FaceOf(control).OnChanged = [&order, form] {
          if (order.empty() || order.back() != form->Name()) order.push_back(form->Name());
        };
  ASSERT_TRUE(program.session.Download());
  const std::vector<std::string> pages{"Caudal",  "CTimer", "E_Analog",  "E_Math", "E_Digital",
                                       "General", "Grupos", "LTimer",    "WTimer", "MTimer",
                                       "GPRS",    "Flags",  "SampleRate"};
  std::vector<std::string> emptiedThenShown = pages;
  emptiedThenShown.insert(emptiedThenShown.end(), pages.begin(), pages.end());
  EXPECT_EQ(order, emptiedThenShown);
}

}  // namespace
}  // namespace ostrel
