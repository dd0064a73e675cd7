#include <gmock/gmock.h>

#include "World.h"
#include "blocks/expansion/ExpansionInputs.h"
#include "shell/acceptance/AcceptanceFile.h"
#include "shell/report/Commissioning.h"
#include "shell/words/FieldWords.h"

namespace ostrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

const AcceptancePoint kPumpTried{.node = "E_Digital_0",
                                 .kind = "digital input",
                                 .name = "pump",
                                 .verdict = Verdict::Passed,
                                 .note = "tried",
                                 .time = DateTime{2026, 3, 2, 9, 5, 7}};

/// A configured VR200.
struct Handover {
  Handover() {
    SelectTarget(work.configuration.profile, "Ostrel VR200");
    work.configuration.conf = EmptyConfiguration(work.configuration.profile, InEnglish);
    work.madeAt = {2026, 3, 2, 9, 5, 7};
  }
  DeviceConf& Conf() { return work.configuration.conf; }
  Report Make() { return CommissioningReport(work, {"en", InEnglish, InEnglish}, world.files); }
  /// The rows of the table with a caption, or of the first one of a section.
  std::vector<std::vector<std::string>> Rows(const std::string& title,
                                             const std::string& caption = {}) {
    for (const ReportSection& section : Make().sections)
      for (const ReportPart& part : section.parts)
        if (section.title == title && (caption.empty() || part.caption.starts_with(caption)))
          return part.rows;
    return {};
  }

  VirtualWorld world;
  Commissioned work{};
};

TEST(Report, TellsWhoIsToldWhat) {
  Handover handover;
  handover.Conf().Phone[0].TLF = "600000001";
  ConfPhone& second = handover.Conf().Phone[2];
  second = {.TLF = "600000002", .Prio = 3, .PRV = 1, .MASKMODE = 2, .ListaMask = {}};
  for (std::int16_t& place : second.ListaMask) place = kNoChannel;
  second.ListaMask[0] = 21;  // DI0
  for (const int channel : {0, 1}) {
    AlarmBlock& alarm = handover.Conf().Digital[channel].ALARM[2].common;
    alarm.HABIL = alarm.SMS = kTrue;
    alarm.TEXTO = "door";
    alarm.valid = kAlways;
  }
  handover.Conf().Digital[1].ALARM[2].common.SMS = {};
  handover.Conf().Digital[1].ALARM[2].common.GPRS = kTrue;
  AlarmBlock& bell = handover.Conf().Digital[2].ALARM[1].common;
  bell = handover.Conf().Digital[0].ALARM[2].common;
  bell.SMS = {};
  bell.VOZ = kTrue;
  handover.Conf().Digital[3].ALARM[0].common = bell;
  handover.Conf().Digital[3].ALARM[0].common.HABIL = {};
  EXPECT_THAT(handover.Rows("Who is told what", "Telephones"),
              ElementsAre(ElementsAre("600000001", "none", "User", "all channels"),
                          ElementsAre("600000002", "3", "Advanced user", "all but these: DI0")));
  EXPECT_THAT(handover.Rows("Who is told what", "Alarms"),
              ElementsAre(ElementsAre("digital input 0", "2", "door", "SMS", "600000001"),
                          ElementsAre("digital input 1", "2", "door", "GPRS", ""),
                          ElementsAre("digital input 2", "1", "door", "SMS and voice",
                                      "600000001\n600000002")));
  EXPECT_THAT(ReportHtml(handover.Make()), HasSubstr("600000001<br>600000002"));
}

TEST(Report, ShowsTimersAsAWeek) {
  Handover handover;
  handover.Conf().WTimer[3] = {
      .HABIL = kTrue, .INICIO = {8 * 3600}, .SEMANA = 0b1000001, .ACT = {}};
  handover.Conf().WTimer[3].ACT[0] = 40;
  handover.Conf().CTimer[0] = {
      .HABIL = kTrue, .PERIOD = 60, .valid = {{}, {3600}, {7200}, 0b0000010}, .EQ = 2, .ACT = {}};
  handover.Conf().CTimer[1] = {.HABIL = kTrue, .PERIOD = 60, .valid = kAlways, .EQ = 0, .ACT = {}};
  EXPECT_THAT(
      handover.Rows("Timers in a week"),
      ElementsAre(ElementsAre("cyclic timer 0", "every 60 s, from 1:00:00 to 2:00:00, on Tu, if F1",
                              "", "1:00 - 2:00", "", "", "", "", "", ""),
                  testing::AllOf(testing::Contains("cyclic timer 1"),
                                 testing::Contains("0:00 - 24:00").Times(7)),
                  ElementsAre("weekly timer 3", "on Mo Su at 8:00:00", "8:00", "", "", "", "", "",
                              "8:00", Not(testing::IsEmpty()))));
}

TEST(Report, IsOneFileWithoutSecretsAndWithoutForeignMarkup) {
  Handover handover;
  handover.Conf().General.DNAME = "<script>\"Dep\xC3\xB3sito\" & co";
  handover.Conf().Gprs.APN_PASS = "geheim77";
  handover.Conf().Digital[0].NOMBRE = "pump";
  handover.Conf().Modulo[0].MODO = kModeCounter;
  const std::string html = ReportHtml(handover.Make());
  EXPECT_THAT(html, HasSubstr("&lt;script&gt;&quot;Dep\xC3\xB3sito&quot; &amp; co"));
  EXPECT_THAT(html, HasSubstr("Digital input 0: &quot;pump&quot;"));
  for (const char* part : {"<th>For the contractor", "Made by", "VR200, &lt;"})
    EXPECT_THAT(html, HasSubstr(part));
  for (const char* foreign : {"geheim77", "http", "src=", "href", "url(", "@import", "<script>"})
    EXPECT_THAT(html, Not(HasSubstr(foreign)));
}

TEST(Report, SaysWhatIsKnownAndNothingElse) {
  Handover handover;
  const auto titles = [&] {
    std::vector<std::string> all;
    for (const ReportSection& section : handover.Make().sections) all.push_back(section.title);
    return all;
  };
  EXPECT_THAT(titles(), Not(testing::Contains("Live values at sign-off")));
  EXPECT_THAT(titles(), Not(testing::Contains("Acceptance")));
  EXPECT_THAT(ReportHtml(handover.Make()), HasSubstr("No logger was connected"));
  handover.work.logger = DeviceInfo{.FirmwareVersion = 412,
                                    .Features = 0x41,
                                    .SerialNumber = "VR-7",
                                    .BatteryVoltage = 3.5F,
                                    .Rssi = 18,
                                    .LogSize = 900,
                                    .LogUsed = 12};
  handover.work.clock = DateTime{2026, 3, 2, 9, 4, 0};
  handover.work.file = "/site.ocf";
  handover.work.hash = "ab12";
  handover.Conf().General.DNAME = "a,b";
  handover.Conf().Digital[0].NOMBRE = "pump";
  RealTimeData live;
  live.AnalogName[1] = "level";
  live.AnalogUnit[1] = "m";
  handover.work.live =
      TakeRound(live, handover.work.configuration.profile, *handover.work.logger, WallTime{});
  for (LiveValue& value : handover.work.live->values)
    if (value.id == LiveId{LiveKind::Analog, 1}) value.number = .5;
  handover.work.acceptance.points = {kPumpTried};
  handover.work.history = {{"2026-03-02", "writing", "read back: the same", "ab12", "41"}};
  EXPECT_THAT(handover.Rows("Site and logger"),
              ElementsAre(ElementsAre("site", "a,b"), ElementsAre("model", "Ostrel VR200"),
                          ElementsAre("serial number", "VR-7"), ElementsAre("firmware", "4.12"),
                          ElementsAre("features", "0x41"), ElementsAre("battery", "3.5 V"),
                          ElementsAre("signal", "18 / 31"), ElementsAre("log in use", "12 / 900"),
                          ElementsAre("clock of the logger", "2026-03-02 09:04:00"),
                          ElementsAre("time of this report", "2026-03-02 09:05:07"),
                          ElementsAre("file", "/site.ocf"),
                          ElementsAre("hash of the configuration", "ab12")));
  EXPECT_THAT(handover.Rows("Check of the configuration"),
              testing::Contains(testing::Contains("error")));
  EXPECT_THAT(
      handover.Rows("What was written"),
      ElementsAre(ElementsAre("2026-03-02", "writing", "read back: the same", "ab12", "41")));
  EXPECT_THAT(titles(),
              ElementsAre("Site and logger", "Channels", "Who is told what", "Timers in a week",
                          "Other settings", "Live values at sign-off", "Acceptance",
                          "Check of the configuration", "What was written", "Signatures"));
  std::vector<std::string> found;
  for (const ReportSection& section : handover.Make().sections)
    for (const ReportPart& part : section.parts)
      for (const auto& row : part.rows) found.insert(found.end(), row.begin(), row.end());
  EXPECT_THAT(found, testing::IsSupersetOf({"level", "0.5", "m", "pass", "tried", "ab12", "41"}));
}

TEST(Report, SaysEverythingInItsLanguage) {
  Handover handover;
  handover.work.acceptance.points = {kPumpTried};
  handover.Conf().Phone[0].TLF = "600000001";
  const auto say = [](std::string_view text) { return "\xC2\xAB" + std::string(text); };
  const Report report = CommissioningReport(handover.work, {"es", say, say}, handover.world.files);
  EXPECT_THAT(ReportHtml(report), HasSubstr("<html lang=\"es\">"));
  for (const ReportSection& section : report.sections) {
    EXPECT_THAT(section.title, testing::StartsWith(say("")));
    for (const ReportPart& part : section.parts)
      for (const std::string& head : part.head)
        EXPECT_THAT(head, testing::StartsWith(say(""))) << section.title;
  }
  EXPECT_THAT(ReportHtml(report), HasSubstr(say("pass")));
}

TEST(Report, TellsWithWhichConfigurationALoggerWasAccepted) {
  World world;
  Configurator core{world.platform, world.Options(false)};
  core.StartForCommand("Ostrel VR200", 1);
  core.info.SerialNumber = "VR-7";
  AcceptanceFiles kept(world.files, "/data");
  const auto section = [&](const std::string& file) {
    Handover handover;
    handover.work.file = file;
    AddLogger(handover.work, core, world.platform, "/data", {});
    const std::string html = ReportHtml(handover.Make());
    return html.substr(std::min(html.find("Acceptance</h2>"), html.size()));
  };
  EXPECT_EQ(section("/a/site.ocf"), "");
  ASSERT_TRUE(kept.Keep({"VR-7", "old.ocf", "Ostrel VR200", {kPumpTried}}).Ok());
  EXPECT_THAT(section("/a/site.ocf"), HasSubstr("with another configuration: old.ocf"));
  EXPECT_THAT(section("/b/old.ocf"), testing::AllOf(HasSubstr("tried"), Not(HasSubstr("another"))));
  world.files.contents[kept.PathOf("VR-7", "site.ocf")] = "acceptance,1,VR";
  EXPECT_THAT(section("/a/site.ocf"),
              testing::AllOf(HasSubstr("cannot be read: it is damaged"), Not(HasSubstr("tried"))))
      << "no older one stands in for it";
}

TEST(Report, TellsWhatTheLedgerKnowsOfTheLogger) {
  World world;
  Configurator core{world.platform, world.Options(false)};
  core.StartForCommand("Ostrel VR200", 1);
  core.info.SerialNumber = "VR-7";
  const auto enter = [&](LedgerKind kind, LedgerState state, std::int64_t about = 0,
                         const std::string& serial = "VR-7") {
    world.ledger.Add({.about = about,
                      .kind = kind,
                      .state = state,
                      .began = "2026-03-02 09:00:00",
                      .utcOffset = "-03:30",
                      .serial = serial,
                      .content = "0123456789abcdef"});
  };
  enter(LedgerKind::Writing, LedgerState::Failed);
  enter(LedgerKind::Writing, LedgerState::Done);
  enter(LedgerKind::Reading, LedgerState::Done, 2);
  enter(LedgerKind::Verification, LedgerState::Done, 2);
  enter(LedgerKind::Total, LedgerState::Done);
  enter(LedgerKind::Writing, LedgerState::Done, 0, "VR-8");
  enter(LedgerKind::Writing, LedgerState::Done);
  enter(LedgerKind::Verification, LedgerState::Failed, 7);
  for (const LedgerKind kind : {LedgerKind::Clock, LedgerKind::Firmware})
    enter(kind, LedgerState::Done);
  core.live.DeviceClock = {2026, 3, 2, 9, 4, 0};
  Handover handover;
  AddLogger(handover.work, core, world.platform, "/data", {.clock = true});
  EXPECT_THAT(
      handover.Rows("What was written"),
      ElementsAre(testing::Contains("failed"),
                  ElementsAre("2026-03-02 09:00:00 -03:30", "writing", "read back: the same",
                              "0123456789ab", "2"),
                  ElementsAre("2026-03-02 09:00:00 -03:30", "total", "", "0123456789ab", "5"),
                  ElementsAre("2026-03-02 09:00:00 -03:30", "writing", "read back: different",
                              "0123456789ab", "7"),
                  testing::Contains("clock"), testing::Contains("firmware")));
  const std::string hash = handover.work.hash;
  EXPECT_EQ(hash.size(), 64U);
  EXPECT_EQ(handover.work.clock, core.live.DeviceClock);
  handover.Conf().General.DNAME = "another";
  AddLogger(handover.work, core, world.platform, "/data", {});
  EXPECT_NE(handover.work.hash, hash);
}

/// A reader in court must not take the pages for what the logger holds.
TEST(Report, SaysHowTheConfigurationStandsToTheLogger) {
  World world;
  Configurator core{world.platform, world.Options(false)};
  core.StartForCommand("Ostrel VR200", 1);
  core.info.SerialNumber = "VR-7";
  core.live.DeviceClock = {2026, 3, 2, 9, 4, 0};
  Handover handover;
  const auto told = [&] {
    AddLogger(handover.work, core, world.platform, "/data", {});
    return ReportHtml(handover.Make());
  };
  LedgerEntry entry{.kind = LedgerKind::Reading,
                    .state = LedgerState::Done,
                    .serial = "VR-7",
                    .content = "other"};
  EXPECT_THAT(told(), HasSubstr("the ledger does not know"));
  world.ledger.Add(entry);
  EXPECT_THAT(told(), HasSubstr("it is not what was last written to or read from"));
  entry.kind = LedgerKind::Writing;
  entry.content = handover.work.hash;
  world.ledger.Add(entry);
  EXPECT_THAT(told(),
              HasSubstr("it is what was last written to or read from the logger (entry 2)"));
  entry.state = LedgerState::Failed;
  entry.closing = true;
  world.ledger.Add(entry);
  EXPECT_THAT(told(), testing::AllOf(HasSubstr("is not known since the writing of entry 3"),
                                     HasSubstr("outcome not known")));
  EXPECT_FALSE(handover.work.clock || handover.work.live) << "of an older round";
  entry.file = "/b.ocf";
  entry.serial = "VR-8";
  world.ledger.Add(entry);
  core.ledger.TakeFile("/b.ocf");
  EXPECT_THAT(told(), HasSubstr("was last used with the logger VR-8"));
}

}  // namespace
}  // namespace ostrel
