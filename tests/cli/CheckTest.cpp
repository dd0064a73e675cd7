#include "cli/World.h"

namespace ostrel::cli {
namespace {

using testing::HasSubstr;

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
           {"HABIL( 0)=True\r\nSMS( 0)=True\r\nTEXTO( 0)=Abierta", "TEXTO( 0)=cerrada, no enviada",
            anyMask, ""},
           {"Bomba", std::string(51, 'x'), "", "text-too-long"},
           {"Bomba", std::string(50, 'x'), "", ""},
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
           {"TLFM 0=+34600100200", "TLFX 0=", "", "alarm-for-nobody"},
           {"SMS( 0)=True", "SMS( 0)=False", "", ""},
           {"SIEMPRE( 0)=True\r\nSEMANA( 0)= 127", "SIEMPRE( 0)=False\r\nSEMANA( 0)= 0", "",
            "alarm-never-valid"},
           {"RENVN= 3", "RENVN= 4", " --features fffffffe", "setting-not-sent"},
           {"RENVN= 3", "RENVN= 4", "", ""},
           {"MASKMODE1,DI2", "MASKMODE1,DI2,FG3", shortMasks, "mask-not-sent"},
           {"MASKMODE1,DI2", "MASKMODE1,DI2,FG3", "", "mask-without-alarm"},
           {"+34600100200", "34-600", "", "bad-telephone"},
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
           {"ACT( 0)= 48", "ACT( 0)= 0", "", idle},
           {"MES= 1\r\nACT( 0)= 48", "MES= 0", "", never},
           {"24855", "24856", "", "period-too-long", 1},
           {"HABIL=True\r\nPERIOD= 24855", "HABIL=False\r\nPERIOD= 24856", "", ""},
       })
    ExpectRule(sound, one);
}

TEST(Check, TakesFilesOfEarlierPrograms) {
  FileWorld world;
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

TEST(Check, FindsThatAFileWasCutAndSaysWhere) {
  FileWorld world;
  std::string& text = world.files.contents["/a.ocf"];
  text.resize(text.find("[FLAG 14]"));
  world.Expect("check /a.ocf", 1, "error: [FLAG 14]: this section and ");
  text.resize(text.rfind("NOMBRE="));
  world.Expect("check /a.ocf --silence section-missing", 1,
               "error: [MODBUS 31] NOMBRE: this key and ");
}

TEST(Check, CountsWithTheFirmwareOfTheLoggerAtThePort) {
  FileWorld world(With([](sim::LoggerOptions& options) { options.features = 0; }));
  world.SetKey("/a.ocf", "MTIMER 0", "HABIL", "True");
  EXPECT_EQ(world.Run("check /a.ocf"), 0);
  EXPECT_THAT(world.out, testing::Not(HasSubstr("this firmware does not take")));
  world.Expect("check /a.ocf --port sim:VR200", 0, "this firmware does not take");
}

}  // namespace
}  // namespace ostrel::cli
