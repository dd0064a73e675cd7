#include <gtest/gtest.h>

#include "shell/SimWorld.h"
#include "shell/navigation/Navigation.h"

namespace ostrel {
namespace {

/// The values of a logger stay on the monitors until another one's come; they are not that one's.
TEST(Monitor, ValuesOfASessionBeforeAreNotThoseOfThisOne) {
  for (const ToolId tool : {ToolId::T_Real_Tavro, ToolId::T_Real_Katodex}) {
    SimWorld world(sim::MakeDefaultOptions(sim::Model::VR200));
    Configurator program{world.platform, world.Options(false)};
    program.StartForCommand(world.TargetName(), 1);
    Navigation navigation(program);
    Form& form = tool == ToolId::T_Real_Tavro ? program.monitor.GetForm()
                                              : program.cathodicMonitor.GetForm();
    const auto digits = [&]() -> const Staleness& {
      return form.Get<DigitBox>("Digit_AN(0)").Stale();
    };
    ASSERT_TRUE(program.session.Open(SimWorld::kPort, ""));
    navigation.ShowForm(tool);
    EXPECT_FALSE(digits().isStale) << "nothing stands there yet";
    world.loop.RunFor(std::chrono::seconds(2));
    EXPECT_FALSE(digits().isStale);
    navigation.HideAll();
    program.session.Close(false);
    ASSERT_TRUE(program.session.Open(SimWorld::kPort, ""));
    navigation.ShowForm(tool);
    EXPECT_EQ(digits(), (Staleness{.isStale = true, .since = ""})) << "not read";
    EXPECT_TRUE(form.Get<LedMedio>("Led_F(0)").Stale().isStale);
    world.loop.RunFor(std::chrono::seconds(2));
    EXPECT_FALSE(digits().isStale);
  }
}

}  // namespace
}  // namespace ostrel
