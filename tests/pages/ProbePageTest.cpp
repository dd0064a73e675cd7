#include "PageFixture.h"
#include "pages/inputs/E_OneWire.h"

namespace ostrel {
namespace {

class ProbePage : public PageFixture {
 protected:
  ProbePage() {
    Start(probe);
    context.readProbeIdentity = [this] { return answer; };
  }

  E_OneWire probe{context};
  TextBox& first = On<TextBox>(probe, "ID0");
  TextBox& second = On<TextBox>(probe, "ID1");
  Button& read = On<Button>(probe, "BotonLeerId");
  std::optional<ProbeIdentity> answer;
};

TEST_F(ProbePage, ItsIdentityIsReadFromTheOneThatIsConnected) {
  EXPECT_EQ(first.Text(), "000.000.000.000") << "three digits an octet, as emptied";
  EXPECT_EQ(Enabled(probe, {"ID0", "ID1", "BotonLeerId"}), "000");
  Choose(probe, "OptionId");
  EXPECT_EQ(Enabled(probe, {"ID0", "ID1", "BotonLeerId"}), "111");
  read.Click();
  EXPECT_EQ(dialogs.boxes.at(0).text, "Recuerde que solo debe haber una sonda conectada");
  EXPECT_EQ(first.Text(), "000.000.000.000");
  context.readProbeIdentity = [&] {
    probe.ChangeIndex(1);
    return std::optional<ProbeIdentity>({"001.001.001.001", "001.001.001.001"});
  };
  read.Click();
  EXPECT_EQ(first.Text(), "000.000.000.000") << "another probe was opened meanwhile";
}

TEST_F(ProbePage, ItsIdentityIsLostWithItsOption) {
  Choose(probe, "OptionId");
  answer = {"040.113.000.000", "000.000.000.011"};
  read.Click();
  EXPECT_EQ(conf.OneWire[0].ADDRESS1, "0") << "only a commit reaches the model";
  probe.SavePage();
  EXPECT_EQ(conf.OneWire[0].ADDRESS2, "000.000.000.011");
  probe.LoadData();
  EXPECT_EQ(first.Text(), "040.113.000.000") << "showing loses nothing";
  for (const auto* option : {"OptionNoId", "OptionId"}) {
    Choose(probe, option);
    EXPECT_EQ(first.Text() + second.Text(), "000.000.000.000000.000.000.000") << option;
  }
}

}  // namespace
}  // namespace ostrel
