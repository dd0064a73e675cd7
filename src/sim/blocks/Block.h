#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "sim/Configuration.h"
#include "sim/StateText.h"
#include "sim/demo/DemoParts.h"
#include "sim/demo/RandomParts.h"
#include "sim/wire/LineComposer.h"
#include "sim/wire/StatementCursor.h"

namespace ostrel::sim {

/// A statement in work: the cursor stands behind its leading word.
struct Work {
  std::string_view statement;  ///< whole
  StatementCursor& in;
  const Identity& self;
  Configuration& conf;

  /// Takes a channel's number; gives the channel out of the first `count` of an array.
  template <class Channels>
  auto& Channel(Channels& channels, int count) const {
    return channels[static_cast<std::size_t>(in.Plain(0, count - 1))];
  }
  /// Takes "=name,UNIT=unit".
  template <class AnyChannel>
  void SetNames(AnyChannel& channel) const {
    in.Expect("=");
    channel.name = in.Text();
    in.Expect(",UNIT=");
    channel.unit = in.Text();
  }
  /// Takes "=text" up to the end.
  void SetText(std::string& text) const;
  /// Takes "= 12" up to the end, from 0 to `last`.
  void SetWhole(int& number, int last) const;
};

/// What is done with the statements of one leading word.
struct StatementRule {
  std::string_view word;
  void (*apply)(const Work& w);
  std::uint32_t features = 0;  ///< what the firmware must have to know it
};

/// One kind of record: all that the logger knows of it beside the record itself.
struct Block {
  /// Whether this logger has such records at all.
  bool (*stands)(const Identity& self);
  std::span<const StatementRule> rules;
  /// Adds its lines to a download.
  void (*report)(const Configuration& conf, const Identity& self, Report& out);
  /// Fills its part of an empty configuration at random: with what the logger can hold and a
  /// reading and writing back leaves unchanged.
  void (*makeUp)(RandomParts& make, Configuration& conf);
  /// Sets up its part of the demonstration.
  void (*demonstrate)(Demonstration& demo);
  void (*save)(const Configuration& conf, StateWriter& out);
  void (*load)(Configuration& conf, StateReader& in);
};

/// Makes a block of a type with `Stands`, `kRules`, `Tell`, `MakeUp`, `Demonstrate`, and `Visit`,
/// which names each value of the saved state.
template <class Kind>
constexpr Block MakeBlock() {
  return {.stands = Kind::Stands,
          .rules = Kind::kRules,
          .report = Kind::Tell,
          .makeUp = Kind::MakeUp,
          .demonstrate = Kind::Demonstrate,
          .save = [](const Configuration& conf, StateWriter& out) { Kind::Visit(conf, out); },
          .load = [](Configuration& conf, StateReader& in) { Kind::Visit(conf, in); }};
}

/// All blocks in the order of reporting.
std::span<const Block* const> Blocks();

}  // namespace ostrel::sim
