#include <gmock/gmock.h>

#include <QTemporaryDir>
#include <fstream>
#include <iterator>

#include "host/GrowingFiles.h"

namespace ostrel {
namespace {

class GrowingFiles : public testing::Test {
 protected:
  std::string Path(const std::string& name) const {
    return folder_.path().toStdString() + "/" + name;
  }
  std::string Read(const std::string& name) const {
    std::ifstream file(Path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  /// What opening a trace, or another kind, says; it writes a line where it can.
  std::string Open(const std::string& name, decltype(OpenTrace)* open = OpenTrace) const {
    std::string why;
    if (const auto file = open(Path(name), why)) *file << "        0 TxSer: #40" << std::endl;
    return why;
  }

  QTemporaryDir folder_;
};

TEST_F(GrowingFiles, ReplacesATraceAndNothingElse) {
  const std::string configuration = "[General]\r\nVERSION=TAVRO\r\nNOMBRE=x";
  std::ofstream(Path("site.ocf"), std::ios::binary) << configuration;
  std::ofstream(Path("empty")) << "";
  std::ofstream(Path("old")) << "       12 RxSer Checksum error!\n" << std::string(9000, 'x');
  std::ofstream(Path("notes")) << "octets each: 40\n";
  for (const char* name : {"site.ocf", "notes"})
    EXPECT_EQ(Open(name), "it holds something else than a trace");
  EXPECT_EQ(Read("site.ocf"), configuration);
  for (const char* name : {"empty", "old", "new", "old"}) {
    EXPECT_EQ(Open(name), "") << name;
    EXPECT_EQ(Read(name), "        0 TxSer: #40\n") << name;
  }
}

TEST_F(GrowingFiles, ALogIsAddedToAndNothingElse) {
  std::ofstream(Path("site.ocf"), std::ios::binary) << "[General]\r\nVERSION=TAVRO";
  EXPECT_EQ(Open("site.ocf", OpenLog), "it holds something else than a console log");
  EXPECT_EQ(Read("site.ocf"), "[General]\r\nVERSION=TAVRO");
  std::string held = "Ostrel console log\n";
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(Open("log", OpenLog), "");
    EXPECT_EQ(Read("log"), held += "        0 TxSer: #40\n");
  }
}

}  // namespace
}  // namespace ostrel
