#include <gtest/gtest.h>

#include <algorithm>

#include "model/TargetProfile.h"

namespace ostrel {
namespace {

struct Expected {
  std::string_view name, type;
  bool TargetProfile::*flag;
  int analog, digital, caudal, modbus, oneWire, output, math, modulo;
};

TEST(TargetProfile, EachModelSetsItsFlagTypeAndCounts) {
  const Expected table[] = {
      {"Ostrel KA1", "OSTREL_KA1", &TargetProfile::IsKA1, 0, 8, 8, 0, 4, 6, 4, 0},
      {"Ostrel KA2", "OSTREL_KA2", &TargetProfile::IsKA2, 0, 9, 8, 0, 4, 2, 4, 0},
      {"Ostrel VR200", "VR200", &TargetProfile::IsVR200, 4, 8, 8, 32, 0, 4, 4, 0},
      {"Ostrel S100", "OSTREL_S100", &TargetProfile::IsS100, 2, 2, 2, 0, 0, 1, 4, 96},
      {"Tavro BQ", "TAVRO_BQ", &TargetProfile::IsBQ, 1, 4, 2, 0, 0, 0, 4, 0},
      {"Tavro BP", "TAVRO", &TargetProfile::IsBP, 4, 8, 8, 0, 0, 0, 4, 0},
  };
  bool TargetProfile::*const flags[] = {&TargetProfile::IsBP,  &TargetProfile::IsVR200,
                                        &TargetProfile::IsKA2, &TargetProfile::IsKA1,
                                        &TargetProfile::IsBQ,  &TargetProfile::IsS100};
  for (const Expected& row : table) {
    SCOPED_TRACE(row.name);
    TargetProfile model;
    SelectTarget(model, row.name);
    for (const auto flag : flags) EXPECT_EQ(model.*flag, flag == row.flag);
    EXPECT_EQ(model.TargetName, row.name);
    EXPECT_EQ(model.TargetType, row.type);
    EXPECT_EQ(model.AnalogCount, row.analog);
    EXPECT_EQ(model.DigitalCount, row.digital);
    EXPECT_EQ(model.CaudalCount, row.caudal);
    EXPECT_EQ(model.ModbusCount, row.modbus);
    EXPECT_EQ(model.OneWireCount, row.oneWire);
    EXPECT_EQ(model.OutputCount, row.output);
    EXPECT_EQ(model.AuxCount, 0);
    EXPECT_EQ(model.MathCount, row.math);
    EXPECT_EQ(model.ModuloCount, row.modulo);
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
