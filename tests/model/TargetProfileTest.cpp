#include <gtest/gtest.h>

#include <algorithm>

#include "model/TargetProfile.h"

namespace ostrel {
namespace {

/// How many channels a model has shows in what is sent to it; the outputs are told here.
TEST(TargetProfile, EachModelSetsItsFlagTypeAndOutputs) {
  const std::tuple<std::string_view, std::string_view, bool TargetProfile::*, int> table[] = {
      {"Ostrel KA1", "OSTREL_KA1", &TargetProfile::IsKA1, 6},
      {"Ostrel KA2", "OSTREL_KA2", &TargetProfile::IsKA2, 2},
      {"Ostrel VR200", "VR200", &TargetProfile::IsVR200, 4},
      {"Ostrel S100", "OSTREL_S100", &TargetProfile::IsS100, 1},
      {"Tavro BQ", "TAVRO_BQ", &TargetProfile::IsBQ, 0},
      {"Tavro BP", "TAVRO", &TargetProfile::IsBP, 0},
  };
  for (const auto& [name, type, own, outputs] : table) {
    SCOPED_TRACE(name);
    TargetProfile model;
    SelectTarget(model, name);
    for (const auto& row : table) EXPECT_EQ(model.*std::get<2>(row), std::get<2>(row) == own);
    EXPECT_EQ(model.TargetName, name);
    EXPECT_EQ(model.TargetType, type);
    EXPECT_EQ(model.OutputCount, outputs);
    EXPECT_EQ(model.AuxCount, 0);
  }
}

TEST(TargetProfile, SomeModelsKeepCountsOfTheModelBefore) {
  TargetProfile model;
  SelectTarget(model, "Ostrel KA1");
  SelectTarget(model, "Tavro BP");
  EXPECT_EQ(model.OneWireCount, 4);
  EXPECT_EQ(model.OutputCount, 6);
  SelectTarget(model, "Ostrel VR200");
  SelectTarget(model, "Tavro BQ");
  EXPECT_EQ(model.ModbusCount, 32);
  EXPECT_EQ(model.OutputCount, 4);
  EXPECT_EQ(model.ModuloCount, 0);
}

TEST(TargetProfile, AnUnknownNameClearsTheFlagsAndKeepsTheRest) {
  TargetProfile model;
  SelectTarget(model, "Ostrel S100");
  TargetProfile expected = model;
  expected.IsS100 = false;
  expected.TargetName = "Ostrel XX";
  SelectTarget(model, "Ostrel XX");
  EXPECT_EQ(model, expected);
}

TEST(TargetProfile, AModelIsFoundByEachOfItsNamesLetterCaseAside) {
  for (const std::string_view word : {"Tavro BP", "TAVRO", "BP", "tavro bp", "bp"})
    EXPECT_EQ(FindTarget(word)->name, "Tavro BP");
  EXPECT_EQ(FindTarget("tavro b"), nullptr);
  EXPECT_EQ(FindTarget(""), nullptr);
  EXPECT_EQ(TargetNamesOffered()[4], "Tavro BP");
}

}  // namespace
}  // namespace ostrel
