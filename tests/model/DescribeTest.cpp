#include <gtest/gtest.h>

#include <set>

#include "model/Field.h"

namespace ostrel {
namespace {

/// Gives a field another value than it has.
void Alter(std::string& field) { field += "x"; }
void Alter(Bool16& field) { field = Bool16(!field); }
void Alter(TimeOfDay& field) { field.seconds += 61; }
template <class Number>
void Alter(Number& field) {
  field = static_cast<Number>(field + 3);
}

/// Every record: its keys are unique, the file text of each field reads back, and comparing finds a
/// change in every single field.
template <class Record>
class DescribedRecord : public testing::Test {};

using Records = testing::Types<ConfGeneral, ConfDigital, ConfAnalog, ConfGrupo, ConfFlag>;
TYPED_TEST_SUITE(DescribedRecord, Records);

TYPED_TEST(DescribedRecord, KeysAreUniqueAndEveryFieldCounts) {
  std::set<std::string> keys;
  TypeParam record;
  Describe(record, [&](std::string_view key, auto& field) {
    EXPECT_TRUE(keys.emplace(key).second) << key;
    Alter(field);
    EXPECT_NE(record, TypeParam{}) << key;
    const std::string text = FieldText(FieldRef(&field), false);
    const auto altered = field;
    field = {};
    SetFieldText(FieldRef(&field), text);
    EXPECT_EQ(field, altered) << key << "=" << text;
    record = {};
  });
  EXPECT_FALSE(keys.empty());
}

TEST(AlarmKeys, StandInFileOrder) {
  ConfAnalog input;
  std::string keys;
  Describe(input, [&](std::string_view key, auto&) {
    if (key.find("( 1") != std::string_view::npos) keys += std::string(key) + ";";
  });
  EXPECT_TRUE(keys.starts_with(
      "HABIL( 1);REST( 1);RENV( 1);SMS( 1);VOZ( 1);GPRS( 1);TEXTO( 1);MINIMO( 1);MAXIMO( 1);"
      "HISTERESIS( 1);PERSISTENCIA( 1);SIEMPRE( 1);INICIO( 1);FINAL( 1);SEMANA( 1);FLAG( 1);"
      "ACTHI( 1 0);ACTLO( 1 0);ACTNO( 1 0);ACTHI( 1 1);"))
      << keys;
  EXPECT_TRUE(keys.ends_with("ACTHI( 1 7);ACTLO( 1 7);ACTNO( 1 7);"));
}

TEST(AlarmKeys, AFlagHasNeitherConditionNorNormalActions) {
  ConfFlag flag;
  std::set<std::string> keys;
  Describe(flag, [&](std::string_view key, auto&) { keys.emplace(key); });
  EXPECT_TRUE(keys.contains("ACTLO( 0 7)"));
  for (const char* absent : {"FLAG( 0)", "ACTNO( 0 0)", "HABIL( 1)"})
    EXPECT_FALSE(keys.contains(absent)) << absent;
}

TEST(ClearAlarm, LeavesGprsAndActions) {
  Alarm<LevelThresholds> cell;
  DescribeAlarm(cell, 0, ConfAnalog::kShape, [](const std::string&, auto& field) { Alter(field); });
  Alarm<LevelThresholds> expected;
  expected.common.GPRS = cell.common.GPRS;
  expected.common.ACTHI = cell.common.ACTHI;
  expected.common.ACTLO = cell.common.ACTLO;
  expected.common.ACTNO = cell.common.ACTNO;
  ClearAlarm(cell);
  EXPECT_EQ(cell, expected);
}

TEST(FieldText, ReadsWhatAFileMayHold) {
  std::int16_t number = 7;
  std::uint8_t week = 5;
  TimeOfDay time{90};
  Bool16 flag = kTrue;
  SetFieldText(&number, "99999");
  EXPECT_EQ(number, 7) << "outside its width";
  SetFieldText(&number, " 2.5 rest");
  EXPECT_EQ(number, 2) << "halves go to the even number";
  SetFieldText(&number, "");
  EXPECT_EQ(number, 0);
  SetFieldText(&week, "256");
  EXPECT_EQ(week, 5);
  SetFieldText(&time, "");
  EXPECT_EQ(time.seconds, 90) << "a time that does not convert is passed over";
  SetFieldText(&time, "23:59:59");
  EXPECT_EQ(time.seconds, 86399);
  SetFieldText(&flag, "true");
  EXPECT_EQ(flag, kFalse);
}

}  // namespace
}  // namespace ostrel
