#include <gtest/gtest.h>

#include "PageFixture.h"
#include "pages/inputs/Caudal.h"
#include "pages/inputs/E_Math.h"
#include "pages/inputs/E_OneWire.h"
#include "pages/inputs/SampleRate.h"

namespace ostrel {
namespace {

class FlowPages : public PageFixture {
 protected:
  FlowPages() { SelectModel("Tavro BQ"); }

  void Start(Page& page) {
    page.Form_Load();
    page.Clear();
  }
  static void Choose(Page& page, std::string_view option) {
    page.GetForm().Get<OptionButton>(option).SetSelected(true);
  }
  static std::string Caption(Page& page, std::string_view control) {
    return FaceOf(page.GetForm()[control]).Caption();
  }

  Caudal flow{context};
  SampleRate sampling{context};
  E_Math math{context};
  E_OneWire probe{context};
};

TEST_F(FlowPages, AMeterThatIsOffHasItsFramesDisabled) {
  Start(flow);
  EXPECT_EQ(flow.GetForm().Title(), "Configuracion caudalimetro 0");
  const auto enabled = [this] {
    std::string all;
    for (const char* name :
         {"FrameTotal", "FrameUnidad", "FrameTimeBase", "FrameConversion", "HelpBut", "Nombre"})
      all += FaceOf(flow.GetForm()[name]).Enabled() ? '1' : '0';
    return all;
  };
  EXPECT_EQ(enabled(), "000001");
  Choose(flow, "Int_Habil");
  EXPECT_EQ(enabled(), "111111");
  flow.SavePage();
  EXPECT_EQ(conf.Caudal[0].INTERFAZ, 6);
  conf.Caudal[0].INTERFAZ = 3;
  flow.LoadData();
  EXPECT_EQ(enabled(), "111111") << "another code does nothing";
  flow.SavePage();
  EXPECT_EQ(conf.Caudal[0].INTERFAZ, 3) << "and is kept";
}

TEST_F(FlowPages, AnOlderFirmwareKeepsThresholdsInPulses) {
  Start(flow);
  conf.Caudal[0].RATIO = 0.5F;
  LevelThresholds& limits = conf.Caudal[0].ALARM[0].thresholds;
  limits = {10, 20, 2, 3};
  flow.LoadData();
  const auto text = [this](const char* box) { return flow.GetForm().Get<TextBox>(box).Text(); };
  EXPECT_EQ(text("Minimo") + text("Maximo") + text("Histeresis") + text("Persist"), "51013");
  flow.GetForm().Get<TextBox>("Ratio").Type("0.25");
  flow.SavePage();
  EXPECT_EQ(limits, (LevelThresholds{20, 40, 4, 3})) << "the new ratio counts";
  flow.GetForm().Get<TextBox>("Ratio").Type("0");
  flow.GetForm().Get<TextBox>("Persist").Type("7x");
  flow.SavePage();
  EXPECT_EQ(limits, (LevelThresholds{20, 40, 4, 7})) << "a ratio of 0 leaves the value";
  EXPECT_EQ(flow.GetForm().Get<TextBox>("Persist").face.Colour(), BackColour::Red);
  info.Features = 0x200000;
  flow.SavePage();
  EXPECT_EQ(limits, (LevelThresholds{20, 40, 4, 7})) << "another logger scales nothing anew";
  flow.LoadData();
  EXPECT_EQ(text("Minimo") + text("Maximo"), "2040");
}

TEST_F(FlowPages, AMeterShowsItsTotalAndItsUnit) {
  Start(flow);
  totals[1] = 1500;
  flow.ChangeIndex(1);
  EXPECT_EQ(Caption(flow, "TotalText"), " 1500");
  context.showTotal = [this](std::int16_t index) { totals[index] = 7; };
  flow.GetForm().Get<Button>("BotonModificar").Click();
  EXPECT_EQ(Caption(flow, "TotalText"), " 7");
  flow.GetForm().Get<TextBox>("Unidad").Type("l/s");
  loop.RunFor(std::chrono::seconds(1));
  EXPECT_EQ(Caption(flow, "RatioUnit"), "l/s");
}

TEST_F(FlowPages, SamplingShowsWhatTheModelHas) {
  Start(sampling);
  Form& form = sampling.GetForm();
  for (const auto& [model, shown] :
       {std::pair{"Tavro BQ", "111100"}, {"Tavro BP", "000111"}, {"Ostrel S100", "000100"}}) {
    SelectModel(model);
    sampling.Form_Activate();
    std::string visible;
    for (const char* name : {"LabelFrecuencia", "ComboSampleRate", "WarningMsg", "LabelT(1)",
                             "LabelT(2)", "ComboT(7)"})
      visible += FaceOf(form[name]).Visible() ? '1' : '0';
    EXPECT_EQ(visible, shown) << model;
  }
  conf.SAMPLERATE = 256;
  conf.Caudal[0].TOTALRATIO = 0.001F;
  conf.Caudal[1].TOTALRATIO = 0.5F;
  sampling.LoadData();
  EXPECT_EQ(form.Get<ComboBox>("ComboSampleRate").Text(), "256Hz");
  EXPECT_EQ(form.Get<ComboBox>("ComboT(0)").Text(), "0.001m3");
  sampling.Form_Deactivate();
  EXPECT_EQ(conf.SAMPLERATE, 256);
  EXPECT_EQ(conf.Caudal[1].TOTALRATIO, 1) << "the row that was left counts";
  conf.SAMPLERATE = 100;
  sampling.LoadData();
  EXPECT_EQ(form.Get<ComboBox>("ComboSampleRate").Text(), "64Hz");
}

TEST_F(FlowPages, SamplingWarnsOfAFirmwareWithoutWeights) {
  Start(sampling);
  for (const auto& [connected, features, warns] :
       {std::tuple{false, 0, false}, {true, 0, true}, {true, 0x100000, false}}) {
    Connected = connected;
    info.Features = features;
    loop.RunFor(std::chrono::seconds(1));
    EXPECT_EQ(FaceOf(sampling.GetForm()["WarningText"]).Visible(), warns);
  }
  EXPECT_EQ(Caption(sampling, "WarningText"),
            "La version de firmware del Tavro BQ no soporta la configuracion del peso por pulso en "
            "los totalizadores.");
  SelectModel("Ostrel S100");
  info.Features = 0;
  loop.RunFor(std::chrono::seconds(1));
  EXPECT_TRUE(Caption(sampling, "WarningText").find("Ostrel S100") != std::string::npos);
}

TEST_F(FlowPages, AMathChannelStaysEditableWhileItIsOff) {
  Start(math);
  EXPECT_EQ(math.GetForm().Title(), "Configuracion canal matematico  0");
  math.GetForm().Get<TextBox>("Ecuacion").Type("A0*2");
  EXPECT_FALSE(math.GetForm().Get<OptionButton>("Config1").face.Visible());
  Choose(math, "Int_Habil");
  math.ChangeIndex(3);
  EXPECT_EQ(conf.Math[0].INTERFAZ, 6);
  EXPECT_EQ(conf.Math[0].ECUACION, "A0*2");
  EXPECT_TRUE(math.GetForm().Get<TextBox>("Ecuacion").face.Enabled());
}

TEST_F(FlowPages, TheIdentityOfAProbeIsLostWithItsOption) {
  Start(probe);
  EXPECT_EQ(probe.GetForm().Title(), "Configuracion sonda 1Wire  0");
  TextBox& first = probe.GetForm().Get<TextBox>("ID0");
  TextBox& second = probe.GetForm().Get<TextBox>("ID1");
  auto& read = probe.GetForm().Get<Button>("BotonLeerId");
  EXPECT_EQ(first.Text(), "000.000.000.000") << "three digits an octet, as emptied";
  EXPECT_FALSE(first.face.Enabled() || read.face.Enabled());
  Choose(probe, "OptionId");
  EXPECT_TRUE(first.face.Enabled() && second.face.Enabled() && read.face.Enabled());
  std::optional<ProbeIdentity> answer;
  context.readProbeIdentity = [&] { return answer; };
  read.Click();
  EXPECT_EQ(dialogs.boxes.at(0).text, "Recuerde que solo debe haber una sonda conectada");
  EXPECT_EQ(first.Text(), "000.000.000.000");
  context.readProbeIdentity = [&] {
    probe.ChangeIndex(1);
    return std::optional<ProbeIdentity>({"001.001.001.001", "001.001.001.001"});
  };
  read.Click();
  EXPECT_EQ(first.Text(), "000.000.000.000") << "another probe was opened meanwhile";
  probe.ChangeIndex(0);
  context.readProbeIdentity = [&] { return answer; };
  answer = {"040.113.000.000", "000.000.000.011"};
  read.Click();
  EXPECT_EQ(conf.OneWire[0].ADDRESS1, "000.000.000.000") << "only a commit reaches the model";
  Choose(probe, "Int_1WHum");
  probe.SavePage();
  EXPECT_EQ(conf.OneWire[0].ADDRESS2, "000.000.000.011");
  EXPECT_EQ(conf.OneWire[0].INTERFAZ, 5);
  EXPECT_TRUE(conf.OneWire[0].ID);
  probe.LoadData();
  EXPECT_EQ(first.Text(), "040.113.000.000") << "showing loses nothing";
  Choose(probe, "OptionNoId");
  EXPECT_EQ(second.Text(), "000.000.000.000");
  Choose(probe, "OptionId");
  EXPECT_EQ(first.Text(), "000.000.000.000");
}

}  // namespace
}  // namespace ostrel
