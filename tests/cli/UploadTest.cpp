#include "cli/World.h"
#include "link/UploadPlan.h"
#include "shell/writing/SafetyCopies.h"

namespace ostrel::cli {
namespace {

using testing::HasSubstr;

/// A VR200, and a file that holds what it holds, but for the name.
struct UploadWorld : FileWorld {
  explicit UploadWorld(std::vector<std::string> faults = {})
      : FileWorld(WithFaults(std::move(faults))) {
    former = files.contents["/a.ocf"];
    SetKey("/a.ocf", "General", "NOMBRE", "Nuevo");
  }
  int Upload(const std::string& options = "") {
    return Run("upload /a.ocf --port sim:VR200 " + options);
  }

  std::string former;
};

TEST(Upload, WritesVerifiesAndKeepsTheFormerConfiguration) {
  UploadWorld world;
  EXPECT_EQ(world.Upload(), 0) << world.err;
  EXPECT_EQ(world.Logger().Conf().name, "Nuevo");
  EXPECT_THAT(world.err, HasSubstr("configuration written and verified"));
  ASSERT_EQ(world.Backups(), 1U);
  const std::string start =
      "/home/user/data/backups/" + world.Logger().Options().serial + "-20260302-0905";
  const auto found = std::ranges::find_if(world.files.contents, [&](const auto& file) {
    return file.first.starts_with(start) && file.first.ends_with(".ocf");
  });
  ASSERT_NE(found, world.files.contents.end());
  EXPECT_TRUE(found->second == world.former);
  EXPECT_EQ(world.files.modes[found->first], 0400);
  EXPECT_EQ(world.files.modes["/home/user/data/backups"], 0700);
}

TEST(Upload, TwoSafetyCopiesOfOneSecondAreBothKept) {
  VirtualLoop loop;
  const VirtualClock clock({2026, 3, 2, 9, 5, 7}, loop);
  VirtualFiles files;
  SafetyCopies copies(files, clock, "/data");
  TargetProfile profile;
  SelectTarget(profile, "Tavro BP");
  DeviceConf first, second;
  first.General.DNAME = "first";
  second.General.DNAME = "second";
  const auto one = copies.Keep({first, profile, "Q1"});
  const auto two = copies.Keep({second, profile, "Q1"});
  EXPECT_EQ(one.path, "/data/backups/Q1-20260302-090507.ocf");
  EXPECT_EQ(two.path, "/data/backups/Q1-20260302-090507-2.ocf");
  EXPECT_THAT(files.contents[one.path], HasSubstr("NOMBRE=first"));
  EXPECT_THAT(files.contents[two.path], HasSubstr("NOMBRE=second"));
}

TEST(Upload, SendsNothingWhereAPeriodOverflows) {
  UploadWorld world;
  world.SetKey("/a.ocf", "LTIMER 0", "PERIOD", " 30000");
  world.Upon("#45", [] { ADD_FAILURE() << "a statement"; });
  for (const auto* command :
       {"statements /a.ocf", "upload /a.ocf --dry-run", "upload /a.ocf --force --port sim:VR200"})
    world.Expect(command, 5,
                 "the period of long timer 0 does not fit a statement: choose at most 24855 days");
}

TEST(Upload, LeavesOutWhatItIsToldTo) {
  UploadWorld world;
  world.Upon("#42", [] { ADD_FAILURE() << "a download"; });
  EXPECT_EQ(world.Upload("--no-backup --no-verify --force --json"), 0);
  EXPECT_EQ(world.Backups(), 0U);
  const QJsonObject result = world.Json().object();
  EXPECT_TRUE(result["backup"].isNull() && result["verified"].isNull());
  EXPECT_GT(result["statements"].toInt(), 20);
}

TEST(Upload, FindsThatTheLoggerHoldsSomethingElse) {
  UploadWorld world;
  for (const auto* key : {"HABIL( 0)", "GPRS( 0)"})
    world.SetKey("/a.ocf", "DIGITAL 0", key, "True");
  world.Upon("#46", [&] {
    world.Alter([](sim::Configuration& conf) {
      conf.name = "Otro";
      conf.digitals[0].alarms[0].notify &= ~sim::kNotifyGprs;
    });
  });
  EXPECT_EQ(world.Upload(), 1);
  EXPECT_THAT(world.out, HasSubstr("NOMBRE (name): \"Nuevo\" -> \"Otro\"\n"));
  EXPECT_THAT(world.out, HasSubstr("GPRS( 0) (alarm 0, notify by GPRS): yes -> no\n"))
      << "reading does not reset it";
  EXPECT_THAT(world.err, HasSubstr("holds another configuration than was sent"));
  EXPECT_EQ(world.Upload("--json"), 1);
  const QJsonObject result = world.Json().object();
  EXPECT_FALSE(result["verified"].toBool(true));
  EXPECT_EQ(result["differences"].toArray()[1].toObject()["after"].toString().toStdString(),
            "\"Otro\"");
}

TEST(Upload, SaysWhyItFailedAndHowTheLoggerStands) {
  struct Case {
    const char* fault;        ///< of the logger, "" for none
    const char* interrupted;  ///< the request at which the operator breaks off
    const char* says;
  };
  for (const Case& c :
       {Case{"refuse-statement@3", "none", "the logger's former configuration stays in force"},
        Case{"silent-after-statement@4", "none", "read it back"},
        Case{"", "#45010", "interrupted; the logger's former configuration stays in force"},
        Case{"", "#46", "interrupted; whether the logger has taken"},
        Case{"", "#42", "interrupted; the logger's configuration is unchanged"}}) {
    UploadWorld world(*c.fault == '\0' ? std::vector<std::string>{}
                                       : std::vector<std::string>{c.fault});
    world.Upon(c.interrupted, [&] { world.environment.onInterrupt(); });
    EXPECT_EQ(world.Upload(), 4) << c.says;
    EXPECT_THAT(world.err, HasSubstr(c.says));
    EXPECT_EQ(world.Logger().Conf().name == "Nuevo", std::string_view(c.interrupted) == "#46");
  }
  UploadWorld world;
  world.Upon("#42", [&] { world.environment.onInterrupt(); });  // the first is the verification
  EXPECT_EQ(world.Upload("--no-backup --force"), 4);
  EXPECT_THAT(world.err, HasSubstr("interrupted; the logger has taken the new configuration over, "
                                   "which is not verified"));
}

TEST(Upload, OneWordSendsTheFileOfAnotherModel) {
  World world;
  world.HaveFile("/ka1.ocf", "KA1");
  for (const auto* line :
       {"upload /ka1.ocf --port sim:VR200", "upload /ka1.ocf --yes --port sim:VR200"})
    world.Expect(
        line, 5,
        "is for the model Ostrel KA1, and the logger is of the model Ostrel VR200. Nothing "
        "was sent: --force sends it");
  EXPECT_EQ(world.Logger().UploadsTaken(), 0U);
  EXPECT_EQ(world.Run("upload /ka1.ocf --dry-run --port sim:VR200"), 0);
  EXPECT_EQ(world.Run("upload /ka1.ocf --force --port sim:VR200"), 4) << "it is sent";
  EXPECT_THAT(world.err, HasSubstr("the logger refused statement"));
  const std::size_t told = world.err.find("forced: the logger says");
  ASSERT_NE(told, std::string::npos) << world.err;
  EXPECT_EQ(world.err.find("forced: the logger says", told + 1), std::string::npos) << "once";
}

/// A logger that greets without its name is known for what it is when it has been read.
TEST(Upload, IsRefusedByWhatIsReadAhead) {
  World world(With([](sim::LoggerOptions& options) { options.greetsBare = true; }));
  world.HaveFile("/ka1.ocf", "KA1");
  world.ledger.entries.clear();  // the file is of unknown descent
  world.Expect("upload /ka1.ocf --target KA1 --port sim:VR200", 5,
               "fits the model Ostrel VR200, and the model chosen is Ostrel KA1. Nothing was sent");
  EXPECT_EQ(world.Logger().UploadsTaken(), 0U);
  EXPECT_EQ(world.Backups(), 0U);
}

/// What goes beside it is told, and changes nothing about an upload that is done.
TEST(Upload, IsDoneThoughWhatGoesBesideItIsLost) {
  for (const std::string beside : {"trace", "record"}) {
    UploadWorld world;
    world.environment.openTrace =
        world.environment.openLineRecording = [](const std::string&, std::string&) {
          return std::make_unique<std::ostream>(nullptr);  // takes nothing
        };
    world.Expect("upload /a.ocf --port sim:VR200 --" + beside + " /full", 0, "cannot write /full");
    world.Expect("info --port sim:VR200 --" + beside + " /full", 5, "cannot write /full");
  }
}

TEST(Upload, WhatIsNotSentIsNoDifference) {
  FileWorld world(With([](sim::LoggerOptions& options) { options.features = 0; }));
  world.SetKey("/a.ocf", "MTIMER 0", "HABIL", "True");
  EXPECT_EQ(world.Run("upload /a.ocf --json --port sim:VR200"), 0) << world.err;
  const QJsonObject result = world.Json().object();
  EXPECT_TRUE(result["verified"].toBool());
  EXPECT_TRUE(result["differences"].toArray().isEmpty());
  EXPECT_EQ(result["notSent"].toArray().at(0).toObject()["section"].toString(), "MTIMER 0");
}

TEST(Upload, ShowsPasswordsThatCameBackOtherwiseWhenAsked) {
  FileWorld world;
  world.SetKey("/a.ocf", "GPRS", "APN_PASS", "sent");
  world.Upon("#46", [&] {
    world.Alter([](sim::Configuration& conf) { conf.gprs.apnPassword = "held"; });
  });
  EXPECT_EQ(world.Run("upload /a.ocf --port sim:VR200"), 1) << world.err;
  EXPECT_THAT(world.out, testing::Not(HasSubstr("held")));
  world.Expect("upload /a.ocf --secrets --port sim:VR200", 1, "\"sent\" -> \"held\"");
}

/// A copy goes back with the texts that its file does not keep; one of another logger does not go
/// without a question.
TEST(Upload, ASafetyCopyIsWrittenBack) {
  World world;
  world.Alter([](sim::Configuration& conf) { conf.digitals[0].name = " Boya "; });
  const sim::Configuration former = world.Logger().Conf();
  world.HaveFile("/ka1.ocf", "KA1");
  EXPECT_EQ(world.Run("backups"), 0);
  EXPECT_EQ(world.out, "");
  world.HaveFile("/a.ocf");
  world.SetKey("/a.ocf", "DIGITAL 0", "NOMBRE", "Nuevo");
  ASSERT_EQ(world.Run("upload /a.ocf --no-backup --port sim:VR200"), 0) << world.err;
  EXPECT_EQ(world.Run("backups"), 0);
  const std::string name = world.out.substr(0, world.out.find(' '));
  EXPECT_THAT(world.out, HasShape("^" + name + "  Ostrel VR200  2026-03-02 09:05:..\n$"));
  world.Expect("restore none --port sim:VR200", 5, "\"ostrelctl backups\" lists them");
  EXPECT_EQ(world.Run("restore " + name + " --port sim:VR200"), 0) << world.err;
  EXPECT_EQ(world.Logger().Conf(), former);
  EXPECT_EQ(world.Run("backups --json"), 0);
  EXPECT_EQ(world.Json().array().size(), 2);
  const std::string copy = "/home/user/data/backups/Q9" + name.substr(name.find("-2026"));
  world.files.contents[copy + ".ocf"] = world.files.contents["/a.ocf"];
  world.Expect("restore Q9" + name.substr(name.find("-2026")) + " --port sim:VR200", 5,
               "is not of the logger VR200-000137: --yes writes it");
}

/// What a logger of another model would get, and a file that was cut, are refused before anything
/// is sent.
TEST(Upload, RefusesWhatWouldHarmTheLogger) {
  UploadWorld world;
  world.HaveFile("/ka1.ocf", "KA1");
  world.HaveFile("/cut.ocf");
  std::string& cut = world.files.contents["/cut.ocf"];
  cut.resize(cut.find("NOMBRE", cut.find("[General]")));
  for (const auto& [line, says] : std::vector<std::pair<std::string, std::string>>{
           {"/ka1.ocf --yes --target KA1",
            "the logger says that it is the model Ostrel VR200, and "
            "the model chosen is Ostrel KA1"},
           {"/cut.ocf", "are missing, and are read as empty"},
           {"/cut.ocf", "Nothing was sent: --force sends it all the same"}}) {
    world.Expect("upload --port sim:VR200 " + line, 5, says);
    EXPECT_EQ(world.Logger().UploadsTaken(), 0U);
  }
  world.Expect("upload /cut.ocf --force --port sim:VR200", 0, "forced: /cut.ocf: ");
  EXPECT_EQ(world.Logger().UploadsTaken(), 1U);
}

TEST(Upload, ADryRunSendsNothingAndTellsItsTime) {
  FileWorld world;
  EXPECT_EQ(world.Run("statements /a.ocf --features 10000"), 0);
  const std::string statements = world.out;
  EXPECT_EQ(world.Run("upload /a.ocf --dry-run --features 10000"), 0);
  EXPECT_TRUE(world.out.starts_with(statements)) << world.out;
  EXPECT_THAT(world.out, HasSubstr(" statements for features 0x10000, "));
  EXPECT_EQ(world.Run("upload /a.ocf --dry-run --json --port sim:VR200"), 0);
  const QJsonObject plan = world.Json().object();
  const double seconds = plan["octets"].toDouble() / 960 + plan["statements"].toInt() * 0.01;
  EXPECT_NEAR(plan["seconds"].toDouble(), seconds, 1e-3);
  EXPECT_EQ(plan["statementTexts"].toArray().size(), plan["statements"].toInt());
  EXPECT_EQ(world.Logger().UploadsTaken(), 0U);
}

TEST(UploadPlan, CountsFramesAndWindows) {
  // "#xx;45000ID=A\r" and "#xx;46001\r"
  const UploadPlan slow = PlanUpload({"ID=A"}, 0);
  EXPECT_EQ(slow.octets, 14U + 10U);
  EXPECT_EQ(slow.duration, std::chrono::milliseconds(25 + 200));
  EXPECT_EQ(PlanUpload({"ID=A"}, 0x400).duration, std::chrono::milliseconds(25 + 10));
  EXPECT_EQ(PlanUpload({"ID=\xC3\xB3"}, 0).octets, 14U + 10U) << "one octet a character";
}

}  // namespace
}  // namespace ostrel::cli
