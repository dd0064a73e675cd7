#include <gmock/gmock.h>

#include <cmath>
#include <cstdio>
#include <set>

#include "sim/LineComposer.h"
#include "sim/Random.h"
#include "sim/SimBench.h"
#include "sim/StatementParser.h"
#include "sim/Text1252.h"

namespace ostrel::sim {
namespace {

using testing::HasSubstr;
using testing::Not;

// ---- What a program would send for a configuration, written anew from its side

std::string NumText(double value) {
  char digits[40];
  std::snprintf(digits, sizeof digits, "%.7g", std::fabs(value));
  std::string text = digits;
  if (text.starts_with("0.")) text.erase(0, 1);
  return (value < 0 ? "-" : " ") + text;
}

std::string TimeText(int seconds) {
  char text[40];
  std::snprintf(text, sizeof text, "%d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
  return text;
}

std::string ActionText(const Actions& actions) {
  std::string text;
  for (const int action : actions) text += action > 0 ? NumText(action) : "";
  return text;
}

std::string CommonText(const Alarm& alarm) {
  std::string text;
  if (alarm.notify & 4) text += ",SREST";
  if (alarm.notify & 8) text += ",RESEND";
  if (alarm.notify & 2) text += ",RING";
  if (alarm.notify & 16) text += ",GPRS";
  if ((alarm.notify & 19) == 0) text += ",NOSEND";
  if (alarm.start == 0 && alarm.stop == 86400 && alarm.week == 127) return text;
  text += ",START=" + TimeText(alarm.start) + ",STOP=" + TimeText(alarm.stop) + ",WEEK=";
  for (int day = 0; day < 7; ++day) text += (alarm.week >> day & 1) != 0 ? '1' : '0';
  return text;
}

std::vector<std::string> StatementsFor(const Configuration& conf, const Identity& self) {
  std::vector<std::string> out = {"ID=" + conf.name, "CSM=" + conf.smsCentre,
                                  "PTLF=" + conf.ownNumber, "REST=" + conf.restoredText};
  if (self.Has(0x1)) {
    out.push_back("RETRYMAX=" + NumText(conf.resendCount));
    out.push_back("RETRYTIME=" + NumText(conf.resendSeconds));
  }
  if (self.model == Model::BQ && self.Has(0x80000))
    out.push_back("SAMPLERATE=" + std::to_string(conf.sampleRate));
  out.push_back("CLRTLF");
  for (const Phone& phone : conf.phones) {
    if (phone.number.empty()) continue;
    std::string text = "+TLF=" + phone.number + ",Prio=" + std::to_string(phone.priority) + ",PRV" +
                       std::to_string(phone.privilege);
    if (self.Has(0x10000)) {
      if (phone.maskMode > 0) text += ",MASK=";
      for (const int channel : phone.channels)
        text += phone.maskMode > 0 ? " " + std::to_string(channel) : "";
      text += ",MASKMODE" + std::to_string(phone.maskMode);
    } else {
      for (const int channel : phone.channels) {
        if (channel == 255) continue;
        text += channel < 21 ? ",A" + std::to_string(channel) : ",D" + std::to_string(channel - 21);
      }
    }
    out.push_back(text);
  }
  for (int c = 0; c < self.Traits().digitals; ++c) {
    const DigitalInput& input = conf.digitals[static_cast<std::size_t>(c)];
    const std::string n = std::to_string(c);
    out.push_back("DINAME" + n + "=" + input.name + (input.normallyClosed ? ",NC" : ""));
    for (int k = 0; k < 4; ++k) {
      const Alarm& a = input.alarms[static_cast<std::size_t>(k)];
      const std::string index = ",INDEX=" + NumText(k);
      out.push_back(a.week == 0
                        ? "-ALMD" + n + index
                        : "+ALMD" + n + "=" + a.text + index + ",PC=" + NumText(a.persistence) +
                              ",PO=" + NumText(a.rearm) + CommonText(a) + ",EQ=" + NumText(a.flag) +
                              ",ACTCLOSE=" + ActionText(a.high) + ",ACTOPEN=" + ActionText(a.low));
    }
  }
  for (int c = 0; c < self.Traits().analogs; ++c) {
    const AnalogInput& input = conf.analogs[static_cast<std::size_t>(c)];
    const AnalogScale& s = input.scale;
    const std::string n = std::to_string(c);
    const char* const words[] = {"", ",CURRENT", ",5V", ",10V", ",PRESSURE"};
    out.push_back(s.interface == Interface::Off
                      ? "DISAI" + n
                      : "AICONF" + n + "=" + s.name + ",UNIT=" + s.unit +
                            words[static_cast<int>(s.interface)] +
                            ",BSVAL=" + NumText(s.signalStart) + ",FSVAL=" + NumText(s.signalEnd) +
                            ",BSUNIT=" + NumText(s.valueAtStart) +
                            ",FSUNIT=" + NumText(s.valueAtEnd) + ",GROUP=" + NumText(s.group));
    for (int k = 0; k < 4; ++k) {
      const Alarm& a = input.alarms[static_cast<std::size_t>(k)];
      const std::string index = ",INDEX=" + NumText(k);
      const std::string persistence = self.Has(0x8) ? ",P=" + NumText(a.persistence) : "";
      out.push_back(a.week == 0
                        ? "-ALMA" + n + index
                        : "+ALMA" + n + "=" + a.text + index + ",MAX=" + NumText(a.maximum) +
                              ",MIN=" + NumText(a.minimum) + ",HIST=" + NumText(a.hysteresis) +
                              persistence + CommonText(a) + ",EQ=" + NumText(a.flag) +
                              ",ACTHI=" + ActionText(a.high) + ",ACTLO=" + ActionText(a.low) +
                              ",ACTNOM=" + ActionText(a.normal));
    }
  }
  for (int c = 0; c < self.Traits().analogs; ++c) {
    const PowerGroup& group = conf.groups[static_cast<std::size_t>(c)];
    out.push_back("AGRP" + std::to_string(c) + "=" + NumText(group.output) +
                  ",T=" + NumText(group.period) + ",V=" + NumText(group.volts));
  }
  for (int c = 0; self.Has(0x4) && c < 16; ++c) {
    const Alarm& a = conf.flagAlarms[static_cast<std::size_t>(c)];
    const std::string n = std::to_string(c);
    out.push_back(a.week == 0 ? "-ALMF" + n + ",INDEX= 0"
                              : "+ALMF" + n + "=" + a.text + ",INDEX= 0" + CommonText(a) +
                                    ",ACTHI=" + ActionText(a.high) + ",ACTLO=" + ActionText(a.low));
  }
  return out;
}

void ExpectUploadGives(const Configuration& conf, const LoggerOptions& options) {
  SimBench bench(options);
  Configuration start;
  start.digitals[0].alarms[3] = {.text = "old", .week = 3};
  bench.logger.SetConf(start);
  ASSERT_EQ(bench.UploadAll(StatementsFor(conf, bench.logger.Self())), "#B91");
  EXPECT_EQ(bench.logger.Conf(), conf);
}

TEST(SimConfiguration, ARandomOneComesBackFromItsUpload) {
  for (const Model model : kModels) {
    for (std::uint64_t seed = 0; seed < 12; ++seed) {
      LoggerOptions options = MakeDefaultOptions(model);
      if (seed % 3 == 1) options.features &= ~(kExtendedMasks | kNormallyClosed | kFlagAlarms);
      if (seed % 3 == 2) options.features &= ~(kAnalogPersistence | kNoMaskIsMinusOne);
      const auto conf =
          RandomConfiguration(model, options.features, seed, static_cast<double>(seed) / 11);
      EXPECT_EQ(conf,
                RandomConfiguration(model, options.features, seed, static_cast<double>(seed) / 11));
      ExpectUploadGives(conf, options);
    }
  }
}

TEST(SimConfiguration, RandomOnesDifferAndFollowTheirDensity) {
  const auto features = TraitsOf(Model::VR200).features;
  const auto make = [&](std::uint64_t seed, double density) {
    return RandomConfiguration(Model::VR200, features, seed, density);
  };
  EXPECT_NE(make(1, 0.5), make(2, 0.5));
  EXPECT_EQ(make(1, 0).phones[0].number, "");
  EXPECT_EQ(make(1, 0).digitals, Configuration{}.digitals);
  const Configuration full = make(1, 1);
  EXPECT_NE(full.phones[19].number, "");
  EXPECT_NE(full.analogs[3].alarms[3].week, 0);
  std::set<char> accents;
  for (const std::string& record : ConfigurationRecords(full, {Model::VR200, features})) {
    EXPECT_LT(record.size(), 200U);
    for (const char c : record) {
      if (static_cast<unsigned char>(c) >= 0x80) accents.insert(c);
    }
  }
  EXPECT_GT(accents.size(), 5U);
}

TEST(SimConfiguration, TheDemoSuitsEveryModel) {
  for (const Model model : kModels) {
    const Configuration demo = DemoConfiguration(model);
    const ModelTraits& traits = TraitsOf(model);
    EXPECT_THAT(demo.name, HasSubstr(traits.displayName));
    EXPECT_EQ(demo.phones[1].maskMode, 1);
    for (int i = 0; i < traits.digitals; ++i)
      EXPECT_NE(demo.digitals[static_cast<std::size_t>(i)].name, "");
    for (int i = 0; i < kAnalogs; ++i)
      EXPECT_EQ(demo.analogs[static_cast<std::size_t>(i)].scale.name.empty(), i >= traits.analogs);
    EXPECT_EQ(NameOfKept(demo, "FLOWCONF0").unit, "m\xB3/h");
  }
}

TEST(SimConfiguration, DamagedStatementsAreRefusedOrLeaveSomethingSound) {
  const LoggerOptions options = MakeDefaultOptions(Model::VR200);
  const Identity self{options.model, options.features};
  const auto statements =
      StatementsFor(RandomConfiguration(self.model, self.features, 9, 0.9), self);
  Random random(77);
  int taken = 0;
  int refused = 0;
  for (int round = 0; round < 20'000; ++round) {
    std::string statement = random.Pick(statements);
    for (int hits = random.Between(1, 3); hits > 0 && !statement.empty(); --hits) {
      const auto at = static_cast<std::size_t>(random.Next() % statement.size());
      const int way = random.Between(0, 2);
      if (way == 0) statement.erase(at, 1);
      if (way == 1) statement[at] = static_cast<char>(random.Between(0, 255));
      if (way == 2) statement.insert(at, 1, random.Pick(std::string_view(", -=+0129.EA#\r{")));
    }
    Configuration conf;
    if (!ApplyStatement(statement, self, conf).empty()) {
      ++refused;
      continue;
    }
    ++taken;
    const auto again = StatementsFor(conf, self);
    Configuration copy;
    for (const std::string& one : again)
      ASSERT_EQ(ApplyStatement(one, self, copy), "") << one << " after " << statement;
    EXPECT_EQ(ConfigurationRecords(copy, self).size(), ConfigurationRecords(conf, self).size());
  }
  EXPECT_GT(taken, 1000);
  EXPECT_GT(refused, 1000);
}

// ---- The saved state

TEST(SimState, EverythingComesBack) {
  for (const Model model : kModels) {
    for (std::uint64_t seed = 0; seed < 6; ++seed) {
      SimBench bench(model);
      Configuration conf = RandomConfiguration(model, bench.logger.Self().features, seed);
      conf.restoredText = " \\ = \x01\x81\x80\xFF ";
      conf.kept["ALMM1/0"] = "+ALMM1=a = b,INDEX= 0";
      for (int i = 0; i < 40; ++i) conf.macros.push_back("MACRO" + std::to_string(i) + "={X}");
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
  const std::string state = bench.logger.SaveState();
  EXPECT_THAT(state, testing::StartsWith("ostrel-sim-state = 1\nmodel = BQ\nclock = 2026-01-15 "
                                         "08:30:05\noutputs = 0\ntotal.0 = "));
  EXPECT_THAT(state, HasSubstr("\nname = Dep\xC3\xB3sito \xE2\x82\xAC\n"));
  EXPECT_THAT(state, HasSubstr("\ndigital.1.alarm.2.persistence = 0.5\n"));
  EXPECT_THAT(state, HasSubstr("\ndigital.1.alarm.2.actions.high = 5 42 0 0 0 0 0 0\n"));
  EXPECT_THAT(state, Not(HasSubstr("digital.0")));
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
        with("total.0 = ", "total.0 = x"), with("value-at-end = 10", "value-at-end = inf"),
        state + "name = twice\n"}) {
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
