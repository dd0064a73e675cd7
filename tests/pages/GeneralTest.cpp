#include "PageFixture.h"
#include "pages/General.h"

namespace ostrel {
namespace {

class GeneralPage : public PageFixture {
 protected:
  GeneralPage() {
    SelectModel("Ostrel VR200");
    Start(page);
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
  const auto offered = [this](std::size_t row) { return mask.Rows().at(row).text; };
  EXPECT_EQ(mask.Rows().size(), 8U + 4 + 8 + 32 + 16);
  EXPECT_EQ(offered(0) + ";" + offered(8) + ";" + offered(19) + ";" + offered(20) + ";" +
                offered(51) + ";" + offered(67),
            "DI0, Dig. In;AI0, Analog. In;FL7, QMeter;MB0, MODBUS;MB31, MODBUS;FG15, Flag");
  SelectModel("Ostrel S100");
  page.LoadMaskSelection();
  EXPECT_EQ(mask.Rows().size(), 2U + 2 + 2 + 96 + 16);
  EXPECT_EQ(offered(6), "EX0, Expansion");
}

TEST_F(GeneralPage, ATelephoneIsEnteredListedAndEdited) {
  Get<ComboBox>("PrioBox").SetPosition(2);
  Get<ComboBox>("Privilegios").SetPosition(0);
  Get<CheckBox>("CheckMask").SetChecked(true);
  Get<OptionButton>("MaskExclude").SetSelected(true);
  mask.SetSelected(0, true);
  mask.SetSelected(9, true);
  Enter("+34600111222");
  const std::string row = "+34600111222,Prio=2,PRV3,MASKMODE2,DI0,AI1";
  EXPECT_EQ(list.RowText(0), row);
  EXPECT_EQ(form.Focus(), "NewTlf");
  Enter("600");
  EXPECT_EQ(list.RowText(1), "600,Prio=0,PRV2,MASKMODE0") << "the entry controls start anew";
  EXPECT_FALSE(mask.face.Enabled() || mask.Selected(0));
  list.DoubleClick(0);
  EXPECT_EQ(list.Rows().size(), 2U) << "editing does not remove the row";
  for (const int count : {1, 0}) {
    list.SetPosition(0);
    Get<Button>("Borrar").Click();
    EXPECT_EQ(list.Rows().size(), std::size_t(count));
  }
  Get<Button>("Anadir").Click();
  EXPECT_EQ(list.RowText(0), row) << "all of it has gone back into the entry controls";
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
    EXPECT_EQ(form.Focus(), "NewTlf");
    EXPECT_EQ(Get<TextBox>("NewTlf").Text(), bad) << "left to be corrected";
  }
  EXPECT_TRUE(list.Rows().empty());

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
  Tick();
  EXPECT_EQ(conf.Phone[19].TLF, "619");
  EXPECT_EQ(conf.Phone[20].TLF, "");
  EXPECT_EQ(list.Rows().size(), 21U);
  page.LoadData();
  EXPECT_EQ(list.Rows().size(), 20U);
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
  info = {123, 0, "A7", 3.6F, 17, 131072, 12};
  for (const auto& [key, label, text] : {std::tuple{"VERSION", "FirmText", "1.23"},
                                         {"SERIAL", "SerialText", "A7"},
                                         {"VBAT", "VBatText", "3.6V"},
                                         {"RSSI", "LabelRSSI", "(17)"},
                                         {"LOG.SIZE", "MaxHText", "131072 Registros"},
                                         {"LOG.USE", "UsedHText", "12 Registros"}}) {
    page.ShowInfo(key);
    EXPECT_EQ(Caption(page, label), text);
  }
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
