#include "tools/LiveStation.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;

TEST(CathodicMonitor, WritesAllOutputsAndKeepsItsFirstNames) {
  LiveStation station(sim::Model::VR200);
  station.Connect();
  T_Real_Katodex& monitor = station.program.cathodicMonitor;
  Form& form = monitor.GetForm();
  EXPECT_TRUE(station.navigation.ShowForm(ToolId::T_Real_Katodex));
  station.world.logger->SetConf(sim::DemoConfiguration(sim::Model::VR200));
  monitor.OutputChange(0);
  monitor.OutputChange(2);
  station.Run(milliseconds(900));
  EXPECT_THAT(station.sent, testing::IsSupersetOf({"#480", "#481", "#472", "#483", "#5D"}));
  EXPECT_EQ(station.world.logger->Outputs(), 0b100u) << "the second alone took effect";
  EXPECT_EQ(FaceOf(form["Label_AN_Name(0)"]).Caption(), "Nivel depósito");
  station.program.live.AnalogName[0] = "of a later session";
  station.Run(milliseconds(900));
  EXPECT_EQ(FaceOf(form["Label_AN_Name(0)"]).Caption(), "Nivel depósito");
  EXPECT_EQ(FaceOf(form["Label_MAT_Name(0)"]).Caption(), station.program.live.MathName[0]);
  EXPECT_NE(station.program.live.MathName[0], "");
  EXPECT_EQ(FaceOf(form["Label_AUX_Name(1)"]).Caption(), "Canal 1 (150mVCC):");
  EXPECT_EQ(FaceOf(form["Label_AUX_Unit(1)"]).Caption(), "mV");
  EXPECT_EQ(form.Get<DigitBox>("Digit_AUX(3)").Text(), " 0");
  EXPECT_EQ(FaceOf(form["Frame2"]).Caption(), "Entradas/ Salidas digitales");
  EXPECT_EQ(form.Get<DigitBox>("Digit_AN(0)").Text(), NumText(station.program.live.AnalogValue[0]));
  EXPECT_EQ(FaceOf(form["Label_AN_Unit(1)"]).Caption(), "bar");
  monitor.OutputChange(2);
  station.Run(milliseconds(900));
  EXPECT_EQ(station.world.logger->Outputs(), 0u);
  station.sent.clear();
  station.Run(milliseconds(900));
  for (const std::string& message : station.sent)
    EXPECT_FALSE(message.starts_with("#47") || message.starts_with("#48"))
        << "they are written once";
  station.navigation.HideAll();
  station.sent.clear();
  station.Run(std::chrono::seconds(2));
  EXPECT_THAT(station.sent, testing::IsEmpty());
  station.program.live.DigitalMask = 0;
  station.program.live.FlagMask = 0x8000;
  station.program.session.Close(false);
  EXPECT_TRUE(station.navigation.ShowForm(ToolId::T_Real_Katodex));
  station.Run(milliseconds(900));
  EXPECT_EQ(form.Get<LedMedio>("Led_F(15)").Value(), LedMedio::kLit);
  EXPECT_TRUE(form.Get<LedMedio>("Led_F(15)").Stale().isStale) << "the session has ended";
}

}  // namespace
}  // namespace ostrel
