#include <gtest/gtest.h>

#include "PageFixture.h"
#include "pages/General.h"

namespace ostrel {
namespace {

class GeneralPage : public PageFixture {
 protected:
  GeneralPage() {
    SelectModel("Ostrel VR200");
    page.Form_Load();
    page.Clear();
  }

  template <class Control>
  Control& Get(std::string_view name) {
    return form.Get<Control>(name);
  }
  void Enter(std::string_view number) {
    Get<TextBox>("NewTlf").SetText(number);
    Get<Button>("Anadir").Click();
  }

  General page{context};
  Form& form = page.GetForm();
  ListBox& list = Get<ListBox>("ListaTlf");
  MultiListBox& mask = Get<MultiListBox>("MaskSelection");
};

TEST_F(GeneralPage, TheMaskOffersTheChannelsOfTheModel) {
  std::string tokens;
  for (const ListRow& row : mask.Rows()) tokens += row.text + ";";
  EXPECT_TRUE(tokens.starts_with("DI0, Dig. In;DI1, Dig. In;")) << tokens;
  EXPECT_NE(tokens.find("DI7, Dig. In;AI0, Analog. In;"), std::string::npos);
  EXPECT_NE(tokens.find("FL7, QMeter;MB0, MODBUS;"), std::string::npos);
  EXPECT_TRUE(
      tokens.ends_with("MB31, MODBUS;FG0, Flag;FG1, Flag;FG2, Flag;FG3, Flag;FG4, Flag;"
                       "FG5, Flag;FG6, Flag;FG7, Flag;FG8, Flag;FG9, Flag;FG10, Flag;"
                       "FG11, Flag;FG12, Flag;FG13, Flag;FG14, Flag;FG15, Flag;"));
  SelectModel("Ostrel S100");
  page.LoadMaskSelection();
  EXPECT_EQ(mask.Rows().size(), 2U + 2 + 2 + 96 + 16);
  EXPECT_EQ(mask.Rows()[6].text, "EX0, Expansion");
}

TEST_F(GeneralPage, ATelephoneIsEnteredListedAndEdited) {
  Get<ComboBox>("PrioBox").SetPosition(2);
  Get<ComboBox>("Privilegios").SetPosition(0);
  Get<CheckBox>("CheckMask").SetChecked(true);
  Get<OptionButton>("MaskExclude").SetSelected(true);
  mask.SetSelected(0, true);
  mask.SetSelected(9, true);
  Enter("+34600111222");
  EXPECT_EQ(list.RowText(0), "+34600111222,Prio=2,PRV3,MASKMODE2,DI0,AI1");
  EXPECT_EQ(Get<TextBox>("NewTlf").Text(), "");
  EXPECT_EQ(form.Focus(), "NewTlf");
  EXPECT_EQ(Get<ComboBox>("PrioBox").Position(), 0);
  EXPECT_EQ(Get<ComboBox>("Privilegios").Text(), "Administrador");
  EXPECT_FALSE(mask.face.Enabled() || mask.Selected(0));
  EXPECT_TRUE(Get<OptionButton>("MaskInclude").Selected());

  list.DoubleClick(0);
  EXPECT_EQ(list.Rows().size(), 1U) << "editing does not remove the row";
  EXPECT_EQ(Get<TextBox>("NewTlf").Text(), "+34600111222");
  EXPECT_EQ(Get<ComboBox>("PrioBox").Position(), 2);
  EXPECT_EQ(Get<ComboBox>("Privilegios").Text(), "Kestrel");
  EXPECT_TRUE(Get<CheckBox>("CheckMask").Checked());
  EXPECT_TRUE(Get<OptionButton>("MaskExclude").Selected());
  EXPECT_TRUE(mask.Selected(0) && mask.Selected(9) && !mask.Selected(1));
  list.SetPosition(0);
  Get<Button>("Borrar").Click();
  EXPECT_TRUE(list.Rows().empty());
}

TEST_F(GeneralPage, ListsOfPrioritiesAndRights) {
  std::string rows;
  for (const char* list_ : {"PrioBox", "Privilegios"})
    for (const ListRow& row : Get<ComboBox>(list_).Rows())
      rows += row.text + "=" + std::to_string(row.value) + ";";
  EXPECT_EQ(rows,
            "No Prio.=0;Prio. 1=1;Prio. 2=2;Prio. 3=3;Prio. 4=4;Prio. 5=5;Prio. 6=6;Prio. 7=7;"
            "Prio. 8=8;Kestrel=3;Administrador=2;U. Avanzado=1;Usuario=0;");
  EXPECT_EQ(Get<TextBox>("NewTlf").MaxLength(), 16);
}

TEST_F(GeneralPage, UnusableFieldsOfARowLeaveTheEntryControls) {
  Get<ComboBox>("PrioBox").SetPosition(4);
  Get<ComboBox>("Privilegios").SetPosition(3);
  list.Add("600,Prio=9,PRVx,MASKMODE7");
  list.DoubleClick(0);
  EXPECT_EQ(Get<ComboBox>("PrioBox").Position(), 4);
  EXPECT_EQ(Get<ComboBox>("Privilegios").Position(), 3);
  for (const auto& [row, position] : {std::pair{"1,Prio=0,PRV0", 3}, {"1,Prio=0,PRV1", 2}}) {
    list.Clear();
    list.Add(row);
    list.DoubleClick(0);
    EXPECT_EQ(Get<ComboBox>("Privilegios").Position(), position) << row;
  }
  list.SetPosition(-1);
  Get<Button>("Borrar").Click();
  EXPECT_EQ(list.Rows().size(), 1U) << "nothing is selected";
}

TEST_F(GeneralPage, BadTelephonesAreRefused) {
  for (const char* bad : {"6.5", "6,5", "abc"}) {
    Enter(bad);
    EXPECT_EQ(dialogs.boxes.back().text, "Error, no es un numero de telefono correcto") << bad;
    EXPECT_EQ(dialogs.boxes.back().icon, BoxIcon::Exclamation);
    EXPECT_EQ(dialogs.boxes.back().title, "Ostrel VR200");
    EXPECT_EQ(form.Focus(), "NewTlf");
    EXPECT_EQ(Get<TextBox>("NewTlf").Text(), bad) << "left to be corrected";
  }
  EXPECT_TRUE(list.Rows().empty());
  const std::size_t boxes = dialogs.boxes.size();
  Enter("");
  EXPECT_EQ(dialogs.boxes.size(), boxes);

  Get<CheckBox>("CheckMask").SetChecked(true);
  for (int row = 0; row < 17; ++row) mask.SetSelected(row, true);
  Enter("600");
  EXPECT_EQ(dialogs.boxes.back().text, "No puede añadir mas de 16 canales a la mascara");
  EXPECT_TRUE(list.Rows().empty() && mask.Selected(16));
  mask.SetSelected(16, false);
  Enter("600");
  EXPECT_EQ(list.Rows().size(), 1U);
}

TEST_F(GeneralPage, ANumberThatIsInTheListIsReplacedWhenTheOperatorAgrees) {
  Enter("600");
  Enter("601");
  Get<ComboBox>("PrioBox").SetPosition(4);
  dialogs.Answer(BoxAnswer::Yes);
  Enter("600");
  EXPECT_EQ(list.Rows().size(), 2U);
  EXPECT_EQ(list.RowText(0), "600,Prio=4,PRV2,MASKMODE0");
  dialogs.Answer(BoxAnswer::No);
  Enter("600");
  EXPECT_EQ(list.Rows().size(), 3U) << "as a further one";
  EXPECT_EQ(list.RowText(0), "600,Prio=4,PRV2,MASKMODE0");
  EXPECT_EQ(dialogs.boxes.back().buttons, BoxButtons::YesNo);
  for (int i = 2; i < 20; ++i) Enter(std::to_string(600 + i));
  ASSERT_EQ(list.Rows().size(), 21U);
  Get<ComboBox>("PrioBox").SetPosition(5);
  Enter("619");
  EXPECT_EQ(list.RowText(20), "619,Prio=5,PRV2,MASKMODE0") << "a full list takes it, too";
}

TEST_F(GeneralPage, TheListTakesOneRowMoreThanIsKept) {
  for (int i = 0; i < 22; ++i) Enter(std::to_string(600 + i));
  EXPECT_EQ(list.Rows().size(), 21U);
  EXPECT_EQ(dialogs.boxes.back().text, "Lista llena");
  EXPECT_EQ(dialogs.boxes.back().icon, BoxIcon::Information);
  EXPECT_EQ(Get<TextBox>("NewTlf").Text(), "");
  loop.RunFor(std::chrono::seconds(1));
  EXPECT_EQ(conf.Phone[19].TLF, "619");
  EXPECT_EQ(conf.Phone[20].TLF, "");
  EXPECT_EQ(list.Rows().size(), 21U);
  page.LoadData();
  EXPECT_EQ(list.Rows().size(), 20U);
}

TEST_F(GeneralPage, CommitsEachSecondUnlessADownloadRuns) {
  ComBusy = true;
  Get<TextBox>("NameBox").Type("Estación 1");
  Get<TextBox>("RENVT").Type("5x");
  loop.RunFor(std::chrono::seconds(1));
  EXPECT_EQ(conf.General.DNAME, "");
  ComBusy = false;
  loop.RunFor(std::chrono::seconds(1));
  EXPECT_EQ(conf.General.DNAME, "Estación 1");
  EXPECT_EQ(conf.General.RENVT, 5);
  EXPECT_EQ(Get<TextBox>("RENVN").Text(), " 3") << "with a place for the sign";
}

TEST_F(GeneralPage, WarnsOfAFirmwareWithoutExtendedMasks) {
  const auto& warning = Get<Label>("WarningText").face;
  struct Case {
    bool connected;
    std::int32_t features;
    bool warns;
  };
  for (const Case& c : {Case{false, 0, false}, Case{true, 0, true}, Case{true, 0x10000, false}}) {
    Connected = c.connected;
    info.Features = c.features;
    loop.RunFor(std::chrono::seconds(1));
    EXPECT_EQ(warning.Visible(), c.warns);
  }
  EXPECT_EQ(warning.Caption(),
            "La version de firmware del Ostrel VR200 no soporta el modo extendido en las mascaras, "
            "solo puede seleccionar DI0 a DI7 y A0 a A3.");
}

TEST_F(GeneralPage, TheServiceCentreFollowsItsOptionAndBack) {
  Get<OptionButton>("CSMVoda").SetSelected(true);
  EXPECT_EQ(Get<TextBox>("SMSCBox").Text(), "+34607003110");
  EXPECT_FALSE(Get<TextBox>("SMSCBox").face.Enabled());
  Get<OptionButton>("CSMOtro").SetSelected(true);
  EXPECT_TRUE(Get<TextBox>("SMSCBox").face.Enabled());
  for (const auto& [number, option] : {std::pair{"+34609090909", "CSMMovi"},
                                       {"+34607003110", "CSMVoda"},
                                       {"+34656000311", "CSMAmen"},
                                       {"+34656000311 ", "CSMOtro"}}) {
    Get<TextBox>("SMSCBox").SetText(number);
    page.CSMCheck();
    EXPECT_TRUE(Get<OptionButton>(option).Selected()) << number;
  }
}

TEST_F(GeneralPage, ShowsWhatALoggerSaysOfItself) {
  info = {.FirmwareVersion = 123,
          .Features = 0,
          .SerialNumber = "A7",
          .BatteryVoltage = 3.6F,
          .Rssi = 17,
          .LogSize = 131072,
          .LogUsed = 12};
  for (const char* key : {"VERSION", "SERIAL", "VBAT", "RSSI", "LOG.SIZE", "LOG.USE"})
    page.ShowInfo(key);
  for (const auto& [label, text] : {std::pair{"FirmText", "1.23"},
                                    {"SerialText", "A7"},
                                    {"VBatText", "3.6V"},
                                    {"LabelRSSI", "(17)"},
                                    {"MaxHText", "131072 Registros"},
                                    {"UsedHText", "12 Registros"}})
    EXPECT_EQ(Get<Label>(label).face.Caption(), text);
  EXPECT_EQ(Get<ProgressBar>("RSSIBar").Value(), 17);
}

TEST_F(GeneralPage, SessionButtonsOnlyRaiseRequests) {
  SessionFrame& session = page.Session();
  session.EnableTransfers(true);
  Get<Button>("Leer").Click();
  EXPECT_TRUE(session.ReadRequest && !session.WriteRequest && !session.IniRequest);
  EXPECT_EQ(form.MousePointer(), Pointer::Hourglass);
  for (const auto& [text, number] :
       {std::pair{"COM7", 7}, {"COM256", 256}, {"COM1234", 123}, {"", 0}, {"X", 0}}) {
    session.Puerto.Clear();
    session.Puerto.Add(text);
    session.Puerto.SetPosition(0);
    EXPECT_EQ(session.SelectedPort(), number) << text;
  }
  Get<CheckBox>("ModemCheck").SetChecked(true);
  EXPECT_TRUE(Get<TextBox>("CallNum").face.Enabled());
}

TEST_F(GeneralPage, SearchingRefillsThePortsAndEndsWhateverFails) {
  page.OnScanPorts = [&] {
    EXPECT_FALSE(Get<Button>("SearchBut").face.Enabled());
    EXPECT_TRUE(page.Session().Puerto.Rows().empty());
    page.Session().Puerto.Add("COM3");
    throw std::runtime_error("in the middle");
  };
  page.Session().Puerto.Add("COM1");
  Get<Button>("SearchBut").Click();
  EXPECT_EQ(page.Session().Puerto.Text(), "COM3");
  EXPECT_TRUE(Get<Button>("SearchBut").face.Enabled());
}

}  // namespace
}  // namespace ostrel
