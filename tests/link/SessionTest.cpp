#include "link/LinkFixture.h"

namespace ostrel {
namespace {

using testing::ElementsAre;

/// Information, clock and live dialogues of a session.
class SessionTest : public LinkTest {
 protected:
  SessionTest() { OpenPort(); }
  void Select(std::string_view model, std::int32_t features = 0) {
    SelectTarget(profile, model);
    info.Features = features;
  }
};

TEST_F(SessionTest, InfoStreamFillsTheRecord) {
  logger.Always("#44", Frames("#BB000VERSION,123", "#BB001FEATURES,1088", "#BB002SERIAL,A\xD1o 7,x",
                              "#BB003VBAT,3.61", "#BB004RSSI,-17", "#BB005LOG.SIZE,4000000000",
                              "#BB006LOG.USE,", "#BB007NEWER,1", "#BB"));
  info.LogUsed = 9;
  EXPECT_FALSE(comms.ReadInfo());
  EXPECT_EQ(info, (DeviceInfo{123, 1088, "AÑo 7", 3.61F, -17, 4e9, 0}));
  EXPECT_THAT(hooked,
              ElementsAre("VERSION", "FEATURES", "SERIAL", "VBAT", "RSSI", "LOG.SIZE", "LOG.USE"));
  EXPECT_EQ(logger.lines.size(), 1U);
  EXPECT_FALSE(comms.LinkBusy);
}

TEST_F(SessionTest, InfoFaults) {
  struct Case {
    const char* name;
    std::string first, then;  ///< answers to the first and to all further requests
    float version;
    std::size_t requests;
    int cost;  ///< ms
    Kind kind;
    bool isDamage;
  };
  const std::string good = Frames("#BB000VERSION,5", "#BB"), line = Frames("#BB000VERSION,7");
  const Case cases[] = {
      {"dead line", "", "", 1, 9, 9300, Kind::Silence, false},
      {"out of sequence", Frames("#BB001VERSION,7"), good, 5, 2, 200, Kind::None, false},
      {"broken off", line + Frames("#BD001X"), good, 5, 2, 200, Kind::None, false},
      {"empty stream", Frames("#BB"), Frames("#BB"), 1, 3, 300, Kind::EmptyStream, true},
      {"wrong answer", Frames("#BE0"), Frames("#BE0"), 1, 3, 300, Kind::OutOfSequence, true},
      {"stops in the middle", line, good, 7, 1, 1100, Kind::Silence, true},
      {"damaged line", line + "#00;BB001\r", good, 7, 1, 100, Kind::BadChecksum, true},
      {"all damaged", "#00;BB000\r", "#00;BB000\r", 1, 9, 300, Kind::BadChecksum, true},
      {"too wide a number", Frames("#BB000VERSION,1e39", "#BB"), good, 1, 1, 100, Kind::None,
       false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    logger.Forget();
    if (!c.first.empty()) logger.Next("#44", c.first);
    logger.Always("#44", c.then);
    info.FirmwareVersion = 1;
    EXPECT_EQ(Took([&] { EXPECT_FALSE(comms.ReadInfo()); }), milliseconds(c.cost));
    EXPECT_EQ(info.FirmwareVersion, c.version);
    EXPECT_EQ(logger.lines.size(), c.requests);
    EXPECT_EQ(comms.InfoFault().kind, c.kind);
    EXPECT_EQ(comms.InfoFault().IsDamage(), c.isDamage);
    EXPECT_EQ(comms.Fault().kind, Kind::None) << "the refresh does not hide a failure";
  }
}

TEST_F(SessionTest, ClockCountsOnFromARealDate) {
  const DateTime former{2020, 1, 1, 0, 0, 0}, good{2026, 1, 15, 8, 30, 5};
  struct Case {
    Texts answers;
    DateTime clock;
    std::size_t requests;
  };
  const Case cases[] = {
      {{"#A2260115083005"}, good, 1},
      {{"#A3", "#A1", "#A2260115083005"}, good, 3},
      {{"#A3", "#A1", "#A0"}, former, 3},
      {{"#A2240229000000"}, {2024, 2, 29, 0, 0, 0}, 1},
      {{"#A2261315000000"}, {2027, 1, 15, 0, 0, 0}, 1},
      {{"#A2"}, {1999, 11, 30, 0, 0, 0}, 1},
  };
  for (const Case& c : cases) {
    logger.Forget();
    for (const std::string& answer : c.answers) logger.Next("#5D", Frames(answer));
    live.DeviceClock = former;
    comms.ReadDeviceRTC();
    EXPECT_EQ(live.DeviceClock, c.clock) << c.answers.front();
    EXPECT_EQ(live.ClockRead.missed, c.clock == former ? 1 : 0) << c.answers.front();
    EXPECT_EQ(logger.lines.size(), c.requests) << c.answers.front();
  }
}

TEST_F(SessionTest, SettingsAreConfirmed) {
  struct Case {
    std::function<bool()> set;
    std::string message, answer;
  };
  const Case cases[] = {
      {[this] { return comms.WriteDeviceRTC(); }, "#5C260302090507", "#A3"},
      {[this] { return comms.SetTotalCNT(2, 1500); }, "#41CNT2=1500", "#BE1"},
      {[this] { return comms.SetExpValue(95, -7); }, "#41EXP95=-7", "#BE1"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.message);
    logger.Forget();
    logger.Always(c.message, Frames(c.answer));
    EXPECT_TRUE(c.set());
    EXPECT_THAT(logger.lines, ElementsAre(c.message));
    logger.Always(c.message, Frames(c.answer + "0"));
    EXPECT_FALSE(c.set());
    EXPECT_EQ(comms.Fault().kind, Kind::NotTakenOver);
    EXPECT_EQ(comms.Fault().text, c.answer + "0");
  }
}

TEST_F(SessionTest, AProbeTellsItsIdentity) {
  ProbeIdentity identity{"a", "b"};
  logger.Always("#FA", Frames("#06040,113,000,000,000,000,000,011"));
  EXPECT_FALSE(comms.ReadProbeIdentity(identity));
  EXPECT_EQ(comms.Fault().kind, Kind::WrongAnswer);
  EXPECT_EQ(identity, (ProbeIdentity{"a", "b"}));
  logger.Always("#FA", Frames("#05040,113,000,000,000,000,000,011"));
  EXPECT_TRUE(comms.ReadProbeIdentity(identity));
  EXPECT_EQ(identity, (ProbeIdentity{"040.113.000.000", "000.000.000.011"}));
  for (const char* cut : {"#05", "#0540", "#05,,", "#05040,113,000,000,000,000,000",
                          "#05040,113,000,000,000,000,000,x11"}) {
    logger.Always("#FA", Frames(cut));
    EXPECT_FALSE(comms.ReadProbeIdentity(identity)) << cut;
    EXPECT_EQ(comms.Fault().kind, Kind::WrongAnswer);
  }
  EXPECT_EQ(identity, (ProbeIdentity{"040.113.000.000", "000.000.000.011"}));
  logger.Forget();
  EXPECT_EQ(Took([&] { comms.ReadProbeIdentity(identity); }), milliseconds(100 + 3 * 500))
      << "a stale line, then three attempts";
}

TEST_F(SessionTest, OutputsAreSetOneByOne) {
  profile.OutputCount = 4;
  for (const char* line : {"#470", "#481", "#472", "#483", "#473"})
    logger.Always(line, Frames("#whatever"));
  EXPECT_TRUE(comms.SetOutput(5));
  EXPECT_TRUE(comms.SetSingleOutput(3, true));
  EXPECT_TRUE(comms.SetSingleOutput(1, false));
  EXPECT_THAT(logger.lines, ElementsAre("#470", "#481", "#472", "#483", "#473", "#481"));
  EXPECT_TRUE(logger.raw.ends_with("#9E;473\r#9D;481\r")) << logger.raw;
  logger.Forget();
  EXPECT_TRUE(comms.SetSingleOutput(0, true)) << "answers are not looked at";
  EXPECT_EQ(logger.lines.size(), 3U);
}

TEST_F(SessionTest, EachModelIsAskedWhatItKnows) {
  constexpr std::int32_t kMath = 0x40;
  struct Case {
    std::string_view model;
    std::int32_t features;
    std::string values, names;
  };
  const Case cases[] = {
      {"Tavro BP", 0, "#20 #22 #23 ", "#26 #27 #25 "},
      {"Tavro BP", kMath, "#20 #22 #23 #29 #28 ", "#26 #27 #25 #2A "},
      {"Tavro BQ", ~kMath, "#20 #22 #23 ", "#26 #27 #25 "},
      {"Ostrel KA1", 0, "#20 #22 #23 #36 ", "#35 #26 #27 #25 "},
      {"Ostrel KA2", kMath, "#20 #22 #23 #29 #28 #36 ", "#35 #26 #27 #25 #2A "},
      {"Ostrel VR200", 0, "#2D #20 #22 #23 ", "#2C #26 #27 #25 "},
      {"Ostrel S100", 0, "#2F1D3D #2F7595 #2F95B5 #20 #22 #23 ",
       "#2B1D24 #2B252C #2B2D34 #2B353C #2B757C #2B7D84 #2B858C #2B8D94 #2B959C #2B9DA4 #2BA5AC "
       "#2BADB4 #26 #27 #25 "},
  };
  std::string asked;
  logger.onLine = [&](const std::string& line) {
    asked += line + " ";
    logger.end->Send(Frames("#odd"));  // any frame is an answer, so each request is sent once
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.model);
    Select(c.model, c.features);
    asked.clear();
    EXPECT_FALSE(comms.ReadRealTime()) << "no masks have come";
    EXPECT_EQ(asked, c.values);
    asked.clear();
    EXPECT_TRUE(comms.ReadIOParameter()) << "whatever was answered";
    EXPECT_EQ(asked, c.names);
  }
}

/// "head,1,2,..." with the number of each field in it, so that a value tells where it came from.
std::string Numbered(const std::string& head, int last) {
  std::string line = head;
  for (int field = 2; field <= last; ++field) line += "," + std::to_string(field);
  return Frames(line);
}

TEST_F(SessionTest, ValuesComeFromTheirFields) {
  const std::pair<const char*, std::string> answers[] = {
      {"#20", Numbered("#DF", 20)},     {"#22", Numbered("#DD", 20)},
      {"#23", Numbered("#DC", 20)},     {"#29", Numbered("#D6", 20)},
      {"#2D", Numbered("#D2", 40)},     {"#36", Numbered("#C9", 20)},
      {"#2F1D3D", Numbered("#D0", 40)}, {"#2F7595", Numbered("#D0", 33)},
      {"#2F95B5", Numbered("#D0", 3)},  {"#28", Frames("#D7,1.50,-.25, 3,x,5,6,7,8,9")}};
  for (const auto& [request, answer] : answers) logger.Always(request, answer);
  for (const char* model : {"Ostrel S100", "Ostrel VR200", "Ostrel KA1"}) {
    Select(model, model == std::string("Ostrel S100") ? 0x40 : 0);
    EXPECT_TRUE(comms.ReadRealTime());
  }
  const auto read = [&](LiveAnswer answer) { return live.ReadOf(answer); };
  EXPECT_TRUE(read(LiveAnswer::Modules64).hasCome);
  EXPECT_EQ(read(LiveAnswer::Aux).at, clock.LocalTime());
  logger.Always("#22", Frames("#DF,1"));
  EXPECT_TRUE(comms.ReadRealTime());
  EXPECT_EQ(read(LiveAnswer::Flows).missed, 1);
  EXPECT_FALSE(read(LiveAnswer::Flows).IsStale());
  EXPECT_TRUE(comms.ReadRealTime());
  EXPECT_TRUE(read(LiveAnswer::Flows).IsStale());
  EXPECT_LT(read(LiveAnswer::Flows).at, read(LiveAnswer::Counters).at);
  EXPECT_EQ(read(LiveAnswer::Modbus).missed, 0) << "it was not asked for";
  EXPECT_THAT(List(live.CounterValue), ElementsAre(2, 3, 4, 5, 6, 7, 8, 9, 10, 0));
  EXPECT_THAT(List(live.FlowValue), ElementsAre(2, 3, 4, 5, 6, 7, 8, 9, 10, 0));
  EXPECT_EQ(live.DigitalMask, 2);
  EXPECT_EQ(live.OutputMask, 3);
  EXPECT_EQ(live.FlagMask, 4);
  EXPECT_THAT(List(live.AnalogValue), ElementsAre(5, 6, 7, 8, 0));
  EXPECT_THAT(List(live.MathValue), ElementsAre(2, 3, 4, 5, 0, 0, 0, 0, 0));
  EXPECT_THAT(List(live.MathRaw), ElementsAre("1.5", "-0.25", "3", "0", "5", "6", "7", "8", ""));
  EXPECT_THAT(List(live.AuxValue), ElementsAre(2, 3, 4, 5, 0));
  for (int i = 0; i < 33; ++i) EXPECT_EQ(live.ModbusValue[i], i < 32 ? i + 2 : 0) << i;
  for (int i = 0; i < 129; ++i) {
    const int expected = i < 64 ? i % 32 + 2 : i < 66 ? i - 62 : 0;
    EXPECT_EQ(live.ModuloValue[i], expected) << i;
  }
}

TEST_F(SessionTest, NamesComeFromTheirFields) {
  const std::pair<const char*, const char*> answers[] = {
      {"#2C", "#D3"}, {"#35", "#CA"}, {"#26", "#D9"},     {"#27", "#D8"},
      {"#25", "#DA"}, {"#2A", "#D5"}, {"#2B1D24", "#D4"}, {"#2BADB4", "#D4"}};
  for (const auto& [request, head] : answers) logger.Always(request, Numbered(head, 140));
  for (const char* model : {"Ostrel S100", "Ostrel VR200", "Ostrel KA2"}) {
    Select(model, 0x40);
    EXPECT_TRUE(comms.ReadIOParameter());
  }
  const auto check = [](const auto& names, const auto& units, int first, int count, int field,
                        int step) {
    for (int i = 0; i < count; ++i) {
      EXPECT_EQ(names[first + i], std::to_string(field + i * step)) << first + i;
      EXPECT_EQ(units[first + i], std::to_string(field + i * step + 1)) << first + i;
    }
    EXPECT_EQ(names[first + count], "");
  };
  check(live.ModbusName, live.ModbusUnit, 0, 32, 4, 4);
  check(live.AuxName, live.AuxUnit, 0, 4, 4, 4);
  check(live.FlowName, live.FlowUnit, 0, 9, 2, 2);
  check(live.AnalogName, live.AnalogUnit, 0, 4, 6, 6);
  check(live.MathName, live.MathUnit, 0, 4, 4, 4);
  check(live.ModuloName, live.ModuloUnit, 0, 8, 2, 2);
  check(live.ModuloName, live.ModuloUnit, 88, 8, 2, 2);
  EXPECT_THAT(List(live.CounterName),
              ElementsAre("2", "3", "4", "5", "6", "7", "8", "9", "10", ""));
}

/// A dialogue whose answer lies there, because a question to the operator stands, is not silent.
TEST_F(SessionTest, WhatHasComeAndIsNotTakenIsNoSilence) {
  At(milliseconds(20), [this] {
    loop.RunFor(seconds(3));
    EXPECT_GT(comms.SilentFor(), seconds(2));
    logger.end->Send("x");
    loop.RunFor(seconds(8));
    EXPECT_EQ(comms.SilentFor(), Duration::zero());
    EXPECT_EQ(comms.UnansweredFor(), Duration::zero());
  });
  comms.ReadTotalCount();
}

/// A cable may lack the wire of the carrier; behind a modem words may be the modem's own.
TEST_F(SessionTest, WhatComesWithoutCarrierTellsOfTheLoggerOnACableAlone) {
  const auto isLostBehind = [this](Duration wait, const std::string& octets) {
    logger.end->SetCarrier(true);
    loop.RunFor(seconds(1));
    logger.end->SetCarrier(false);
    loop.RunFor(wait);
    EXPECT_TRUE(comms.LineLost());
    logger.end->Send(octets);
    loop.RunFor(milliseconds(10));
    comms.TakeInput();
    return comms.LineLost();
  };
  EXPECT_FALSE(isLostBehind(seconds(1), "08:30 DI=3"));
  EXPECT_TRUE(isLostBehind(milliseconds(10), "DI=3")) << "it was on its way";
  comms.CloseComs(false);
  for (const char* command : {"AT", "ATE0", "AT+IFC=2,2"}) logger.Always(command, "\r\nOK\r\n");
  logger.Always("ATD600", "\r\nCONNECT 9600\r\n");
  logger.Always("#40", Frames("#BF"));
  ASSERT_TRUE(comms.StartComs(kPort, "600"));
  EXPECT_TRUE(isLostBehind(seconds(1), "\r\nNO CARRIER\r\n"));
}

TEST_F(SessionTest, TotalsAreCutToWholeNumbers) {
  logger.Next("#20", Frames("#DD,9"));
  logger.Next("#20", Frames("#DF,7.9,-7.9,3000000000,4"));
  totals[2] = 5;
  totals[8] = 6;
  totals[9] = 8;
  EXPECT_TRUE(comms.ReadTotalCount());
  EXPECT_THAT(List(totals), ElementsAre(7, -7, 5, 4, 0, 0, 0, 0, 0, 8));
  logger.Always("#20", Frames("#DD,9"));
  EXPECT_FALSE(comms.ReadTotalCount());
  EXPECT_EQ(logger.lines.size(), 5U);
}

}  // namespace
}  // namespace ostrel
