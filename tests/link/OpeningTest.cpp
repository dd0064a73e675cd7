#include "link/LinkFixture.h"

namespace ostrel {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

/// Opening and closing a session, on a cable and through a modem.
class OpeningTest : public LinkTest {
 protected:
  OpeningTest() {
    for (const char* command : {"ATE0", "AT", "AT+IFC=2,2", "+++ATH"})
      logger.Always(command, "\r\nOK\r\n");
    logger.Always("ATD6", "\r\nCONNECT 9600\r\n");
    logger.Always("#40", Frames("#BFanything"));
  }
  Kind FaultKind() const { return comms.Fault().kind; }
};

TEST_F(OpeningTest, ScanFindsPortsWithoutDisturbingTheSession) {
  ScriptedDevice other;
  for (const int number : {1, 3, 256, 300}) port.AddDevice(number, "other", "", other);
  port.SetOpenFault(3, PortFault::Busy);
  OpenPort();
  comms.ScanPorts();
  EXPECT_THAT(hooked, ElementsAre("COM1", "COM7", "COM256"));
  EXPECT_TRUE(comms.PortOpen());
  EXPECT_EQ(logger.raw, "");
}

TEST_F(OpeningTest, PortThatCannotBeOpenedIsTold) {
  for (const auto& [fault, kind] : {std::pair{PortFault::NoSuchPort, Kind::NoSuchPort},
                                    {PortFault::Busy, Kind::PortBusy},
                                    {PortFault::NoPermission, Kind::NoPermission},
                                    {PortFault::Failed, Kind::PortFailed}}) {
    port.SetOpenFault(kPort, fault);
    EXPECT_EQ(comms.StartComs(kPort, "").Fault().kind, kind);
    EXPECT_EQ(comms.Fault().text, "COM7");
  }
}

TEST_F(OpeningTest, CableWaitsForAQuietLineAndGreets) {
  for (const int ms : {300, 1200, 2100})
    At(milliseconds(ms), [this] { logger.end->Send(Frames("#trace")); });
  comms.LinkBusy = true;  // left behind
  EXPECT_TRUE(comms.StartComs(kPort, ""));
  EXPECT_FALSE(comms.LinkBusy);
  EXPECT_EQ(comms.ReplyTimeout, 1000);
  EXPECT_EQ(loop.Now(), milliseconds(2100 + 1000 + 100));
  EXPECT_EQ(logger.raw, "<up>#64;40\r");
}

TEST_F(OpeningTest, ModemPath) {
  struct Case {
    std::string at, ifc, atd;       ///< answers of the modem
    std::deque<std::string> codes;  ///< typed by the operator
    Texts lines;                    ///< heard behind "ATE0" and "AT"
    Kind fault;
    std::size_t forms;
  };
  const std::string ok = "\r\nOK\r\n", con = "\r\nCONNECT 9600\r", ifc = "AT+IFC=2,2";
  const Case cases[] = {
      {ok, ok, con, {"1234"}, {ifc, "ATD6", "#111234", "#40"}, Kind::None, 1},
      {"OK then\r", "ERROR\r", con, {"1234"}, {ifc, "ATD6", "#111234", "#40"}, Kind::None, 1},
      {ok, ok, con, {"", "9", "1234"}, {ifc, "ATD6", "#119", "#111234", "#40"}, Kind::None, 3},
      {ok, ok, con, {}, {ifc, "ATD6", "#40"}, Kind::None, 3},
      {"NOT OK\r", ok, con, {}, {}, Kind::NoModem, 0},
      {ok, ok, "CONNEXION\r", {}, {ifc, "ATD6"}, Kind::NoConnect, 0},
      {ok, ok, "NO CONNECT\r", {}, {ifc, "ATD6"}, Kind::NoConnect, 0},
  };
  logger.Always("#119", Frames("#PassWord=10"));
  logger.Always("#111234", Frames("#PassWord=1"));
  Texts trace;
  comms.Trace = [&trace](const std::string& line) { trace.push_back(line); };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::PrintToString(c.lines));
    logger.Always("AT", c.at);
    logger.Always("AT+IFC=2,2", c.ifc);
    logger.Always("ATD6", c.atd);
    codes = c.codes;
    logger.lines.clear();
    hooked.clear();
    EXPECT_EQ(comms.StartComs(kPort, "6"), c.fault == Kind::None);
    EXPECT_EQ(FaultKind(), c.fault);
    EXPECT_EQ(comms.PortOpen(), c.fault == Kind::None);
    EXPECT_EQ(comms.ReplyTimeout, 10'000);
    EXPECT_THAT(Texts(logger.lines.begin() + 2, logger.lines.end()), ElementsAreArray(c.lines));
    EXPECT_EQ(hooked.size(), c.forms);
    comms.CloseComs(false);
  }
  for (const std::string& line : trace) EXPECT_EQ(line.find("1234"), std::string::npos) << line;
}

/// Each command is sent three times when it gets no answer, and each has its own wait.
TEST_F(OpeningTest, EachModemCommandHasItsWait) {
  const std::pair<std::string, int> waits[] = {
      {"ATE0", 1000}, {"AT", 1000}, {"AT+IFC=2,2", 1000}, {"ATD6", 40'000}, {"ATH", 5000}};
  for (const auto& [command, ms] : waits) {
    SCOPED_TRACE(command);
    const std::string first = (command == "ATH" ? "+++" : "") + command;
    logger.Always(command, "");
    logger.Always(first, "");
    std::vector<TimePoint> sent;
    logger.onLine = [&](const std::string& line) {
      if (line == command || line == first) sent.push_back(loop.Now());
    };
    comms.StartComs(kPort, "6");
    comms.CloseComs(true);
    logger.Always(command, command == "ATD6" ? "CONNECT\r" : "OK\r");
    ASSERT_EQ(sent.size(), 3U);
    EXPECT_EQ(sent[1] - sent[0], milliseconds(ms));
    EXPECT_EQ(sent[2] - sent[1], milliseconds(ms));
  }
}

TEST_F(OpeningTest, HangUpEscapesWithItsGuardTimes) {
  OpenPort();
  At(milliseconds(1100), [this] { EXPECT_EQ(logger.raw, "+"); });
  At(milliseconds(1300), [this] { EXPECT_EQ(logger.raw, "++"); });
  At(milliseconds(2300), [this] { EXPECT_EQ(logger.raw, "+++"); });
  comms.CloseComs(true);
  EXPECT_EQ(logger.raw, "+++ATH\r<down>");
  EXPECT_EQ(loop.Now(), milliseconds(1000 + 200 + 200 + 1000 + 100));

  OpenPort();
  comms.CloseComs(false);
  EXPECT_EQ(logger.raw, "<down>");
  EXPECT_EQ(Took([&] { comms.CloseComs(true); }), Duration::zero()) << "nothing to hang up";
}

TEST_F(OpeningTest, CarrierLossIsToldOncePerEvent) {
  logger.end->SetCarrier(true);
  OpenPort();
  for (const bool on : {false, true, false}) {
    logger.end->SetCarrier(on);
    comms.Delay(10);
  }
  EXPECT_THAT(hooked, ElementsAre("carrier", "carrier"));
  EXPECT_TRUE(comms.PortOpen());
}

/// A source that never stops, in good order: each phase has its total time all the same.
TEST_F(OpeningTest, NoPhaseOutlastsItsTime) {
  int number = 0;
  std::string talk = "#trace";
  const TimerId talking = loop.Every(milliseconds(900), "talk", [&] {
    const std::string digits = std::to_string(number++ + 1000).substr(1);
    logger.end->Send(Frames(talk == "#BB" ? talk + digits + "X,1" : talk));
  });
  logger.onLine = [&](const std::string&) { number = 0; };
  EXPECT_LE(Took([&] { comms.StartComs(kPort, ""); }), seconds(20 + 13));
  talk = "#BB";
  comms.ReplyTimeout = 1000;
  if (!comms.PortOpen()) OpenPort();
  EXPECT_LE(Took([&] { comms.ReadInfo(); }), seconds(19));
  EXPECT_EQ(comms.InfoFault().kind, Kind::OutOfTime);
  loop.Cancel(talking);
  comms.CloseComs(false);
  loop.Every(milliseconds(90), "ringing", [&] { logger.end->Send("RING\r"); });
  EXPECT_LE(Took([&] { comms.StartComs(kPort, "6"); }), seconds(150));
}

}  // namespace
}  // namespace ostrel
