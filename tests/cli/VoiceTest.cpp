#include "cli/World.h"

namespace ostrel::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

/// What the simulated logger has to begin with: three numbers and macro 0.
struct VoiceWorld : World {
  explicit VoiceWorld(std::vector<std::string> faults = {}) : World(WithFaults(std::move(faults))) {
    Alter([](sim::Configuration& held) { held.voice = {{"+34600", "601", "602"}, 7}; });
  }
  const sim::VoiceList& Held() { return Logger().Conf().voice; }
  int Voice(const std::string& command) { return Run("voice " + command + " --port sim:VR200"); }
  void ExpectVoice(const std::string& command, int code, const std::string& says) {
    Expect("voice " + command + " --port sim:VR200", code, says);
  }
};

TEST(Voice, IsReadToOutputTextAndConfiguration) {
  VoiceWorld world;
  EXPECT_EQ(world.Voice("read"), 0);
  EXPECT_EQ(world.out, "+34600\n601\n602\n");
  EXPECT_THAT(world.err, HasSubstr("3 numbers, macro 7"));
  EXPECT_EQ(world.Voice("read --json"), 0);
  EXPECT_EQ(world.Json().object()["numbers"].toArray().size(), 3);
  EXPECT_EQ(world.Json().object()["macro"].toInt(), 7);
  EXPECT_EQ(world.Voice("read /list.txt"), 0);
  EXPECT_EQ(world.files.contents["/list.txt"], "+34600\n601\n602\n");
  EXPECT_EQ(world.Voice("read /new.ocf"), 5) << "no configuration stands there";
  world.HaveFile("/a.ocf");
  const std::string before = world.files.contents["/a.ocf"];
  EXPECT_EQ(world.Voice("read /a.ocf"), 0);
  world.SetKey("/a.ocf", "AUT_VOZ", "MACRO", "-1");
  for (const auto* key : {"TEL 0", "TEL 1", "TEL 2"}) world.SetKey("/a.ocf", "AUT_VOZ", key, "");
  EXPECT_EQ(world.files.contents["/a.ocf"], before) << "nothing else has changed";
}

TEST(Voice, IsWrittenFromTextAndConfiguration) {
  VoiceWorld world;
  world.files.contents["/list.txt"] = "801\r\n802\n801\n";
  EXPECT_EQ(world.Voice("write /list.txt"), 0) << world.err;
  EXPECT_THAT(world.Held().numbers, ElementsAre("801", "802", "801"));
  EXPECT_EQ(world.Held().macro, 7) << "the logger keeps its macro";
  EXPECT_EQ(world.ledger.entries.back().file, "/list.txt");
  EXPECT_EQ(world.Voice("write /list.txt --macro 39 --json"), 0);
  EXPECT_EQ(world.Held().macro, 39);
  EXPECT_EQ(world.Json().object()["written"].toInt(), 3);
  EXPECT_EQ(world.Voice("write /list.txt --macro none"), 0);
  EXPECT_EQ(world.Held().macro, -1);
  world.HaveFile("/a.ocf");
  world.SetKey("/a.ocf", "AUT_VOZ", "MACRO", " 3");
  world.SetKey("/a.ocf", "AUT_VOZ", "TEL 9", "900");
  EXPECT_EQ(world.Voice("write /a.ocf"), 0);
  EXPECT_THAT(world.Held().numbers, ElementsAre("900"));
  EXPECT_EQ(world.Held().macro, 3);
}

TEST(Voice, AnEmptyListIsAskedAndACutFileIsLeftAlone) {
  VoiceWorld world;
  world.HaveFile("/a.ocf");  // a download never carries the list
  world.SetKey("/a.ocf", "AUT_VOZ", "MACRO", "-1");
  world.files.contents["/none.txt"] = "";
  for (const auto* file : {"/a.ocf", "/none.txt"}) {
    world.ExpectVoice(std::string("write ") + file, 5,
                      "the logger would lose all numbers of its list. --yes");
    EXPECT_EQ(world.Held().numbers.size(), 3U);
  }
  world.environment.errIsTerminal = true;
  world.ExpectVoice("read /a.ocf", 0, "voice-call list [");  // how far it is
  std::string& cut = world.files.contents["/a.ocf"];
  cut.resize(cut.size() / 2);
  const std::string before = cut;
  world.ExpectVoice("read /a.ocf", 5, "mend the file first");
  EXPECT_EQ(world.files.contents["/a.ocf"], before);
  EXPECT_EQ(world.Voice("write /none.txt --yes"), 0) << world.err;
  EXPECT_TRUE(world.Held().numbers.empty());
}

TEST(Voice, RefusesWhatIsNoListOrNoMacro) {
  VoiceWorld world;
  world.files.contents["/list.txt"] = "801\nAna\n";
  world.ExpectVoice("write /list.txt", 5, "/list.txt, line 2: Ana is no telephone number");
  EXPECT_EQ(world.Voice("write /none.txt"), 5);
  for (const auto* macro : {"40", "-1", "x", "1.5"})
    EXPECT_EQ(world.Voice("write /list.txt --macro " + std::string(macro)), 2) << macro;
  EXPECT_EQ(world.Run("voice"), 2);
  EXPECT_EQ(world.Run("voice read"), 2) << "no port";
  const std::string start = "[General]\r\nVERSION=TAVRO\r\n";
  std::string many;
  for (int place = 0; place <= 250; ++place) many += "TEL " + std::to_string(place) + "=7\r\n";
  for (const auto& [rest, why] : std::vector<std::pair<std::string, std::string>>{
           {"", "it chooses no macro for voice calls: --macro does"},
           {"[AUT_VOZ]\r\nMACRO= 77", "MACRO: voice calls start macros 0 to 39"},
           {"[AUT_VOZ]\r\nMACRO= 1\r\nTEL 3=abc,1", "TEL 3: abc,1 is no telephone number"},
           {"[AUT_VOZ]\r\nMACRO= 1\r\n" + many, "a list has 250 numbers at the most"}}) {
    world.files.contents["/a.ocf"] = start + rest;
    world.ExpectVoice("write /a.ocf", 5, "/a.ocf: " + why);
  }
  EXPECT_EQ(world.Held().numbers.size(), 3U);
}

TEST(Voice, ReplacesOnlyAListWithoutAQuestion) {
  VoiceWorld world;
  world.files.contents["/p.txt"] = "a letter\n";
  EXPECT_EQ(world.Voice("read /p.txt"), 5);
  EXPECT_EQ(world.files.contents["/p.txt"], "a letter\n");
  EXPECT_EQ(world.Voice("read /p.txt --yes"), 0);
  EXPECT_EQ(world.Voice("read /p.txt"), 0);
  EXPECT_EQ(world.Voice("read /x.OCF"), 5);
}

TEST(Voice, ExitsWith4WhereItFails) {
  VoiceWorld world({"wrong-sum"});
  world.files.contents["/list.txt"] = "801\n";
  EXPECT_EQ(world.Voice("read"), 4);
  EXPECT_EQ(world.out, "");
  EXPECT_EQ(world.Voice("write /list.txt --macro none"), 4);
  EXPECT_THAT(world.err, HasSubstr("check sum"));
  EXPECT_THAT(world.err, HasSubstr("list may be erased or incomplete: write it again"));
  World old(With([](sim::LoggerOptions& options) { options.features &= ~sim::kMissedCall; }));
  old.Expect("voice read --port sim:BP", 4, "has no voice-call list");
}

/// Neither results nor messages nor the trace tell a password, unless they are asked for.
TEST(Passwords, AreToldOnlyWhenAskedFor) {
  World world;
  world.environment.openTrace = [&](const std::string& path, std::string&) {
    struct Log : std::ostringstream {
      Log(std::string& into) : kept(into) {}
      ~Log() override { kept = str(); }
      std::string& kept;
    };
    return std::make_unique<Log>(world.files.contents[path]);
  };
  world.Alter([](sim::Configuration& held) {
    held.gprs.apnPassword = "Secreto1";
    held.gprs.ftpPassword = "Secreto2";
  });
  world.HaveFile("/a.ocf");
  EXPECT_THAT(world.files.contents["/a.ocf"], HasSubstr("APN_PASS=Secreto1")) << "as the format is";
  EXPECT_EQ(world.files.modes["/a.ocf"], 0600);
  world.files.contents["/b.ocf"] = world.files.contents["/a.ocf"];
  world.SetKey("/b.ocf", "GPRS", "FTP_PASS", "Secreto3");
  for (const auto& [command, code] :
       std::map<std::string, int>{{"show /a.ocf", 0},
                                  {"show /a.ocf --json", 0},
                                  {"diff /a.ocf /b.ocf", 1},
                                  {"diff /a.ocf /b.ocf --json", 1},
                                  {"diff port /b.ocf --port sim:VR200 --trace /trace", 1},
                                  {"check /a.ocf", 0},
                                  {"statements /a.ocf --features ffffffff", 0},
                                  {"upload /b.ocf --dry-run --json --features ffffffff", 0},
                                  {"upload /b.ocf --port sim:VR200 --trace /trace --force", 0}}) {
    EXPECT_EQ(world.Run(command), code) << command << world.err;
    EXPECT_THAT(world.out + world.err + world.files.contents["/trace"], Not(HasSubstr("Secreto")))
        << command;
  }
  EXPECT_EQ(world.Logger().Conf().gprs.ftpPassword, "Secreto3") << "on the wire as ever";
  EXPECT_THAT(world.files.contents["/trace"], HasSubstr("FTPPASS=****"));
  for (const auto* command : {"show /a.ocf", "show /a.ocf --json", "diff /a.ocf /b.ocf",
                              "statements /a.ocf --features ffffffff"}) {
    world.Run(command + std::string(" --secrets"));
    EXPECT_THAT(world.out, HasSubstr("Secreto2")) << command;
  }
  world.Run("diff port /b.ocf --port sim:VR200 --trace /trace --secrets");
  EXPECT_THAT(world.files.contents["/trace"], HasSubstr("GPRS,telemetria.example,Secreto1"));
}

TEST(Passwords, MakeAFileThatStandsItsOwnersAloneWithTheFirst) {
  World world;
  world.files.contents["/a.ocf"] = "[GPRS]\r\nAPN_PASS=";
  for (const auto& [password, mode] : {std::pair("", 0644), {"Secreto1", 0600}, {"Otra", 0644}}) {
    world.Alter([&](sim::Configuration& held) {
      held.gprs.apnPassword = password;
      held.gprs.ftpPassword = "";
    });
    world.files.modes["/a.ocf"] = 0644;
    EXPECT_EQ(world.Run("download /a.ocf --port sim:VR200 --yes"), 0) << world.err;
    EXPECT_EQ(world.files.modes["/a.ocf"], mode) << password;
  }
}

}  // namespace
}  // namespace ostrel::cli
