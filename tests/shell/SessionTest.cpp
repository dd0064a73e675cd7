#include <gtest/gtest.h>

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
  EXPECT_EQ(Status(), "Comunicacion no iniciada");
  EXPECT_FALSE(frame.Leer.face.Enabled());
  frame.CallNum.SetText("600111222");  // without the modem it is not called
  Click("IniCom");
  EXPECT_EQ(program.general.GetForm().MousePointer(), Pointer::Hourglass);
  std::vector<std::string> texts;
  frame.ComStat.face.OnChanged = [&] { texts.push_back(Status()); };
  world.loop.RunFor(seconds(15));
  ASSERT_TRUE(program.Connected);
  EXPECT_EQ(texts,
            (std::vector<std::string>{"Detectando Ostrel VR200...", "Comunicacion iniciada"}));
  EXPECT_EQ(frame.IniCom.face.Caption(), "Cerrar comunicacion");
  EXPECT_TRUE(frame.Leer.face.Enabled() && frame.Escribir.face.Enabled());
  const std::vector<std::string> start(requests.begin(), requests.begin() + 9);
  EXPECT_EQ(start, (std::vector<std::string>{"#40", "#44", "#20", "#2C", "#26", "#27", "#25", "#2A",
                                             "#5D"}));
  EXPECT_EQ(requests.at(10), "#44") << "the information keeps refreshing";
  EXPECT_TRUE(world.dialogs.boxes.empty());
  EXPECT_EQ(program.general.GetForm().Get<Label>("SerialText").face.Caption(),
            world.logger->Options().serial);
  Click("IniCom");
  world.loop.RunFor(seconds(2));
  EXPECT_FALSE(program.Connected || world.port.PortOpen());
  EXPECT_EQ(Status(), "Comunicacion no iniciada");
  EXPECT_EQ(frame.IniCom.face.Caption(), "Iniciar comunicacion");
  EXPECT_FALSE(frame.Leer.face.Enabled());
}

TEST_F(Session, AsksAboutAClockMoreThanTenMinutesOff) {
  struct Case {
    int secondsOff;
    bool asked;
    BoxAnswer answer = BoxAnswer::Yes;
  };
  for (const Case& c : {Case{590, false}, Case{-590, false}, Case{615, true}, Case{-615, true},
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

TEST_F(Session, RequestsWaitUntilThePageIsInFront) {
  Connect();
  program.general.Form_Deactivate();
  world.loop.RunFor(seconds(2));
  requests.clear();
  Click("Leer");
  world.loop.RunFor(seconds(5));
  EXPECT_TRUE(requests.empty()) << "no refresh either";
  EXPECT_EQ(program.general.GetForm().MousePointer(), Pointer::Hourglass);
  program.general.Form_Activate();
  world.loop.RunFor(seconds(60));
  EXPECT_EQ(requests.at(0), "#42");
  EXPECT_EQ(Status(), "Configuracion descargada con exito");
  EXPECT_EQ(program.conf.General.DNAME, world.logger->Conf().name);
  EXPECT_FALSE(frame.ReadRequest);
  EXPECT_EQ(program.general.GetForm().MousePointer(), Pointer::Default);
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
}

TEST_F(Session, ACarrierLossIsToldOnceAndChangesNothing) {
  Connect();
  LineEnd& end = *world.line;
  end.SetCarrier(false);
  world.loop.RunFor(milliseconds(10));
  ASSERT_EQ(world.dialogs.boxes.size(), 1U);
  EXPECT_EQ(world.dialogs.boxes[0].text, "Se corto la comunicacion");
  EXPECT_EQ(world.dialogs.boxes[0].title, "Ostrel VR200");
  EXPECT_TRUE(program.Connected && world.port.PortOpen());
}

TEST_F(Session, APortThatIsNotThereLeavesItIdle) {
  frame.Puerto.Clear();
  frame.Puerto.Add("COM99");
  frame.Puerto.SetPosition(0);
  Click("IniCom");
  world.loop.RunFor(seconds(2));
  EXPECT_EQ(Status(), "Comunicacion no iniciada");
  EXPECT_TRUE(world.dialogs.boxes.empty());
  EXPECT_FALSE(frame.IniRequest);
}

/// A logger that is switched off keeps CTS low: nothing hangs, and nothing of a failed upload
/// reaches it when it is back.
TEST_F(Session, AHeldLineEndsSoonAndSendsNothingLate) {
  Connect();
  requests.clear();
  world.port.HoldOutput(SimWorld::kPort, true);
  const TimePoint start = world.loop.Now();
  Click("Escribir");
  world.loop.RunFor(seconds(1));
  EXPECT_EQ(Status(), "Error!");
  EXPECT_LT(world.loop.Now() - start, seconds(22)) << "ten for the upload, ten for the refresh";
  EXPECT_EQ(program.comms.Fault().kind, LinkFault::Kind::LineHeld);
  world.loop.RunFor(seconds(60));
  world.port.HoldOutput(SimWorld::kPort, false);
  world.loop.RunFor(seconds(5));
  for (const std::string& request : requests) EXPECT_EQ(request, "#44");
  EXPECT_FALSE(requests.empty());
}

/// Three times three waits for an answer and the drains ahead of them, even when the refresh of the
/// information has found the logger silent already.
TEST_F(Session, ASilentLoggerCostsNineWaits) {
  struct Mute final : LineDevice {
    void Receive(std::string_view) override {}
    void SetTerminalReady(bool) override {}
  } mute;
  world.port.AddDevice(8, "mute", "", mute);
  world.port.SetCommPort(8);
  ASSERT_EQ(world.port.SetPortOpen(true), PortFault::None);
  for (const int reply : {1000, 10'000}) {
    program.comms.ReplyTimeout = reply;
    program.comms.ReadInfo();
    const TimePoint start = world.loop.Now();
    EXPECT_FALSE(program.session.Download());
    EXPECT_EQ(Status(), "Error!");
    EXPECT_EQ(world.loop.Now() - start, milliseconds(9 * reply + 300));
  }
}

/// Breaking off closes the port: whatever the session is doing then, it ends in the idle state and
/// asks nothing.
TEST_F(Session, AnOpeningIsBrokenOffAtAnyPoint) {
  const std::vector<std::string> phases = {"#40", "#44", "#20", "#26", "#5D"};
  for (const std::string& phase : phases) {
    SCOPED_TRACE(phase);
    world.logger->OnExchange([&](const sim::Exchange& e) {
      if (e.request == phase) program.comms.Abort();
    });
    Click("IniCom");
    world.loop.RunFor(seconds(1));
    EXPECT_EQ(Status(), "Comunicacion no iniciada");
    EXPECT_FALSE(program.Connected || world.port.PortOpen() || frame.Leer.face.Enabled());
    EXPECT_EQ(program.general.GetForm().MousePointer(), Pointer::Default);
    EXPECT_TRUE(world.dialogs.boxes.empty());
  }
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

  static std::function<void(Form&)> Type(const std::string& code) {
    return [code](Form& form) {
      form.Get<TextBox>("PWText").SetText(code);
      form.Get<Button>("Aceptar").Click();
    };
  }
};

TEST_F(ModemSession, DialsAsksTheCodeAndHangsUp) {
  world.dialogs.OnModal(Type("1111"));
  world.dialogs.OnModal([](Form& form) {
    EXPECT_EQ(form.Title(), "Clave de acceso");
    form.Get<TextBox>("PWText").SetText("12a");
    form.Get<Button>("Aceptar").Click();
    EXPECT_TRUE(form.Visible()) << "a code has to be a number";
    form.Get<TextBox>("PWText").SetText("4321");
    form.Get<Button>("Aceptar").Click();
  });
  Click("IniCom");
  world.loop.RunFor(seconds(60));
  EXPECT_TRUE(program.Connected);
  EXPECT_EQ(world.dialogs.beeps, 2U);
  EXPECT_EQ(world.dialogs.boxes.size(), 1U);
  Click("IniCom");
  world.loop.RunFor(seconds(10));
  EXPECT_FALSE(program.Connected);
  EXPECT_EQ(requests.back(), "ATH");

  world.dialogs.OnModal(Type("4321"));
  Click("IniCom");
  world.loop.RunFor(seconds(60));
  ASSERT_TRUE(program.Connected);
  const TimePoint start = world.loop.Now();
  program.ShutDown();
  EXPECT_EQ(world.loop.Now(), start) << "the end of the program hangs nothing up politely";
  EXPECT_FALSE(world.port.PortOpen());
}

TEST_F(ModemSession, CancellingTheCodeThreeTimesFailsTheHandshake) {
  for (int pass = 0; pass < 3; ++pass)
    world.dialogs.OnModal([](Form& form) { form.Get<Button>("Cancelar").Click(); });
  Click("IniCom");
  world.loop.RunFor(seconds(90));
  EXPECT_FALSE(program.Connected);
  EXPECT_EQ(world.dialogs.Unused(), 0U);
  for (const std::string& request : requests) EXPECT_FALSE(request.starts_with("#11")) << request;
  EXPECT_EQ(std::ranges::count(requests, "#40"), 3) << "tried all the same";
}

}  // namespace
}  // namespace ostrel
