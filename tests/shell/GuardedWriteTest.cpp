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
  explicit Writing(const sim::LoggerOptions& options = sim::MakeDefaultOptions(sim::Model::VR200))
      : world(options) {
    world.logger->SetConf(sim::DemoConfiguration(options.model));
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
  bool staysAllTheWhile = true;
  world.logger->OnExchange(
      [&](const sim::Exchange&) { staysAllTheWhile = staysAllTheWhile && program.conf == wanted; });
  const WriteResult result = WriteGuarded(program, Road());
  EXPECT_TRUE(staysAllTheWhile);
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

sim::LoggerOptions GreetingBare(sim::Model model) {
  sim::LoggerOptions options = sim::MakeDefaultOptions(model);
  options.greetsBare = true;
  return options;
}

/// A logger whose greeting does not tell what it is.
class WritingUnnamed : public Writing {
 protected:
  WritingUnnamed() : Writing(GreetingBare(sim::Model::VR200)) {
    program.session.OnModelDoubt = [this](const Phrase& doubt) { told.push_back(Filled(doubt)); };
  }

  static constexpr const char* kFitsVR200 =
      "what was read from the logger fits the model Ostrel VR200, and the model chosen is Ostrel "
      "KA1";
  std::vector<std::string> told;
};

TEST_F(WritingUnnamed, WhatIsReadAheadTellsOfAnotherModel) {
  Begin("Ostrel KA1");
  ASSERT_FALSE(program.session.ModelDoubt());
  program.conf.General.DNAME = "Nuevo";
  std::vector<std::string> asked;
  WriteRoad road = Road();
  road.inSpiteOf = [&](const Phrase& doubt) {
    asked.push_back(Filled(doubt));
    return false;
  };
  EXPECT_EQ(WriteGuarded(program, road).end, WriteEnd::Declined);
  EXPECT_THAT(asked, ElementsAre(kFitsVR200));
  EXPECT_EQ(world.logger->UploadsTaken(), 0U);
  EXPECT_THAT(told, IsEmpty()) << "it was asked about";
  EXPECT_NE(WriteGuarded(program, road).end, WriteEnd::Declined)
      << "whoever writes knows it by now, and has been asked";
}

TEST_F(WritingUnnamed, AReadingTellsOfAnotherModelOnce) {
  Begin("Ostrel KA1");
  for (int i = 0; i < 2; ++i) EXPECT_TRUE(program.session.Download());
  EXPECT_THAT(told, ElementsAre(kFitsVR200));
}

/// Emptying leaves lists of actions and what is told by GPRS alone: what a larger model left there
/// is no evidence.
TEST_F(WritingUnnamed, ASmallerModelBehindALargerOneIsNotDoubted) {
  sim::Logger* small = nullptr;
  world.port.AddDevice(8, "small", "", [&](LineEnd& end) {
    auto made = std::make_unique<sim::Logger>(world.loop, end, GreetingBare(sim::Model::BQ));
    small = made.get();
    return made;
  });
  Begin("Ostrel VR200");
  ASSERT_TRUE(program.session.Download());
  program.conf.Digital[6].ALARM[0].common.ACTHI[0] = 3;
  program.session.Close(false);
  program.TargetDeviceChange("Tavro BQ");
  ASSERT_TRUE(program.session.Open(8, ""));
  ASSERT_TRUE(program.session.Download());
  EXPECT_THAT(told, IsEmpty());
}

TEST(WritingNames, CountsOfNamesTellOfAnotherModelAtTheOpening) {
  sim::LoggerOptions options = GreetingBare(sim::Model::BQ);
  options.tellsOwnNames = true;
  SimWorld world(options);
  Configurator program(world.platform, world.Options(false));
  std::vector<std::string> told;
  program.session.OnModelDoubt = [&](const Phrase& doubt) { told.push_back(Filled(doubt)); };
  program.StartForCommand("Ostrel VR200", 1);
  ASSERT_TRUE(program.session.Open(SimWorld::kPort, ""));
  EXPECT_THAT(told, ElementsAre("what was read from the logger fits the model Tavro BQ, and the "
                                "model chosen is Ostrel VR200"));
}

TEST_F(Writing, ALoggerThatDoesNotTellWhoItIsIsDoubted) {
  Begin("Ostrel VR200");
  ASSERT_TRUE(program.session.Download());
  program.session.Close(false);
  world.logger->OnExchange([this](const sim::Exchange& e) {
    if (e.request.starts_with("#40")) world.logger->InFixture().Sleep();
  });
  ASSERT_TRUE(program.session.Open(SimWorld::kPort, ""));
  EXPECT_THAT(Doubts(), Contains("the logger greets, and does not tell who it is: it may have no "
                                 "firmware"));
}

TEST(ModelEvidence, AGreetingNamesTheLongestName) {
  EXPECT_EQ(ModelInGreeting("#BFOstrel KA2 v3.25"), "Ostrel KA2");
  EXPECT_EQ(ModelInGreeting("#BFTAVRO_BQ"), "Tavro BQ");
  EXPECT_EQ(ModelInGreeting("#BFTAVRO"), "Tavro BP");
  EXPECT_EQ(ModelInGreeting("#BF"), "");
}

/// The words of the models of a set.
std::string WordsOfModels(const ModelSet& models) {
  std::string words;
  for (std::size_t i = 0; i < models.size(); ++i)
    if (models[i]) words += std::string(TargetModels()[i].word) + ' ';
  return words;
}

TEST(ModelEvidence, TheLinesOfAStreamTellWhatFits) {
  constexpr const char* kAll = "KA1 KA2 VR200 S100 BQ BP ";
  const std::pair<const char*, const char*> kCases[] = {
      {"DIGITAL,2,,0", kAll},  // one more than an S100 has: a flow's total is counted beside
      {"DIGITAL,4,,0", "KA1 KA2 VR200 BQ BP "},
      {"DIGITAL.ALM,5,0,", "KA1 KA2 VR200 BP "},
      {"ANALOG,0,", "VR200 S100 BQ BP "},
      {"ANALOG.ACT,3,0", "VR200 BP "},
      {"CAUDAL,3,", "KA1 KA2 VR200 BP "},
      {"MODBUS.PRM,9600", "VR200 "},
      {"MODBUS,31,", "VR200 "},
      {"ONEWIRE,0,", "KA1 KA2 "},
      {"AUX,3,", "KA1 KA2 "},
      {"KTX,10,20", "KA1 KA2 "},
      {"EXPINPUT.A.ALM,95,0", "S100 "},
      {"EXPINPUTS,95", kAll},
      {"FLAG.ALM,15,0", kAll}};
  for (const auto& [line, models] : kCases)
    EXPECT_EQ(WordsOfModels(ModelsOfStream(std::vector{"#BD000" + std::string(line)})), models)
        << line;
}

TEST(ModelEvidence, TheCountsOfNamesTellWhatFits) {
  const std::pair<NameAnswer, const char*> kCases[] = {{{"#DA", 24}, "KA1 KA2 VR200 S100 BQ BP "},
                                                       {{"#DA", 12}, "KA1 KA2 S100 BQ "},
                                                       {{"#D9", 2}, "S100 BQ "},
                                                       {{"#D8", 4}, "S100 BQ "},
                                                       {{"#D3", 124}, "KA1 KA2 S100 BQ BP "},
                                                       {{"#CA", 12}, "VR200 S100 BQ BP "},
                                                       {{"#D4", 14}, "KA1 KA2 VR200 BQ BP "}};
  for (const auto& [told, models] : kCases)
    EXPECT_EQ(WordsOfModels(ModelsOfNames({&told, 1})), models) << told.head << ' ' << told.fields;
}

}  // namespace
}  // namespace ostrel
