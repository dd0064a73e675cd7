#include <gmock/gmock.h>

#include "FakeInspector.h"
#include "link/Frame.h"
#include "platform/TappedPort.h"
#include "platform/virtual/VirtualWorld.h"
#include "shell/doctor/LinkDoctor.h"
#include "sim/Logger.h"

namespace ostrel {
namespace {

using testing::HasSubstr;

/// Keeps what is said to a device.
struct Heard final : LineListener {
  void Sent(std::string_view octets) override { text += octets; }
  void Received(std::string_view) override {}
  void Happened(LineEvent, const std::string&) override {}
  std::string text;
};

/// A logger with faults at COM7.
struct Ward {
  explicit Ward(const std::vector<std::string>& faults, bool modem = false) {
    sim::LoggerOptions options = sim::MakeDefaultOptions(sim::Model::VR200);
    options.modem = modem;
    options.accessCode = "4711";
    for (const std::string& text : faults) {
      std::string error;
      options.faults.push_back(sim::ParseFault(text, error).value());
    }
    world.port.SetPaced(true);
    end = &world.port.AddDevice(7, "/dev/ttyS6", "", [&](LineEnd& line) {
      return std::make_unique<sim::Logger>(world.loop, line, options);
    });
    inspector.facts[7] = {.device = "/dev/ttyS6", .exists = true, .isPermitted = true, .group = ""};
  }
  Diagnosis Look(const std::string& phone = {}, const std::string& code = "4711") {
    DoctorQuestion question{.port = 7, .phone = phone};
    question.askCode = [code](std::string& given) { given = code; };
    TappedPort tapped(world.port);
    tapped.Join(heard);
    const Platform platform{world.loop,  tapped,          world.settings, world.dialogs,
                            world.files, world.processes, world.clock,    nullptr};
    LinkDoctor doctor(platform, inspector, std::move(question));
    Diagnosis diagnosis = doctor.Run();
    EXPECT_FALSE(world.port.PortOpen());
    return diagnosis;
  }
  /// All that was found, one line each.
  static std::string Text(const Diagnosis& diagnosis) {
    std::string text;
    for (const Symptom& symptom : diagnosis.symptoms)
      text += Filled(symptom.what) + ": " + Filled(symptom.found) + "\n";
    return text;
  }

  VirtualWorld world;
  FakeInspector inspector;
  LineEnd* end = nullptr;
  Heard heard;
};

TEST(LinkDoctor, TellsFromTheAnswersWhatToTry) {
  for (const auto& [faults, found, advice] :
       std::vector<std::tuple<std::vector<std::string>, std::string, DoctorWord>>{
           {{}, "damage: none: 24 lines came, all good", DoctorWord::AllWell},
           {{"silent"}, "attempt 3: no octet came in 1 s", DoctorWord::CheckSupply},
           {{"silent@1!once"}, "attempt 2: a logger greets: Ostrel VR200", DoctorWord::AllWell},
           {{"noise"}, "attempt 1: noise: 24 octets, of which 24", DoctorWord::CheckSpeed},
           {{"echo"}, "attempt 1: the question itself came back", DoctorWord::TakePlugOff},
           {{"bad-checksum@1"}, "attempt 1: a frame came with a wrong", DoctorWord::CheckEarthing},
           {{"bad-checksum@3"}, "damage: 8 of 24 lines came damaged", DoctorWord::CheckEarthing},
           {{"vanish@1"}, "device: the device has gone meanwhile", DoctorWord::PlugIn}}) {
    Ward ward(faults);
    const Diagnosis diagnosis = ward.Look();
    EXPECT_THAT(Ward::Text(diagnosis), HasSubstr(found)) << testing::PrintToString(faults);
    EXPECT_EQ(diagnosis.advice, Spoken(advice)) << Ward::Text(diagnosis);
    EXPECT_EQ(diagnosis.isWell, advice == DoctorWord::AllWell);
  }
}

TEST(LinkDoctor, FindsTheModemAndCallsByIt) {
  EXPECT_EQ(Ward({}, true).Look().advice, Spoken(DoctorWord::GivePhone));
  Ward ward({}, true);
  const Diagnosis called = ward.Look("600123456");
  EXPECT_TRUE(called.isWell) << Ward::Text(called);
  EXPECT_LT(ward.heard.text.find("ATD"), ward.heard.text.find(";40"))
      << "greeted in the call alone";
  EXPECT_THAT(ward.heard.text, testing::EndsWith("ATH\r")) << "the call ends";
  const Diagnosis refused = ward.Look("600123456", "wrong");
  EXPECT_THAT(Ward::Text(refused), HasSubstr("did not accept the access code"));
  EXPECT_EQ(refused.advice, Spoken(DoctorWord::LookAtNumber));
}

TEST(LinkDoctor, LooksAtTheMachineBeforeItOpensAnything) {
  for (const auto& [facts, fault, found, advice] :
       std::vector<std::tuple<PortFacts, PortFault, std::string, Phrase>>{
           {{.device = "/dev/x"}, {}, "behind COM7 (/dev/x)", Spoken(DoctorWord::PlugIn)},
           {{.device = "/dev/x", .exists = true, .group = "dialout"},
            {},
            "members of the group dialout alone",
            Spoken(DoctorWord::JoinGroup, {"dialout"})},
           {{.device = "/dev/x", .exists = true},
            {},
            "not be opened by this user",
            Spoken(DoctorWord::AskAdministrator)},
           {{.device = "/dev/x", .exists = true, .isPermitted = true, .holders = {{12, "logview"}}},
            {},
            "in use by logview (12)",
            Spoken(DoctorWord::CloseProgram)},
           {{.device = "/dev/x", .exists = true, .isPermitted = true},
            PortFault::Busy,
            "opening: in use by",
            Spoken(DoctorWord::CloseProgram)}}) {
    Ward ward({});
    ward.inspector.facts[7] = facts;
    ward.world.port.SetOpenFault(7, fault);
    const Diagnosis diagnosis = ward.Look();
    EXPECT_THAT(Ward::Text(diagnosis), HasSubstr(found));
    EXPECT_EQ(diagnosis.advice, advice);
  }
}

TEST(LinkDoctor, ALineThatIsHeldWantsItsControlLines) {
  for (const auto& [takesOctets, isHeld] :
       {std::pair{false, true}, {false, false}, {true, false}}) {
    Ward ward({"silent"});
    ward.world.port.SetLines(7, {.clearToSend = takesOctets, .dataSetReady = true});
    ward.world.port.HoldOutput(7, isHeld);
    const Diagnosis diagnosis = ward.Look();
    const std::string text = Ward::Text(diagnosis);
    EXPECT_THAT(text, HasSubstr(takesOctets ? "CTS on, DSR on, DCD off" : "take octets: CTS off"));
    EXPECT_EQ(diagnosis.advice,
              Spoken(takesOctets ? DoctorWord::CheckSupply : DoctorWord::CheckLines));
  }
}

/// A logger that greets at last does not make a bad line a good one.
TEST(LinkDoctor, ALineWithABadSymptomIsNotWell) {
  Ward held({});
  held.world.port.SetLines(7, {.clearToSend = false, .dataSetReady = true});
  Ward noisy({});
  noisy.world.loop.After(std::chrono::milliseconds(200), "device",
                         [&] { noisy.end->Send("\x01\x02\x91w"); });
  Ward late({"silent@1!once", "silent@2!once"});
  for (const auto& [ward, advice] : {std::pair{&held, DoctorWord::CheckLines},
                                     {&noisy, DoctorWord::CheckEarthing},
                                     {&late, DoctorWord::CheckEarthing}}) {
    const Diagnosis diagnosis = ward->Look();
    EXPECT_FALSE(diagnosis.isWell) << Ward::Text(diagnosis);
    EXPECT_EQ(diagnosis.advice, Spoken(advice)) << Ward::Text(diagnosis);
    EXPECT_THAT(Ward::Text(diagnosis), HasSubstr("a logger greets"));
  }
}

TEST(LinkDoctor, TellsWhatComesUnasked) {
  for (const auto& [octets, found] : std::vector<std::pair<std::string, std::string>>{
           {"", "nothing comes unasked"},
           {"hello\r\n", "readable text comes unasked, octets: 7"},
           {FrameOf("#BD000") + "\r", "frames of a logger come unasked: 1"},
           {"\x01\x02\x91w", "noise: 4 octets, of which 3"}}) {
    Ward ward({"silent"});
    ward.world.loop.After(std::chrono::milliseconds(200), "device",
                          [&] { ward.end->Send(octets); });
    EXPECT_THAT(Ward::Text(ward.Look()), HasSubstr("listening: " + found));
  }
}

}  // namespace
}  // namespace ostrel
