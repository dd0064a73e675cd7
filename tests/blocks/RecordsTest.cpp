#include <fstream>

#include "BlockFixture.h"

namespace ostrel {
namespace {

using enum PageId;

class Records : public BlockFixture {
 protected:
  Records() { info.Features = kEveryFeature; }

  /// The statements of an upload that an empty configuration does not make.
  std::string NewStatements() const {
    const Receiver receiver{profile, info.Features};
    const auto former = ComposeStatements(EmptyConfiguration(profile, translate), receiver);
    std::string made;
    for (const std::string& one : ComposeStatements(conf, receiver))
      if (std::ranges::count(former, one) == 0) made += "> " + one + "\n";
    return made;
  }
};

/// Paragraphs of lines ("<") that a logger of a model sends, perhaps without some features; of the
/// fields ("=") that they fill, as a file names and orders them, unless these are not of interest;
/// and of the statements (">") that these make.
TEST_F(Records, AreReadAndSentAsIsGolden) {
  std::ifstream goldens(OSTREL_GOLDEN_RECORDS);
  ASSERT_TRUE(goldens.is_open());
  for (std::string line; std::getline(goldens, line);) {
    const std::string model = line.substr(0, line.find(" without "));
    if (model.empty()) continue;
    SCOPED_TRACE(line);
    Use(model);
    info.Features = kEveryFeature;
    if (model != line) info.Features &= ~std::stoi(line.substr(line.rfind(' ')), nullptr, 16);
    std::string fields, statements;
    while (std::getline(goldens, line) && !line.empty()) {
      if (line[0] == '<') Receive(line.substr(2));
      if (line[0] == '=') fields += line.substr(2) + " ";
      if (line[0] == '>') statements += line + "\n";
    }
    EXPECT_TRUE(fields.empty() || Changes() == fields) << Changes();
    EXPECT_EQ(NewStatements(), statements);
  }
}

TEST_F(Records, ThatAModelLacksAreNotSent) {
  for (const PageId page : {CONF_MODBUS, E_MODBUS, E_OneWire, E_Modular, E_Aux})
    EXPECT_TRUE(Statements(page).empty());
  for (const int count : {4, 2, 0}) {
    profile.AnalogCount = static_cast<std::int16_t>(count);
    EXPECT_EQ(Statements(Grupos).size(), std::size_t(count));
  }
}

}  // namespace
}  // namespace ostrel
