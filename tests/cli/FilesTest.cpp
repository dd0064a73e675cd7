#include "base/CodePage.h"
#include "cli/World.h"
#include "model/DeviceInfo.h"

namespace ostrel::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(Statements, AreThoseThatAnUploadSends) {
  FileWorld world;
  std::string sent;
  world.Logger().OnExchange([&](const sim::Exchange& exchange) {
    if (exchange.request.starts_with("#45"))
      sent += FromCodePage(exchange.request.substr(6)) + "\n";
  });
  EXPECT_EQ(world.Run("upload /a.ocf --no-verify --no-backup --port sim:VR200"), 0);
  const auto features = static_cast<std::int32_t>(world.Logger().Self().features);
  EXPECT_EQ(world.Run("statements /a.ocf --secrets --features " + FeaturesText(features)), 0);
  EXPECT_EQ(world.out, sent);
  EXPECT_EQ(world.Run("statements /a.ocf --json"), 0);
  const QJsonArray statements = world.Json().object()["statements"].toArray();
  EXPECT_TRUE(statements[0].toString().startsWith("ID="));
  for (const auto& statement : statements)
    EXPECT_FALSE(statement.toString().startsWith("RETRYMAX")) << "without features by default";
}

TEST(Show, TellsOnlyWhatIsSetUnlessToldAll) {
  World world;
  world.files.contents["/a.ocf"] =
      "[General]\r\nVERSION=VR200\r\nNOMBRE=Dep\xF3sito\r\nRENVT= 10\r\nRENVN= 3\r\n"
      "TLFM 1=600100200,Prio=2,PRV1,MASKMODE1,DI3,FG0\r\n"
      "[DIGITAL 2]\r\nHABIL( 1)=True\r\nSIEMPRE( 1)=True\r\nSEMANA( 1)= 31\r\n"
      "TEXTO( 1)=Puerta\x1B[31m\r\nACTHI( 1 0)= 5\r\nACTHI( 1 3)= 12\r\nREARM( 1)= 7\r\n"
      "[ANALOG 1]\r\nINTERFAZ= 3";
  world.Expect("show /a.ocf", 0, "Ostrel VR200\n");
  EXPECT_THAT(world.out, HasSubstr("GENERAL (general)\n  NOMBRE (name): \"Dep\xC3\xB3sito\"\n"));
  EXPECT_THAT(world.out, Not(HasSubstr("RENVT")));
  EXPECT_THAT(world.out, HasSubstr("TLFM 1 (telephone 1): 600100200,Prio=2,PRV1,MASKMODE1,DI3"));
  EXPECT_THAT(world.out, HasSubstr("  HABIL( 1) (alarm 1, enabled): yes\n"));
  EXPECT_THAT(world.out, HasSubstr("\"Puerta\\x1b[31m\"")) << "a terminal gets no control";
  EXPECT_THAT(world.out, HasSubstr("(alarm 1, valid days): Mo Tu We Th Fr\n"));
  EXPECT_THAT(
      world.out,
      HasSubstr(
          "  ACTHI( 1) (alarm 1, actions, high): 5 - Ejecutar macro 4; 12 - Ejecutar macro 11\n"));
  EXPECT_THAT(world.out, HasSubstr("(alarm 1, rearming): 7 s\n"));
  EXPECT_THAT(world.out, HasSubstr("INTERFAZ (interface): 0-10 V\n"));
  world.Expect("show /a.ocf --all", 0, "RENVT (time between resends): 10 minutes\n");
  EXPECT_THAT(world.out, HasSubstr("TLFM 0 (telephone 0): free\n"));
}

TEST(Show, SaysNothingOfAlarmsThatAreOffUnlessAsked) {
  FileWorld world;
  world.SetKey("/a.ocf", "DIGITAL 7", "HABIL( 3)", "False");
  world.SetKey("/a.ocf", "DIGITAL 7", "SIEMPRE( 3)", "False");
  world.SetKey("/a.ocf", "DIGITAL 6", "HABIL( 2)", "True");
  world.SetKey("/a.ocf", "DIGITAL 6", "SIEMPRE( 2)", "False");
  EXPECT_EQ(world.Run("show /a.ocf"), 0);
  EXPECT_EQ(world.out.find("( 3) (alarm 3"), std::string::npos) << world.out;
  EXPECT_THAT(world.out, HasSubstr("SIEMPRE( 2) (alarm 2, always valid): no\n"));
  world.Expect("show /a.ocf --all", 0, "SIEMPRE( 3) (alarm 3, always valid): no\n");
}

TEST(Show, GivesTypedJson) {
  FileWorld world;
  world.SetKey("/a.ocf", "ANALOG 0", "EqFE", " 2.5");
  EXPECT_EQ(world.Run("show /a.ocf --json"), 0);
  const QJsonObject sections = world.Json().object()["sections"].toObject();
  const QJsonObject general = sections["GENERAL"].toObject();
  EXPECT_TRUE(general["RENVT"].isDouble());
  EXPECT_TRUE(general["TLFM 0"].toObject()["mask"].isArray());
  EXPECT_TRUE(general["TLFM 19"].isNull());
  const QJsonObject analog = sections["ANALOG 0"].toObject();
  EXPECT_EQ(analog["EqFE"].toDouble(), 2.5);
  EXPECT_TRUE(analog["HABIL( 0)"].isBool());
}

TEST(Show, TellsTimersInWordsUnlessTheyAreOff) {
  World world;
  world.files.contents["/a.ocf"] =
      "[General]\r\nVERSION=VR200\r\n[CTIMER 3]\r\nHABIL=False\r\nPERIOD= 77\r\n[MTIMER 2]\r\n"
      "HABIL=True\r\nINICIO=6:00:00\r\nMES= 2147483653\r\nACT( 0)= 5\r\nACT( 3)= 7";
  world.Expect("show /a.ocf", 0,
               "MTIMER 2 (monthly timer 2)\n  HABIL (enabled): yes\n"
               "  INICIO (time of day): 6:00:00\n"
               "  MES (days of the month): 1 3 last\n"
               "  ACT (actions): 5 - Ejecutar macro 4; 7 - Ejecutar macro 6\n");
  EXPECT_EQ(world.out.find("77"), std::string::npos) << world.out;
  world.Expect("show /a.ocf --json", 0, "\"MES\": 2147483653,");
}

TEST(Schedule, TellsFiringsOfTimersAndMacros) {
  World world;
  world.files.contents["/a.ocf"] =
      "[General]\r\nVERSION=VR200\r\n[CTIMER 3]\r\nHABIL=True\r\nPERIOD= 200000\r\nSIEMPRE=True\r\n"
      "EQ= 3\r\nACT( 0)= 42\r\nACT( 2)= 5";
  EXPECT_EQ(world.Run("schedule /a.ocf --from 2026-03-02T08:00"), 0) << world.err;
  EXPECT_EQ(world.out,
            "from 2026-03-02 08:00:00, 7 days\n\ncyclic timer 3: every 200000 s, if F2\n"
            "  runs 42 - Sincronizar reloj\n  runs 5 - Ejecutar macro 4\n"
            "  We 2026-03-04: 15:33:20\n  Fr 2026-03-06: 23:06:40\n  Mo 2026-03-09: 6:40:00\n\n"
            "macro 4\n  We 2026-03-04: 15:33:20 (cyclic timer 3)\n"
            "  Fr 2026-03-06: 23:06:40 (cyclic timer 3)\n"
            "  Mo 2026-03-09: 6:40:00 (cyclic timer 3)\n");
  EXPECT_EQ(world.Run("schedule /a.ocf --json"), 0);
  const QJsonObject json = world.Json().object();
  EXPECT_EQ(json["from"].toString(), "2026-03-02 09:05:07") << "now";
  EXPECT_EQ(json["timers"].toArray().at(0).toObject()["condition"].toString(), "F2");
  for (const std::string moment : {"tomorrow", "2026-02-29", "2026-03-02T8:00", "2026-03-02_08:00"})
    EXPECT_EQ(world.Run("schedule /a.ocf --from " + moment), 2) << moment;
  world.Edit("/a.ocf", "HABIL=True", "HABIL=False");
  EXPECT_EQ(world.Run("schedule /a.ocf"), 0);
  EXPECT_THAT(world.err, testing::EndsWith("/a.ocf: no timer is enabled\n"));
}

TEST(Diff, TellsDifferencesInWordsAndByExitCode) {
  FileWorld world;
  world.files.contents["/b.ocf"] = world.files.contents["/a.ocf"];
  EXPECT_EQ(world.Run("diff /a.ocf /b.ocf"), 0);
  EXPECT_EQ(world.out, "");
  world.SetKey("/b.ocf", "General", "RENVN", " 7");
  world.SetKey("/b.ocf", "DIGITAL 7", "TEXTO( 3)", "oculto");
  world.Expect("diff /a.ocf /b.ocf", 1, "RENVN (resends): ");
  EXPECT_THAT(world.out, HasSubstr("TEXTO( 3) (alarm 3, text): \"\" -> \"oculto\"\n"));
  EXPECT_EQ(world.Run("diff /a.ocf /b.ocf --json"), 1);
  EXPECT_EQ(world.Json().object()["differences"].toArray().size(), 2);
}

TEST(Download, AsksBeforeItReplacesWhatItWouldLose) {
  FileWorld world;
  const std::string former = world.files.contents["/a.ocf"] + "\r\n[MINE]\r\nA=1";
  world.files.contents["/a.ocf"] = former;
  world.Expect("download /a.ocf --port sim:VR200", 5, "would lose: [MINE] A");
  EXPECT_EQ(world.files.contents["/a.ocf"], former);
  EXPECT_EQ(world.Run("download /a.ocf --port sim:VR200 --yes"), 0);
  EXPECT_EQ(world.files.contents["/a.ocf"].find("MINE"), std::string::npos);
}

TEST(Diff, ComparesAFileWithWhatTheLoggerHolds) {
  FileWorld world;
  EXPECT_EQ(world.Run("diff /a.ocf port --port sim:VR200"), 0) << world.out;
  world.SetKey("/a.ocf", "General", "NOMBRE", "Nuevo");
  const std::string name = "\"" + world.Logger().Conf().name + "\"";
  world.Expect("diff /a.ocf port --port sim:VR200", 1, "(name): \"Nuevo\" -> " + name);
  world.Expect("diff port /a.ocf --port sim:VR200", 1, "(name): " + name + " -> \"Nuevo\"");
  EXPECT_EQ(world.Run("diff /a.ocf port"), 2) << "no port is named";
}

/// What a file gives back changed is told, and nothing of what the logger held is lost.
TEST(Files, ATextThatAFileDoesNotKeepIsTold) {
  World world;
  world.Alter([](sim::Configuration& conf) {
    conf.name = " a\nCSM=600111222";
    conf.digitals[0].name = "\"quoted\"";
    conf.digitals[1].name = " edges ";
  });
  world.Expect("download /a.ocf --port sim:VR200", 0,
               "[GENERAL] NOMBRE: the file keeps it up to its control ");
  EXPECT_THAT(world.err, HasSubstr("[DIGITAL 0] NOMBRE: the file does not keep the quotes around"));
  EXPECT_THAT(world.err, HasSubstr("[DIGITAL 1] NOMBRE: the file does not keep the blanks around"));
  ASSERT_EQ(world.Backups(), 1U);
  const auto lines = std::ranges::find_if(
      world.files.contents, [](const auto& file) { return file.first.ends_with(".lines"); });
  EXPECT_THAT(lines->second, testing::StartsWith("#BD000DNAME, a\nCSM=600111222\r\n#BD001"));
  EXPECT_THAT(lines->second, HasSubstr(",\"quoted\""));
  EXPECT_THAT(world.err, HasSubstr("own lines are kept in " + lines->first + "\n"));
  world.Expect("check /a.ocf", 0, "[DIGITAL 1] NOMBRE: the file does not keep the blanks");
  EXPECT_THAT(world.out, HasSubstr("(text-not-kept)"));
}

/// Names of a file fold, as its reader folds them, and what the reader strips does not count.
TEST(Files, AreCheckedAsTheirReaderReadsThem) {
  FileWorld world;
  world.Edit("/a.ocf", "UNIDAD=", "Unidad =");
  world.SetKey("/a.ocf", "DIGITAL 0", "NOMBRE", std::string(300, ' ') + "x");
  world.Edit("/a.ocf", "HISTERESIS( 0)=", "Histeresis( 0)=rubbish");
  EXPECT_EQ(world.Run("check /a.ocf"), 0) << world.out << "no key is missing";
  EXPECT_THAT(world.out, Not(HasSubstr("value-cut")));
  EXPECT_THAT(world.out, HasSubstr("is no value for this"));
  world.SetKey("/a.ocf", "DIGITAL 0", "NOMBRE", "\"" + std::string(254, 'x') + "\"");
  EXPECT_EQ(world.Run("check /a.ocf"), 0);
  EXPECT_THAT(world.out, Not(HasSubstr("value-cut")));
  EXPECT_EQ(world.Run("download /a.ocf --port sim:VR200"), 0) << "nothing would be lost";
}

TEST(Files, AreShownAsTheConnectedFirmwareTakesThem) {
  FileWorld world(With([](sim::LoggerOptions& options) { options.features &= ~0x4U; }));
  world.SetKey("/a.ocf", "FLAG 0", "TEXTO( 0)", "Bombeo");
  world.SetKey("/a.ocf", "FLAG 0", "HABIL( 0)", "True");
  EXPECT_EQ(world.Run("statements /a.ocf"), 0);
  EXPECT_THAT(world.out, Not(HasSubstr("+ALMF0")));
  EXPECT_THAT(world.err, HasSubstr("left out of: Resend rules, "));
  EXPECT_THAT(world.err, HasSubstr("Flags"));
  world.Expect("statements /a.ocf --port sim:VR200", 0, "RETRYMAX=");
  EXPECT_THAT(world.out, Not(HasSubstr("+ALMF0")));
  EXPECT_EQ(world.err, "");
  world.Expect("show /a.ocf --port sim:VR200", 0, "\"Bombeo\"  (not taken by this firmware)\n");
  EXPECT_EQ(world.Run("show /a.ocf"), 0);
  EXPECT_THAT(world.out, Not(HasSubstr("not taken")));
  EXPECT_THAT(world.err, HasSubstr("settings are not taken by every firmware"));
}

TEST(Files, ADashIsStandardInputOrOutput) {
  FileWorld world;
  const std::string file = world.files.contents["/a.ocf"];
  EXPECT_EQ(world.Run("download - --port sim:VR200"), 0);
  EXPECT_EQ(world.out, file);
  EXPECT_THAT(world.err, HasSubstr("saved to standard output\n"));
  EXPECT_EQ(world.Run("download - --json --port sim:VR200"), 2);
  int reads = 0;
  world.environment.readDescriptor = [&](int descriptor, bool, std::string& octets) {
    EXPECT_EQ(descriptor, 0);
    octets = file;
    ++reads;
    return FileResult{};
  };
  for (const std::string line : {"show -", "check -", "statements -", "diff /a.ocf -",
                                 "diff - port --port sim:VR200", "upload - --port sim:VR200"})
    EXPECT_EQ(world.Run(line), 0) << line << world.err;
  EXPECT_EQ(reads, 6) << "once a command";
  world.environment.readDescriptor = [](int, bool, std::string&) { return FileResult{"closed"}; };
  EXPECT_EQ(world.Run("show -"), 5);
  EXPECT_EQ(world.err, "ostrelctl: cannot read standard input: closed\n");
}

TEST(Files, ErrorsAreJsonForPrograms) {
  World world;
  for (const auto& [line, code] : std::vector<std::pair<std::string, int>>{
           {"show /absent.ocf --json", 5}, {"--json fly", 2}, {"info --json --port COM300", 2}}) {
    EXPECT_EQ(world.Run(line), code);
    EXPECT_EQ(world.out, "") << line;
    const QJsonObject error =
        QJsonDocument::fromJson(QByteArray::fromStdString(world.err)).object();
    EXPECT_EQ(error["exitCode"].toInt(), code) << world.err;
    EXPECT_FALSE(error["error"].toString().isEmpty()) << world.err;
  }
}

TEST(Files, AProtectedFileIsReplacedAfterAQuestion) {
  FileWorld world;
  world.files.modes["/a.ocf"] = 0444;
  world.Edit("/a.ocf", "NOMBRE=", "NOMBRE=mine");
  const std::string former = world.files.contents["/a.ocf"];
  world.Expect("download /a.ocf --port sim:VR200", 5,
               "cannot write /a.ocf: it is read-only. --yes replaces it");
  EXPECT_EQ(world.files.contents["/a.ocf"], former);
  EXPECT_EQ(world.Run("download /a.ocf --yes --port sim:VR200"), 0) << world.err;
  EXPECT_NE(world.files.contents["/a.ocf"], former);
  EXPECT_EQ(world.files.modes["/a.ocf"], 0444);
}

TEST(Files, OfACutFileEveryReaderTells) {
  FileWorld world;
  world.HaveFile("/cut.ocf");
  std::string& cut = world.files.contents["/cut.ocf"];
  cut.resize(cut.size() / 2);
  for (const auto* line : {"show /cut.ocf", "statements /cut.ocf", "schedule /cut.ocf",
                           "diff /a.ocf /cut.ocf", "diff /cut.ocf /a.ocf"}) {
    world.Run(line);
    EXPECT_THAT(world.err, HasSubstr("warning: /cut.ocf is not whole: ")) << line;
  }
  EXPECT_EQ(world.Run("show /a.ocf"), 0);
  EXPECT_THAT(world.err, testing::Not(HasSubstr("not whole")));
}

TEST(Files, CoreTextsAreInTheLanguageOfTheLocale) {
  World world;
  world.files.contents["/share/Lang.txt"] =
      "{Espa\xF1ol}{English}\r\n{Ejecutar macro}{Run macro}\r\n";
  world.HaveFile("/a.ocf");
  world.SetKey("/a.ocf", "DIGITAL 0", "ACTHI( 0 0)", " 3");
  world.Expect("show /a.ocf", 0, "3 - Ejecutar macro");
  world.environment.lang = 2;
  world.Expect("show /a.ocf", 0, "3 - Run macro");
  world.Expect("show /a.ocf --lang 1", 0, "3 - Ejecutar macro");
}

}  // namespace
}  // namespace ostrel::cli
