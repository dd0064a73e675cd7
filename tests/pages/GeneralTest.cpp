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
  std::vector<std::string> PhoneStatements() {
    auto all = Statements(page);
    all.erase(all.begin(), std::find(all.begin(), all.end(), "CLRTLF") + 1);
    return all;
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

TEST_F(GeneralPage, ListsAndLimits) {
  std::string rows;
  for (const char* list_ : {"PrioBox", "Privilegios"})
    for (const ListRow& row : Get<ComboBox>(list_).Rows())
      rows += row.text + "=" + std::to_string(row.value) + ";";
  EXPECT_EQ(rows,
            "No Prio.=0;Prio. 1=1;Prio. 2=2;Prio. 3=3;Prio. 4=4;Prio. 5=5;Prio. 6=6;Prio. 7=7;"
            "Prio. 8=8;Kestrel=3;Administrador=2;U. Avanzado=1;Usuario=0;");
  for (const auto& [box, length] : {std::pair{"NameBox", 50},
                                    {"SMSCBox", 16},
                                    {"RENVT", 3},
                                    {"RENVN", 3},
                                    {"PTLF", 16},
                                    {"RestoreText", 19},
                                    {"NewTlf", 16}})
    EXPECT_EQ(Get<TextBox>(box).MaxLength(), length) << box;
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
  EXPECT_EQ(Get<TextBox>("RENVT").face.Colour(), BackColour::Red);
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

TEST_F(GeneralPage, ReadsItsLines) {
  for (const char* line : {"DNAME,Depósito", "SMC,+34609090909", "PTLF,600", "RENVT,90", "RENVN,7",
                           "REST,Fin de alarma"})
    Receive(page, line);
  EXPECT_EQ(conf.General, (ConfGeneral{"Depósito", "+34609090909", 2, 7, "600", "Fin de alarma"}));
  Receive(page, "RENVN,40000");
  EXPECT_EQ(conf.General.RENVN, 7);
}

TEST_F(GeneralPage, ReadsTelephonesOfOlderFirmware) {
  struct Case {
    std::int32_t features;
    const char* mask;
    int mode;
    std::vector<int> channels;
  };
  const std::vector<int> twelve{21, 22, 23, 24, 25, 26, 27, 28, 0, 1, 2, 3};
  for (const Case& c : {Case{0, "65535", 0, {}}, Case{0, "-1", 1, twelve}, Case{0x100, "-1", 0, {}},
                        Case{0x100, "65535", 1, twelve}, Case{0, "99999999999", 1, {}},
                        Case{0, "2305", 1, {21, 0, 3}}, Case{0, "0", 1, {}}}) {
    info.Features = c.features;
    Receive(page, std::string("TLF,4,600111222,3,2,") + c.mask);
    const ConfPhone& phone = conf.Phone[4];
    EXPECT_EQ(phone.MASKMODE, c.mode) << c.mask;
    for (int place = 0; place < kMaskPlaces; ++place) {
      const auto at = static_cast<std::size_t>(place);
      EXPECT_EQ(phone.ListaMask[place], at < c.channels.size() ? c.channels[at] : kNoChannel);
    }
    EXPECT_EQ(phone.Prio, 3);
    EXPECT_EQ(phone.PRV, 2);
  }
}

TEST_F(GeneralPage, ReadsTelephonesOfNewFirmwareAndFreeSlots) {
  info.Features = 0x10000;
  Receive(page, "TLF,20,600111222,3,2,ignored,2,21,255,61");
  EXPECT_EQ(conf.Phone[20].MASKMODE, 2);
  EXPECT_EQ(conf.Phone[20].ListaMask[0], 21);
  EXPECT_EQ(conf.Phone[20].ListaMask[1], 255);
  EXPECT_EQ(conf.Phone[20].ListaMask[2], 61);
  EXPECT_EQ(conf.Phone[20].ListaMask[3], 0) << "a missing field is 0";
  const auto before = conf;
  for (const char* line : {"TLF,20,60,1,1", "TLF,3,", "TLF,99,"}) Receive(page, line);
  EXPECT_EQ(conf, before) << "a number of less than three characters is a free slot";
  for (const char* line : {"TLF,21,600", "TLF,-1,600"})
    EXPECT_THROW(Receive(page, line), BoundFailure) << line;
}

TEST_F(GeneralPage, ComposesItsStatements) {
  conf.General = {"Nombre", "+34609", 2, 7, "600", "Fin"};
  EXPECT_EQ(Statements(page), (std::vector<std::string>{"ID=Nombre", "CSM=+34609", "PTLF=600",
                                                        "REST=Fin", "CLRTLF"}));
  info.Features = 0x1;
  EXPECT_EQ(Statements(page)[4], "RETRYMAX= 7");
  EXPECT_EQ(Statements(page)[5], "RETRYTIME= 120");
}

TEST_F(GeneralPage, ComposesTelephonesForEachFirmware) {
  PutFile(
      "[GENERAL]\r\nTLFM 0=600,Prio=1,PRV0,MASKMODE0\r\n"
      "TLFM 19=611,Prio=8,PRV3,MASKMODE2,DI7,AI3,FG3,DI8,DI0");
  page.RestoreConf();
  EXPECT_EQ(PhoneStatements(),
            (std::vector<std::string>{"+TLF=600,Prio=1,PRV0", "+TLF=611,Prio=8,PRV3,D7,A3,D0"}));
  info.Features = 0x10000;
  EXPECT_EQ(PhoneStatements(),
            (std::vector<std::string>{"+TLF=600,Prio=1,PRV0,MASKMODE0",
                                      "+TLF=611,Prio=8,PRV3,MASK= 28 3 64 97 21 255 255 255 255 "
                                      "255 255 255 255 255 255 255,MASKMODE2"}));
}

TEST_F(GeneralPage, FilesOfBothFormsAreRead) {
  PutFile(
      "[General]\r\nNOMBRE=Pozo\r\nRENVT= 15\r\nTLF 0=600,Prio=2,PRV1,D1,A0\r\n"
      "TLF 1=601,Prio=1,PRV0");
  page.RestoreConf();
  EXPECT_EQ(conf.General.DNAME, "Pozo");
  EXPECT_EQ(conf.General.RENVT, 15);
  EXPECT_EQ(conf.General.RENVN, 0) << "a missing number reads as 0";
  EXPECT_EQ(list.RowText(0), "600,Prio=2,PRV1,MASKMODE1,DI1,AI0");
  EXPECT_EQ(list.RowText(1), "601,Prio=1,PRV0,MASKMODE0");
  PutFile("[GENERAL]\r\nTLF 0=600,Prio=2,PRV1\r\nTLFM 5=605,Prio=0,PRV3,MASKMODE0");
  page.RestoreConf();
  ASSERT_EQ(list.Rows().size(), 1U) << "one present key leaves the earlier form unread";
  EXPECT_EQ(list.RowText(0), "605,Prio=0,PRV3,MASKMODE0");
  EXPECT_TRUE(FileText(page).ends_with("RESTORE=\r\nTLFM 5=605,Prio=0,PRV3,MASKMODE0"))
      << FileText(page);
}

TEST_F(GeneralPage, ClearingKeepsAllOfASlotButItsNumber) {
  conf.Phone[20] = {.TLF = "600", .Prio = 4, .PRV = 3, .MASKMODE = 2, .ListaMask = {}};
  page.Clear();
  EXPECT_EQ(conf.Phone[20].TLF, "");
  EXPECT_EQ(conf.Phone[20].Prio, 4);
  EXPECT_EQ(conf.General.RENVT, 10);
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

TEST_F(GeneralPage, SearchingRefillsThePorts) {
  page.OnScanPorts = [&] {
    EXPECT_FALSE(Get<Button>("SearchBut").face.Enabled());
    EXPECT_TRUE(page.Session().Puerto.Rows().empty());
    page.Session().Puerto.Add("COM3");
  };
  page.Session().Puerto.Add("COM1");
  Get<Button>("SearchBut").Click();
  EXPECT_EQ(page.Session().Puerto.Text(), "COM3");
  EXPECT_TRUE(Get<Button>("SearchBut").face.Enabled());
}

}  // namespace
}  // namespace ostrel
