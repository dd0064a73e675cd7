#include <set>

#include "link/LinkFixture.h"
#include "link/RecordingPort.h"

namespace ostrel {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

class CommsTransport : public LinkTest {
 protected:
  Kind FaultKind() const { return comms.Fault().kind; }
};

class CommsRecorded : public CommsTransport {
 protected:
  RecordingPort recording{port};
  Platform recorded{loop, recording, settings, dialogs, files, processes, clock};
  Comms link{recorded, {profile, info, live, totals, ComBusy}, {}};
};

TEST_F(CommsRecorded, PropertiesAreSetInOrder) {
  logger.Always("#40", Frames("#BF120"));
  EXPECT_TRUE(link.StartComs(kPort, ""));
  EXPECT_THAT(recording.log,
              ElementsAre("CommPort 7", "Settings 9600,N,8,1", "InputLen 1", "InBufferSize 8192",
                          "Handshaking 2", "RTSEnable 0", "DTREnable 1", "PortOpen 1"));
}

TEST_F(CommsTransport, ScanFindsPortsWithoutDisturbingTheSession) {
  ScriptedDevice other;
  for (const int number : {1, 3, 256, 300}) port.AddDevice(number, "other", "", other);
  port.SetOpenFault(3, PortFault::Busy);
  OpenPort();
  comms.ScanPorts();
  EXPECT_THAT(hooked, ElementsAre("COM1", "COM7", "COM256"));
  EXPECT_TRUE(comms.PortOpen());
  EXPECT_EQ(logger.raw, "");
}

TEST_F(CommsTransport, PortThatCannotBeOpenedIsTold) {
  const std::pair<PortFault, Kind> cases[] = {{PortFault::NoSuchPort, Kind::NoSuchPort},
                                              {PortFault::Busy, Kind::PortBusy},
                                              {PortFault::NoPermission, Kind::NoPermission},
                                              {PortFault::Failed, Kind::PortFailed}};
  for (const auto& [fault, kind] : cases) {
    port.SetOpenFault(kPort, fault);
    EXPECT_FALSE(comms.StartComs(kPort, ""));
    EXPECT_EQ(FaultKind(), kind);
    EXPECT_EQ(comms.Fault().text, "COM7");
    EXPECT_FALSE(comms.LinkBusy);
  }
  EXPECT_EQ(logger.raw, "");
}

TEST_F(CommsTransport, CableWaitsForAQuietLineAndGreets) {
  logger.Always("#40", Frames("#BFanything"));
  for (const int ms : {300, 1200, 2100})
    At(milliseconds(ms), [this] { logger.end->Send(Frames("#trace")); });
  At(milliseconds(3000), [this] { EXPECT_TRUE(comms.LinkBusy); });
  comms.LinkBusy = true;  // left behind
  EXPECT_TRUE(comms.StartComs(kPort, ""));
  EXPECT_FALSE(comms.LinkBusy);
  EXPECT_EQ(comms.ReplyTimeout, 1000);
  EXPECT_EQ(loop.Now(), milliseconds(2100 + 1000 + 100));
  EXPECT_EQ(logger.raw, "<up>#64;40\r");
}

TEST_F(CommsTransport, NoHandshakeClosesThePort) {
  for (const std::string_view answer : {"", "#BE"}) {
    logger.raw.clear();
    logger.Always("#40", answer.empty() ? "" : Frames(answer));
    EXPECT_FALSE(comms.StartComs(kPort, ""));
    EXPECT_FALSE(comms.PortOpen());
    EXPECT_EQ(FaultKind(), Kind::NoHandshake);
    EXPECT_TRUE(logger.raw.ends_with("#64;40\r<down>")) << logger.raw;
  }
}

TEST_F(CommsTransport, ModemPath) {
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
      {ok, "ERROR\r", con, {"1234"}, {ifc, "ATD6", "#111234", "#40"}, Kind::None, 1},
      {ok, ok, con, {"", "9", "1234"}, {ifc, "ATD6", "#119", "#111234", "#40"}, Kind::None, 3},
      {ok, ok, con, {}, {ifc, "ATD6", "#40"}, Kind::None, 3},
      {"ERROR\r", ok, con, {}, {}, Kind::NoModem, 0},
      {ok, ok, "BUSY\r", {}, {ifc, "ATD6"}, Kind::NoConnect, 0},
      {ok, ok, "NO CONNECT\r", {}, {ifc, "ATD6"}, Kind::NoConnect, 0},
  };
  logger.Always("ATE0", "ATE0\r\r\nOK\r\n");
  logger.Always("#40", Frames("#BF"));
  logger.Always("#119", Frames("#PassWord=0"));
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

TEST_F(CommsTransport, DiallingWaitsFortySeconds) {
  for (const char* command : {"ATE0", "AT", "AT+IFC=2,2"}) logger.Always(command, "OK\r");
  TimePoint dialled{};
  logger.onLine = [&](const std::string& line) {
    if (line != "ATD1") return;
    dialled = loop.Now();
    At(milliseconds(39'999), [this] { logger.end->Send("CONNECT\r"); });
  };
  comms.StartComs(kPort, "1");
  EXPECT_EQ(FaultKind(), Kind::NoHandshake);
  EXPECT_EQ(loop.Now() - dialled, milliseconds(39'999 + 3 * 1000 + 100 + 3 * 10'000));
}

TEST_F(CommsTransport, HangUpEscapesWithItsGuardTimes) {
  OpenPort();
  logger.Always("+++ATH", "OK\r");
  logger.onLine = [&](const std::string&) { EXPECT_TRUE(comms.LinkBusy); };
  At(milliseconds(1100), [this] { EXPECT_EQ(logger.raw, "+"); });
  At(milliseconds(1300), [this] { EXPECT_EQ(logger.raw, "++"); });
  At(milliseconds(2300), [this] { EXPECT_EQ(logger.raw, "+++"); });
  comms.CloseComs(true);
  EXPECT_EQ(logger.raw, "+++ATH\r<down>");
  EXPECT_EQ(loop.Now(), milliseconds(1000 + 200 + 200 + 1000 + 100));
  EXPECT_FALSE(comms.LinkBusy);

  OpenPort();
  comms.CloseComs(false);
  EXPECT_EQ(logger.raw, "<down>");
  comms.CloseComs(true);
  EXPECT_EQ(loop.Now(), milliseconds(2500)) << "there is nothing to hang up";
}

TEST_F(CommsTransport, CarrierLossIsToldOncePerEvent) {
  logger.end->SetCarrier(true);
  OpenPort();
  for (const bool on : {false, true, false}) {
    logger.end->SetCarrier(on);
    comms.Delay(10);
  }
  EXPECT_THAT(hooked, ElementsAre("carrier", "carrier"));
  EXPECT_TRUE(comms.PortOpen());
}

/// Every dialogue, and what it gives when nothing more comes.
class CommsCut : public CommsTransport {
 protected:
  const Texts kNames = {
      "StartComs",    "Dial",          "CloseComs",       "ReadConf",       "WriteConf",
      "ReadInfo",     "ReadDeviceRTC", "WriteDeviceRTC",  "ReadTotalCount", "ReadIOParameter",
      "ReadRealTime", "SetOutput",     "SetSingleOutput", "SetTotalCNT",    "SetExpValue"};
  const std::set<std::string> kTellFault = {
      "StartComs", "Dial", "ReadConf", "WriteConf", "WriteDeviceRTC", "SetTotalCNT", "SetExpValue"};

  bool Run(const std::string& name) {
    if (name == "StartComs") return port.SetPortOpen(false), comms.StartComs(kPort, "");
    if (name == "Dial") return port.SetPortOpen(false), comms.StartComs(kPort, "1");
    if (name == "CloseComs") return comms.CloseComs(true), false;
    if (name == "ReadConf") return comms.ReadConf();
    if (name == "WriteConf") return comms.WriteConf();
    if (name == "ReadInfo") return comms.ReadInfo();
    if (name == "ReadDeviceRTC") return comms.ReadDeviceRTC(), false;
    if (name == "WriteDeviceRTC") return comms.WriteDeviceRTC();
    if (name == "ReadTotalCount") return comms.ReadTotalCount();
    if (name == "ReadIOParameter") return comms.ReadIOParameter();
    if (name == "ReadRealTime") return comms.ReadRealTime();
    if (name == "SetOutput") return comms.SetOutput(3);
    if (name == "SetSingleOutput") return comms.SetSingleOutput(1, true);
    if (name == "SetTotalCNT") return comms.SetTotalCNT(1, 2);
    return comms.SetExpValue(1, 2);
  }
  void Start() {
    SelectTarget(profile, "Ostrel S100");
    const auto many = [](StatementList& out) {
      for (int i = 0; i < 300; ++i) out.Add("X");
    };
    comms.SetWire({}, {{"many", many}});
    if (!port.PortOpen()) OpenPort();
  }
};

/// No old line may pass for an answer.
TEST_F(CommsCut, AbortEndsEveryDialogueAtOnce) {
  for (const std::string& name : kNames) {
    for (const char* stale : {"#BD", "#B91", "#BE1", "#A3", "#BF", "#DC,1", "#DF,1", "OK"}) {
      SCOPED_TRACE(name + " after " + stale);
      Start();
      comms.RxLine = stale;
      const TimePoint start = loop.Now();
      At(milliseconds(150), [this] { comms.Abort(); });
      EXPECT_FALSE(Run(name));
      EXPECT_EQ(loop.Now() - start, milliseconds(150));
      EXPECT_FALSE(comms.PortOpen() || comms.LinkBusy || ComBusy);
      EXPECT_TRUE(!kTellFault.contains(name) || FaultKind() == Kind::PortClosed);
    }
  }
}

TEST_F(CommsCut, LostLineEndsEveryWaitAtOnce) {
  for (const std::string& name : kNames) {
    SCOPED_TRACE(name);
    Start();
    const TimePoint start = loop.Now();
    At(milliseconds(150), [this] { logger.end->Vanish(); });
    const bool result = Run(name);
    if (kTellFault.contains(name)) {
      EXPECT_FALSE(result);
      EXPECT_EQ(FaultKind(), Kind::LineLost);
    }
    EXPECT_EQ(loop.Now() - start, milliseconds(150));
    EXPECT_FALSE(comms.LinkBusy);
    port.SetPortOpen(false);
    port.Restore(kPort);
  }
}

/// Abort at each step of the opening, within the wait for the answer to what was sent last.
TEST_F(CommsCut, AbortEndsEachPhaseOfTheOpeningAtOnce) {
  for (const char* command : {"ATE0", "AT", "AT+IFC=2,2"}) logger.Always(command, "OK\r");
  logger.Always("ATD1", "CONNECT\r");
  codes = {"12", "12", "12", "12", "12", "12"};
  for (const std::string phase : {"", "ATE0", "AT", "AT+IFC=2,2", "ATD1", "#1112", "#40"}) {
    SCOPED_TRACE(phase);
    TimePoint aborted{};
    const auto abort = [&] {
      aborted = loop.Now();
      comms.Abort();
    };
    logger.onLine = [&](const std::string& line) {
      if (line == phase) At(milliseconds(phase == "#40" ? 999 : 15), abort);
    };
    if (phase.empty()) At(milliseconds(900), abort);
    EXPECT_FALSE(comms.StartComs(kPort, phase.empty() || phase == "#40" ? "" : "1"));
    EXPECT_EQ(loop.Now(), aborted);
    EXPECT_EQ(FaultKind(), Kind::PortClosed);
    EXPECT_FALSE(comms.PortOpen() || comms.LinkBusy);
    EXPECT_TRUE(logger.raw.ends_with("<down>"));
  }
}

/// A source that never stops, in good order: each phase has its total time all the same.
TEST_F(CommsCut, NoPhaseOfASessionOutlastsItsTime) {
  std::string talk;
  int number = 0;
  const TimerId talking = loop.Every(milliseconds(900), "talk", [&] {
    const std::string digits = std::to_string(number++ + 1000).substr(1);
    logger.end->Send(talk == "#BB" ? Frames("#BB" + digits + "X,1") : talk);
  });
  const auto took = [&](const std::string& name, const std::string& what) {
    talk = what;
    Start();
    number = 0;
    logger.onLine = [&](const std::string&) { number = 0; };
    const TimePoint start = loop.Now();
    Run(name);
    return loop.Now() - start;
  };
  using std::chrono::seconds;
  EXPECT_LE(took("StartComs", Frames("#trace")), seconds(20 + 13));
  EXPECT_LE(took("ReadInfo", "#BB"), seconds(19));
  EXPECT_EQ(comms.InfoFault().kind, Kind::OutOfTime);
  loop.Cancel(talking);
  loop.Every(milliseconds(90), "ringing", [&] { logger.end->Send("RING\r"); });
  EXPECT_LE(took("Dial", ""), seconds(150));
}

TEST_F(CommsCut, BusyLinkTurnsEveryDialogueAway) {
  for (const std::string& name : kNames) {
    if (name == "StartComs" || name == "Dial" || name == "CloseComs") continue;
    SCOPED_TRACE(name);
    Start();
    comms.LinkBusy = true;
    EXPECT_FALSE(Run(name));
    EXPECT_TRUE(comms.LinkBusy);
  }
  EXPECT_EQ(logger.raw, "");
  EXPECT_EQ(loop.Now(), Duration::zero());
  EXPECT_TRUE(hooked.empty());
}

}  // namespace
}  // namespace ostrel
