#include <gmock/gmock.h>

#include <set>

#include "sim/SimBench.h"
#include "sim/wire/LineComposer.h"
#include "sim/wire/Text1252.h"

namespace ostrel::sim {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(SimConfiguration, RandomOnesDifferAndFollowTheirDensity) {
  const auto features = TraitsOf(Model::VR200).features;
  const auto make = [&](std::uint64_t seed, double density) {
    return RandomConfiguration(Model::VR200, features, seed, density);
  };
  EXPECT_NE(make(1, 0.5), make(2, 0.5));
  EXPECT_EQ(make(1, 0.5), make(1, 0.5));
  EXPECT_EQ(make(1, 0).digitals, Configuration{}.digitals);
  const Configuration full = make(1, 1);
  std::set<char> accents;
  for (const std::string& record : ConfigurationRecords(full, {Model::VR200, features})) {
    EXPECT_LT(record.size(), 200U);
    for (const char c : record) {
      if (static_cast<unsigned char>(c) >= 0x80) accents.insert(c);
    }
  }
  EXPECT_GT(accents.size(), 5U);
}

// ---- The saved state

TEST(SimState, EverythingComesBack) {
  for (const Model model : kModels) {
    for (std::uint64_t seed = 0; seed < 6; ++seed) {
      SimBench bench(model);
      Configuration conf = RandomConfiguration(model, bench.logger.Self().features, seed);
      conf.restoredText = " \\ = \x01\x81\x80\xFF ";
      bench.logger.SetConf(conf);
      bench.logger.SetClock({2031, 12, 31, 23, 59, 58});
      bench.Ask("#470");
      bench.Ask("#41CNT0=77");
      bench.Ask("#41EXP5=-3");
      const std::string state = bench.logger.SaveState();

      SimBench other(model);
      other.loop.RunFor(std::chrono::hours{1});
      std::string error;
      ASSERT_TRUE(other.logger.LoadState(state, error)) << error;
      EXPECT_EQ(other.logger.Conf(), conf);
      EXPECT_EQ(other.logger.SaveState(), state);
      EXPECT_EQ(other.logger.Outputs(), 1U);
      EXPECT_EQ(other.logger.Total(0), 77);
      EXPECT_EQ(other.logger.Clock(), (DateTime{2031, 12, 31, 23, 59, 58}));
    }
  }
}

TEST(SimState, IsReadableText) {
  SimBench bench(Model::BQ);
  Configuration conf;
  conf.name = "Dep\xF3sito \x80";
  conf.digitals[1].alarms[2] = {.text = "x", .persistence = 0.5F, .week = 127, .high = {5, 42}};
  bench.logger.SetConf(conf);
  EXPECT_EQ(bench.Ask("#F61203050042"), "#BE1");
  const std::string state = bench.logger.SaveState();
  EXPECT_THAT(state, testing::StartsWith("ostrel-sim-state = 1\nmodel = BQ\nclock = 2026-01-15 "
                                         "08:30:05\noutputs = 0\ntotal.0 = "));
  EXPECT_THAT(state, HasSubstr("\nserial = 1203050042\n"));
  EXPECT_THAT(state, HasSubstr("\nname = Dep\xC3\xB3sito \xE2\x82\xAC\n"));
  EXPECT_THAT(state, HasSubstr("\ndigital.1.alarm.2.persistence = 0.5\n"));
  EXPECT_THAT(state, HasSubstr("\ndigital.1.alarm.2.actions.high = 5 42 0 0 0 0 0 0\n"));
  EXPECT_THAT(state, Not(HasSubstr("digital.0")));
}

TEST(SimState, WhatStandsAtAStandardOtherThanZeroComesBack) {
  SimBench bench(Model::S100);
  Configuration conf;
  conf.flows[1].ratio = 0;
  conf.expansion[7].ratio = 0;
  conf.gprs.server = "";
  bench.logger.SetConf(conf);
  std::string error;
  SimBench other(Model::S100);
  other.logger.SetConf(DemoConfiguration(Model::S100));
  ASSERT_TRUE(other.logger.LoadState(bench.logger.SaveState(), error)) << error;
  EXPECT_EQ(other.logger.Conf(), conf);
}

TEST(SimState, StatementsThatFormerVersionsKeptAreTaken) {
  SimBench bench(Model::VR200);
  std::string error;
  const std::string state =
      "ostrel-sim-state = 1\nmodel = VR200\nclock = 2026-01-15 08:30:05\n"
      "kept.LT3 = LT3= 86400,ACT= 5\nkept.MBCONF0 = MBCONF0=Tensi\xC3\xB3n\n"
      "kept.CT1 = -CT1\nmacro.0000 = MACRO7={X}\nmacro.0001 = rubbish\n";
  ASSERT_TRUE(bench.logger.LoadState(state, error)) << error;
  EXPECT_EQ(bench.logger.Conf().longTimers[3].seconds, 86'400);
  EXPECT_EQ(bench.logger.Conf().modbus[0].unit, "") << "it was no whole statement";
  const auto records = ConfigurationRecords(bench.logger.Conf(), bench.logger.Self());
  EXPECT_THAT(records, testing::Contains("MACROS,7,{X}"));
  EXPECT_THAT(records, Not(testing::Contains(HasSubstr("rubbish"))));
}

TEST(SimState, ABadStateChangesNothing) {
  SimBench bench(Model::BQ);
  bench.logger.SetConf(DemoConfiguration(Model::BQ));
  const std::string state = bench.logger.SaveState();
  const auto with = [&](std::string_view from, std::string_view to) {
    std::string changed = state;
    const std::size_t at = changed.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return changed.replace(at, from.size(), to);
  };
  for (const std::string& bad :
       {std::string(), std::string("hello"), with("= 1\n", "= 2\n"), with("= BQ", "= BP"),
        with("2026-01-15", "2026-02-30"), with("08:30:05", "08:30:5"),
        with("outputs = 0", "outputs = 4"), with("resend-count = 3", "resend-count = x"),
        with("resend-count", "resend-cuont"), with("interface = 4", "interface = 5"),
        with("name = ", "name = \xFF"), with("name = ", "name = \\z0"),
        with("channels = 255 ", "channels = "), with("channels = 255 ", "channels = 255 255 "),
        with("total.0 = ", "total.0 = x"), with("days = 2147483649", "days = 4294967296"),
        with("value-at-end = 10", "value-at-end = inf"), state + "name = twice\n"}) {
    std::string error;
    EXPECT_FALSE(bench.logger.LoadState(bad, error)) << bad;
    EXPECT_NE(error, "");
    EXPECT_EQ(bench.logger.SaveState(), state);
  }
  std::string error;
  std::string dos;
  for (const char c : "; a note\n\n" + state)
    dos += c == '\n' ? std::string("\r\n") : std::string(1, c);
  EXPECT_TRUE(bench.logger.LoadState(dos, error)) << error;
}

TEST(SimText, EveryOctetComesBack) {
  std::string all;
  for (int octet = 0; octet < 256; ++octet) all += static_cast<char>(octet);
  EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
  EXPECT_EQ(ToUtf8("\x80\x9F\xA0\xFF"), "\xE2\x82\xAC\xC5\xB8\xC2\xA0\xC3\xBF");
  for (const char* bad : {"\xC3", "\x80", "\xC0\x80", "\xE0\x80\x80", "\xC4\x80",
                          "\xF0\x9F\x98\x80", "\xC2\x80", "\xE2\x82"})
    EXPECT_EQ(FromUtf8(bad), std::nullopt) << bad;
}

}  // namespace
}  // namespace ostrel::sim
