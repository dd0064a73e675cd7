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

TEST_F(CommsTransport, PropertiesAreSetInOrder) {
  RecordingPort recording(port);
  Platform recorded{loop, recording, settings, dialogs, files, processes, clock};
  Comms link(recorded, {profile, info, live, totals, ComBusy}, {});
  logger.Always("#40", Frames("#BF120"));
  EXPECT_TRUE(link.StartComs(kPort, ""));
  EXPECT_THAT(recording.log,
              ElementsAre("CommPort 7", "Settings 9600,N,8,1", "InputLen 1", "InBufferSize 8192",
                          "Handshaking 2", "RTSEnable 0", "DTREnable 1", "PortOpen 1"));
}

TEST_F(CommsTransport, BlockedLineDelaysTheWindowByItsDeadlineOnly) {
  RecordingPort recording(port);
  Platform recorded{loop, recording, settings, dialogs, files, processes, clock};
  Comms link(recorded, {profile, info, live, totals, ComBusy}, {});
  OpenPort();
  recording.stuck = 960;
  std::string message = "#40";
  link.TxSer(message, 1000);
  EXPECT_EQ(loop.Now(), milliseconds(100 + 3 * (2 * 1000 + 500 + 1000)));
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
    Texts lines;                    ///< heard by modem and logger
    Kind fault;
    int forms;
  };
  const std::string ok = "\r\nOK\r\n", connect = "\r\nCONNECT 9600\r";
  const Texts dialled = {"ATE0", "AT", "AT+IFC=2,2", "ATD600123"};
  const auto after = [&](Texts more) {
    more.insert(more.begin(), dialled.begin(), dialled.end());
    return more;
  };
  const Case cases[] = {
      {ok, ok, connect, {"1234"}, after({"#111234", "#40"}), Kind::None, 1},
      {ok, "ERROR\r", connect, {"1234"}, after({"#111234", "#40"}), Kind::None, 1},
      {ok, ok, connect, {"", "9", "1234"}, after({"#119", "#111234", "#40"}), Kind::None, 3},
      {ok, ok, connect, {}, after({"#40"}), Kind::None, 3},
      {ok,
       ok,
       connect,
       {"1", "2", "3", "4"},
       after({"#111", "#112", "#113", "#40"}),
       Kind::None,
       3},
      {"ERROR\r", ok, connect, {}, {"ATE0", "AT"}, Kind::NoModem, 0},
      {ok, ok, "BUSY\r", {}, dialled, Kind::NoConnect, 0},
      {ok, ok, "NO CONNECT\r", {}, dialled, Kind::NoConnect, 0},
  };
  logger.Always("ATE0", "ATE0\r\r\nOK\r\n");
  logger.Always("#40", Frames("#BF"));
  for (const std::string code : {"1", "2", "3", "9"})
    logger.Always("#11" + code, Frames("#PassWord=0"));
  logger.Always("#111234", Frames("#PassWord=1"));
  Texts trace;
  comms.Trace = [&trace](const std::string& line) { trace.push_back(line); };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::PrintToString(c.lines));
    logger.Always("AT", c.at);
    logger.Always("AT+IFC=2,2", c.ifc);
    logger.Always("ATD600123", c.atd);
    codes = c.codes;
    logger.lines.clear();
    hooked.clear();
    EXPECT_EQ(comms.StartComs(kPort, "600123"), c.fault == Kind::None);
    EXPECT_EQ(FaultKind(), c.fault);
    EXPECT_EQ(comms.PortOpen(), c.fault == Kind::None);
    EXPECT_EQ(comms.ReplyTimeout, 10'000);
    EXPECT_THAT(logger.lines, ElementsAreArray(c.lines));
    EXPECT_EQ(hooked.size(), static_cast<std::size_t>(c.forms));
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
  At(milliseconds(40'500),
     [&] { EXPECT_EQ(comms.SilentFor(), Duration::zero()) << "at the form"; });
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
  struct Case {
    const char* name;
    std::function<bool()> run;
    bool tellsFault = false;
  };
  std::vector<Case> Dialogues() {
    profile.OutputCount = 4;
    profile.IsS100 = true;
    return {
        {"StartComs",
         [this] {
           port.SetPortOpen(false);
           return comms.StartComs(kPort, "");
         },
         true},
        {"Dial",
         [this] {
           port.SetPortOpen(false);
           return comms.StartComs(kPort, "1");
         },
         true},
        {"CloseComs",
         [this] {
           comms.CloseComs(true);
           return false;
         }},
        {"ReadConf", [this] { return comms.ReadConf(); }, true},
        {"WriteConf", [this] { return comms.WriteConf(); }, true},
        {"ReadInfo", [this] { return comms.ReadInfo(); }},
        {"ReadDeviceRTC",
         [this] {
           comms.ReadDeviceRTC();
           return false;
         }},
        {"WriteDeviceRTC", [this] { return comms.WriteDeviceRTC(); }, true},
        {"ReadTotalCount", [this] { return comms.ReadTotalCount(); }},
        {"ReadIOParameter", [this] { return comms.ReadIOParameter(); }},
        {"ReadRealTime", [this] { return comms.ReadRealTime(); }},
        {"SetOutput", [this] { return comms.SetOutput(3); }},
        {"SetSingleOutput", [this] { return comms.SetSingleOutput(1, true); }},
        {"SetTotalCNT", [this] { return comms.SetTotalCNT(1, 2); }, true},
        {"SetExpValue", [this] { return comms.SetExpValue(1, 2); }, true},
    };
  }
  void Start() {
    const auto many = [](StatementList& out) {
      for (int i = 0; i < 300; ++i) out.Add("X");
    };
    comms.SetWire({}, {{"many", many}});
    if (!port.PortOpen()) OpenPort();
  }
};

/// No old line may pass for an answer.
TEST_F(CommsCut, AbortEndsEveryDialogueAtOnce) {
  for (const Case& c : Dialogues()) {
    for (const char* stale : {"#BD", "#B91", "#BE1", "#A3", "#BF", "#DC,1", "#DF,1", "OK"}) {
      SCOPED_TRACE(std::string(c.name) + " after " + stale);
      Start();
      comms.RxLine = stale;
      const TimePoint start = loop.Now();
      At(milliseconds(150), [this] { comms.Abort(); });
      EXPECT_FALSE(c.run());
      EXPECT_EQ(loop.Now() - start, milliseconds(150));
      EXPECT_FALSE(comms.PortOpen());
      EXPECT_FALSE(comms.LinkBusy);
      EXPECT_FALSE(ComBusy);
      EXPECT_TRUE(!c.tellsFault || FaultKind() == Kind::PortClosed);
    }
  }
}

TEST_F(CommsCut, LostLineEndsEveryWaitAtOnce) {
  for (const Case& c : Dialogues()) {
    SCOPED_TRACE(c.name);
    Start();
    const TimePoint start = loop.Now();
    At(milliseconds(150), [this] { logger.end->Vanish(); });
    const bool result = c.run();
    if (c.tellsFault) {
      EXPECT_FALSE(result);
      EXPECT_EQ(FaultKind(), Kind::LineLost);
    }
    EXPECT_EQ(loop.Now() - start, milliseconds(150));
    EXPECT_FALSE(comms.LinkBusy);
    port.SetPortOpen(false);
    port.Restore(kPort);
  }
}

TEST_F(CommsCut, BusyLinkTurnsEveryDialogueAway) {
  for (const Case& c : Dialogues()) {
    const std::string_view name = c.name;
    if (name == "StartComs" || name == "Dial" || name == "CloseComs") continue;
    SCOPED_TRACE(c.name);
    Start();
    comms.LinkBusy = true;
    EXPECT_FALSE(c.run());
    EXPECT_TRUE(comms.LinkBusy);
  }
  EXPECT_EQ(logger.raw, "");
  EXPECT_EQ(loop.Now(), Duration::zero());
  EXPECT_TRUE(hooked.empty());
}

}  // namespace
}  // namespace ostrel
