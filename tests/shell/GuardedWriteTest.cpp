#include <gmock/gmock.h>

#include "SimWorld.h"
#include "shell/writing/GuardedWrite.h"
#include "shell/writing/ModelEvidence.h"
#include "shell/writing/WriteDoubts.h"

namespace ostrel {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// A session with a logger that holds the demonstration configuration.
class Writing : public testing::Test {
 protected:
  Writing() : world(sim::MakeDefaultOptions(sim::Model::VR200)) {
    world.logger->SetConf(sim::DemoConfiguration(sim::Model::VR200));
  }

  void Begin(const std::string& model) {
    program.StartForCommand(model, 1);
    ASSERT_TRUE(program.session.Open(SimWorld::kPort, ""));
    ASSERT_TRUE(program.session.CompleteInfo());
  }
  std::vector<std::string> Doubts() const {
    std::vector<std::string> words;
    for (const Phrase& doubt : DoubtsOfWriting(program)) words.push_back(doubt.text);
    return words;
  }
  WriteRoad Road() {
    return {.read = [this] { return program.session.Download(); },
            .write = [this] { return program.session.Upload(); },
            .keep =
                [this](const DeviceConf& held) {
                  former = held;
                  return keeps;
                }};
  }
  /// Breaks the line off at the n-th request that starts in some way.
  void BreakAt(const std::string& head, int count) {
    world.logger->OnExchange([this, head, count](const sim::Exchange& e) mutable {
      if (e.request.starts_with(head) && --count == 0) program.session.BreakOff();
    });
  }

  SimWorld world;
  Configurator program{world.platform, world.Options(false)};
  DeviceConf former;
  bool keeps = true;
};

TEST_F(Writing, KeepsTheFormerAndReadsTheNewBack) {
  Begin("Ostrel VR200");
  ASSERT_TRUE(program.session.Download());
  const DeviceConf read = program.conf;
  program.conf.General.DNAME = "Nuevo";
  program.conf.Digital[0].ALARM[3].common.GPRS = kTrue;  // which emptying leaves alone
  const DeviceConf wanted = program.conf;
  const WriteResult result = WriteGuarded(program, Road());
  EXPECT_TRUE(result.IsAsSent() && result.verified);
  EXPECT_EQ(former, read);
  EXPECT_EQ(program.conf, wanted);
  EXPECT_EQ(world.logger->Conf().name, "Nuevo");
}

/// However it ends, the pages show what was to be written, and the logger holds the former or the
/// new configuration whole.
TEST_F(Writing, EndsWhereAStepFails) {
  struct Case {
    const char* head;
    int count;
    WriteEnd end;
  };
  for (const Case& c : {Case{"#42", 1, WriteEnd::NotRead}, Case{"#45005", 1, WriteEnd::NotWritten},
                        Case{"#42", 2, WriteEnd::NotReadBack}}) {
    world.logger->SetConf(sim::DemoConfiguration(sim::Model::VR200));
    Begin("Ostrel VR200");
    program.conf.General.DNAME = "Nuevo";
    const DeviceConf wanted = program.conf;
    BreakAt(c.head, c.count);
    EXPECT_EQ(WriteGuarded(program, Road()).end, c.end);
    EXPECT_EQ(program.conf, wanted);
    const bool isNew = world.logger->Conf().name == "Nuevo";
    EXPECT_EQ(isNew, c.end == WriteEnd::NotReadBack);
  }
}

/// An upload that was never verified is not what is said of a later one.
TEST_F(Writing, WordsForALaterOneAreNotThoseOfAnOlderOne) {
  const auto isUnverified = [this] {
    return program.session.FaultDuring(SessionPhase::Reading).unverified;
  };
  Begin("Ostrel VR200");
  ASSERT_TRUE(program.session.Upload());
  EXPECT_TRUE(isUnverified());
  BreakAt("#42", 1);
  EXPECT_EQ(WriteGuarded(program, Road()).end, WriteEnd::NotRead);
  EXPECT_FALSE(isUnverified()) << "the new one was not sent";
  Begin("Ostrel VR200");
  ASSERT_TRUE(program.session.Upload());
  world.logger->InFixture().Sleep();
  EXPECT_FALSE(program.session.Upload());
  EXPECT_FALSE(program.session.Download());
  EXPECT_FALSE(isUnverified()) << "whether it has the later one is not known";
}

TEST_F(Writing, NothingIsSentWithoutACopyOrAConsent) {
  Begin("Ostrel VR200");
  program.conf.General.DNAME = "Nuevo";
  keeps = false;
  EXPECT_EQ(WriteGuarded(program, Road()).end, WriteEnd::NotKept);
  keeps = true;
  WriteRoad asked = Road();
  std::vector<std::string> changes;
  asked.mayWrite = [&](const Comparison& comparison) {
    for (const Difference& one : comparison.differences) changes.push_back(one.Key());
    return false;
  };
  EXPECT_EQ(WriteGuarded(program, asked).end, WriteEnd::Declined);
  EXPECT_THAT(changes, Contains("NOMBRE"));
  EXPECT_EQ(world.logger->UploadsTaken(), 0U);
}

/// The safety copy is a reading, but not of what the pages show.
TEST_F(Writing, ADeclinedOneForgetsNotWhatTheFileLacked) {
  Begin("Ostrel VR200");
  program.SetOrigin({.isKnown = true, .lacking = Phrase("something")});
  WriteRoad road = Road();
  road.mayWrite = [](const Comparison&) { return false; };
  ASSERT_EQ(WriteGuarded(program, road).end, WriteEnd::Declined);
  EXPECT_TRUE(program.WhereFrom().lacking.has_value());
  EXPECT_TRUE(WriteGuarded(program, Road()).IsAsSent());
  EXPECT_FALSE(program.WhereFrom().lacking.has_value()) << "a logger holds just this now";
}

TEST_F(Writing, AFormerLoggersNumberIsGoneWhenAnotherIsDoubted) {
  Begin("Ostrel VR200");
  ASSERT_FALSE(program.info.SerialNumber.empty());
  program.session.Close(false);
  program.TargetDeviceChange("Ostrel KA1");
  std::string serial = "not doubted";
  program.session.OnModelDoubt = [&](const Phrase&) { serial = program.info.SerialNumber; };
  ASSERT_TRUE(program.session.Open(SimWorld::kPort, ""));
  EXPECT_EQ(serial, "");
}

TEST_F(Writing, AFailedReadingPutsBackWhatWasThere) {
  Begin("Ostrel VR200");
  program.conf.General.DNAME = "Pozo";
  program.ShowConfiguration(program.conf);
  const DeviceConf before = program.conf;
  const auto broken = program.comms.OnProgress([this](const Progress&) {
    if (program.conf.General.DNAME.empty()) program.session.BreakOff();  // it is emptied by now
  });
  EXPECT_FALSE(program.session.Download());
  EXPECT_EQ(program.conf, before);
  EXPECT_EQ(program.general.GetForm().Get<TextBox>("NameBox").Text(), "Pozo");
  EXPECT_TRUE(program.session.LastReadFailed());
}

TEST_F(Writing, DoubtsWhatHasNoOriginOrCannotBeHeld) {
  Begin("Ostrel VR200");
  EXPECT_THAT(Doubts(),
              ElementsAre("nothing has been read from a logger or opened since the program started",
                          "the configuration on the pages is empty"));
  ASSERT_TRUE(program.session.Download());
  EXPECT_THAT(Doubts(), IsEmpty());
  program.conf.General.DNAME = "Pozo, norte";
  EXPECT_THAT(Doubts(), ElementsAre("the check finds %1 error(s), the first: %2"));
  program.conf.General.DNAME = "Pozo";
  BreakAt("#42", 1);
  EXPECT_FALSE(program.session.Download());
  EXPECT_THAT(Doubts(), ElementsAre("the last reading of the logger failed"));
}

TEST_F(Writing, DoubtsAFileThatIsNotWhole) {
  Begin("Ostrel VR200");
  program.conf.General.DNAME = "Pozo";
  program.ShowConfiguration(program.conf);
  ASSERT_TRUE(program.SaveTo("/whole.ocf")->Ok());
  std::string& text = world.files.contents["/whole.ocf"];
  EXPECT_EQ(program.OpenFile("/whole.ocf"), RestoreResult::Loaded);
  EXPECT_THAT(Doubts(), IsEmpty());
  text.resize(text.size() / 2);
  EXPECT_EQ(program.OpenFile("/whole.ocf"), RestoreResult::Loaded);
  EXPECT_THAT(Doubts(), ElementsAre("the file that was opened is not whole: %1"));
  ASSERT_TRUE(program.session.Download());
  EXPECT_THAT(Doubts(), IsEmpty());
}

TEST_F(Writing, ALoggerOfAnotherModelIsDoubted) {
  std::vector<std::string> told;
  program.session.OnModelDoubt = [&](const Phrase& doubt) { told.push_back(Filled(doubt)); };
  Begin("Ostrel KA1");
  EXPECT_THAT(told, ElementsAre("the logger says that it is the model Ostrel VR200, and the model "
                                "chosen is Ostrel KA1"));
  EXPECT_TRUE(program.session.ModelDoubt());
  program.TargetDeviceChange("Ostrel VR200");
  EXPECT_FALSE(program.session.ModelDoubt());
}

TEST(ModelEvidence, AGreetingNamesTheLongestName) {
  EXPECT_EQ(ModelInGreeting("#BFOstrel KA2 v3.25"), "Ostrel KA2");
  EXPECT_EQ(ModelInGreeting("#BFTAVRO_BQ"), "Tavro BQ");
  EXPECT_EQ(ModelInGreeting("#BFTAVRO"), "Tavro BP");
  EXPECT_EQ(ModelInGreeting("#BF"), "");
}

TEST(ModelEvidence, ChannelsTellWhatFits) {
  const auto same = [](std::string_view text) { return std::string(text); };
  TargetProfile profile;
  SelectTarget(profile, "Ostrel KA1");
  DeviceConf held = EmptyConfiguration(profile, same);
  EXPECT_EQ(ModelsThatFit(held, profile, same).size(), 6U);
  held.Digital[5].NOMBRE = "door";
  EXPECT_THAT(ModelsThatFit(held, profile, same),
              ElementsAre("Ostrel KA1", "Ostrel KA2", "Ostrel VR200", "Tavro BP"));
  held.Analog[3].NOMBRE = "level";
  EXPECT_THAT(ModelsThatFit(held, profile, same), ElementsAre("Ostrel VR200", "Tavro BP"));
}

}  // namespace
}  // namespace ostrel
