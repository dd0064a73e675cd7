#include <gtest/gtest.h>

#include <map>

#include "base/Channels.h"

namespace ostrel {
namespace {

TEST(Channels, TheEndsOfEveryRun) {
  const std::map<int, const char*> tokens = {
      {0, "AI0"},   {3, "AI3"},    {12, "FL0"},   {19, "FL7"},   {21, "DI0"},   {28, "DI7"},
      {29, "MB0"},  {60, "MB31"},  {61, "FG0"},   {76, "FG15"},  {97, "DI8"},   {105, "PB0"},
      {108, "PB3"}, {117, "EX32"}, {166, "EX81"}, {176, "EX91"}, {212, "EX127"}};
  for (const auto& [channel, token] : tokens) EXPECT_EQ(ChannelToToken(channel, false), token);
  EXPECT_EQ(ChannelToToken(29, true), "EX0");
  EXPECT_EQ(ChannelToToken(60, true), "EX31");
  EXPECT_EQ(ChannelToToken(117, true), "EX32");
}

TEST(Channels, AllTokensComeBackButOne) {
  int tokens = 0;
  for (const bool isS100 : {false, true}) {
    for (int channel = -300; channel <= 300; ++channel) {
      const std::string token = ChannelToToken(channel, isS100);
      if (token.empty()) continue;
      ++tokens;
      EXPECT_EQ(TokenToChannel(token), token == "EX91" ? 0 : channel) << token;
    }
  }
  EXPECT_EQ(tokens, 2 * 169);
}

TEST(Channels, RubbishIsTheFirstAnalogInput) {
  for (const char* token :
       {"",     "D",    "DI",    "DI9",   "ai0",           "AI00", "AI+1", "AI-0",
        "DI1 ", " DI1", "EX128", "EX091", "EX91",          "MB32", "FG16", "PB4",
        "AI4",  "FL8",  "ZZ1",   "DI1x",  "DI99999999999", "GPRS"})
    EXPECT_EQ(TokenToChannel(token), 0) << token;
}

}  // namespace
}  // namespace ostrel
