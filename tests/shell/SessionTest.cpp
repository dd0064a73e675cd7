#include "SilentDevice.h"
#include "SimWorld.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

sim::LoggerOptions CableLogger() { return sim::MakeDefaultOptions(sim::Model::VR200); }

/// The program as a window runs it: everything happens in ticks of its loop.
class Session : public testing::Test {
 protected:
  explicit Session(const sim::LoggerOptions& options = CableLogger()) : world(options) {
    world.Stored("Idioma") = "1";
    world.Stored("ComPort") = "7";
    world.Stored("Target") = world.TargetName();
    world.logger->SetConf(sim::DemoConfiguration(options.model));
    program.Start("");
    program.general.Form_Activate();
    world.logger->OnExchange([this](const sim::Exchange& e) { requests.push_back(e.request); });
  }

  void Click(std::string_view button) { program.general.GetForm().Get<Button>(button).Click(); }
  /// Does something once, when the logger has got a request that starts in some way.
  void Upon(std::string_view head, std::function<void()> act) {
    world.logger->OnExchange([this, head, act, done = false](const sim::Exchange& e) mutable {
      requests.push_back(e.request);
      if (!e.request.starts_with(head) || std::exchange(done, true)) return;
      act();
    });
  }
  bool Sent(std::string_view head) const {
    return std::ranges::any_of(requests, [&](auto& r) { return r.starts_with(head); });
  }
  SessionPhase Phase() const { return program.session.State().phase; }
  const std::string& Status() { return frame.ComStat.face.Caption(); }
  void Connect() {
    Click("IniCom");
    world.loop.RunFor(seconds(15));
    ASSERT_TRUE(program.Connected);
  }

  SimWorld world;
  Configurator program{world.platform, world.Options(true)};
  SessionFrame& frame = program.general.Session();
  std::vector<std::string> requests;
};

TEST_F(Session, OpensReadsAndCloses) {
  frame.CallNum.SetText("600111222");  // without the modem it is not called
  Click("IniCom");
  EXPECT_EQ(program.general.GetForm().MousePointer(), Pointer::Hourglass);
  std::vector<SessionPhase> phases;
  program.session.OnStateChanged = [&] { phases.push_back(Phase()); };
  std::vector<std::string> texts;
  frame.ComStat.face.OnChanged = [&] { texts.push_back(Status()); };
  world.loop.RunFor(seconds(15));
  ASSERT_TRUE(program.Connected);
  EXPECT_EQ(
      std::vector(requests.begin(), requests.begin() + 9),
      (std::vector<std::string>{"#40", "#44", "#20", "#2C", "#26", "#27", "#25", "#2A", "#5D"}));
  EXPECT_EQ(requests.at(10), "#44") << "the information keeps refreshing";
  EXPECT_EQ(texts,
            (std::vector<std::string>{"Detectando Ostrel VR200...", "Comunicacion iniciada"}));
  EXPECT_EQ(frame.IniCom.face.Caption(), "Cerrar comunicacion");
  EXPECT_TRUE(frame.Leer.face.Enabled() && frame.Escribir.face.Enabled());
  EXPECT_TRUE(world.dialogs.boxes.empty());
  static_cast<LineEnd&>(*world.line).SetCarrier(false);
  world.loop.RunFor(milliseconds(10));
  ASSERT_EQ(world.dialogs.boxes.size(), 1U);
  EXPECT_EQ(world.dialogs.boxes[0].text, "Se corto la comunicacion");
  EXPECT_TRUE(program.Connected && world.port.PortOpen());
  Click("IniCom");
  world.loop.RunFor(seconds(2));
  EXPECT_FALSE(program.Connected || world.port.PortOpen());
  EXPECT_EQ(Status(), "Comunicacion no iniciada");
  using enum SessionPhase;
  EXPECT_EQ(phases, (std::vector{Opening, Open, Open, Closing, Closed}))
      << "and once for the request to close";
}

TEST_F(Session, AsksAboutAClockMoreThanTenMinutesOff) {
  struct Case {
    int secondsOff;
    bool asked;
    BoxAnswer answer = BoxAnswer::Yes;
  };
  for (const Case& c : {Case{598, false}, Case{-598, false}, Case{602, true}, Case{-602, true},
                        Case{660, true, BoxAnswer::No}}) {
    world.dialogs.boxes.clear();
    world.dialogs.defaultAnswer = c.answer;
    world.clock.SetNow(FromSeconds(ToSeconds(world.logger->Clock()) + c.secondsOff));
    Connect();
    EXPECT_EQ(world.dialogs.boxes.size(), c.asked ? 1U : 0U) << c.secondsOff;
    const auto left =
        std::abs(ToSeconds(world.clock.LocalNow()) - ToSeconds(world.logger->Clock()));
    EXPECT_EQ(left < 5, c.asked && c.answer == BoxAnswer::Yes) << "only a yes sets the clock";
    Click("IniCom");
    world.loop.RunFor(seconds(3));
  }
}

/// A request that no session serves holds nobody up, and waits for the next session.
TEST_F(Session, ARequestOwnsTheModelOnlyAsLongAsItWillBeServed) {
  const auto stands = [this] {
    return std::pair(program.session.OwnsModel(), program.session.RequestWaits());
  };
  Connect();
  EXPECT_EQ(stands(), std::pair(false, false));
  Click("IniCom");
  Click("Leer");
  EXPECT_EQ(stands(), std::pair(true, false));
  world.loop.RunFor(seconds(2));
  ASSERT_FALSE(program.Connected);
  EXPECT_EQ(stands(), std::pair(false, true));
  world.port.SetOpenFault(SimWorld::kPort, PortFault::Busy);
  Click("IniCom");
  world.loop.RunFor(seconds(2));
  EXPECT_EQ(stands(), std::pair(false, true)) << "a session that does not open";
  world.port.SetOpenFault(SimWorld::kPort, PortFault::None);
  program.general.Form_Deactivate();
  Connect();
  requests.clear();
  world.loop.RunFor(seconds(5));
  EXPECT_EQ(stands(), std::pair(false, true)) << "another page is in front";
  EXPECT_TRUE(requests.empty()) << "no refresh either";
  program.general.Form_Activate();
  EXPECT_EQ(stands(), std::pair(true, false));
  world.loop.RunFor(seconds(60));
  EXPECT_EQ(requests.at(0), "#42");
  EXPECT_EQ(Status(), "Configuracion descargada con exito");
  EXPECT_EQ(stands(), std::pair(false, false));
  EXPECT_EQ(program.general.GetForm().MousePointer(), Pointer::Default);
}

TEST_F(Session, ATransferHoldsThePageAndItsButtons) {
  Connect();
  for (const auto& [button, head] : {std::pair{"Leer", "#42"}, {"Escribir", "#45005"}}) {
    bool looked = false;
    Upon(head, [&] {
      looked = true;
      EXPECT_FALSE(program.general.GetForm().Enabled()) << button;
      EXPECT_FALSE(frame.Leer.face.Enabled()) << button;
      EXPECT_FALSE(frame.Escribir.face.Enabled()) << button;
      EXPECT_TRUE(program.session.OwnsModel()) << button;
    });
    Click(button);
    world.loop.RunFor(seconds(60));
    EXPECT_TRUE(looked) << button;
    EXPECT_TRUE(program.general.GetForm().Enabled() && frame.Leer.face.Enabled() &&
                frame.Escribir.face.Enabled());
  }
}

/// However far the opening has come, and whatever was to follow.
TEST_F(Session, CanBeBrokenOffWhileItIsOpened) {
  for (const char* at : {"#40", "#44", "#20", "#26", "#5D"}) {
    SCOPED_TRACE(at);
    requests.clear();
    TimePoint brokenOff{}, ended{};
    Upon(at, [&] {
      program.session.BreakOff();
      brokenOff = world.loop.Now();
      program.session.OnStateChanged = [&] { ended = world.loop.Now(); };
    });
    Click("IniCom");
    world.loop.RunFor(seconds(5));
    program.session.OnStateChanged = nullptr;
    EXPECT_EQ(ended, brokenOff);
    EXPECT_EQ(requests.back(), at);
    EXPECT_FALSE(program.Connected || world.port.PortOpen() || frame.Leer.face.Enabled());
    EXPECT_TRUE(world.dialogs.boxes.empty()) << "nobody is asked about a clock that was not read";
    EXPECT_EQ(program.general.GetForm().MousePointer(), Pointer::Default);
    EXPECT_EQ(Status(), "Comunicacion no iniciada");
    const SessionState& state = program.session.State();
    EXPECT_EQ(state.phase, SessionPhase::Closed);
    ASSERT_TRUE(state.failed && state.failed->brokenOff);
    EXPECT_EQ(state.failed->during, SessionPhase::Opening);
  }
  Connect();
  EXPECT_FALSE(program.session.State().failed);
}

TEST_F(Session, UploadRunsAheadOfDownloadInOneTick) {
  Connect();
  program.conf.General.DNAME = "Nuevo";
  program.general.LoadData();
  requests.clear();
  Click("Leer");
  Click("Escribir");
  world.loop.RunFor(seconds(180));
  const auto closing = std::ranges::find_if(requests, [](auto& r) { return r.starts_with("#46"); });
  const auto download = std::ranges::find(requests, "#42");
  ASSERT_TRUE(closing != requests.end() && download != requests.end());
  EXPECT_LT(closing, download);
  EXPECT_EQ(world.logger->Conf().name, "Nuevo");
  EXPECT_EQ(world.logger->UploadsTaken(), 1U);
  EXPECT_EQ(Status(), "Configuracion descargada con exito");
}

/// Ticks arrive inside the waits of a dialogue. None of them may start the open-or-close step or a
/// transfer once more.
TEST_F(Session, BreakingOffAnUploadDropsTheDownloadBehindIt) {
  Connect();
  Upon("#45002", [this] { program.session.BreakOff(); });
  Click("Leer");
  Click("Escribir");
  world.loop.RunFor(seconds(30));
  EXPECT_FALSE(program.Connected || frame.ReadRequest || Sent("#42"));
  EXPECT_EQ(Status(), "Comunicacion no iniciada");
  EXPECT_TRUE(program.session.State().failed->brokenOff);
}

TEST_F(Session, TicksInsideADialogueDisturbNothing) {
  std::vector<bool> enabled;
  frame.ComStat.face.OnChanged = [&] {
    enabled.push_back(program.general.GetForm().Enabled() && frame.Leer.face.Enabled());
  };
  Click("IniCom");
  world.loop.RunFor(seconds(15));
  EXPECT_EQ(std::ranges::count(requests, "#40"), 1);
  Click("Escribir");
  world.loop.RunFor(seconds(120));
  EXPECT_EQ(world.logger->UploadsTaken(), 1U);
  EXPECT_EQ(enabled, (std::vector<bool>{false, false, false, false}))
      << "detecting, open, writing, written: the page is enabled after each text, not before";
}

TEST_F(Session, AFailedTransferKeepsTheSession) {
  Connect();
  world.line->Vanish();
  Click("Leer");
  Click("Escribir");
  world.loop.RunFor(seconds(5));
  EXPECT_EQ(Status(), "Error!");
  EXPECT_TRUE(program.Connected && frame.Leer.face.Enabled() && frame.Escribir.face.Enabled());
  ASSERT_TRUE(program.session.State().failed);
  EXPECT_EQ(program.session.State().failed->link.kind, LinkFault::Kind::LineLost);
  EXPECT_EQ(program.session.State().failed->during, SessionPhase::Reading);
  Click("IniCom");
  world.loop.RunFor(seconds(2));
  EXPECT_FALSE(program.session.State().failed) << "of a session that was closed nothing is told";
}

/// While a download replaces the model, moving between pages must not write the emptied controls
/// into it.
TEST_F(Session, MovingAboutDuringADownloadCommitsNothing) {
  Connect();
  ASSERT_TRUE(program.session.Download());
  const DeviceConf expected = program.conf;
  program.general.GetForm().Get<ProgressBar>("PBar").face.OnChanged = [&] {
    for (const auto& page : program.Pages()) {
      page->Form_Deactivate();
      page->ChangeIndex(1);
    }
  };
  ASSERT_TRUE(program.session.Download());
  EXPECT_EQ(program.conf, expected);
}

/// Whatever an event throws in the middle, the page comes back and nothing starts over by itself.
TEST_F(Session, AnExceptionInATransferLeavesThePageUsable) {
  Connect();
  requests.clear();
  auto& bar = program.general.GetForm().Get<ProgressBar>("PBar").face;
  bar.OnChanged = [] { throw std::runtime_error("in the middle"); };
  Click("Escribir");
  EXPECT_THROW(world.loop.RunFor(seconds(2)), std::runtime_error);
  bar.OnChanged = nullptr;
  EXPECT_EQ(Status(), "Error!");
  world.loop.RunFor(seconds(3));
  EXPECT_TRUE(program.general.GetForm().Enabled() && frame.Leer.face.Enabled());
  EXPECT_FALSE(frame.WriteRequest || program.comms.LinkBusy);
  EXPECT_EQ(std::ranges::count(requests, "#45000ID="), 0);
}

class ModemSession : public Session {
 protected:
  static sim::LoggerOptions Behind() {
    sim::LoggerOptions options = CableLogger();
    options.modem = true;
    options.accessCode = "4321";
    return options;
  }

  ModemSession() : Session(Behind()) {
    frame.ModemCheck.SetChecked(true);
    frame.CallNum.SetText("600111222");
  }

  void Dial() {
    Click("IniCom");
    world.loop.RunFor(seconds(90));
  }
};

TEST_F(ModemSession, DialsAsksTheCodeAndHangsUp) {
  for (const char* code : {"1111", "12a", "2222", "4321"}) world.dialogs.GiveCode(code);
  Dial();
  EXPECT_TRUE(program.Connected) << "a code that is no number costs no pass";
  EXPECT_EQ(world.dialogs.codesAsked, 4U);
  ASSERT_EQ(world.dialogs.boxes.size(), 1U);
  EXPECT_EQ(world.dialogs.boxes[0].text, "La clave de acceso debe ser un numero");
  EXPECT_FALSE(Sent("#1112a"));
  Click("IniCom");
  world.loop.RunFor(seconds(10));
  EXPECT_FALSE(program.Connected);
  EXPECT_EQ(requests.back(), "ATH");
  for (const auto& [code, answer] :
       {std::pair{"", CodeAnswer::NotGiven}, {"1111", CodeAnswer::Given}}) {
    world.dialogs.GiveCode(code);
    Dial();
    EXPECT_EQ(program.session.State().failed->code, answer);
  }

  world.dialogs.GiveCode("4321");
  Dial();
  ASSERT_TRUE(program.Connected);
  const TimePoint start = world.loop.Now();
  program.ShutDown();
  EXPECT_EQ(world.loop.Now(), start) << "the end of the program hangs nothing up politely";
  EXPECT_FALSE(world.port.PortOpen());
}

}  // namespace
}  // namespace ostrel
