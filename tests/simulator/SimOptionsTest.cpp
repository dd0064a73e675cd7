#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>
#include <vector>

#include "simulator/SimOptions.h"

namespace ostrel {
namespace {

using testing::HasSubstr;

TEST(SimOptions, AreReadOrRefusedInOneLine) {
  const auto parse = [](std::vector<std::string> args, SimOptions& options, std::string& said) {
    std::ostringstream out, err;
    ExitCode code = ExitCode::Done;
    const bool goesOn = ParseSimOptions(args, options, out, err, code);
    said = err.str() + out.str();
    return goesOn ? -1 : static_cast<int>(code);
  };
  SimOptions options;
  std::string said;
  EXPECT_EQ(
      parse({"--model", "ka2", "--features", "401", "--pace", "--modem", "--code", "77", "--fault",
             "silent", "--fault", "drop-octet@3!once", "--seed", "9", "--serial", "-1"},
            options, said),
      -1);
  EXPECT_EQ(options.logger.model, sim::Model::KA2);
  EXPECT_EQ(options.logger.features, 0x401U);
  EXPECT_EQ(options.logger.faults.size(), 2U);
  EXPECT_EQ(options.logger.accessCode, "77");
  EXPECT_EQ(options.logger.serial, "-1");
  EXPECT_TRUE(options.isPaced && options.logger.modem);
  for (const auto& [words, says] : std::vector<std::pair<std::vector<std::string>, std::string>>{
           {{"--model", "X"}, "there is no model X"},
           {{"--features", "x"}, "no hexadecimal mask"},
           {{"--fault", "fly"}, "fault fly: "},
           {{"--nonsense"}, "--nonsense"}}) {
    SimOptions other;
    EXPECT_EQ(parse(words, other, said), 2);
    EXPECT_THAT(said, HasSubstr(says));
    EXPECT_EQ(std::ranges::count(said, '\n'), 1);
  }
  EXPECT_EQ(parse({"--help"}, options, said), 0);
  EXPECT_THAT(said, HasSubstr("refuse-statement"));
}

TEST(SimOptions, AnExchangeIsOneLine) {
  EXPECT_EQ(ExchangeLine({.at = std::chrono::milliseconds(1042),
                          .request = "#42",
                          .reply = "#BD000DNAME,Dep\xF3sito",
                          .frames = 3,
                          .note = "all"}),
            "1.042  #42 -> #BD000DNAME,Dep\xC3\xB3sito and 2 more  (all)");
  EXPECT_EQ(ExchangeLine({.at = {},
                          .request = "#42",
                          .reply = "#BD007GPRS,apn,clave,user,1,2,3,1.2.3.4,5,6,0,1",
                          .note = {}}),
            "0.000  #42 -> #BD007GPRS,apn,****,user,1,2,3,1.2.3.4,5,6,0,1");
  for (const auto& [request, told] : std::vector<std::pair<std::string, std::string>>{
           {"#114711", "#11****"},
           {"#45101APNPASS=clave", "#45101APNPASS=****"},
           {"#45111FTPPASS=clave", "#45111FTPPASS=****"},
           {"#45111DINAME0=a#11b", "#45111DINAME0=a#11b"}})
    EXPECT_EQ(ExchangeLine({.at = {}, .request = request, .reply = {}, .note = {}}),
              "0.000  " + told);
}

}  // namespace
}  // namespace ostrel
