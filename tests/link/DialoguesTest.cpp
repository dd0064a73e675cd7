#include "link/LinkFixture.h"

namespace ostrel {
namespace {

/// What holds for each dialogue.
class EveryDialogue : public LinkTest {
 protected:
  struct Case {
    const char* name;
    std::function<LinkResult()> run;
    const char* stale;  ///< a good answer, left behind by an earlier dialogue
  };
  LinkResult Start(const std::string& phone) {
    port.SetPortOpen(false);
    return comms.StartComs(kPort, phone);
  }
  const std::vector<Case> opening = {{"StartComs", [this] { return Start(""); }, "#BF"},
                                     {"Dial", [this] { return Start("1"); }, "OK"}};
  const std::vector<Case> inSession = {
      {"ReadConf", [this] { return comms.ReadConf(); }, "#BD"},
      {"WriteConf", [this] { return comms.WriteConf(); }, "#B91"},
      {"ReadInfo", [this] { return comms.ReadInfo(), LinkResult(comms.InfoFault()); }, "#BB"},
      {"ReadDeviceRTC", [this] { return comms.ReadDeviceRTC(); }, "#A2260115083005"},
      {"WriteDeviceRTC", [this] { return comms.WriteDeviceRTC(); }, "#A3"},
      {"ReadTotalCount", [this] { return comms.ReadTotalCount(); }, "#DF,1"},
      {"ReadIOParameter", [this] { return comms.ReadIOParameter(); }, "#D4,a"},
      {"ReadRealTime", [this] { return comms.ReadRealTime(); }, "#DC,1"},
      {"SetOutput", [this] { return comms.SetOutput(3); }, "#any"},
      {"SetSingleOutput", [this] { return comms.SetSingleOutput(1, true); }, "#any"},
      {"SetTotalCNT", [this] { return comms.SetTotalCNT(1, 2); }, "#BE1"},
      {"SetExpValue", [this] { return comms.SetExpValue(1, 2); }, "#BE1"},
      {"ReadProbeIdentity", [this] { return comms.ReadProbeIdentity(probe); }, "#05001,2"},
      {"WriteAutVoz", [this] { return comms.WriteAutVoz(voice); }, "#BE1"},
      {"ReadAutVozList", [this] { return comms.ReadAutVozList(voice); }, "#B00"},
      {"SendFirmware",
       [this] {
         return comms.SendFirmware({"image", "loader"}, [](auto) {});
       },
       "#DWLD_ERASING"}};

  ProbeIdentity probe;
  ConfAutVoz voice;

  void Prepare() {
    SelectTarget(profile, "Ostrel S100");
    const auto many = [](StatementList& out) {
      for (int i = 0; i < 300; ++i) out.Add("X");
    };
    comms.SetWire({}, {{"many", many}});
    if (!port.PortOpen()) OpenPort();
  }
  void ExpectEnd(const Case& c, const std::function<void()>& end, Kind kind) {
    SCOPED_TRACE(c.name);
    Prepare();
    comms.RxLine = c.stale;
    At(milliseconds(150), [&] {
      EXPECT_TRUE(comms.LinkBusy);
      end();
    });
    LinkResult result;
    EXPECT_EQ(Took([&] { result = c.run(); }), milliseconds(150));
    EXPECT_EQ(result.Fault().kind, kind);
    EXPECT_FALSE(comms.LinkBusy || ComBusy);
    port.SetPortOpen(false);
    port.Restore(kPort);
  }
};

TEST_F(EveryDialogue, HoldsTheLinkAndEndsAtOnceWithThePortOrItsDevice) {
  for (const auto* cases : {&opening, &inSession}) {
    for (const Case& c : *cases) {
      ExpectEnd(
          c, [this] { comms.Abort(); }, Kind::PortClosed);
      ExpectEnd(
          c, [this] { logger.end->Vanish(); }, Kind::LineLost);
    }
  }
}

TEST_F(EveryDialogue, IsTurnedAwayByABusyLinkOrAClosedPort) {
  Prepare();
  for (const Case& c : inSession) {
    if (c.name == std::string("ReadInfo")) continue;  // keeps what it came to before
    comms.LinkBusy = true;
    EXPECT_EQ(c.run().Fault().kind, Kind::Busy) << c.name;
    EXPECT_TRUE(comms.LinkBusy);
  }
  comms.ReadInfo();
  EXPECT_EQ(comms.Fault().kind, Kind::None) << "what runs keeps its own fault";
  EXPECT_EQ(comms.InfoFault().kind, Kind::Silence);
  EXPECT_EQ(logger.raw, "");
  comms.LinkBusy = false;
  port.SetPortOpen(false);
  for (const Case& c : inSession) EXPECT_EQ(c.run().Fault().kind, Kind::PortClosed) << c.name;
  EXPECT_EQ(loop.Now(), Duration::zero());
  EXPECT_TRUE(hooked.empty()) << "the model is left alone";
}

TEST_F(EveryDialogue, OfASilentLoggerSaysSo) {
  Prepare();
  for (const char* name : {"ReadConf", "WriteConf", "ReadInfo", "ReadDeviceRTC", "WriteDeviceRTC",
                           "ReadTotalCount", "ReadRealTime", "SetTotalCNT", "SetExpValue",
                           "ReadProbeIdentity", "WriteAutVoz", "ReadAutVozList", "SendFirmware"})
    for (const Case& c : inSession)
      EXPECT_TRUE(c.name != std::string(name) || c.run().Fault().kind == Kind::Silence) << name;
}

}  // namespace
}  // namespace ostrel
