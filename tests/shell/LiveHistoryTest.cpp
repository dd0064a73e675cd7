#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "shell/plot/LiveHistory.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr LiveId kLevel{LiveKind::Analog, 0};
constexpr LiveId kCount{LiveKind::Counter, 3};
constexpr LiveId kRegister{LiveKind::MathRegister, 7};
constexpr LiveId kDoor{LiveKind::Digital, 2};
constexpr LiveRead kCame{.hasCome = true, .missed = 0, .at = {}};
constexpr LiveRead kMissed{.hasCome = true, .missed = 1, .at = {}};

/// A round of one level, at a time of a place two hours ahead of universal time.
LiveRound LevelRound(Moment universal, double level, LiveRead read = kCame) {
  return {{universal + minutes(120), minutes(120)}, {{kLevel, "Level", "m", level, {}, read}}};
}

std::string Drawn(const std::vector<CurvePoint>& curve) {
  std::string text;
  for (const auto& [at, value] : curve)
    text += std::to_string(at.count()) + ":" +
            (std::isnan(value) ? "-" : std::to_string(std::lround(value))) + " ";
  return text;
}

TEST(LiveHistory, HidesNoExtremeWhenItThins) {
  constexpr int kRounds = 50'000, kColumns = 317;
  LiveHistory history;
  std::vector<float> levels;
  std::mt19937 random(1);
  for (int i = 0; i < kRounds; ++i) {
    levels.push_back(random() % 500 == 0 ? float(random() % 1000) : float(i % 7));
    history.Add(LevelRound(seconds(i), levels.back()));
  }
  const int from = 1234, to = 48'765;
  const auto curve = history.Curve(kLevel, {seconds(from), seconds(to)}, kColumns);
  EXPECT_LE(curve.size(), 4u * kColumns + 2);
  EXPECT_TRUE(std::ranges::is_sorted(curve, {}, &CurvePoint::at));
  const int width = (to - from) * 1000 / kColumns + 1;  // ms
  for (int column = 0; column < kColumns; ++column) {
    const auto extremes = [&](const auto& points, const auto& timeOf, const auto& valueOf) {
      std::pair<double, double> found{1e9, -1e9};
      for (const auto& point : points)
        if (const auto ms = timeOf(point) - from * 1000; ms >= 0 && ms / width == column)
          found = {std::min<double>(found.first, valueOf(point)),
                   std::max<double>(found.second, valueOf(point))};
      return found;
    };
    const auto drawn = extremes(
        curve, [](const CurvePoint& p) { return p.at.count(); },
        [](const CurvePoint& p) { return p.value; });
    const auto told = extremes(
        levels, [&](const float& level) { return (&level - levels.data()) * 1000; },
        [](float level) { return level; });
    ASSERT_EQ(drawn, told) << column;
  }
}

TEST(LiveHistory, BreaksACurveWhereAReadFailedOrNobodyRead) {
  LiveHistory history;
  for (const auto& [at, level, read] :
       std::vector<std::tuple<int, double, LiveRead>>{{1, 10, kCame},
                                                      {2, 20, kCame},
                                                      {3, 20, kMissed},
                                                      {4, 20, kMissed},
                                                      {5, 50, kCame},
                                                      {35, 60, kCame},
                                                      {66, 70, kCame}})
    history.Add(LevelRound(seconds(at), level, read));
  const std::string whole = "1000:10 2000:20 3000:- 5000:50 35000:60 35001:- 66000:70 ";
  EXPECT_EQ(Drawn(history.Curve(kLevel, {seconds(0), seconds(100)}, 1000)), whole);
  EXPECT_EQ(Drawn(history.Curve(kLevel, {milliseconds(1500), seconds(2)}, 10)),
            "1000:10 2000:20 3000:- ")
      << "lines lead in and out";
  for (const auto& [at, level] : std::map<int, std::optional<double>>{
           {0, {}}, {1, 10.}, {2, 20.}, {4, {}}, {64, 60.}, {67, 70.}, {97, {}}})
    EXPECT_EQ(history.ValueAt(kLevel, seconds(at)), level) << at;
}

/// What a pixel column brings together is drawn as its first, extreme and last values, and is
/// broken where it was.
TEST(LiveHistory, AColumnHasItsBreakAndItsEnds) {
  const auto drawn = [](const LiveRead& fourth, int pause) {
    LiveHistory history;
    int at = 0;
    for (const double level : {3, 9, 1, 7, 4, 8, 2, 5})
      history.Add(
          LevelRound(seconds(at++ < 3 ? at : at + pause), level, level == 7 ? fourth : kCame));
    return Drawn(history.Curve(kLevel, {seconds(0), seconds(100)}, 1));
  };
  EXPECT_EQ(drawn(kMissed, 0), "1000:3 2000:9 3000:1 4000:- 5000:4 6000:8 7000:2 8000:5 ");
  EXPECT_EQ(drawn(kCame, 31), "1000:3 2000:9 3000:1 3001:- 35000:7 37000:8 38000:2 39000:5 ");
}

TEST(LiveHistory, ALineThatFailsAllTheTimeIsThinnedToo) {
  constexpr int kRounds = 20'000, kColumns = 100;
  LiveHistory history;
  for (int i = 0; i < kRounds; ++i)
    history.Add(LevelRound(seconds(i), i % 7, i % 2 == 0 ? kCame : kMissed));
  EXPECT_LE(history.Curve(kLevel, {seconds(0), seconds(kRounds)}, kColumns).size(), 9u * kColumns);
}

TEST(LiveHistory, ForgetsTheOldestAndNeverGrowsBeyondItsMemory) {
  constexpr std::size_t kMost = 100'000;
  LiveHistory history(kMost);
  LiveRound round = LevelRound({}, 0);
  for (int i = 0; i < 9; ++i) round.values.push_back({{LiveKind::Flow, i}, "", "", 1.0, {}, kCame});
  for (int i = 0; i < 20'000; ++i) {
    round.at.local = seconds(i);
    history.Add(round);
    ASSERT_LE(history.Octets(), kMost);
  }
  EXPECT_EQ(history.Span()->to, seconds(19'999) - minutes(120));
  EXPECT_GT(history.Span()->Length(), seconds(1000)) << "it uses what it has";
  EXPECT_LT(history.Span()->Length(), seconds(kMost / (10 * sizeof(float)))) << "and no more";
}

/// Other values, and another time of the year, within one session of the program.
TEST(LiveHistory, GivesRoundsBackAsTheyCame) {
  LiveHistory history;
  history.Add(LevelRound(seconds(1), 1.5));
  LiveRound second{{seconds(3602), minutes(60)},
                   {{kDoor, "Door", "", {}, true, kCame},
                    {kLevel, "Level 1", "cm", 2.5, {}, kMissed},
                    {kCount, "", "", 2'147'483'647., {}, kCame},
                    {kRegister, "", "", 123'456'789.25, {}, kCame}}};
  history.Add(second);
  EXPECT_EQ(history.Find(kLevel)->unit, "cm");
  history.Add(LevelRound(seconds(1), 3.5));  // the clock was set back
  LiveRound fourth = LevelRound(seconds(5), 4.5);
  fourth.at = {seconds(3605), minutes(60)};
  history.Add(fourth);
  std::vector<LiveRound> rounds;
  history.ForEachRound({seconds(1), seconds(9)}, {kRegister, kCount, kLevel, kDoor},
                       [&](const LiveRound& round) { rounds.push_back(round); });
  ASSERT_EQ(rounds.size(), 4u);
  EXPECT_EQ(rounds[3].at, fourth.at);
  EXPECT_EQ(rounds[1].at, second.at);
  const auto value = [&](std::size_t round, LiveId id) { return *rounds.at(round).Find(id); };
  EXPECT_EQ(LiveText(value(1, kCount)), "2147483647");
  EXPECT_EQ(value(1, kRegister).number, 123'456'789.25);
  EXPECT_FALSE(value(1, kLevel).IsFresh() || value(1, kLevel).HasValue());
  EXPECT_EQ(value(1, kDoor).on, true);
  EXPECT_EQ(LiveText(value(0, kLevel)), "1.5");
  EXPECT_FALSE(value(0, kCount).HasValue()) << "that round had no counter";
  EXPECT_EQ(rounds[2].at, (WallTime{seconds(7202), minutes(120)})) << "time never runs back";
  EXPECT_EQ(history.Find(kLevel)->name, "Level") << "as it was told last";
  EXPECT_EQ(Drawn(history.Curve(kCount, {seconds(0), seconds(9)}, 100)), "2000:2147483647 2000:- ")
      << "no line leads on where there is no such value";
  EXPECT_EQ(history.Series().size(), 4u);
  history.Clear();
  EXPECT_TRUE(history.Series().empty() && !history.Span());
}

}  // namespace
}  // namespace ostrel
