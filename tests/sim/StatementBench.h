#pragma once

#include <gmock/gmock.h>

#include <sstream>
#include <string>
#include <vector>

#include "sim/Random.h"
#include "sim/wire/LineComposer.h"
#include "sim/wire/StatementParser.h"

namespace ostrel::sim {

constexpr std::uint32_t kAllFeatures = 0xFFFFFFFF;

/// What a statement changes shows in a record.
struct StatementCase {
  Model model;
  const char* statement;
  const char* record;
  std::uint32_t features = kAllFeatures;
  const char* before = "";  ///< a statement that comes first, if any
};

/// The statement with up to three characters lost, turned or put in.
inline std::string Damaged(std::string statement, Random& random) {
  for (int hits = random.Between(1, 3); hits > 0 && !statement.empty(); --hits) {
    const auto at = static_cast<std::size_t>(random.Next() % statement.size());
    const int way = random.Between(0, 2);
    if (way == 0) statement.erase(at, 1);
    if (way == 1) statement[at] = static_cast<char>(random.Between(0, 255));
    if (way == 2) statement.insert(at, 1, random.Pick(std::string_view(", -=+0129.EA#\r{")));
  }
  return statement;
}

/// Each statement shows in its record; damaged ones are refused or leave something sound.
inline void ExpectTaken(const std::vector<StatementCase>& cases) {
  Random random(77);
  for (const StatementCase& one : cases) {
    const Identity self{one.model, one.features};
    Configuration conf;
    const bool isAlone = *one.before == '\0';
    EXPECT_EQ(isAlone ? "" : ApplyStatement(one.before, self, conf), "") << one.before;
    EXPECT_EQ(ApplyStatement(one.statement, self, conf), "") << one.statement;
    EXPECT_THAT(ConfigurationRecords(conf, self), testing::Contains(one.record)) << one.statement;
    for (int round = 0; round < 100; ++round) {
      const std::string damaged = Damaged(one.statement, random);
      conf = {};
      if (!ApplyStatement(damaged, self, conf).empty()) continue;
      for (const std::string& record : ConfigurationRecords(conf, self))
        ASSERT_EQ(record.find_first_of("\r\n"), std::string::npos) << "after " << damaged;
    }
  }
}

/// Each of the texts between semicolons is refused, in a statement that is sound but for it.
inline void ExpectRefused(Model model, const std::string& texts, const std::string& head = "",
                          const std::string& tail = "") {
  std::istringstream in(texts);
  for (std::string text; std::getline(in, text, ';');) {
    Configuration conf;
    const std::string statement = head + text + tail;
    EXPECT_NE(ApplyStatement(statement, {model, kAllFeatures}, conf), "") << statement;
  }
}

}  // namespace ostrel::sim
