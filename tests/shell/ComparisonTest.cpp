#include <gtest/gtest.h>

#include "platform/virtual/VirtualFiles.h"
#include "shell/compare/Comparison.h"
#include "store/IniClass.h"

namespace ostrel {
namespace {

std::string Spanish(std::string_view text) { return std::string(text); }

ModelConfiguration Empty(std::string_view model) {
  ModelConfiguration made;
  SelectTarget(made.profile, model);
  made.conf = EmptyConfiguration(made.profile, Spanish);
  return made;
}

std::string Told(const Difference& difference) {
  return difference.Section() + " " + difference.Key() + ": " + difference.beforeWords + " -> " +
         difference.afterWords;
}

TEST(Comparison, IsByFieldAndPassesFreeTelephones) {
  const ModelConfiguration one = Empty("Tavro BP");
  ModelConfiguration other = one;
  other.conf.Digital[1].NOMBRE = "door";
  other.conf.Phone[3].Prio = 5;
  other.conf.Phone[4].TLF = "600";
  const Comparison comparison = Compare(one, other);
  ASSERT_EQ(comparison.differences.size(), 2U);
  EXPECT_EQ(Told(comparison.differences[0]), "DIGITAL 1 NOMBRE: \"\" -> \"door\"");
  EXPECT_TRUE(Told(comparison.differences[1]).starts_with("GENERAL TLFM 4: free -> 600,Prio=0"));
  EXPECT_FALSE(comparison.isSame);
  EXPECT_TRUE(Compare(other, other).isSame);
}

TEST(Comparison, KnowsWhatAFirmwareGets) {
  const ModelConfiguration one = Empty("Tavro BP");
  ModelConfiguration other = one;
  other.conf.Flag[2].ALARM[0].common.HABIL = kTrue;
  EXPECT_TRUE(Compare(one, other, 0).isSame) << "no flag alarms";
  EXPECT_FALSE(Compare(one, other, 0).differences.at(0).isSent);
  EXPECT_FALSE(Compare(one, other, 4).isSame);
  EXPECT_TRUE(Compare(one, other, 4).differences.at(0).isSent);
  other.conf.Flag[2].ALARM[0].common.TEXTO = "only while it is on";
  EXPECT_TRUE(Compare(one, other, 4).differences.at(1).isSent);
}

TEST(Comparison, OfModelsTellsTheModelAndWhatOneSideLacks) {
  ModelConfiguration one = Empty("Tavro BP"), other = Empty("Ostrel KA1");
  one.conf.General.DNAME = "a";
  other.conf.General.DNAME = "b";
  const Comparison comparison = Compare(one, other);
  EXPECT_EQ(Told(comparison.differences.at(0)), "GENERAL VERSION: Tavro BP -> Ostrel KA1");
  EXPECT_EQ(Told(comparison.differences.at(1)), "GENERAL NOMBRE: \"a\" -> \"b\"");
}

TEST(ReadConfiguration, IsBesideThePresentOne) {
  VirtualFiles files;
  ModelConfiguration saved = Empty("Ostrel VR200");
  saved.conf.Digital[1].NOMBRE = "door";
  IniClass document(files);
  SaveConfiguration(saved.conf, saved.profile, document);
  ASSERT_TRUE(document.SaveINI("/a.ocf").Ok());
  TargetProfile present;
  SelectTarget(present, "Ostrel KA1");
  const auto read = ReadConfiguration(files, "/a.ocf", present, Spanish);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->profile, saved.profile);
  EXPECT_EQ(read->conf, saved.conf);
  EXPECT_EQ(present.TargetName, "Ostrel KA1");
  for (const char* stamp : {"", "PX240", "vr200"}) {
    files.contents["/b.ocf"] = std::string("[General]\r\nVERSION=") + stamp;
    EXPECT_FALSE(ReadConfiguration(files, "/b.ocf", present, Spanish)) << stamp;
  }
  EXPECT_FALSE(ReadConfiguration(files, "/none.ocf", present, Spanish));
}

}  // namespace
}  // namespace ostrel
