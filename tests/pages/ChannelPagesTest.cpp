#include <gtest/gtest.h>

#include "PageFixture.h"
#include "pages/inputs/E_Analog.h"
#include "pages/inputs/E_Digital.h"
#include "pages/inputs/Flags.h"
#include "pages/inputs/Grupos.h"

namespace ostrel {
namespace {

class ChannelPages : public PageFixture {
 protected:
  ChannelPages() { SelectModel("Tavro BP"); }

  void Start(Page& page) {
    page.Form_Load();
    page.Clear();
  }

  E_Digital digital{context};
  E_Analog analog{context};
  Grupos groups{context};
  Flags flags{context};
};

TEST_F(ChannelPages, DigitalLinesAreRead) {
  Start(digital);
  for (const auto& [field, closed] :
       {std::pair{" 1", true}, {"-1", true}, {"0", false}, {"", false}}) {
    Receive(digital, std::string("DIGITAL,8,Puerta,") + field);
    EXPECT_EQ(bool(conf.Digital[8].NC), closed) << field;
  }
  EXPECT_EQ(conf.Digital[8].NOMBRE, "Puerta");
  Receive(digital, "DIGITAL.ALM,8,2,Abierta,5.5,7,0,86400,127,3,9");
  const auto& [alarm, limits] = conf.Digital[8].ALARM[2];
  EXPECT_EQ(limits.PERSIST, 5.5F);
  EXPECT_EQ(limits.REARM, 7);
  EXPECT_TRUE(alarm.SIEMPRE && alarm.SMS && alarm.VOZ);
  EXPECT_EQ(alarm.FLAG, 9);
  Receive(digital, "DIGITAL.ACT,8,2,1,2,0,0,5,6");
  EXPECT_EQ(alarm.ACTHI[2], 5);
  EXPECT_EQ(alarm.ACTLO[2], 6);
  EXPECT_THROW(Receive(digital, "DIGITAL,10,x,0"), BoundFailure);
}

TEST_F(ChannelPages, DigitalStatements) {
  Start(digital);
  profile.DigitalCount = 2;
  conf.Digital[1].NOMBRE = "Bomba";
  conf.Digital[1].NC = kTrue;
  auto& [alarm, limits] = conf.Digital[1].ALARM[0];
  alarm.HABIL = alarm.SMS = kTrue;
  alarm.TEXTO = "Paro";
  limits = {.PERSIST = 5, .REARM = 0.5F};
  alarm.ACTLO[0] = 43;
  EXPECT_EQ(Statements(digital)[5], "DINAME1=Bomba");
  info.Features = 0x80;
  const std::vector<std::string> expected{
      "DINAME0=",
      "-ALMD0,INDEX= 0",
      "-ALMD0,INDEX= 1",
      "-ALMD0,INDEX= 2",
      "-ALMD0,INDEX= 3",
      "DINAME1=Bomba,NC",
      "+ALMD1=Paro,INDEX= 0,PC= 5,PO= .5,EQ= 0,ACTCLOSE=,ACTOPEN= 43",
      "-ALMD1,INDEX= 1",
      "-ALMD1,INDEX= 2",
      "-ALMD1,INDEX= 3",
  };
  EXPECT_EQ(Statements(digital), expected);
}

TEST_F(ChannelPages, DigitalPageShowsAndCommits) {
  Start(digital);
  Form& form = digital.GetForm();
  EXPECT_EQ(form.Title(), "Configuracion entrada digital  0");
  EXPECT_EQ(form.Get<TextBox>("Persist").Text(), " 0");
  form.Get<OptionButton>("Int_NC").SetSelected(true);
  form.Get<TextBox>("Nombre").Type("Una entrada con un nombre");
  form.Get<TextBox>("Rearm").Type("2.5");
  EXPECT_EQ(conf.Digital[0].NC, kFalse) << "only a commit reaches the model";
  digital.Form_Deactivate();
  EXPECT_EQ(conf.Digital[0].NC, kTrue);
  EXPECT_EQ(conf.Digital[0].NOMBRE, "Una entrada con un ");
  EXPECT_EQ(conf.Digital[0].ALARM[0].thresholds.REARM, 2.5F);
}

TEST_F(ChannelPages, TheSpareDigitalRecordIsNeverTouched) {
  conf.Digital[9].NOMBRE = "spare";
  conf.Digital[9].ALARM[0].common.TEXTO = "spare";
  const ConfDigital spare = conf.Digital[9];
  Start(digital);
  PutFile(FileText(digital) + "\r\n[DIGITAL 9]\r\nNOMBRE=file");
  digital.RestoreConf();
  EXPECT_EQ(conf.Digital[9], spare);
  EXPECT_EQ(FileText(digital).find("spare"), std::string::npos);
}

TEST_F(ChannelPages, AnalogLinesAreRead) {
  Start(analog);
  struct Case {
    const char* reported;
    int code;
  };
  for (const auto& [reported, code] : {Case{"1", 1}, Case{"2", 2}, Case{"3", 3}, Case{"4", 7},
                                       Case{"5", 7}, Case{"0", 0}, Case{"7", 0}}) {
    Receive(analog, std::string("ANALOG,3,Nivel,m,") + reported + ",2,4,0,20,10.5");
    EXPECT_EQ(conf.Analog[3].INTERFAZ, code) << reported;
  }
  const ConfAnalog& input = conf.Analog[3];
  EXPECT_EQ(input.UNIDAD, "m");
  EXPECT_EQ(input.GRUPO, 2);
  EXPECT_EQ(input.IE, 4);
  EXPECT_EQ(input.EqIE, 0);
  EXPECT_EQ(input.FE, 20);
  EXPECT_EQ(input.EqFE, 10.5F);
  Receive(analog, "ANALOG.ALM,3,1,Alto,1,2,3,0,86400,127,16,4,5");
  const auto& [alarm, limits] = input.ALARM[1];
  EXPECT_EQ(limits, (LevelThresholds{1, 2, 3, 5}));
  EXPECT_EQ(alarm.FLAG, 4);
  Receive(analog, "ANALOG.ACT,3,1,1,2,3,4,5,6");
  EXPECT_EQ(alarm.ACTHI[1], 4);
  EXPECT_EQ(alarm.ACTNO[1], 5);
  EXPECT_EQ(alarm.ACTLO[1], 6);
  EXPECT_THROW(Receive(analog, "ANALOG,5,x"), BoundFailure);
}

TEST_F(ChannelPages, AnalogStatements) {
  Start(analog);
  profile.AnalogCount = 1;
  ConfAnalog& input = conf.Analog[0];
  auto& [alarm, limits] = input.ALARM[0];
  alarm.HABIL = kTrue;
  limits = {-1.5F, 20, 0.25F, 3};
  alarm.ACTNO[0] = 1;
  EXPECT_EQ(Statements(analog)[0], "DISAI0");
  EXPECT_EQ(Statements(analog)[1],
            "+ALMA0=,INDEX= 0,MAX= 20,MIN=-1.5,HIST= .25,NOSEND,EQ= 0,ACTHI=,ACTLO=,ACTNOM= 1");
  info.Features = 0x8;
  EXPECT_EQ(
      Statements(analog)[1],
      "+ALMA0=,INDEX= 0,MAX= 20,MIN=-1.5,HIST= .25,P= 3,NOSEND,EQ= 0,ACTHI=,ACTLO=,ACTNOM= 1");
  EXPECT_EQ(Statements(analog)[4], "-ALMA0,INDEX= 3");
  input.NOMBRE = "Depósito";
  input.UNIDAD = "m";
  input.FE = 20;
  input.EqFE = 5;
  input.GRUPO = 1;
  struct Case {
    std::int16_t code;
    const char* token;
  };
  for (const auto& [code, token] :
       {Case{1, ",CURRENT"}, Case{2, ",5V"}, Case{3, ",10V"}, Case{7, ",PRESSURE"}, Case{5, ""}}) {
    input.INTERFAZ = code;
    EXPECT_EQ(Statements(analog)[0], std::string("AICONF0=Depósito,UNIT=m") + token +
                                         ",BSVAL= 0,FSVAL= 20,BSUNIT= 0,FSUNIT= 5,GROUP= 1");
  }
}

TEST_F(ChannelPages, AnalogPageAllowsWhatTheModelHas) {
  struct Case {
    const char* model;
    const char* enabled;  // of Press, 4_20, 0_5, 0_10, IE, Grupo
    const char* shown;    // of Label11, Jumper, Asterisk, Notice
  };
  Start(analog);
  for (const Case& c : {Case{"Tavro BP", "011111", "1111"}, Case{"Ostrel VR200", "010111", "1100"},
                        Case{"Ostrel S100", "010011", "0000"}, Case{"Tavro BQ", "100000", "0000"},
                        Case{"Ostrel KA1", "000011", "0000"}}) {
    SelectModel(c.model);
    analog.Form_Activate();
    std::string enabled, shown;
    for (const char* name : {"Int_Press", "Int_4_20", "Int_0_5", "Int_0_10", "IE", "Grupo"})
      enabled += FaceOf(analog.GetForm()[name]).Enabled() ? '1' : '0';
    for (const char* name : {"Label11", "Jumper", "Asterisk", "Notice"})
      shown += FaceOf(analog.GetForm()[name]).Visible() ? '1' : '0';
    EXPECT_EQ(enabled, c.enabled) << c.model;
    EXPECT_EQ(shown, c.shown) << c.model;
    EXPECT_TRUE(FaceOf(analog.GetForm()["Int_NoHabil"]).Enabled());
  }
}

TEST_F(ChannelPages, JumperPicturesFollowInterfaceAndModel) {
  struct Case {
    const char* model;
    const char* option;
    int image;
  };
  for (const Case& c : {Case{"Tavro BP", "Int_0_5", 1}, Case{"Tavro BP", "Int_0_10", 2},
                        Case{"Tavro BP", "Int_4_20", 3}, Case{"Ostrel VR200", "Int_0_5", 1},
                        Case{"Ostrel VR200", "Int_0_10", 4}, Case{"Ostrel VR200", "Int_4_20", 5},
                        Case{"Ostrel S100", "Int_4_20", 9}, Case{"Tavro BP", "Int_Press", 9}}) {
    SelectModel(c.model);
    analog.Clear();
    auto& jumper = analog.GetForm().Get<Picture>("Jumper");
    jumper.SetImage(9);
    analog.GetForm().Get<OptionButton>(c.option).SetSelected(true);
    EXPECT_EQ(jumper.Image(), c.image) << c.model << c.option;
  }
}

TEST_F(ChannelPages, APressureLoggerStartsInBar) {
  SelectModel("Tavro BQ");
  Start(analog);
  EXPECT_EQ(conf.Analog[0].UNIDAD, "bar");
  EXPECT_EQ(conf.Analog[0].EqFE, 10);
  EXPECT_EQ(conf.Analog[1].UNIDAD, "");
  analog.GetForm().Get<OptionButton>("Int_Press").SetSelected(true);
  analog.SavePage();
  EXPECT_EQ(conf.Analog[0].INTERFAZ, 7);
  EXPECT_EQ(analog.GetForm().Get<TextBox>("EqFE").Text(), "10") << "no place for the sign";
}

TEST_F(ChannelPages, APressureLoggerHasNoScaleAndNoGroup) {
  SelectModel("Tavro BQ");
  Start(analog);
  conf.Analog[0].GRUPO = 2;
  analog.LoadData();
  analog.Form_Activate();
  for (const char* name : {"Label1", "Label2", "IE", "FE", "Grupo"})
    EXPECT_FALSE(FaceOf(analog.GetForm()[name]).Enabled()) << name;
  EXPECT_EQ(analog.GetForm().Get<ComboBox>("Grupo").Position(), 2) << "shown anew at the end";
}

TEST_F(ChannelPages, WhatAListDoesNotOfferIsKeptAsFarAsItCan) {
  Start(analog);
  conf.Analog[0].INTERFAZ = 3;
  conf.Analog[1].INTERFAZ = 5;
  conf.Analog[1].GRUPO = -1;
  analog.LoadData();
  analog.ChangeIndex(1);
  EXPECT_FALSE(analog.GetForm().Get<OptionButton>("Int_0_10").Selected());
  analog.ChangeIndex(0);
  EXPECT_EQ(conf.Analog[1].INTERFAZ, 5);
  EXPECT_EQ(conf.Analog[1].GRUPO, -1);
  EXPECT_EQ(conf.Analog[0].INTERFAZ, 3);
}

TEST_F(ChannelPages, ModelsSendTheirChannels) {
  SelectModel("Ostrel KA2");
  Start(digital);
  EXPECT_EQ(Statements(digital).at(40), "DINAME8=");
  EXPECT_EQ(Statements(digital).at(44), "-ALMD8,INDEX= 3");
  EXPECT_TRUE(Statements(analog).empty());
}

TEST_F(ChannelPages, FileKeysAndLimits) {
  struct Case {
    Page* page;
    const char* start;
    std::vector<std::pair<const char*, int>> limits;
  };
  const Case table[] = {
      {&digital,
       "[DIGITAL 0]\r\nNOMBRE=\r\nNC=False\r\nHABIL( 0)=False\r\nREST( 0)=False\r\n",
       {{"Nombre", 19}, {"TextoAlarma", 49}}},
      {&analog,
       "[ANALOG 0]\r\nNOMBRE=\r\nUNIDAD=\r\nINTERFAZ= 0\r\nIE= 0\r\nFE= 0\r\nEqIE= 0\r\nEqFE= 0\r\n"
       "GRUPO= 0\r\nHABIL( 0)=False\r\n",
       {{"Nombre", 19}, {"Unidad", 9}, {"TextoAlarma", 49}}},
      {&groups,
       "[GRUPO 0]\r\nSALIDA= 0\r\nVOLTAJE= 0\r\nPERIOD= 0\r\n[GRUPO 1]\r\n",
       {{"Period(3)", 5}}},
      {&flags, "[FLAG 0]\r\nHABIL( 0)=False\r\n", {{"TextoAlarma", 49}}},
  };
  for (const auto& [page, start, limits] : table) {
    Start(*page);
    EXPECT_TRUE(FileText(*page).starts_with(start)) << FileText(*page).substr(0, 200);
    for (const auto& [box, length] : limits)
      EXPECT_EQ(page->GetForm().Get<TextBox>(box).MaxLength(), length) << box;
  }
}

TEST_F(ChannelPages, GroupsAreSentForAsManyAsThereAreInputs) {
  Start(groups);
  Receive(groups, "GROUP,3,1,24,150");
  EXPECT_EQ(conf.Grupo[3], (ConfGrupo{1, 24, 150}));
  EXPECT_THROW(Receive(groups, "GROUP,5,1,24,150"), BoundFailure);
  EXPECT_EQ(Statements(groups).at(3), "AGRP3= 1,T= 150,V= 24");
  profile.AnalogCount = 2;
  EXPECT_EQ(Statements(groups).size(), 2U);
  profile.AnalogCount = 0;
  EXPECT_TRUE(Statements(groups).empty());
}

TEST_F(ChannelPages, AnOddVoltageStaysUntilTheRowReplacesIt) {
  Start(groups);
  PutFile("[GRUPO 1]\r\nSALIDA= 2\r\nVOLTAJE= 5\r\nPERIOD= 100");
  groups.RestoreConf();
  EXPECT_EQ(conf.Grupo[1], (ConfGrupo{2, 5, 100}));
  groups.Form_Deactivate();
  EXPECT_EQ(conf.Grupo[1], (ConfGrupo{2, 0, 100}));
  groups.GetForm().Get<TextBox>("Period(1)").Type("1.5");
  groups.GetForm().Get<ComboBox>("ComboTension(1)").SetPosition(2);
  groups.SavePage();
  EXPECT_EQ(groups.GetForm().Get<TextBox>("Period(1)").face.Colour(), BackColour::Red);
  EXPECT_EQ(conf.Grupo[1], (ConfGrupo{2, 24, 1.5F}));
}

TEST_F(ChannelPages, FlagsHaveOneConfigurationAndNoCondition) {
  Start(flags);
  EXPECT_FALSE(flags.GetForm().Contains("FlagCombo"));
  EXPECT_FALSE(flags.GetForm().Contains("BotonNormal"));
  for (const char* config : {"Config1", "Config2", "Config3"}) {
    auto& option = flags.GetForm().Get<OptionButton>(config);
    EXPECT_FALSE(option.face.Visible());
    option.SetSelected(true);
    EXPECT_EQ(flags.CurrentConfig(), 0);
  }
  Receive(flags, "FLAG.ALM,15,0,Texto,0,86400,127,8");
  Receive(flags, "FLAG.ACT,15,0,1,2");
  EXPECT_TRUE(Statements(flags).empty());
  info.Features = 0x4;
  EXPECT_EQ(Statements(flags).at(15), "+ALMF15=Texto,INDEX= 0,RESEND,NOSEND,ACTHI= 1,ACTLO= 2");
  EXPECT_EQ(Statements(flags).at(0), "-ALMF0,INDEX= 0");
  EXPECT_EQ(Statements(flags).size(), 16U);
  for (const char* line : {"FLAG.ALM,17,0,x", "FLAG.ALM,0,2,x", "FLAG.ACT,-1,0,1"})
    EXPECT_THROW(Receive(flags, line), BoundFailure) << line;
  Receive(flags, "FLAG.ALM,15,0,Texto,0,86400,0,8");
  EXPECT_EQ(conf.Flag[15].ALARM[0].common.HABIL, kFalse);
}

TEST_F(ChannelPages, FilesKeepEverythingOfEachPage) {
  for (Page* page : std::initializer_list<Page*>{&digital, &analog, &groups, &flags}) {
    Start(*page);
    int n = 1;
    page->VisitFields(conf, [&](const std::string&, const std::string& key, FieldRef field) {
      if (!key.starts_with("INICIO") && !key.starts_with("FINAL"))
        SetFieldText(field, std::holds_alternative<Bool16*>(field) ? (n % 2 ? "True" : "False")
                                                                   : std::to_string(n % 100 + 1));
      ++n;
    });
    page->LoadData();
    const DeviceConf saved = conf;
    PutFile(FileText(*page));
    page->Clear();
    EXPECT_NE(conf, saved);
    page->RestoreConf();
    EXPECT_EQ(conf, saved) << page->GetForm().Name();
    conf = {};
  }
}

}  // namespace
}  // namespace ostrel
