#include <gmock/gmock.h>

#include <set>

#include "PageFixture.h"
#include "pages/Aut_Voz.h"
#include "pages/GPRS.h"
#include "pages/Macros.h"

namespace ostrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ReportPages : public PageFixture {
 protected:
  ReportPages() {
    SelectModel("Tavro BP");
    for (Page* page : std::initializer_list<Page*>{&macros, &gprs, &voice}) Start(*page);
  }
  static std::vector<std::string> Rows(Page& page, std::string_view list) {
    std::vector<std::string> rows;
    for (const ListRow& row : page.GetForm().Get<ListBox>(list).Rows()) rows.push_back(row.text);
    return rows;
  }
  void Click(Page& page, std::string_view button) { page.GetForm().Get<Button>(button).Click(); }
  TextBox& Box(Page& page, std::string_view name) { return page.GetForm().Get<TextBox>(name); }
  /// The text of the last message shown.
  std::string Message() { return dialogs.boxes.empty() ? "" : dialogs.boxes.back().text; }

  void AddMacro(int number, std::string_view command, std::string_view name = "",
                std::string_view button = "AddBut") {
    macros.GetForm().Get<ComboBox>("MacroNum").SetPosition(number);
    Box(macros, "MacroCommand").Type(command);
    Box(macros, "MacroName").Type(name);
    Click(macros, button);
  }
  int Number() { return macros.GetForm().Get<ComboBox>("MacroNum").Position(); }

  Macros macros{context};
  GPRS gprs{context};
  Aut_Voz voice{context};
};

TEST_F(ReportPages, MacrosArePutTogetherAndCounted) {
  EXPECT_EQ(Caption(macros, "FreeMem"), "Memoria restante 1024");
  AddMacro(0, "");
  EXPECT_THAT(Rows(macros, "MacroPool"), IsEmpty());
  AddMacro(0, "X");
  EXPECT_EQ(Caption(macros, "FreeMem"), "Memoria restante 1014");
  EXPECT_EQ(Number(), 1);
  AddMacro(39, "Y", "Paro");
  EXPECT_EQ(Number(), 39) << "the last to be reached by advancing";
  AddMacro(15, "D0", "", "AddEqBut");
  EXPECT_EQ(Number(), 15);
  EXPECT_THAT(Rows(macros, "MacroPool"),
              ElementsAre("MACRO0={X}", "MACRO39={Y,NAME=Paro}", "F15={D0}"));
  EXPECT_EQ(conf.Macro.LINE[2], "F15={D0}") << "the model has it at once";
  EXPECT_EQ(Box(macros, "MacroCommand").Text() + Box(macros, "MacroName").Text(), "");
  EXPECT_EQ(Message(), "");
  AddMacro(16, "D1", "", "AddEqBut");
  EXPECT_EQ(Message(), "Debe seleccionar un numero de ecuacion menor a 16");
  EXPECT_EQ(Rows(macros, "MacroPool").size(), 3U);
  AddMacro(3, "D1", "name", "AddEqBut");
  EXPECT_EQ(Message(), "El campo nombre se descartara");
  EXPECT_EQ(conf.Macro.LINE[3], "F3={D1}");
  macros.GetForm().Get<ListBox>("MacroPool").SetPosition(0);
  Click(macros, "DelBut");
  EXPECT_EQ(conf.Macro.LINE[0], "MACRO39={Y,NAME=Paro}");
  EXPECT_EQ(conf.Macro.LINE[3], "");
}

TEST_F(ReportPages, LinesThatAreNotSentAreTold) {
  const auto& notice = macros.GetForm().Get<Label>("NotSent").face;
  for (int line = 0; line < 40; ++line) AddMacro(0, std::string(30, 'x'));
  EXPECT_FALSE(notice.Visible());
  EXPECT_EQ(Caption(macros, "FreeMem"), "Memoria restante-536") << "nothing is refused";
  for (int line = 40; line < 56; ++line) AddMacro(0, "X");
  EXPECT_TRUE(notice.Visible());
  EXPECT_THAT(notice.Caption(), HasSubstr("No se envian: 16"));
  AddMacro(0, "X");
  EXPECT_EQ(Rows(macros, "MacroPool").size(), 56U) << Message();
  EXPECT_EQ(Box(macros, "MacroCommand").Text(), "X") << "what was typed is not lost";
}

TEST_F(ReportPages, LinesAreTakenBackForEditing) {
  const auto edit = [this](const std::string& line) {
    conf.Macro.LINE[0] = line;
    macros.LoadData();
    Box(macros, "MacroCommand").SetText("old");
    Box(macros, "MacroName").SetText("oldName");
    dialogs.boxes.clear();
    macros.GetForm().Get<ListBox>("MacroPool").DoubleClick(0);
    EXPECT_THAT(Rows(macros, "MacroPool"), ElementsAre(line));
    return Box(macros, "MacroCommand").Text() + "|" + Box(macros, "MacroName").Text() +
           (Message().empty() ? "" : "!");
  };
  EXPECT_EQ(edit("MACRO7={S0=1,W3,NAME=Paro}"), "S0=1,W3|Paro");
  EXPECT_EQ(edit("MACRO7={a{b,NAME=Paro}"), "b|Paro") << "back to the nearest brace";
  EXPECT_EQ(edit("F3={D0&D1}"), "D0&D1|");
  EXPECT_EQ(edit("MACRO7={S0=1}"), "old|oldName!") << "it says why nothing changes";
  EXPECT_THAT(Message(), HasSubstr("no tiene nombre"));
  EXPECT_EQ(edit("F3={MACRO1}"), "old|oldName!");
  EXPECT_THAT(Message(), HasSubstr("La ecuacion nombra una macro"));
  EXPECT_EQ(edit("F3"), "old|oldName!");
}

TEST_F(ReportPages, PasswordsAreHiddenUntilAskedForAndAddressesChecked) {
  auto& show = gprs.GetForm().Get<CheckBox>("CheckMostrar");
  for (const auto* name : {"TextAPNPassword", "TextFTPPass"}) {
    EXPECT_TRUE(Box(gprs, name).Hidden());
    show.SetChecked(true);
    EXPECT_FALSE(Box(gprs, name).Hidden());
    gprs.Form_Activate();
    EXPECT_TRUE(Box(gprs, name).Hidden()) << "again each time the page comes to the front";
  }
  EXPECT_FALSE(Box(gprs, "TextAPNServer").Hidden());
  EXPECT_EQ(Box(gprs, "IPInputBox").Text(), "0");
  for (const auto* text :
       {"0", "1.2.3.255", "", "1.2.3", "1.2.3.", "1.2.3.256", "1.2.3.4.5", "a.2.3.4"}) {
    Box(gprs, "IPInputBox1").Type(text);
    Tick();
    EXPECT_EQ(Box(gprs, "IPInputBox1").face.Colour() == BackColour::Window,
              std::set<std::string>({"0", "1.2.3.255", ""}).contains(text))
        << text;
  }
}

TEST_F(ReportPages, VoiceNumbersAreAddedFoundAndRemoved) {
  const auto type = [this](std::string_view number, std::string_view button) {
    dialogs.boxes.clear();
    Box(voice, "PhoneText").Type(number);
    Click(voice, button);
  };
  for (const auto* number : {"+34600", "601", "", "601"}) type(number, "Add");
  EXPECT_THAT(Rows(voice, "PhoneList"), ElementsAre("+34600", "601", "601"));
  EXPECT_EQ(Box(voice, "PhoneText").Text(), "");
  type("6x", "Add");
  EXPECT_EQ(Message(), "Numero de telefono invalido");
  EXPECT_EQ(voice.GetForm().Focus(), "PhoneText");
  auto& list = voice.GetForm().Get<ListBox>("PhoneList");
  type("601", "SearchBut");
  EXPECT_EQ(list.Position(), 1);
  type("60", "SearchBut");
  EXPECT_EQ(Message(), "No se ha encontrado");
  list.SetPosition(0);
  Click(voice, "Del");
  voice.GetForm().Get<ComboBox>("PNMacro").SetPosition(40);
  voice.Form_Deactivate();
  EXPECT_THAT(NumbersOf(conf.AutVoz), ElementsAre("601", "601"));
  EXPECT_EQ(conf.AutVoz.MACRO, 39);
  EXPECT_EQ(conf.AutVoz.AutVozCount, 2);
  SetNumbers(conf.AutVoz, std::vector<std::string>(250, "7"));
  voice.LoadData();
  type("602", "Add");
  EXPECT_THAT(Message(), HasSubstr("numero maximo de entradas"));
  EXPECT_EQ(list.Rows().size(), 250U);
}

TEST_F(ReportPages, ManyVoiceNumbersComeAndGoAtOnce) {
  context.clipboardText = [] { return "600\nAna\n601\n600"; };
  Click(voice, "PasteBut");
  EXPECT_EQ(Message(),
            "Numeros añadidos: 2\nNumeros rechazados: 2\n"
            "Linea 2: Ana - no es un numero de telefono\nLinea 4: 600 - ya esta en la lista");
  for (const auto* path : {"list.txt", "list.txt", "none.txt"}) dialogs.ChoosePath(path);
  Click(voice, "ExportBut");
  EXPECT_EQ(files.contents["list.txt"], "600\n601\n");
  voice.Clear();
  Click(voice, "ImportBut");
  EXPECT_THAT(Rows(voice, "PhoneList"), ElementsAre("600", "601"));
  Click(voice, "ImportBut");
  EXPECT_EQ(Message(), "No se puede leer el fichero");
}

TEST_F(ReportPages, TheVoiceListTalksWithALoggerThatHasOne) {
  const auto& read = voice.GetForm().Get<Button>("ReadBut").face;
  const auto tick = [&](bool connected, std::int32_t features) {
    Connected = connected;
    info.Features = features;
    Tick();
    return read.Enabled();
  };
  EXPECT_FALSE(tick(false, 0x1000));
  EXPECT_FALSE(tick(true, 0xFFF));
  EXPECT_TRUE(tick(true, 0x1000));

  Box(voice, "PhoneText").Type("600");
  Click(voice, "Add");
  context.writeVoiceList = [&](const ConfAutVoz& list) {
    EXPECT_THAT(NumbersOf(list), ElementsAre("600"));
    EXPECT_EQ(Caption(voice, "StateLabel"), "Escribiendo...");
    return true;
  };
  Click(voice, "WriteBut");
  EXPECT_EQ(Caption(voice, "StateLabel"), "Lista escrita con exito");
  for (const bool isRead : {false, true}) {
    context.readVoiceList = [&](ConfAutVoz& list) {
      SetNumbers(list, std::vector<std::string>{"801", "802"});
      voice.Form_Deactivate();
      EXPECT_THAT(NumbersOf(conf.AutVoz), ElementsAre("600")) << "no commit while it is being read";
      return isRead;
    };
    Click(voice, "ReadBut");
    EXPECT_THAT(NumbersOf(conf.AutVoz), ElementsAre("801", "802"));
    EXPECT_EQ(Rows(voice, "PhoneList").size(), isRead ? 2U : 1U);
    EXPECT_EQ(Caption(voice, "StateLabel"), isRead ? "Lista leida con exito" : "Error!");
    if (!isRead) voice.Form_Deactivate();
  }
}

TEST_F(ReportPages, ReadingTheVoiceListKeepsWhatItDoesNotBring) {
  Connected = true;
  info.Features = 0x1000;
  Tick();
  voice.GetForm().Get<CheckBox>("ACKCheck").SetChecked(true);
  context.readVoiceList = [&](ConfAutVoz& list) {
    list.MACRO = 77;
    return true;
  };
  voice.GetForm().Get<ComboBox>("PNMacro").SetPosition(8);
  Click(voice, "ReadBut");
  EXPECT_TRUE(bool(conf.AutVoz.SEND_ACK));
  EXPECT_TRUE(voice.GetForm().Get<CheckBox>("ACKCheck").Checked());
  EXPECT_EQ(voice.GetForm().Get<ComboBox>("PNMacro").Position(), 0) << "no macro to choose";
  context.readVoiceList = [&](ConfAutVoz& list) {
    SetNumbers(list, std::vector<std::string>{"801"});
    SetNumbers(conf.AutVoz, std::vector<std::string>{"900"});  // of a file opened meanwhile
    return true;
  };
  Click(voice, "ReadBut");
  EXPECT_THAT(NumbersOf(conf.AutVoz), ElementsAre("900"));
  EXPECT_EQ(Caption(voice, "StateLabel"), "Error!");
}

}  // namespace
}  // namespace ostrel
