#include <gmock/gmock.h>

#include <sstream>

#include "shell/SimWorld.h"
#include "shell/navigation/Navigation.h"
#include "tools/Disk.h"
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
      auto stream = path == "/full" ? nullptr : std::make_unique<std::ostream>(&disk);
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
  Disk disk;
  std::ostream* log = nullptr;
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
  Comes("\n");
  EXPECT_EQ(FaceOf(form["LabelLines"]).Caption(), "Lineas recibidas: 2") << "it counts on";
  program.comms.LinkBusy = true;
  Comes("of a dialogue");
  form.Get<TextBox>("TextComando").Type("VER");
  Press("EnviarBut");
  EXPECT_THAT(asked, IsEmpty());
  EXPECT_EQ(FaceOf(form["LabelLines"]).Caption(), "La linea esta ocupada: no se ha enviado nada");
  form.Get<TextBox>("TextComando").OnArrow(-1);
  EXPECT_EQ(form.Get<TextBox>("TextComando").Text(), "VER") << "nothing was sent before it";
  form.Get<TextBox>("TextComando").Type("half");
  form.Get<TextBox>("TextComando").OnArrow(-1);
  EXPECT_EQ(form.Get<TextBox>("TextComando").Text(), "half") << "it does not count as sent";
  program.comms.LinkBusy = false;
  program.Connected = false;
  Comes("of nobody");
  EXPECT_EQ(Shown(), "\n");
  program.session.Close(false);
  form.Get<TextBox>("TextComando").Type("VER");
  Press("EnviarBut");
  EXPECT_EQ(FaceOf(form["LabelLines"]).Caption(), "No hay ninguna sesion: no se ha enviado nada");
  EXPECT_THAT(asked, IsEmpty());
}

TEST_F(TerminalPage, SendsWhatIsTypedAndKeepsItForTheArrowKeys) {
  TextBox& command = form.Get<TextBox>("TextComando");
  Press("EnviarBut");
  Press("TramaBut");
  EXPECT_THAT(asked, IsEmpty()) << "empty boxes send nothing";
  for (const char* text : {"OUT", "VER", "TIME", "TIME"}) {
    command.Type(text);
    Press("EnviarBut");
    EXPECT_EQ(command.Text(), text);
  }
  form.Get<TextBox>("TextTrama").Type("#5D");
  Press("TramaBut");
  Press("TraceEnable");
  EXPECT_TRUE(world.logger->Traces());
  Press("TraceDisable");
  EXPECT_THAT(asked, ElementsAre("#01OUT", "#01VER", "#01TIME", "#01TIME", "#5D", "#041", "#040"));
  EXPECT_THAT(Shown(), testing::HasSubstr("Tavro BP v3"));
  command.Type("half");
  std::vector<std::string> seen;
  for (const int way : {-1, -1, -1, -1, 1, 1, 1, 1}) {
    command.OnArrow(way);
    seen.push_back(command.Text());
  }
  EXPECT_THAT(seen, ElementsAre("TIME", "VER", "OUT", "OUT", "VER", "TIME", "half", "half"))
      << "the same twice in a row is kept once";
  form.Get<TextBox>("TextTrama").Type("#9");
  form.Get<TextBox>("TextTrama").OnArrow(-1);
  EXPECT_EQ(form.Get<TextBox>("TextTrama").Text(), "#5D") << "each box has its own";
}

TEST_F(TerminalPage, StampsHoldsBackAndLogs) {
  world.dialogs.ChoosePath("/console.txt");
  Switch("LogCheck", true);
  Switch("StampCheck", true);
  world.clock.SetNow({2026, 3, 2, 9, 5, 7});
  Comes("one\r");
  EXPECT_TRUE(Shown().starts_with("09:05:07.") && Shown().ends_with(" one\r")) << Shown();
  Comes("\ntwo\rthree");
  EXPECT_EQ(std::ranges::count(Shown(), ':'), 6) << "one stamp a line: " << Shown();
  Switch("StampCheck", false);
  Switch("PauseCheck", true);
  const std::string before = Shown();
  Comes(" held\r\n");
  EXPECT_EQ(Shown(), before);
  EXPECT_EQ(disk.str(), before + " held\r\n") << "the log goes on";
  EXPECT_EQ(disk.written, 3) << "as it comes";
  for (const bool pauses : {false, true, false}) Switch("PauseCheck", pauses);
  EXPECT_EQ(Shown(), before + " held\r\n");
  Switch("LogCheck", false);
  Comes("not for the file");
  EXPECT_EQ(disk.written, 3);
  world.dialogs.ChoosePath("/console.txt");
  Switch("LogCheck", true);
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
  Comes("{\\}\t\x01\xE1\r\nend\n");
  Switch("PauseCheck", true);
  Comes("\r");
  Press("SaveBut");
  EXPECT_EQ(program.ConfFilePath, "/site.ocf") << "cancelled";
  world.dialogs.ChoosePath("/x.rtf");
  Press("SaveBut");
  EXPECT_EQ(program.ConfFilePath, "/x.rtf");
  EXPECT_TRUE(world.dialogs.questions.back().filter.starts_with("Rich text file (*.rtf)|*.rtf|"));
  EXPECT_TRUE(world.dialogs.questions.back().overwritePrompt);
  EXPECT_EQ(world.files.contents["/x.rtf"],
            "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fmodern Courier New;}}\r\n"
            "\\f0\\fs20 \\{\\\\\\}\\tab \\'01\\'e1\\par\r\nend\\par\r\n\\par\r\n}\r\n");
  world.files.FailOperation(1);
  world.dialogs.ChoosePath("/y.rtf");
  Press("SaveBut");
  EXPECT_EQ(program.ConfFilePath, "/x.rtf");
  EXPECT_THAT(world.dialogs.boxes, IsEmpty());
}

}  // namespace
}  // namespace ostrel
