#include <gmock/gmock.h>

#include "SimWorld.h"
#include "shell/Navigation.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

/// A program with a session, in which live rounds go on without a pause, as with a plot.
class UnderRounds : public testing::Test {
 protected:
  explicit UnderRounds(sim::Model model = sim::Model::VR200)
      : world(sim::MakeDefaultOptions(model)) {
    world.Stored("Idioma") = "1";
    world.Stored("ComPort") = "7";
    world.Stored("Target") = world.TargetName();
    world.logger->SetConf(sim::DemoConfiguration(world.logger->Options().model));
    world.port.SetPaced(true);
    program.Start("");
    navigation.NodeClick("General");
    Session().IniCom.Click();
    world.loop.RunFor(milliseconds(15'300));
    going = program.livePoll.KeepGoing();
    world.loop.RunFor(seconds(2));
    world.logger->OnExchange([this](const sim::Exchange& e) { requests.push_back(e.request); });
  }
  SessionFrame& Session() { return program.general.Session(); }
  /// Does something within the next round, behind the answer to a request.
  void WithinARound(const std::function<void()>& act, std::string_view request = "#22") {
    bool done = false;
    world.logger->OnExchange([&](const sim::Exchange& e) {
      requests.push_back(e.request);
      if (done || e.request != request) return;
      done = true;
      requests.clear();
      world.loop.After(milliseconds(1), "an operator", [&] {
        EXPECT_TRUE(program.comms.LinkBusy);
        act();
      });
    });
    world.loop.RunFor(seconds(4));
    world.logger->OnExchange([this](const sim::Exchange& e) { requests.push_back(e.request); });
    ASSERT_TRUE(done);
  }
  template <class Control>
  Control& Get(Form& form, const std::string& name) {
    return form.Get<Control>(name);
  }
  std::string Caption(const Form& form, const std::string& name) {
    return FaceOf(form[name]).Caption();
  }
  /// Where a message stands among those sent since the click; -1 for nowhere.
  std::ptrdiff_t PlaceOf(std::string_view head) const {
    const auto found = std::ranges::find_if(requests, [&](auto& r) { return r.starts_with(head); });
    return found == requests.end() ? -1 : found - requests.begin();
  }

  SimWorld world;
  Configurator program{world.platform, world.Options(true)};
  Navigation navigation{program};
  std::shared_ptr<const void> going;
  std::vector<std::string> requests;
};

/// A round of this model takes more than half a second, so that each covers a whole one: all ticks
/// of the session fall into them.
class UnderEndlessRounds : public UnderRounds {
 protected:
  UnderEndlessRounds() : UnderRounds(sim::Model::BP) {}
};

TEST_F(UnderEndlessRounds, WhatTheSessionIsAskedForComesBehindTheRound) {
  requests.clear();
  world.loop.RunFor(seconds(30));
  EXPECT_GT(std::ranges::count(requests, "#44"), 20) << "the information keeps refreshing";
  WithinARound([this] { Session().Leer.Click(); }, "#20");
  world.loop.RunFor(seconds(60));
  EXPECT_EQ(Session().ComStat.face.Caption(), "Configuracion descargada con exito");
  WithinARound([this] { Session().IniCom.Click(); });
  EXPECT_FALSE(program.Connected);
}

TEST_F(UnderRounds, WhatAPageOrToolAsksForCutsTheRound) {
  navigation.NodeClick("Aut_Voz");
  Form& voice = program.PageOf(PageId::Aut_Voz)->GetForm();
  WithinARound([&] { Get<Button>(voice, "ReadBut").Click(); });
  EXPECT_EQ(Caption(voice, "StateLabel"), "Lista leida con exito");
  EXPECT_THAT(PlaceOf("#5D"), testing::AnyOf(-1, testing::Gt(PlaceOf("#4F"))))
      << "the round is cut";

  WithinARound([this] { program.context.showTotal(0); });
  EXPECT_EQ(world.dialogs.modals, 1);
  EXPECT_EQ(Caption(program.setTotal.GetForm(), "LabelEstado"), "Preparado");

  navigation.NodeClick("General");
  WithinARound([this] { Session().IniCom.Click(); }, "#44");
  EXPECT_FALSE(program.Connected);
  EXPECT_EQ(PlaceOf("#20"), -1) << "no round begins any more";
}

TEST_F(UnderRounds, TheTerminalAndTheUpdateHaveTheLineToThemselves) {
  Form& terminal = program.terminal.GetForm();
  navigation.NodeClick("T_Real");
  WithinARound([&] {
    navigation.NodeClick("Terminal");
    Get<TextBox>(terminal, "TextComando").SetText("VER");
    Get<Button>(terminal, "EnviarBut").Click();
  });
  EXPECT_GE(PlaceOf("#01VER"), 0);
  EXPECT_THAT(Get<TextView>(terminal, "TextWin").Text(), testing::HasSubstr("Ostrel VR200"));
  for (const char* page : {"Terminal", "Firmware"}) {
    navigation.NodeClick(page);
    world.loop.RunFor(seconds(2));
    requests.clear();
    world.loop.RunFor(seconds(5));
    EXPECT_THAT(requests, testing::IsEmpty()) << page;
    navigation.NodeClick("Flag_0");
    world.loop.RunFor(seconds(5));
    EXPECT_GE(PlaceOf("#20"), 0) << "the rounds go on";
  }
  Form& firm = program.firm.GetForm();
  for (const auto& [box, path] : {std::pair{"FirmPath", "/i.hex"}, {"LoaderPath", "/CopyFlash"}}) {
    world.files.contents[path] = "ab";
    Get<TextBox>(firm, box).SetText(path);
  }
  WithinARound([&] { Get<Button>(firm, "StarBut").Click(); });
  EXPECT_GE(PlaceOf("#F0"), 0) << "it begins behind the round";
}

TEST_F(UnderRounds, TheMonitorFollowsThemAndSwitchesBehindThem) {
  navigation.NodeClick("T_Real");
  Form& monitor = program.monitor.GetForm();
  std::set<std::string> clocks;
  for (int i = 0; i < 10; ++i) {
    world.loop.RunFor(seconds(1));
    clocks.insert(Caption(monitor, "RTCText"));
  }
  EXPECT_GE(clocks.size(), 6u);
  WithinARound([&] { Get<CheckBox>(monitor, "CheckCambiarEstado(1)").SetChecked(true); });
  EXPECT_EQ(world.logger->Outputs() >> 1 & 1, 1u);
  EXPECT_FALSE(Get<CheckBox>(monitor, "CheckCambiarEstado(1)").Checked());
}

}  // namespace
}  // namespace ostrel
