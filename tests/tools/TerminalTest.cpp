#include <gmock/gmock.h>

#include <sstream>

#include "shell/Navigation.h"
#include "shell/SimWorld.h"
#include "tools/RichText.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

class TerminalPage : public testing::Test {
 protected:
  TerminalPage() : world(sim::MakeDefaultOptions(sim::Model::BP)) {
    program.StartForCommand(world.TargetName(), 1);
    EXPECT_TRUE(program.session.Open(SimWorld::kPort, ""));
    world.logger->OnExchange(
        [this](const sim::Exchange& exchange) { asked.push_back(exchange.request); });
    navigation.NodeClick("Terminal");
  }
  ConfiguratorOptions Options() {
    ConfiguratorOptions options = world.Options(false);
    options.openLog = [this](const std::string& path, std::string& why) {
      why = "no room";
      auto stream = path == "/full" ? nullptr : std::make_unique<std::ostringstream>();
      log = stream.get();
      return stream;
    };
    return options;
  }
  void Comes(std::string_view octets) {
    world.line->Send(octets);
    world.loop.RunFor(milliseconds(150));
  }
  void Press(const char* button) {
    form.Get<Button>(button).Click();
    world.loop.RunFor(milliseconds(150));
  }
  void Switch(const char* box, bool on) { form.Get<CheckBox>(box).SetChecked(on); }
  const std::string& Shown() { return form.Get<TextView>("TextWin").Text(); }

  SimWorld world;
  std::ostringstream* log = nullptr;
  Configurator program{world.platform, Options()};
  Form& form = program.terminal.GetForm();
  Navigation navigation{program};
  std::vector<std::string> asked;
};

TEST_F(TerminalPage, ShowsWhatComesWhileItIsInFrontOfAnOpenSession) {
  Comes("Nivel \xE1\r\n#64;40\r");
  EXPECT_EQ(Shown(), "Nivel á\r\n#64;40\r");
  navigation.NodeClick("GPRS");
  Comes("left in the port");
  EXPECT_EQ(Shown(), "Nivel á\r\n#64;40\r");
  navigation.NodeClick("Terminal");
  world.loop.RunFor(milliseconds(150));
  EXPECT_EQ(Shown(), "Nivel á\r\n#64;40\rleft in the port");
  EXPECT_EQ(FaceOf(form["LabelLines"]).Caption(), "Lineas recibidas: 1");
  Switch("PauseCheck", true);
  Comes("held");
  Press("BorrarBut");
  EXPECT_EQ(Shown(), "");
  Switch("PauseCheck", false);
  EXPECT_EQ(Shown(), "held") << "it was not seen yet";
  Press("BorrarBut");
  program.comms.LinkBusy = true;
  Comes("of a dialogue");
  EXPECT_EQ(Shown(), "");
  program.comms.LinkBusy = false;
  program.Connected = false;
  Comes("of nobody");
  EXPECT_EQ(Shown(), "");
}

TEST_F(TerminalPage, SendsWhatIsTypedAndKeepsItForTheArrowKeys) {
  TextBox& command = form.Get<TextBox>("TextComando");
  Press("EnviarBut");
  Press("TramaBut");
  EXPECT_THAT(asked, IsEmpty()) << "empty boxes send nothing";
  for (const char* text : {"VER", "TIME"}) {
    command.Type(text);
    Press("EnviarBut");
    EXPECT_EQ(command.Text(), text);
  }
  form.Get<TextBox>("TextTrama").Type("#5D");
  Press("TramaBut");
  Press("TraceEnable");
  EXPECT_TRUE(world.logger->Traces());
  Press("TraceDisable");
  EXPECT_THAT(asked, ElementsAre("#01VER", "#01TIME", "#5D", "#041", "#040"));
  EXPECT_EQ(Shown().substr(0, 11), "Tavro BP v3");
  command.Type("half");
  std::vector<std::string> seen;
  for (const int way : {-1, -1, -1, 1, 1, 1}) {
    command.OnArrow(way);
    seen.push_back(command.Text());
  }
  EXPECT_THAT(seen, ElementsAre("TIME", "VER", "VER", "TIME", "half", "half"));
}

TEST_F(TerminalPage, StampsHoldsBackAndLogs) {
  world.dialogs.ChoosePath("/console.txt");
  Switch("LogCheck", true);
  Switch("StampCheck", true);
  world.clock.SetNow({2026, 3, 2, 9, 5, 7});
  Comes("one\r");
  EXPECT_TRUE(Shown().starts_with("09:05:07.") && Shown().ends_with(" one\r")) << Shown();
  Comes("\ntwo");
  EXPECT_EQ(std::ranges::count(Shown(), ':'), 4) << "one stamp a line: " << Shown();
  Switch("StampCheck", false);
  Switch("PauseCheck", true);
  const std::string before = Shown();
  Comes(" held\r\n");
  EXPECT_EQ(Shown(), before);
  EXPECT_EQ(log->str(), before + " held\r\n") << "the log goes on";
  Switch("PauseCheck", false);
  EXPECT_EQ(Shown(), before + " held\r\n");
  log->setstate(std::ios::badbit);
  Comes("lost");
  EXPECT_FALSE(form.Get<CheckBox>("LogCheck").Checked());
  world.dialogs.ChoosePath("/full");
  Switch("LogCheck", true);
  EXPECT_FALSE(form.Get<CheckBox>("LogCheck").Checked());
  EXPECT_EQ(world.dialogs.boxes.back().text, "No se puede escribir el fichero: no room");
}

/// The path of the file is the one that configurations are saved under, too.
TEST_F(TerminalPage, SavesRichText) {
  program.ConfFilePath = "/site.ocf";
  Comes("{\\}\t\xE1\r\nend\n");
  Switch("PauseCheck", true);
  Comes("\r");
  Press("SaveBut");
  EXPECT_EQ(program.ConfFilePath, "/site.ocf") << "cancelled";
  world.dialogs.ChoosePath("/x.rtf");
  Press("SaveBut");
  EXPECT_EQ(program.ConfFilePath, "/x.rtf");
  EXPECT_EQ(world.files.contents["/x.rtf"],
            "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fmodern Courier New;}}\r\n"
            "\\f0\\fs20 \\{\\\\\\}\\tab \\'e1\\par\r\nend\\par\r\n\\par\r\n}\r\n");
  world.files.FailOperation(1);
  world.dialogs.ChoosePath("/y.rtf");
  Press("SaveBut");
  EXPECT_EQ(program.ConfFilePath, "/x.rtf");
  EXPECT_THAT(world.dialogs.boxes, IsEmpty());
}

}  // namespace
}  // namespace ostrel
