#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Time.h"
#include "sim/Model.h"

namespace ostrel::sim {

/// What a board reads at its inputs in one state of its outputs; the analog ones in steps of its
/// converter.
struct InputReading {
  int inputs = 0;
  std::array<float, 4> analogs{};
};

/// How a test fixture and the board in it behave. As it comes, a good board passes its test.
struct FixtureScript {
  /// Tavro BP: with nothing driven, and with output 0 to 3 at 12 V and then at 24 V.
  InputReading atRest{0, {10, 12, 9, 11}};
  std::array<InputReading, 8> driven{{
      {5, {1880, 12, 9, 11}},
      {10, {10, 1880, 9, 11}},
      {80, {10, 12, 1880, 11}},
      {160, {10, 12, 9, 1020}},
      {5, {3555, 12, 9, 11}},
      {10, {10, 3555, 9, 11}},
      {80, {10, 12, 3555, 11}},
      {160, {10, 12, 9, 1020}},
  }};

  /// Ostrel KA2: the inputs with both outputs on, and else.
  int inputsOn = 85;
  int inputsOff = 170;
  /// Volts at its charger, one a reading; the last lasts.
  std::vector<float> charger{3.9F, 2.1F, 0.9F, 0.3F, 0.05F, 0.4F, 1.9F, 3.2F, 4.0F, 4.2F};
  float probe = 21.5F;  ///< degrees; read once a probe is set up
  /// The mains goes that long after the outputs were last set; never without.
  std::optional<Duration> mainsLasts = std::chrono::milliseconds{4500};

  /// Tavro BQ: the words of the keys that are pressed in turn, over and over, each for a while.
  std::vector<int> keys{1, 16, 4, 2, 32, 8};
  Duration keyTime = std::chrono::seconds{2};

  /// States of the modem, each from a moment after the board was put in.
  std::vector<std::pair<Duration, int>> gsm{{Duration{}, 0}, {std::chrono::seconds{4}, 1}};

  /// Hundredths of a volt that the board tells of its battery; without, those of its options.
  std::optional<int> battery{};
};

/// A fixture with a board in it, as far as orders and time have brought it.
class Fixture {
 public:
  explicit Fixture(FixtureScript script) : script_(std::move(script)) {}

  /// The fixture may be changed while a board is in it.
  FixtureScript& Script() { return script_; }
  const FixtureScript& Script() const { return script_; }

  /// A board is put in and wakes up.
  void PutIn(TimePoint now);
  /// The board sleeps from now on: it answers nothing until it is put in again.
  void Sleep() { asleep_ = true; }
  bool Asleep() const { return asleep_; }

  /// Sets an output of the board to a voltage, or to 0 or 1 where it switches only.
  void Drive(int output, int level, TimePoint now);
  /// Level of an output, 0 for none.
  int Level(int output) const { return levels_.at(static_cast<std::size_t>(output)); }
  void FindProbe() { hasProbe_ = true; }

  /// The fields of a test frame behind its head, with commas ahead of each.
  std::string Read(Model model, TimePoint now);

 private:
  InputReading ReadInputs(Model model, TimePoint now) const;
  InputReading ReadDriven() const;
  int GsmState(TimePoint now) const;

  static constexpr std::size_t kOutputs = 4;

  FixtureScript script_;
  std::array<int, kOutputs> levels_{};
  TimePoint putIn_{};
  TimePoint lastDriven_{};
  std::size_t readings_ = 0;  ///< since the board was put in
  bool hasProbe_ = false;
  bool asleep_ = false;
};

}  // namespace ostrel::sim
