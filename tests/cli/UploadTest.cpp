#include "cli/World.h"
#include "link/UploadPlan.h"
#include "shell/SafetyCopies.h"

namespace ostrel::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(Upload, WritesVerifiesAndKeepsTheFormerConfiguration) {
  World world;
  world.HaveFile("/a.ocf");
  const std::string former = world.files.contents["/a.ocf"];
  world.SetKey("/a.ocf", "General", "NOMBRE", "Dep\xF3sito sur");
  EXPECT_EQ(world.Run("upload /a.ocf --port sim:VR200"), 0) << world.err;
  EXPECT_EQ(world.Logger().Conf().name, "Dep\xF3sito sur");
  EXPECT_THAT(world.err, HasSubstr("configuration written and verified"));
  const std::string backup =
      "/home/user/data/backups/" + world.Logger().Options().serial + "-20260302-0905";
  ASSERT_EQ(world.Backups(), 1U);
  const auto found = std::ranges::find_if(world.files.contents, [](const auto& file) {
    return file.first.ends_with(".ocf") && file.first != "/a.ocf";
  });
  EXPECT_TRUE(found->first.starts_with(backup)) << found->first;
  EXPECT_TRUE(found->second == former);
  EXPECT_EQ(world.files.modes[found->first], 0600);
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
  World world;
  world.HaveFile("/a.ocf");
  world.SetKey("/a.ocf", "LTIMER 0", "PERIOD", " 30000");
  int transfers = 0;
  world.Logger().OnExchange([&](const sim::Exchange& exchange) {
    transfers += exchange.request.starts_with("#45") || exchange.request == "#42" ? 1 : 0;
  });
  for (const auto& [command, code] : {std::pair{"statements /a.ocf", 5},
                                      {"upload /a.ocf --dry-run", 5},
                                      {"upload /a.ocf --port sim:VR200", 5},
                                      {"upload /a.ocf --force --port sim:VR200", 5}}) {
    transfers = 0;
    EXPECT_EQ(world.Run(command), code) << command << world.err;
    EXPECT_THAT(world.err, HasSubstr("the period of long timer 0 does not fit a statement: choose "
                                     "at most 24855 days"));
    EXPECT_EQ(transfers, 0) << command;
  }
  world.HaveFile("/b.ocf");
  world.SetKey("/b.ocf", "LTIMER 0", "PERIOD", " 24856");
  EXPECT_EQ(world.Run("diff /a.ocf /b.ocf --features ffffffff"), 1) << world.out;
}

TEST(Upload, LeavesOutWhatItIsToldTo) {
  World world;
  world.HaveFile("/a.ocf");
  int downloads = 0;
  world.Logger().OnExchange(
      [&](const sim::Exchange& exchange) { downloads += exchange.request == "#42" ? 1 : 0; });
  EXPECT_EQ(world.Run("upload /a.ocf --no-backup --no-verify --json --port sim:VR200"), 0);
  EXPECT_EQ(downloads, 0);
  EXPECT_EQ(world.Backups(), 0U);
  const QJsonObject result = world.Json().object();
  EXPECT_TRUE(result["backup"].isNull());
  EXPECT_TRUE(result["verified"].isNull());
  EXPECT_GT(result["statements"].toInt(), 20);
}

TEST(Upload, FindsThatTheLoggerHoldsSomethingElse) {
  World world;
  world.HaveFile("/a.ocf");
  world.SetKey("/a.ocf", "General", "NOMBRE", "Nuevo");
  world.Logger().OnExchange([&](const sim::Exchange& exchange) {
    if (!exchange.request.starts_with("#46")) return;
    sim::Configuration conf = world.Logger().Conf();
    conf.name = "Otro";
    world.Logger().SetConf(conf);
  });
  EXPECT_EQ(world.Run("upload /a.ocf --port sim:VR200"), 1);
  EXPECT_THAT(world.out, HasSubstr("NOMBRE (name): \"Nuevo\" -> \"Otro\"\n"));
  EXPECT_THAT(world.err, HasSubstr("holds another configuration than was sent"));
  EXPECT_EQ(world.Run("upload /a.ocf --json --port sim:VR200"), 1);
  const QJsonObject result = world.Json().object();
  EXPECT_FALSE(result["verified"].toBool(true));
  EXPECT_EQ(result["differences"].toArray()[0].toObject()["after"].toString().toStdString(),
            "\"Otro\"");
}

TEST(Upload, AStaleNotificationDoesNotHideAtTheVerification) {
  World world;
  world.HaveFile("/a.ocf");
  world.SetKey("/a.ocf", "DIGITAL 0", "HABIL( 0)", "True");
  world.SetKey("/a.ocf", "DIGITAL 0", "GPRS( 0)", "True");
  world.Logger().OnExchange([&](const sim::Exchange& exchange) {
    if (!exchange.request.starts_with("#46")) return;
    sim::Configuration conf = world.Logger().Conf();
    conf.digitals[0].alarms[0].notify &= ~sim::kNotifyGprs;
    world.Logger().SetConf(conf);
  });
  EXPECT_EQ(world.Run("upload /a.ocf --no-backup --port sim:VR200"), 1) << world.err;
  EXPECT_THAT(world.out, HasSubstr("GPRS( 0) (alarm 0, notify by GPRS): yes -> no\n"));
}

/// A fault of the logger and what the failed upload says of it.
struct Failure {
  std::string fault;
  std::string says;
};

TEST(Upload, SaysWhyItFailedAndHowTheLoggerStands) {
  for (const Failure& failure : std::vector<Failure>{
           {"refuse-statement@3", "the logger's former configuration stays in force"},
           {"silent-after-statement@4", "read it back"},
       }) {
    World world(WithFaults({failure.fault}));
    const sim::Configuration former = world.Logger().Conf();
    world.HaveFile("/a.ocf");
    world.SetKey("/a.ocf", "General", "NOMBRE", "Nuevo");
    EXPECT_EQ(world.Run("upload /a.ocf --port sim:VR200"), 4) << failure.fault;
    EXPECT_THAT(world.err, HasSubstr(failure.says)) << failure.fault;
    EXPECT_EQ(world.Logger().Conf(), former) << failure.fault;
    EXPECT_EQ(world.Backups(), 1U);
  }
}

TEST(Upload, AnInterruptSaysHowTheLoggerStands) {
  World world;
  world.HaveFile("/a.ocf");
  bool atClosing = false;
  world.Logger().OnExchange([&](const sim::Exchange& exchange) {
    const std::string_view at = atClosing ? "#46" : "#45010";
    if (exchange.request.starts_with(at) && world.environment.onInterrupt)
      world.environment.onInterrupt();
  });
  EXPECT_EQ(world.Run("upload /a.ocf --no-backup --port sim:VR200"), 4);
  EXPECT_THAT(world.err,
              HasSubstr("interrupted; the logger's former configuration stays in force"));
  EXPECT_EQ(world.Logger().UploadsTaken(), 0U);
  atClosing = true;
  EXPECT_EQ(world.Run("upload /a.ocf --no-backup --port sim:VR200"), 4);
  EXPECT_THAT(world.err, HasSubstr("interrupted; whether the logger has taken"));
}

TEST(Upload, AFailedVerificationSaysThatTheLoggerHoldsTheNewConfiguration) {
  World world;
  world.HaveFile("/a.ocf");
  world.SetKey("/a.ocf", "General", "NOMBRE", "Nuevo");
  bool isWritten = false;
  world.Logger().OnExchange([&](const sim::Exchange& exchange) {
    isWritten = isWritten || exchange.request.starts_with("#46");
    if (isWritten && exchange.request == "#42") world.environment.onInterrupt();
  });
  EXPECT_EQ(world.Run("upload /a.ocf --no-backup --port sim:VR200"), 4);
  EXPECT_THAT(world.err, HasSubstr("interrupted; the logger has taken the new configuration over, "
                                   "which is not verified"));
  EXPECT_EQ(world.Logger().Conf().name, "Nuevo");
}

TEST(Upload, OneWordSendsTheFileOfAnotherModel) {
  World world;
  world.HaveFile("/ka1.ocf", "KA1");
  for (const auto* line :
       {"upload /ka1.ocf --port sim:VR200", "upload /ka1.ocf --yes --port sim:VR200"}) {
    EXPECT_EQ(world.Run(line), 5);
    EXPECT_THAT(world.err, HasSubstr("is for the model Ostrel KA1, and the logger is of the model "
                                     "Ostrel VR200. Nothing was sent: --force sends it"));
  }
  EXPECT_EQ(world.Logger().UploadsTaken(), 0U);
  EXPECT_EQ(world.Run("upload /ka1.ocf --dry-run --port sim:VR200"), 0);
  EXPECT_EQ(world.Run("upload /ka1.ocf --force --port sim:VR200"), 4) << "it is sent";
  EXPECT_THAT(world.err, HasSubstr("the logger refused statement"));
  const std::size_t told = world.err.find("forced: the logger says");
  ASSERT_NE(told, std::string::npos) << world.err;
  EXPECT_EQ(world.err.find("forced: the logger says", told + 1), std::string::npos) << "once";
}

TEST(Upload, WhatIsNotSentIsNoDifference) {
  World world([](sim::Model model) {
    sim::LoggerOptions options = sim::MakeDefaultOptions(model);
    options.features = 0;
    return options;
  });
  world.HaveFile("/a.ocf");
  world.SetKey("/a.ocf", "MTIMER 0", "HABIL", "True");
  EXPECT_EQ(world.Run("upload /a.ocf --json --port sim:VR200"), 0) << world.err;
  const QJsonObject result = world.Json().object();
  EXPECT_TRUE(result["verified"].toBool());
  EXPECT_TRUE(result["differences"].toArray().isEmpty());
  EXPECT_EQ(result["notSent"].toArray().at(0).toObject()["section"].toString(), "MTIMER 0");
}

TEST(Upload, ShowsPasswordsThatCameBackOtherwiseWhenAsked) {
  World world;
  world.HaveFile("/a.ocf");
  world.SetKey("/a.ocf", "GPRS", "APN_PASS", "sent");
  world.Logger().OnExchange([&](const sim::Exchange& exchange) {
    if (!exchange.request.starts_with("#46")) return;
    sim::Configuration conf = world.Logger().Conf();
    conf.gprs.apnPassword = "held";
    world.Logger().SetConf(conf);
  });
  EXPECT_EQ(world.Run("upload /a.ocf --port sim:VR200"), 1) << world.err;
  EXPECT_THAT(world.out, testing::Not(HasSubstr("held")));
  EXPECT_EQ(world.Run("upload /a.ocf --secrets --port sim:VR200"), 1);
  EXPECT_THAT(world.out, HasSubstr("\"sent\" -> \"held\""));
}

/// A copy goes back with the texts that its file does not keep; one of another logger does not go
/// without a question.
TEST(Upload, ASafetyCopyIsWrittenBack) {
  World world;
  sim::Configuration former = world.Logger().Conf();
  former.digitals[0].name = " Boya ";
  world.Logger().SetConf(former);
  world.HaveFile("/ka1.ocf", "KA1");
  EXPECT_EQ(world.Run("backups"), 0);
  EXPECT_EQ(world.out, "");
  world.HaveFile("/a.ocf");
  world.SetKey("/a.ocf", "DIGITAL 0", "NOMBRE", "Nuevo");
  ASSERT_EQ(world.Run("upload /a.ocf --no-backup --port sim:VR200"), 0) << world.err;
  EXPECT_EQ(world.Run("backups"), 0);
  const std::string name = world.out.substr(0, world.out.find(' '));
  EXPECT_THAT(world.out, testing::MatchesRegex(name + "  Ostrel VR200  2026-03-02 09:05:..\n"));
  EXPECT_EQ(world.Run("restore none --port sim:VR200"), 5);
  EXPECT_THAT(world.err, HasSubstr("\"ostrelctl backups\" lists them"));
  EXPECT_EQ(world.Run("restore " + name + " --port sim:VR200"), 0) << world.err;
  EXPECT_EQ(world.Logger().Conf(), former);
  EXPECT_EQ(world.Run("backups --json"), 0);
  EXPECT_EQ(world.Json().array().size(), 2);
  const std::string copy = "/home/user/data/backups/Q9" + name.substr(name.find("-2026"));
  world.files.contents[copy + ".ocf"] = world.files.contents["/a.ocf"];
  EXPECT_EQ(world.Run("restore Q9" + name.substr(name.find("-2026")) + " --port sim:VR200"), 5);
  EXPECT_THAT(world.err, HasSubstr("is not of the logger VR200-000137: --yes writes it"));
}

/// A logger that greets as another model than the one chosen, and a file that was cut, are refused
/// before anything is sent.
TEST(Upload, RefusesWhatWouldHarmTheLogger) {
  World world;
  world.HaveFile("/ka1.ocf", "KA1");
  world.HaveFile("/cut.ocf");
  std::string& cut = world.files.contents["/cut.ocf"];
  cut.resize(cut.find("NOMBRE", cut.find("[General]")));
  struct Case {
    std::string line;
    const char* says;
  };
  for (const Case& c :
       {Case{"upload /ka1.ocf --yes --target KA1 --port COM253",
             "the logger says that it is the model Ostrel VR200, and the model chosen is Ostrel "
             "KA1"},
        Case{"upload /cut.ocf --port sim:VR200", "are missing, and are read as empty"}}) {
    EXPECT_EQ(world.Run(c.line), 5);
    EXPECT_THAT(world.err, HasSubstr(c.says));
    EXPECT_THAT(world.err, HasSubstr("Nothing was sent: --force sends it all the same"));
    EXPECT_EQ(world.Logger().UploadsTaken(), 0U);
  }
  EXPECT_EQ(world.Run("upload /cut.ocf --force --port sim:VR200"), 0) << world.err;
  EXPECT_THAT(world.err, HasSubstr("forced: /cut.ocf: "));
  EXPECT_EQ(world.Logger().UploadsTaken(), 1U);
}

TEST(Upload, ADryRunSendsNothingAndTellsItsTime) {
  World world;
  world.HaveFile("/a.ocf");
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

TEST(Upload, TakesAboutTheTimeThatItsDryRunTells) {
  World world;
  world.HaveFile("/a.ocf");
  world.simulated.Port().SetPaced(true);
  EXPECT_EQ(world.Run("upload /a.ocf --dry-run --json --port sim:VR200"), 0);
  const double told = world.Json().object()["seconds"].toDouble();
  TimePoint first{}, last{};
  world.Logger().OnExchange([&](const sim::Exchange& exchange) {
    if (exchange.request.starts_with("#45000")) first = exchange.at;
    if (exchange.request.starts_with("#46")) last = exchange.at;
  });
  EXPECT_EQ(world.Run("upload /a.ocf --no-backup --no-verify --port sim:VR200"), 0);
  EXPECT_NEAR(std::chrono::duration<double>(last - first).count(), told, told * 0.03);
}

}  // namespace
}  // namespace ostrel::cli
