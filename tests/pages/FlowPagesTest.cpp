#include "PageFixture.h"
#include "pages/inputs/Caudal.h"
#include "pages/inputs/SampleRate.h"

namespace ostrel {
namespace {

class FlowPages : public PageFixture {
 protected:
  FlowPages() { SelectModel("Tavro BQ"); }

  Caudal flow{context};
  SampleRate sampling{context};
};

TEST_F(FlowPages, AMeterThatIsOffHasItsFramesDisabled) {
  Start(flow);
  EXPECT_EQ(flow.GetForm().Title(), "Configuracion caudalimetro 0");
  const auto enabled = [this] {
    return Enabled(flow, {"FrameTotal", "FrameUnidad", "FrameTimeBase", "FrameConversion",
                          "HelpBut", "Nombre"});
  };
  EXPECT_EQ(enabled(), "000001");
  Choose(flow, "Int_Habil");
  EXPECT_EQ(enabled(), "111111");
  conf.Caudal[0].INTERFAZ = 3;
  flow.LoadData();
  EXPECT_EQ(enabled(), "111111") << "another code does nothing";
}

TEST_F(FlowPages, AnOlderFirmwareKeepsThresholdsInPulses) {
  Start(flow);
  conf.Caudal[0].RATIO = 0.5F;
  LevelThresholds& limits = conf.Caudal[0].ALARM[0].thresholds;
  limits = {10, 20, 2, 3};
  flow.LoadData();
  const auto text = [this](const char* box) { return On<TextBox>(flow, box).Text(); };
  EXPECT_EQ(text("Minimo") + text("Maximo") + text("Histeresis") + text("Persist"), "51013");
  On<TextBox>(flow, "Ratio").Type("0.25");
  flow.SavePage();
  EXPECT_EQ(limits, (LevelThresholds{20, 40, 4, 3})) << "the new ratio counts";
  On<TextBox>(flow, "Ratio").Type("0");
  On<TextBox>(flow, "Persist").Type("7x");
  flow.SavePage();
  EXPECT_EQ(limits, (LevelThresholds{20, 40, 4, 7})) << "a ratio of 0 leaves the value";
  EXPECT_EQ(On<TextBox>(flow, "Persist").face.Colour(), BackColour::Red);
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
  On<TextBox>(flow, "Unidad").Type("l/s");
  Tick();
  EXPECT_EQ(Caption(flow, "RatioUnit"), "l/s");
}

TEST_F(FlowPages, SamplingShowsWhatTheModelHas) {
  Start(sampling);
  Form& form = sampling.GetForm();
  for (const auto& [model, shown] :
       {std::pair{"Tavro BQ", "111100"}, {"Tavro BP", "000111"}, {"Ostrel S100", "000100"}}) {
    SelectModel(model);
    sampling.Form_Activate();
    EXPECT_EQ(Shown(sampling, {"LabelFrecuencia", "ComboSampleRate", "WarningMsg", "LabelT(1)",
                               "LabelT(2)", "ComboT(7)"}),
              shown)
        << model;
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

}  // namespace
}  // namespace ostrel
