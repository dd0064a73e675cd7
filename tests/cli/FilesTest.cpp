#include "base/CodePage.h"
#include "cli/World.h"

namespace ostrel::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(Statements, AreThoseThatAnUploadSends) {
  World world;
  world.HaveFile("/a.ocf");
  std::string sent;
  world.Logger().OnExchange([&](const sim::Exchange& exchange) {
    if (exchange.request.starts_with("#45"))
      sent += FromCodePage(exchange.request.substr(6)) + "\n";
  });
  EXPECT_EQ(world.Run("upload /a.ocf --no-verify --no-backup --port sim:VR200"), 0);
  const auto features = world.Logger().Self().features;
  std::ostringstream hex;
  hex << std::hex << features;
  EXPECT_EQ(world.Run("statements /a.ocf --secrets --features 0x" + hex.str()), 0);
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
  EXPECT_EQ(world.Run("show /a.ocf"), 0);
  EXPECT_THAT(world.out, HasSubstr("Ostrel VR200\n"));
  EXPECT_THAT(world.out, HasSubstr("GENERAL (general)\n  NOMBRE (name): \"Dep\xC3\xB3sito\"\n"));
  EXPECT_THAT(world.out, Not(HasSubstr("RENVT")));
  EXPECT_THAT(world.out, HasSubstr("TLFM 1 (telephone 1): 600100200,Prio=2,PRV1,MASKMODE1,DI3"));
  EXPECT_THAT(world.out, HasSubstr("DIGITAL 2 (digital input 2)\n"));
  EXPECT_THAT(world.out, HasSubstr("  HABIL( 1) (alarm 1, enabled): yes\n"));
  EXPECT_THAT(world.out, HasSubstr("\"Puerta\\x1b[31m\"")) << "a terminal gets no control";
  EXPECT_THAT(world.out, HasSubstr("(alarm 1, valid days): Mo Tu We Th Fr\n"));
  EXPECT_THAT(
      world.out,
      HasSubstr(
          "  ACTHI( 1) (alarm 1, actions, high): 5 - Ejecutar macro 4; 12 - Ejecutar macro 11\n"));
  EXPECT_THAT(world.out, HasSubstr("(alarm 1, rearming): 7 s\n"));
  EXPECT_THAT(world.out, HasSubstr("INTERFAZ (interface): 0-10 V\n"));
  EXPECT_EQ(world.Run("show /a.ocf --all"), 0);
  EXPECT_THAT(world.out, HasSubstr("RENVT (time between resends): 10 minutes\n"));
  EXPECT_THAT(world.out, HasSubstr("TLFM 0 (telephone 0): free\n"));
}

TEST(Show, SaysNothingOfAlarmsThatAreOffUnlessAsked) {
  World world;
  world.HaveFile("/a.ocf");
  world.SetKey("/a.ocf", "DIGITAL 7", "HABIL( 3)", "False");
  world.SetKey("/a.ocf", "DIGITAL 7", "SIEMPRE( 3)", "False");
  world.SetKey("/a.ocf", "DIGITAL 6", "HABIL( 2)", "True");
  world.SetKey("/a.ocf", "DIGITAL 6", "SIEMPRE( 2)", "False");
  EXPECT_EQ(world.Run("show /a.ocf"), 0);
  EXPECT_EQ(world.out.find("( 3) (alarm 3"), std::string::npos) << world.out;
  EXPECT_THAT(world.out, HasSubstr("SIEMPRE( 2) (alarm 2, always valid): no\n"));
  EXPECT_EQ(world.Run("show /a.ocf --all"), 0);
  EXPECT_THAT(world.out, HasSubstr("SIEMPRE( 3) (alarm 3, always valid): no\n"));
}

TEST(Show, GivesTypedJson) {
  World world;
  world.HaveFile("/a.ocf");
  world.SetKey("/a.ocf", "ANALOG 0", "EqFE", " 2.5");
  EXPECT_EQ(world.Run("show /a.ocf --json"), 0);
  const QJsonObject sections = world.Json().object()["sections"].toObject();
  const QJsonObject general = sections["GENERAL"].toObject();
  EXPECT_TRUE(general["NOMBRE"].isString());
  EXPECT_TRUE(general["RENVT"].isDouble());
  EXPECT_TRUE(general["TLFM 0"].toObject()["mask"].isArray());
  EXPECT_TRUE(general["TLFM 19"].isNull());
  const QJsonObject analog = sections["ANALOG 0"].toObject();
  EXPECT_EQ(analog["EqFE"].toDouble(), 2.5);
  EXPECT_TRUE(analog["HABIL( 0)"].isBool());
  EXPECT_TRUE(analog["INICIO( 0)"].isString());
  EXPECT_TRUE(sections["FLAG 15"].isObject());
}

TEST(Show, TellsTimersInWordsUnlessTheyAreOff) {
  World world;
  world.files.contents["/a.ocf"] =
      "[General]\r\nVERSION=VR200\r\n[CTIMER 3]\r\nHABIL=False\r\nPERIOD= 77\r\n[MTIMER 2]\r\n"
      "HABIL=True\r\nINICIO=6:00:00\r\nMES= 2147483653\r\nACT( 0)= 5\r\nACT( 3)= 7";
  EXPECT_EQ(world.Run("show /a.ocf"), 0);
  EXPECT_THAT(world.out,
              HasSubstr("MTIMER 2 (monthly timer 2)\n  HABIL (enabled): yes\n"
                        "  INICIO (time of day): 6:00:00\n"
                        "  MES (days of the month): 1 3 last\n"
                        "  ACT (actions): 5 - Ejecutar macro 4; 7 - Ejecutar macro 6\n"));
  EXPECT_EQ(world.out.find("77"), std::string::npos) << world.out;
  EXPECT_EQ(world.Run("show /a.ocf --json"), 0);
  EXPECT_THAT(world.out, HasSubstr("\"MES\": 2147483653,"));
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
  const QJsonObject timer = json["timers"].toArray().at(0).toObject();
  EXPECT_EQ(timer["section"].toString() + timer["condition"].toString(), "CTIMER 3F2");
  EXPECT_EQ(timer["firings"].toArray().at(0).toString(), "2026-03-04 16:38:27");
  EXPECT_EQ(json["macros"].toArray().at(0).toObject()["macro"].toInt(), 4);
  for (const std::string moment : {"tomorrow", "2026-02-29", "2026-03-02T8:00", "2026-03-02_08:00"})
    EXPECT_EQ(world.Run("schedule /a.ocf --from " + moment), 2) << moment;
  EXPECT_EQ(world.Run("schedule /none.ocf"), 5);
  world.Edit("/a.ocf", "HABIL=True", "HABIL=False");
  EXPECT_EQ(world.Run("schedule /a.ocf"), 0);
  EXPECT_EQ(world.err, "/a.ocf: no timer is enabled\n");
}

TEST(Diff, TellsDifferencesInWordsAndByExitCode) {
  World world;
  world.HaveFile("/a.ocf");
  world.files.contents["/b.ocf"] = world.files.contents["/a.ocf"];
  EXPECT_EQ(world.Run("diff /a.ocf /b.ocf"), 0);
  EXPECT_EQ(world.out, "");
  world.SetKey("/b.ocf", "General", "RENVN", " 7");
  world.SetKey("/b.ocf", "DIGITAL 7", "TEXTO( 3)", "oculto");
  EXPECT_EQ(world.Run("diff /a.ocf /b.ocf"), 1);
  EXPECT_THAT(world.out, HasSubstr("RENVN (resends): "));
  EXPECT_THAT(world.out, HasSubstr("TEXTO( 3) (alarm 3, text): \"\" -> \"oculto\"\n"));
  EXPECT_EQ(world.Run("diff /a.ocf /b.ocf --json"), 1);
  EXPECT_EQ(world.Json().object()["differences"].toArray().size(), 2);
}

TEST(Download, AsksBeforeItReplacesWhatItWouldLose) {
  World world;
  world.HaveFile("/a.ocf");
  const std::string former = world.files.contents["/a.ocf"] + "\r\n[MINE]\r\nA=1";
  world.files.contents["/a.ocf"] = former;
  EXPECT_EQ(world.Run("download /a.ocf --port sim:VR200"), 5);
  EXPECT_THAT(world.err, HasSubstr("would lose: [MINE] A"));
  EXPECT_EQ(world.files.contents["/a.ocf"], former);
  EXPECT_EQ(world.Run("download /a.ocf --port sim:VR200 --yes"), 0);
  EXPECT_EQ(world.files.contents["/a.ocf"].find("MINE"), std::string::npos);
}

TEST(Diff, ComparesAFileWithWhatTheLoggerHolds) {
  World world;
  world.HaveFile("/a.ocf");
  EXPECT_EQ(world.Run("diff /a.ocf port --port sim:VR200"), 0) << world.out;
  world.SetKey("/a.ocf", "General", "NOMBRE", "Nuevo");
  const std::string name = "\"" + world.Logger().Conf().name + "\"";
  EXPECT_EQ(world.Run("diff /a.ocf port --port sim:VR200"), 1);
  EXPECT_THAT(world.out, HasSubstr("(name): \"Nuevo\" -> " + name));
  EXPECT_EQ(world.Run("diff port /a.ocf --port sim:VR200"), 1);
  EXPECT_THAT(world.out, HasSubstr("(name): " + name + " -> \"Nuevo\""));
  EXPECT_EQ(world.Run("diff /a.ocf port"), 2) << "no port is named";
}

/// A configuration of a VR200, in which nothing is wrong.
std::string Sound() {
  std::string text = "[General]\r\nVERSION=VR200\r\nNOMBRE=Bomba\r\nRENVT= 10\r\nRENVN= 3\r\n";
  text += "TLFM 0=+34600100200,Prio=1,PRV0,MASKMODE1,DI2\r\n[DIGITAL 2]\r\nNOMBRE=Puerta\r\n";
  text += "HABIL( 0)=True\r\nSMS( 0)=True\r\nTEXTO( 0)=Abierta\r\nSIEMPRE( 0)=True\r\n";
  text +=
      "SEMANA( 0)= 127\r\nACTHI( 0 0)= 5\r\n[MACROS]\r\nLINE( 3)=MACRO4={S0=1}\r\n[MODBUS "
      "0]\r\nOTHER=1\r\n[MODBUS]\r\nBAUD= 9600\r\n";
  return text;
}

/// One change to a sound file, and the only rule that then finds something.
struct RuleCase {
  std::string from, to;
  std::string options;
  std::string rule;  ///< empty for none
  int code = 0;
};

/// The samples have but a few of the sections and keys.
constexpr std::string_view kPartly = " --silence section-missing --silence key-missing";

/// Looks at a sound file with the change.
void ExpectRule(const std::string& sound, const RuleCase& one) {
  World world;
  world.files.contents["/a.ocf"] = sound;
  world.Edit("/a.ocf", one.from, one.to);
  const std::string check = "check /a.ocf" + std::string(kPartly) + one.options;
  EXPECT_EQ(world.Run(check + " --json"), one.code) << one.to;
  const QJsonArray findings = world.Json().object()["findings"].toArray();
  EXPECT_EQ(findings.size(), one.rule.empty() ? 0 : 1) << one.to << '\n' << world.out;
  if (findings.empty() || one.rule.empty()) return;
  EXPECT_EQ(findings[0].toObject()["rule"].toString().toStdString(), one.rule) << one.to;
  EXPECT_EQ(findings[0].toObject()["severity"].toString().toStdString(),
            one.code == 1 ? "error" : "warning");
  EXPECT_EQ(world.Run(check + " --silence " + one.rule), 0);
  EXPECT_EQ(world.out, "") << "a rule can be silenced";
}

TEST(Check, FindsEachMistakeByItsRule) {
  const std::string anyMask = " --silence mask-without-alarm";
  const std::string shortMasks = " --features ffeffff" + anyMask;
  for (const RuleCase& one : std::vector<RuleCase>{
           {"Bomba", "Bomba", "", ""},
           {"Bomba", "Bomba", " --features ffffffff", ""},
           {"Bomba", "Bomba, sur", "", "text-breaks-statement", 1},
           {"Abierta", "Abierta\tya", "", "text-breaks-statement", 1},
           {"Abierta", "Abierta {ya", "", "text-breaks-statement", 1},
           {"NOMBRE=Puerta", "NOMBRE=Puerta, norte", "", "text-breaks-statement", 1},
           {"HABIL( 0)=True\r\nSMS( 0)=True\r\nTEXTO( 0)=Abierta", "TEXTO( 0)=cerrada, no enviada",
            anyMask, ""},
           {"Bomba", std::string(51, 'x'), "", "text-too-long"},
           {"Bomba", std::string(50, 'x'), "", ""},
           {"NOMBRE=Puerta", "NOMBRE=" + std::string(60, 'x'), "", "text-too-long"},
           {"Abierta", std::string(60, 'x'), "", "text-too-long"},
           {"+34600100200", "+3460010020012345678", "", "text-too-long"},
           {"RENVT= 10", "RENVT=abc", "", "value-misread"},
           {"ACTHI( 0 0)= 5", "ACTHI( 0 0)= 99999", "", "value-misread"},
           {"RENVT= 10", "RENVT=10.0", "", ""},
           {"SMS( 0)=True", "SMS( 0)=True\r\nHABIL( 1)=maybe", "", "value-misread"},
           {"SMS( 0)=True", "SMS( 0)=True\r\nINICIO( 0)=99:99", "", "value-misread"},
           {"SMS( 0)=True", "SMS( 0)=True\r\nINICIO( 0)=07:30", "", ""},
           {"OTHER=1", "OTHER=" + std::string(255, 'x'), "", "value-cut"},
           {"ACTHI( 0 0)= 5", "ACTHI( 0 0)= 41", "", "action-not-offered"},
           {"ACTHI( 0 0)= 5", "ACTHI( 0 0)=-1", "", ""},
           {"MASKMODE1,DI2", "MASKMODE1,DI3", anyMask, "alarm-for-nobody"},
           {"MASKMODE1,DI2", "MASKMODE2,DI2", "", "alarm-for-nobody"},
           {"MASKMODE1,DI2", "MASKMODE2,DI3", anyMask, ""},
           {"MASKMODE1,DI2", "MASKMODE0", "", ""},
           {"TLFM 0=+34600100200", "TLFX 0=", "", "alarm-for-nobody"},
           {"SMS( 0)=True", "SMS( 0)=False", "", ""},
           {"SIEMPRE( 0)=True\r\nSEMANA( 0)= 127", "SIEMPRE( 0)=False\r\nSEMANA( 0)= 0", "",
            "alarm-never-valid"},
           {"RENVN= 3", "RENVN= 4", " --features fffffffe", "setting-not-sent"},
           {"RENVN= 3", "RENVN= 4", "", ""},
           {"MASKMODE1,DI2", "MASKMODE1,DI2,FG3", shortMasks, "mask-not-sent"},
           {"MASKMODE1,DI2", "MASKMODE1,DI2,FG3", "", "mask-without-alarm"},
           {"+34600100200", "34-600", "", "bad-telephone"},
           {"+34600100200", "12", "", "bad-telephone"},
       }) {
    ExpectRule(Sound(), one);
  }
}

TEST(Check, FindsEachMistakeOfABusByItsRule) {
  const std::string sound =
      "[General]\r\nVERSION=VR200\r\n[CTIMER 0]\r\nHABIL=True\r\nPERIOD= 60\r\nSIEMPRE=True\r\n"
      "ACT( 3)= 74\r\n[ANALOG 1]\r\nINTERFAZ= 1\r\nFE= 20\r\nEqFE= 6\r\nHABIL( 2)=True\r\n"
      "SIEMPRE( 2)=True\r\nMINIMO( 2)= 1\r\nMAXIMO( 2)= 5\r\nHISTERESIS( 2)= 4\r\n"
      "[MODBUS 9]\r\nSLAVE= 1\r\nMULT= 2\r\nANALOG_MODE=True\r\nHABIL( 0)=True\r\n"
      "SIEMPRE( 0)=True\r\nMAXIMO( 0)= 3\r\n[MODBUS]\r\nBAUD= 9600";
  for (const RuleCase& one : std::vector<RuleCase>{
           {"BAUD= 9600", "BAUD= 9600", "", ""},
           {"MINIMO( 2)= 1", "MINIMO( 2)= 6", "", "thresholds-reversed"},
           {"HISTERESIS( 2)= 4", "HISTERESIS( 2)= 4.5", "", "hysteresis-too-large"},
           {"= 1\r\nMAXIMO( 2)= 5\r\nHISTERESIS( 2)= 4",
            "= 1.2\r\nMAXIMO( 2)= 1.3\r\nHISTERESIS( 2)= .1", "", ""},
           {"HABIL( 2)=True\r\nSIEMPRE( 2)=True\r\nMINIMO( 2)= 1", "MINIMO( 2)= 6", "", ""},
           {"INTERFAZ= 1", "INTERFAZ= 0", "", "alarm-of-silent-channel"},
           {"MULT= 2", "MULT= 0", "", "alarm-of-silent-channel"},
           {"SLAVE= 1", "SLAVE= 0", "", "alarm-of-silent-channel"},
           {"SLAVE= 1", "SLAVE= 248", "", "modbus-out-of-range", 1},
           {"SLAVE= 1", "SLAVE= 1\r\nREGADD=-1", "", "modbus-out-of-range", 1},
           {"BAUD= 9600", "BAUD= 9600\r\nMASTER=False\r\nSLAVE_ADDRESS= 300", "",
            "modbus-out-of-range", 1},
           {"BAUD= 9600", "OTHER=1", "", "modbus-bit-rate"},
           {"BAUD= 9600", "BAUD= 300", "", "modbus-bit-rate"},
           {"MULT= 2", "MULT=-2", "", "modbus-not-kept"},
           {"MULT= 2", "MULT= 2\r\nTYPE= 3", "", "modbus-not-kept"},
           {"MULT= 2", "MULT= 2\r\nSIZE32=True", "", "modbus-not-kept"},
           {"MULT= 2", "MULT= 2\r\nSIZE32=False", "", ""},
           {"ACT( 3)= 74", "ACT( 3)= 75", "", "modbus-never-read"},
           {"MULT= 2\r\nANALOG_MODE=True", "NOMBRE=Bomba\r\nMULT= 2", "", "modbus-not-kept"},
           {"MULT= 2\r\nANALOG_MODE=True", "MASCARA= 1\r\nMINIMO( 0)= 9", "", ""},
       })
    ExpectRule(sound, one);
  ExpectRule(sound + "\r\nMASTER=False", {"ACT( 3)= 74", "ACT( 3)= 75", "", ""});
}

TEST(Check, FindsEachMistakeOfTimersByItsRule) {
  const std::string sound =
      "[General]\r\nVERSION=TAVRO\r\n[CTIMER 0]\r\nHABIL=True\r\nPERIOD= 60\r\nSIEMPRE=False\r\n"
      "FINAL=1:00:00\r\nSEMANA= 1\r\nACT( 0)= 42\r\n[LTIMER 15]\r\nHABIL=True\r\nPERIOD= 24855\r\n"
      "ACT( 7)= 43\r\n[WTIMER 1]\r\nHABIL=True\r\nSEMANA= 64\r\nACT( 0)= 50\r\n[MTIMER 2]\r\n"
      "HABIL=True\r\nMES= 1\r\nACT( 0)= 48\r\n[MTIMER 3]\r\nHABIL=False\r\nACT( 0)= 48";
  const std::string never = "timer-never-runs", idle = "timer-without-actions";
  for (const RuleCase& one : std::vector<RuleCase>{
           {"PERIOD= 60", "PERIOD= 60", "", ""},
           {"PERIOD= 60", "PERIOD= 0", "", never},
           {"SEMANA= 1", "SEMANA= 0", "", never},
           {"SIEMPRE=False\r\nFINAL=1:00:00\r\nSEMANA= 1", "SIEMPRE=True\r\nSEMANA= 0", "", ""},
           {"SEMANA= 64", "SEMANA= 128", "", never},
           {"MES= 1", "MES= 0", "", never},
           {"MES= 1", "MES= 2147483648", "", ""},
           {"MES= 1", "MES= 4294967296", "", "number-out-of-range", 1},
           {"MES= 1", "MES= 3.5", "", "number-out-of-range", 1},
           {"ACT( 0)= 42", "ACT( 0)= 0", "", idle},
           {"ACT( 7)= 43", "ACT( 7)=-1", "", idle},
           {"ACT( 0)= 50", "ACT( 0)= 0", "", idle},
           {"ACT( 0)= 48", "ACT( 0)= 0", "", idle},
           {"MES= 1\r\nACT( 0)= 48", "MES= 0", "", never},
           {"24855", "24856", "", "period-too-long", 1},
           {"HABIL=True\r\nPERIOD= 24855", "HABIL=False\r\nPERIOD= 24856", "", ""},
       })
    ExpectRule(sound, one);
}

TEST(Check, TakesFilesOfEarlierPrograms) {
  World world;
  world.HaveFile("/a.ocf");
  std::string& text = world.files.contents["/a.ocf"];
  const auto replace = [&](std::string_view from, std::string_view by) {
    const std::size_t at = text.find(from, text.find("[MODBUS"));
    ASSERT_NE(at, std::string::npos) << from;
    text.replace(at, from.size(), by);
  };
  replace("MASTER=True\r\n", "");
  replace("TYPE= 0\r\n", "SIZE32=False\r\n");
  EXPECT_EQ(world.Run("check /a.ocf"), 0) << world.out;
  replace("BAUD=", "OTHER=");
  EXPECT_EQ(world.Run("check /a.ocf"), 1);
}

TEST(Check, FindsEachMistakeOfMacrosAndGprsByItsRule) {
  const std::string sound =
      "[General]\r\nVERSION=TAVRO\r\n[DIGITAL 1]\r\nHABIL( 0)=True\r\nGPRS( 0)=True\r\n"
      "SIEMPRE( 0)=True\r\nACTHI( 0 0)= 39\r\nFLAG( 0)= 16\r\n[MACROS]\r\nLINE( 1)=F15={D0}\r\n"
      "LINE( 7)=MACRO38={S0=1,NAME=a, b}\r\nLINE( 39)=MACRO55={X}\r\n[GPRS]\r\nAPN_SERVER=a\r\n"
      "SERVER_IP=1.2.3.4\r\nENABLED=True\r\n[AUT_VOZ]\r\nMACRO= 38\r\nTEL 0=600";
  const std::string otherVoice = " --silence voice-macro-missing";
  for (const RuleCase& one : std::vector<RuleCase>{
           {"MACRO38", "MACRO38", "", ""},
           {"LINE( 39)", "LINE( 40)", "", "macro-not-sent"},
           {"MACRO55", "MACRO38", "", "macro-number-twice"},
           {"MACRO55={X}", "MACRO56={X}", "", "macro-broken", 1},
           {"MACRO55={X}", "MACRO55={X}}", "", "macro-broken", 1},
           {"MACRO55={X}", "MACRO55={\tX}", "", "text-breaks-statement", 1},
           {"MACRO55={X}", "F16={X}", "", "equation-above-f15", 1},
           {"MACRO55={X}", "MACRO15={X}", "", ""},
           {"MACRO38", "MACRO37", otherVoice, "action-without-macro"},
           {"S0=1,NAME=a, b", ",NAME=a", otherVoice, "action-without-macro"},
           {"LINE( 7)", "LINE( 41)", otherVoice + " --silence macro-not-sent",
            "action-without-macro"},
           {"HABIL( 0)=True", "HABIL( 0)=False", "", ""},
           {"ACTHI( 0 0)= 39", "ACTHI( 0 0)= 42", "", ""},
           {"FLAG( 0)= 16", "FLAG( 0)= 15", "", "condition-without-equation"},
           {"MACRO= 38", "MACRO= 37", "", "voice-macro-missing"},
           {"MACRO= 38", "MACRO= 40", "", "voice-macro-missing"},
           {"MACRO= 38", "MACRO=-1", "", ""},
           {"MACRO= 38\r\n", "", "", "voice-macro-missing"},
           {"APN_SERVER=a", "APN_SERVER=", "", "gprs-without-apn"},
           {"APN_SERVER=a\r\nSERVER_IP=1.2.3.4", "APN_SERVER=a\r\nSERVER_IP=0", "",
            "gprs-without-server"},
           {"1.2.3.4\r\nENABLED=True", "0\r\nENABLED=False", "", ""},
           {"TEL 0=600", "TEL 0=6x", "", "bad-telephone"},
       })
    ExpectRule(sound, one);
  std::string full = "[MACROS]\r\n";
  for (int line = 10; line < 15; ++line)
    full += "LINE( " + std::to_string(line) + ")=F" + std::to_string(line) + "={" +
            std::string(198, 'x') + "}\r\n";
  // Five lines of 203 or 204 characters, and of those that stand there 8, 26 and 11.
  ExpectRule(sound, {"[MACROS]\r\n", full, "", "macro-memory-full", 1});
}

TEST(Check, FindsEachSenselessNumberByItsRule) {
  const std::string sound =
      "[General]\r\nVERSION=VR200\r\nRENVT= 10\r\nTLFM 3=600,Prio=1,PRV0,MASKMODE0\r\n"
      "TLFM 9=601,Prio=1,PRV0,MASKMODE0\r\n[ANALOG 1]\r\n"
      "INTERFAZ= 1\r\nIE= 4\r\nFE= 20\r\nEqIE=-1\r\nEqFE= 6\r\nHABIL( 2)=True\r\n"
      "SIEMPRE( 2)=True\r\nPERSISTENCIA( 2)= 10000\r\n[CAUDAL 1]\r\nINTERFAZ= 6\r\n"
      "[DIGITAL 0]\r\nHABIL( 0)=True\r\nSIEMPRE( 0)=True\r\nREARM( 0)= 86400\r\n"
      "[MODBUS]\r\nBAUD= 9600";
  for (const RuleCase& one : std::vector<RuleCase>{
           {"IE= 4", "IE= 4", "", ""},
           {"FE= 20", "FE= 4", "", "scale-useless"},
           {"FE= 20", "FE= 3", "", "scale-useless"},
           {"EqIE=-1", "EqIE= 6", "", "scale-useless"},
           {"EqIE=-1", "EqIE= 7", "", "scale-useless"},
           {"INTERFAZ= 6", "INTERFAZ= 1", "", "interface-unknown"},
           {"INTERFAZ= 1", "INTERFAZ= 4", "", "interface-unknown"},
           {"TLFM 9=601", "TLFM 9=600", "", "telephone-twice"},
           {"( 2)= 10000", "( 2)= 10001", "", "number-senseless"},
           {"( 2)= 10000", "( 2)=-1", "", "number-senseless"},
           {"HABIL( 2)=True\r\nSIEMPRE( 2)=True\r\nPERSISTENCIA( 2)= 10000",
            "PERSISTENCIA( 2)= 10001", "", ""},
           {"INTERFAZ= 6", "INTERFAZ= 6\r\nTIMEBASE=-5", "", "number-out-of-range", 1},
           {"INTERFAZ= 6", "INTERFAZ= 6\r\nHABIL( 0)=True\r\nSIEMPRE( 0)=True", "",
            "alarm-of-silent-channel"},
           {"REARM( 0)=", "FLAG( 0)= 17\r\nREARM( 0)=", "", "number-out-of-range", 1},
           {"REARM( 0)= 86400", "REARM( 0)= 86401", "", "number-senseless"},
           {"RENVT= 10", "RENVT= 1441", "", "number-senseless"},
       })
    ExpectRule(sound, one);
}

TEST(Check, FindsEachMistakeOfExpansionInputsByItsRule) {
  const std::string sound =
      "[General]\r\nVERSION=OSTREL_S100\r\n[MINPUT 3]\r\nMODO= 1\r\nDIR= 2\r\nENTRADA= 5\r\n"
      "[MINPUT 95]\r\nMODO= 4\r\nDIR= 2\r\nENTRADA= 6\r\n[MINPUT.A 95]\r\nINTERFAZ= 3\r\nFE= "
      "10\r\nEqFE= 6\r\n"
      "[MINPUT 96]\r\nMODO= 9\r\nDIR= 2\r\nENTRADA= 5";
  for (const RuleCase& one : std::vector<RuleCase>{
           {"DIR= 2", "DIR= 2", "", ""},
           {"ENTRADA= 6", "ENTRADA= 5", "", "expansion-input-shared"},
           {"MODO= 4\r\nDIR= 2\r\nENTRADA= 6", "MODO= 0\r\nDIR= 2\r\nENTRADA= 5", "", ""},
           {"INTERFAZ= 3", "INTERFAZ= 0", "", "expansion-no-interface"},
           {"MODO= 1", "MODO= 5", "", "expansion-out-of-range", 1},
           {"ENTRADA= 6", "ENTRADA= 8", "", "expansion-out-of-range", 1},
           {"DIR= 2", "DIR= 16", "", "expansion-out-of-range", 1},
           {"DIR= 2", "GRUPO=-1", "", "expansion-out-of-range", 1},
       })
    ExpectRule(sound, one);
}

TEST(Check, FindsEachMistakeOfProbesAndEquationsByItsRule) {
  const std::string sound =
      "[General]\r\nVERSION=OSTREL_KA1\r\n[1WIRE 0]\r\nINTERFAZ= 4\r\nADDRESS1=40.113.0.1\r\n"
      "ADDRESS2=000.000.000.000\r\n[1WIRE 2]\r\nINTERFAZ= 5\r\nADDRESS1=040.113.000.002\r\n"
      "ADDRESS2=0.0.0.0\r\n[MATH 3]\r\nINTERFAZ= 6\r\nECUACION=(FL7-DI0)*PB3+Q9";
  for (const RuleCase& one : std::vector<RuleCase>{
           {"Q9", "Q9", "", ""},
           {"040.113.000.002", "040.113.000.001", "", "probe-identity-shared"},
           {"INTERFAZ= 5\r\nADDRESS1=040.113.000.002", "INTERFAZ= 0\r\nADDRESS1=040.113.000.001",
            "", ""},
           {"40.113.0.1", "40.113.0", "", "probe-identity-broken", 1},
           {"40.113.0.1", "40.113.0.256", "", "probe-identity-broken", 1},
           {"40.113.0.1", "40.113.0.1.", "", "probe-identity-broken", 1},
           {"40.113.0.1", "a", "", "probe-identity-broken", 1},
           {"40.113.0.1", "0", "", "probe-identity-broken", 1},
           {"FL7", "FL8", "", "equation-without-channel"},
           {"DI0", "MB0", "", "equation-without-channel"},
           {"INTERFAZ= 6\r\nECUACION=", "ECUACION=MB0", "", ""},
       })
    ExpectRule(sound, one);
}

TEST(Check, FindsNothingInWhatASimulatedLoggerHolds) {
  for (const std::string model : {"KA1", "KA2", "VR200", "S100", "BP", "BQ"}) {
    World world;
    world.HaveFile("/a.ocf", model);
    EXPECT_EQ(world.Run("check /a.ocf --features ffffffff"), 0) << model;
    EXPECT_EQ(world.out, "") << model;
  }
}

TEST(Check, FindsThatAFileWasCut) {
  World world;
  world.HaveFile("/a.ocf");
  std::string& text = world.files.contents["/a.ocf"];
  text.resize(text.find("[FLAG 14]"));
  EXPECT_EQ(world.Run("check /a.ocf"), 1);
  EXPECT_THAT(world.out, HasSubstr("error: [FLAG 14]: this section and "));
  text.resize(text.rfind("NOMBRE="));
  EXPECT_EQ(world.Run("check /a.ocf --silence section-missing"), 1);
  EXPECT_THAT(world.out, HasSubstr("error: [MODBUS 31] NOMBRE: this key and "));
}

TEST(Check, SaysWhereAndWhatHelps) {
  World world;
  world.files.contents["/a.ocf"] = Sound();
  world.Edit("/a.ocf", "Bomba", "Bomba, sur");
  EXPECT_EQ(world.Run("check /a.ocf --silence section-missing --silence key-missing"), 1);
  EXPECT_EQ(world.out,
            "error: [GENERAL] NOMBRE: a comma ends the text on the line: write something else for "
            "it (text-breaks-statement)\n");
}

/// What a file gives back changed is told, and nothing of what the logger held is lost.
TEST(Files, ATextThatAFileDoesNotKeepIsTold) {
  World world;
  sim::Configuration conf = world.Logger().Conf();
  conf.name = " a\nCSM=600111222";
  conf.digitals[0].name = "\"quoted\"";
  conf.digitals[1].name = " edges ";
  world.Logger().SetConf(conf);
  EXPECT_EQ(world.Run("download /a.ocf --port sim:VR200"), 0) << world.err;
  EXPECT_THAT(world.err, HasSubstr("[GENERAL] NOMBRE: the file keeps it up to its control "));
  EXPECT_THAT(world.err, HasSubstr("[DIGITAL 0] NOMBRE: the file does not keep the quotes around"));
  EXPECT_THAT(world.err, HasSubstr("[DIGITAL 1] NOMBRE: the file does not keep the blanks around"));
  ASSERT_EQ(world.Backups(), 1U);
  const auto lines = std::ranges::find_if(
      world.files.contents, [](const auto& file) { return file.first.ends_with(".lines"); });
  EXPECT_THAT(lines->second, testing::StartsWith("#BD000DNAME, a\nCSM=600111222\r\n#BD001"));
  EXPECT_THAT(lines->second, HasSubstr(",\"quoted\""));
  EXPECT_THAT(world.err, HasSubstr("own lines are kept in " + lines->first + "\n"));
  EXPECT_EQ(world.Run("check /a.ocf"), 0) << world.out;
  EXPECT_THAT(world.out, HasSubstr("[DIGITAL 1] NOMBRE: the file does not keep the blanks"));
  EXPECT_THAT(world.out, HasSubstr("(text-not-kept)"));
}

/// Names of a file fold, as its reader folds them, and what the reader strips does not count.
TEST(Files, AreCheckedAsTheirReaderReadsThem) {
  World world;
  world.HaveFile("/a.ocf");
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
  World world([](sim::Model model) {
    sim::LoggerOptions options = sim::MakeDefaultOptions(model);
    options.features &= ~0x4U;
    return options;
  });
  world.HaveFile("/a.ocf");
  world.SetKey("/a.ocf", "FLAG 0", "TEXTO( 0)", "Bombeo");
  world.SetKey("/a.ocf", "FLAG 0", "HABIL( 0)", "True");
  EXPECT_EQ(world.Run("statements /a.ocf"), 0);
  EXPECT_THAT(world.out, Not(HasSubstr("+ALMF0")));
  EXPECT_THAT(world.err, HasSubstr("left out of: Resend rules, "));
  EXPECT_THAT(world.err, HasSubstr("Flags"));
  EXPECT_EQ(world.Run("statements /a.ocf --port sim:VR200"), 0);
  EXPECT_THAT(world.out, HasSubstr("RETRYMAX="));
  EXPECT_THAT(world.out, Not(HasSubstr("+ALMF0")));
  EXPECT_EQ(world.err, "");
  EXPECT_EQ(world.Run("show /a.ocf --port sim:VR200"), 0);
  EXPECT_THAT(world.out, HasSubstr("\"Bombeo\"  (not taken by this firmware)\n"));
  EXPECT_EQ(world.Run("show /a.ocf"), 0);
  EXPECT_THAT(world.out, Not(HasSubstr("not taken")));
  EXPECT_THAT(world.err, HasSubstr("settings are not taken by every firmware"));
}

TEST(Files, ADashIsStandardInputOrOutput) {
  World world;
  world.HaveFile("/a.ocf");
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
  World world;
  world.HaveFile("/a.ocf");
  world.files.modes["/a.ocf"] = 0444;
  world.Edit("/a.ocf", "NOMBRE=", "NOMBRE=mine");
  const std::string former = world.files.contents["/a.ocf"];
  EXPECT_EQ(world.Run("download /a.ocf --port sim:VR200"), 5);
  EXPECT_THAT(world.err, HasSubstr("cannot write /a.ocf: it is read-only. --yes replaces it"));
  EXPECT_EQ(world.files.contents["/a.ocf"], former);
  EXPECT_EQ(world.Run("download /a.ocf --yes --port sim:VR200"), 0) << world.err;
  EXPECT_NE(world.files.contents["/a.ocf"], former);
  EXPECT_EQ(world.files.modes["/a.ocf"], 0444);
}

TEST(Files, ALargeOneIsRefusedWithTheReason) {
  World world;
  world.files.contents["/a.ocf"] = std::string(kMostFileOctets + 1, 'x');
  EXPECT_EQ(world.Run("show /a.ocf"), 5);
  EXPECT_EQ(world.err, "ostrelctl: cannot read /a.ocf: it is larger than 16 MB\n");
}

}  // namespace
}  // namespace ostrel::cli
