#include <gtest/gtest.h>

#include "World.h"
#include "blocks/Configuration.h"
#include "shell/acceptance/AcceptanceWork.h"

namespace ostrel {
namespace {

std::string Same(std::string_view text) { return std::string(text); }

/// An acceptance with every kind of text that a file could trip over.
Acceptance Sample() {
  return {"VR200-000137",
          "site, \"north\".ocf",
          "Ostrel VR200",
          {{"E_Digital_0", "digital input", 0, "", Verdict::Open, "", "", {}},
           {"E_Digital_3", "digital input", 3, "Pump, \"A\"", Verdict::Passed, "two\r\nlines", "on",
            DateTime{2026, 3, 2, 9, 5, 7}},
           {"MODBUS_31", "MODBUS channel", 31, "Niño", Verdict::Failed, "=1+1", "-3.5 m3/h",
            DateTime{2026, 3, 2, 9, 6, 0}}}};
}

TEST(Acceptance, ListsWhatIsConfiguredInTheOrderOfTheTree) {
  TargetProfile profile;
  SelectTarget(profile, "Ostrel S100");
  DeviceConf conf = EmptyConfiguration(profile, Same);
  EXPECT_TRUE(ConfiguredInputs({profile, conf}, Same).empty());
  conf.Digital[1].NOMBRE = "Door";
  conf.Digital[7].NOMBRE = "of another model";
  conf.Analog[1].INTERFAZ = 1;
  conf.Analog[0].ALARM[1].common.TEXTO = "of an alarm that is not enabled";
  conf.Caudal[1].ALARM[1].common.HABIL = kTrue;
  conf.Math[1].NOMBRE = "sum";  // no input
  conf.Modulo[5].MODO = kModeCounter;
  conf.Modulo[5].C.NOMBRE = "Gas";
  conf.Modulo[5].D.NOMBRE = "of another mode";
  conf.Modulo[6].A.NOMBRE = "of a mode that it is not in";
  conf.Modulo[120].MODO = kModeCounter;  // the model has not so many
  std::vector<std::string> shown;
  for (const AcceptancePoint& point : ConfiguredInputs({profile, conf}, Same))
    shown.push_back(point.node + " " + point.kind + " " + std::to_string(point.number) + " " +
                    point.name);
  const std::vector<std::string> expected{"E_Analog_1 analog input 1 ", "Caudal_1 flow meter 1 ",
                                          "E_Digital_1 digital input 1 Door",
                                          "Modulo_5 counter expansion input 5 Gas"};
  EXPECT_EQ(shown, expected);
}

TEST(Acceptance, KnowsWhatAnInputMeasures) {
  constexpr LiveRead kCame{.hasCome = true, .missed = 0, .at = {}};
  constexpr LiveRead kMissed{.hasCome = true, .missed = 1, .at = {}};
  const LiveRound round{{},
                        {{{LiveKind::Digital, 3}, "", "", {}, true, kCame},
                         {{LiveKind::Counter, 3}, "", "", 1042., {}, kCame},
                         {{LiveKind::Flow, 3}, "", "m3/h", double(3.2F), {}, kCame},
                         {{LiveKind::Modbus, 31}, "", "bar", 1., {}, kMissed}}};
  const auto valueOf = [&](const std::string& node, int number) {
    return InputValue({.node = node, .kind = {}, .number = number}, round);
  };
  EXPECT_EQ(valueOf("Caudal_3", 3), "3.2 m3/h; 1042");
  EXPECT_EQ(valueOf("E_Digital_3", 3), "1");
  EXPECT_EQ(valueOf("E_Digital_4", 4), "") << "the model has none";
  EXPECT_EQ(valueOf("MODBUS_31", 31), "") << "of the round before";
}

TEST(Acceptance, IsKeptAtEachChange) {
  VirtualFiles files;
  VirtualClock clock;
  const auto begin = [&](const char* serial) {
    AcceptanceWork work(files, clock, "/data");
    work.Begin({serial,
                "a.ocf",
                "Tavro BP",
                {{"E_Digital_0", "digital input", 0}, {"E_Digital_1", "digital input", 1}}});
    return work;
  };
  AcceptanceWork work = begin("1");
  work.Judge(1, Verdict::Failed, "0");
  work.Note(1, "no pulse");
  EXPECT_EQ(begin("1").Present(), work.Present());
  EXPECT_EQ(begin("1").Present().points[1].time, clock.LocalNow());
  EXPECT_EQ(begin("2").Present().points[1].verdict, Verdict::Open);
  files.FailOperation(1);
  work.Judge(0, Verdict::Passed, "1");
  EXPECT_NE(work.Error(), "");
  EXPECT_EQ(begin("1").Present().points[0].verdict, Verdict::Open);
  work.Judge(1, Verdict::Open, "1");
  EXPECT_EQ(work.Error(), "");
  EXPECT_EQ(begin("1").Present(), work.Present()) << "what could not be kept goes with the next";
  EXPECT_EQ(work.Present().points[1].value + work.Present().points[1].note, "no pulse");
  EXPECT_FALSE(begin("").MayNote());
  AcceptanceFiles kept(files, "/data");
  files.contents[kept.PathOf("1", "a.ocf")] = "acceptance,2";
  AcceptanceWork newer = begin("1");
  newer.Judge(0, Verdict::Passed, "1");
  EXPECT_EQ(files.contents[kept.PathOf("1", "a.ocf")], "acceptance,2") << "of a newer program";
  newer.Begin({"2", "a.ocf", "Tavro BP"});
  EXPECT_TRUE(newer.MayNote()) << "another file";
  files.contents[kept.PathOf("3", "a.ocf")] = "damaged";
  newer.Begin({"3", "a.ocf", "Tavro BP"});
  EXPECT_NE(newer.Error(), "");
  newer.Begin({""});
  EXPECT_EQ(newer.Error(), "");
}

TEST(Acceptance, GoesAlongWhenTheConfigurationGetsAName) {
  VirtualFiles files;
  VirtualClock clock;
  AcceptanceWork work(files, clock, "/data");
  const auto begin = [&](const char* serial, const char* name, const char* model = "Tavro BP") {
    work.Begin({serial,
                name,
                model,
                {{"E_Digital_0", "digital input", 0}, {"E_Digital_1", "digital input", 1}}});
    return work.Present().points[1].verdict;
  };
  const auto noted = [&](const char* name) {
    return !AcceptanceFiles(files, "/data").Read("1", name).acceptance.points.empty();
  };
  begin("1", "");
  work.Judge(1, Verdict::Failed, "0");
  EXPECT_EQ(begin("1", "a.ocf"), Verdict::Failed);
  EXPECT_TRUE(noted("a.ocf")) << "at once";
  EXPECT_EQ(begin("1", "b.ocf"), Verdict::Open) << "of another name";
  work.Judge(1, Verdict::Passed, "1");
  EXPECT_EQ(begin("1", ""), Verdict::Failed);
  EXPECT_EQ(begin("2", "a.ocf"), Verdict::Open) << "of another logger";
  begin("1", "");
  EXPECT_EQ(begin("1", "b.ocf"), Verdict::Passed) << "what stands under the name already";
  begin("1", "");
  EXPECT_EQ(begin("1", "d.ocf", "Tavro BQ"), Verdict::Open) << "of another model";
  begin("1", "");
  work.Judge(1, Verdict::Open, "");
  begin("1", "c.ocf");
  EXPECT_FALSE(noted("c.ocf")) << "nothing was noted";
}

TEST(Acceptance, KeepsNotesOfInputsThatHaveGone) {
  std::vector<AcceptancePoint> noted = Sample().points;
  noted.push_back({"Modulo_5", "counter expansion input", 5, "Gas", Verdict::Passed});
  std::vector<AcceptancePoint> inputs{{"E_Digital_3", "digital input", 3, "Pump, \"B\""},
                                      {"MODBUS_31", "MODBUS channel", 31, "Niño"},
                                      {"Modulo_5", "flow expansion input", 5, "Gas"}};
  const auto joined = WithNotes(inputs, noted);
  ASSERT_EQ(joined.size(), 5u);
  EXPECT_EQ(joined[0], inputs[0]) << "an input of another name was never tried";
  EXPECT_EQ(joined[1], noted[2]);
  EXPECT_EQ(joined[2], inputs[2]) << "nor was one that measures otherwise now";
  EXPECT_EQ(joined[3], noted[1]);
  EXPECT_EQ(joined[4], noted[3]);
  EXPECT_EQ(CountOf(joined).passed, 2);
  EXPECT_EQ(CountOf(joined).failed, 1);
}

TEST(Acceptance, ComesBackFromItsFile) {
  VirtualFiles files;
  AcceptanceFiles kept(files, "/data");
  const Acceptance first = Sample();
  ASSERT_TRUE(kept.Keep(first).Ok());
  Acceptance second = first;
  second.configuration = "site; \"north\".ocf";
  second.points[2].time->minute = 5;
  ASSERT_TRUE(kept.Keep(second).Ok());
  EXPECT_EQ(kept.Read(first.serialNumber, first.configuration).acceptance, first);
  EXPECT_EQ(kept.Read(second.serialNumber, second.configuration).acceptance, second);
  EXPECT_EQ(kept.Latest(first.serialNumber), first);
  EXPECT_FALSE(kept.Latest("VR200-00013"));
  const std::string path = kept.PathOf(first.serialNumber, first.configuration);
  EXPECT_EQ(files.modes[path], 0600);
  EXPECT_EQ(files.modes["/data/acceptance"], 0700);
  for (std::size_t n = 1; n <= 5; ++n) {
    files.FailFrom(n);
    EXPECT_FALSE(kept.Keep(Sample()).Ok());
    files.Heal();
    EXPECT_EQ(kept.Read(first.serialNumber, first.configuration).acceptance, first) << n;
  }
  EXPECT_TRUE(kept.Read("new", "").result.Ok());
  EXPECT_EQ(kept.Read("new", "").acceptance, (Acceptance{"new"}));
}

TEST(Acceptance, TakesNoFileThatIsNotWhole) {
  const std::string whole = AcceptanceText(Sample());
  EXPECT_TRUE(ReadAcceptance(whole));
  const auto with = [&](const std::string& from, const std::string& to) {
    std::string text = whole;
    text.replace(text.find(from), from.size(), to);
    return ReadAcceptance(text).has_value();
  };
  EXPECT_FALSE(with("acceptance,1", "acceptance,2"));
  EXPECT_FALSE(with(",pass,", ",passed,"));
  EXPECT_FALSE(with("2026-03-02 09:05:07", "2026-13-02 09:05:07"));
  EXPECT_FALSE(with(",31,", ",x,"));
  EXPECT_FALSE(with("\r\n", ",more\r\n"));
  EXPECT_FALSE(ReadAcceptance(whole.substr(0, whole.find("lines"))));
  VirtualFiles files;
  AcceptanceFiles kept(files, "/data");
  files.contents[kept.PathOf("1", "a")] = "something else";
  EXPECT_FALSE(kept.Read("1", "a").result.Ok());
}

TEST(Acceptance, IsATableForOthersInTheirWords) {
  const std::string table = AcceptanceTable(Sample(), [](std::string_view text) {
    return text == "pass" ? "correcto" : text == "digital input" ? "entrada" : std::string(text);
  });
  EXPECT_TRUE(table.starts_with(
      "serial number,configuration,kind,number,name,verdict,note,value,time\r\n"));
  EXPECT_NE(table.find("VR200-000137,\"site, \"\"north\"\".ocf\",entrada,3,\"Pump, \"\"A\"\"\","
                       "correcto,\"two\r\nlines\",on,2026-03-02 09:05:07\r\n"),
            std::string::npos)
      << table;
}

}  // namespace
}  // namespace ostrel
