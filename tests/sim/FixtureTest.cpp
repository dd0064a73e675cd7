#include <gtest/gtest.h>

#include "sim/fixture/Fixture.h"
#include "sim/fixture/FixtureText.h"

namespace ostrel::sim {
namespace {

using std::chrono::milliseconds;

/// What a board reads in a fixture made of a text, with all its outputs driven to a level or the
/// first one alone, a while after it was put in.
std::string ReadIn(std::string_view text, Model model, int level, bool all, Duration after) {
  FixtureScript script;
  EXPECT_EQ(ReadFixture(text, model, script), "") << text;
  Fixture fixture(script);
  fixture.PutIn({});
  fixture.FindProbe();
  for (int output = 0; output < (all ? 2 : 1); ++output) fixture.Drive(output, level, {});
  fixture.Read(model, {});
  return fixture.Read(model, TimePoint{} + after);
}

TEST(FixtureText, IsWhatABoardReads) {
  struct Case {
    Model model;
    const char* text;
    int level;
    bool all;
    int afterMs;
    const char* fields;  ///< the second reading
  };
  for (const auto& [model, text, level, all, afterMs, fields] : std::initializer_list<Case>{
           {Model::BP, "", 12, false, 0, ",5,0,1880,12,9,11,0,0,0,0"},
           {Model::BP, "output 0 12 -1 1.5 20 30 40\nrest 0 0 25 0 0", 12, false, 0,
            ",-1,0,1.5,25,30,40,0,0,0,0"},
           {Model::BP, "output 0 24 9 1 2 3 4", 12, false, 0, ",5,0,1880,12,9,11,0,0,0,0"},
           {Model::BP, "output 0 24 8 1 2 3 4\noutput 1 24 7 9 8 7 6\nrest 0 0 0 0 0", 24, true, 0,
            ",15,0,9,8,7,6,0,0,0,0"},
           {Model::BP, "rest 256 1 2 3 4", 0, false, 0, ",256,0,1,2,3,4,0,0,0,0"},
           {Model::BP, "gsm 0 5 200 6", 0, false, 199, ",0,0,10,12,9,11,0,0,5,0"},
           {Model::BP, "gsm 0 5 200 6", 0, false, 200, ",0,0,10,12,9,11,0,0,6,0"},
           {Model::KA2, "outputs on 84\r\noutputs off 3 # dead\r\n", 1, true, 0,
            ",84,0,21.5,0,0,0,0,2.1,0,0"},
           {Model::KA2, "outputs\ton 84\noutputs off 3", 1, false, 0, ",3,0,21.5,0,0,0,0,2.1,0,0"},
           {Model::KA2, "charger 4 0.05\nprobe -7.5", 1, true, 0, ",85,0,-7.5,0,0,0,0,0.05,0,0"},
           {Model::KA2, "mains 100", 1, true, 100, ",341,0,21.5,0,0,0,0,2.1,0,0"},
           {Model::KA2, "\n#mains 100\n  mains lasts", 1, true, 9999, ",85,0,21.5,0,0,0,0,2.1,1,0"},
           {Model::BQ, "keys 4 2\nkey-time 10", 0, false, 10, ",2,0,0,0,0,0,0,0,0,0"},
           {Model::BQ, "keys", 0, false, 0, ",0,0,0,0,0,0,0,0,0,0"},
       })
    EXPECT_EQ(ReadIn(text, model, level, all, milliseconds(afterMs)), fields) << text;
  FixtureScript script;
  EXPECT_EQ(ReadFixture("battery 4.69", Model::BQ, script), "");
  EXPECT_EQ(script.battery, 469);
}

TEST(FixtureText, WhatIsWrongIsToldWithItsLine) {
  struct Case {
    Model model;
    const char* text;
    const char* error;
  };
  for (const auto& [model, text, error] : std::initializer_list<Case>{
           {Model::BP, "\nprobe 5", "line 2: \"probe\" is for KA2, not for BP"},
           {Model::VR200, "gsm 0 1", "line 1: \"gsm\" is for BP BQ KA2, not for VR200"},
           {Model::BP, "# x\n\nout 1", "line 3: no word of a fixture is \"out\""},
           {Model::BP, "output 4 12 0 1 2 3 4", "line 1: output: an output is from 0 to 3"},
           {Model::BP, "output 3 13 0 1 2 3 4",
            "line 1: output: an output is driven at 12 or 24 V"},
           {Model::BP, "rest 0 1 2 3", "line 1: rest: a reading in steps is missing"},
           {Model::BP, "rest 0 1 2 3 4 5", "line 1: rest: \"5\" is too much"},
           {Model::BP, "rest 0 1 2 3 inf", "line 1: rest: \"inf\" is not a reading in steps"},
           {Model::BP, "rest 40000 1 2 3 4",
            "line 1: rest: a word of inputs is from -32768 to 32767"},
           {Model::BQ, "key-time 0", "line 1: key-time: a key is pressed for 1 ms at least"},
           {Model::BQ, "keys 1 2x", "line 1: keys: \"2x\" is not a word of inputs"},
           {Model::BQ, "gsm 0 1\ngsm 5 2", "line 2: \"gsm\" stands twice"},
           {Model::BQ, "gsm 10 1 10 2", "line 1: gsm: times must rise"},
           {Model::KA2, "charger", "line 1: charger: a voltage is missing"},
           {Model::KA2, "outputs half 3", "line 1: outputs: outputs are \"on\" or \"off\""},
           {Model::KA2, "mains soon", "line 1: mains: \"soon\" is not a time in ms"},
           {Model::KA2, "battery -1", "line 1: battery: there is no such battery"},
       }) {
    FixtureScript script;
    EXPECT_EQ(ReadFixture(text, model, script), error) << text;
  }
}

}  // namespace
}  // namespace ostrel::sim
