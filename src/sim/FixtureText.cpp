#include "sim/FixtureText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <set>
#include <span>

#include "sim/StatementCursor.h"

namespace ostrel::sim {
namespace {

constexpr std::string_view kBlanks = " \t\r";
constexpr int kMostMilliseconds = 24 * 3600 * 1000;
constexpr int kMostVolts = 1000;

/// Walks along the words of a line. The first that is not as it must be is kept as `Why`; from then
/// on every step does nothing.
class LineWords {
 public:
  explicit LineWords(std::string_view line) : rest_(line.substr(0, line.find('#'))) { Skip(); }

  bool More() const { return why_.empty() && !rest_.empty(); }
  const std::string& Why() const { return why_; }
  void Fail(std::string why) {
    if (why_.empty()) why_ = std::move(why);
  }
  std::string_view Word(std::string_view what) {
    const std::string_view word = rest_.substr(0, rest_.find_first_of(kBlanks));
    if (word.empty()) Fail(std::string(what) + " is missing");
    rest_.remove_prefix(word.size());
    Skip();
    return word;
  }
  int Whole(std::string_view what, int first, int last) {
    const int number = Number<int>(what);
    if (number < first || number > last)
      Fail(std::string(what) + " is from " + std::to_string(first) + " to " + std::to_string(last));
    return number;
  }
  float Decimal(std::string_view what) { return Number<float>(what); }
  Duration Time() { return std::chrono::milliseconds(Whole("a time in ms", 0, kMostMilliseconds)); }

 private:
  void Skip() { rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size())); }

  template <class T>
  T Number(std::string_view what) {
    const std::string_view word = Word(what);
    T number{};
    const char* const end = word.data() + word.size();
    const auto parsed = std::from_chars(word.data(), end, number);
    if (parsed.ec == std::errc{} && parsed.ptr == end && std::isfinite(number)) return number;
    Fail("\"" + std::string(word) + "\" is not " + std::string(what));
    return {};
  }

  std::string_view rest_;
  std::string why_;
};

int TakeInputs(LineWords& words) { return words.Whole("a word of inputs", kLeast16, kMost16); }

InputReading TakeReading(LineWords& words) {
  InputReading reading;
  reading.inputs = TakeInputs(words);
  for (float& analog : reading.analogs) analog = words.Decimal("a reading in steps");
  return reading;
}

void TakeRest(LineWords& words, FixtureScript& script) { script.atRest = TakeReading(words); }

void TakeOutput(LineWords& words, FixtureScript& script) {
  const int output = words.Whole("an output", 0, 3);
  const std::string_view volts = words.Word("12 or 24 (volts)");
  if (volts != "12" && volts != "24") words.Fail("an output is driven at 12 or 24 V");
  const InputReading reading = TakeReading(words);
  if (words.Why().empty())
    script.driven.at(static_cast<std::size_t>(output + (volts == "24" ? 4 : 0))) = reading;
}

void TakeSwitched(LineWords& words, FixtureScript& script) {
  const std::string_view state = words.Word("\"on\" or \"off\"");
  if (state != "on" && state != "off") words.Fail("outputs are \"on\" or \"off\"");
  (state == "on" ? script.inputsOn : script.inputsOff) = TakeInputs(words);
}

void TakeCharger(LineWords& words, FixtureScript& script) {
  script.charger.clear();
  do script.charger.push_back(words.Decimal("a voltage"));
  while (words.More());
}

void TakeProbe(LineWords& words, FixtureScript& script) { script.probe = words.Decimal("degrees"); }

void TakeMains(LineWords& words, FixtureScript& script) {
  script.mainsLasts.reset();
  LineWords ahead = words;
  if (ahead.Word("") == "lasts")
    words = ahead;
  else
    script.mainsLasts = words.Time();
}

void TakeKeys(LineWords& words, FixtureScript& script) {
  script.keys.clear();
  while (words.More()) script.keys.push_back(TakeInputs(words));
}

void TakeKeyTime(LineWords& words, FixtureScript& script) {
  script.keyTime = words.Time();
  if (script.keyTime == Duration{}) words.Fail("a key is pressed for 1 ms at least");
}

void TakeGsm(LineWords& words, FixtureScript& script) {
  script.gsm.clear();
  do {
    const Duration from = words.Time();
    if (!script.gsm.empty() && from <= script.gsm.back().first) words.Fail("times must rise");
    script.gsm.emplace_back(from, words.Whole("a state of the modem", kLeast16, kMost16));
  } while (words.More());
}

void TakeBattery(LineWords& words, FixtureScript& script) {
  const float volts = words.Decimal("a voltage");
  if (volts < 0 || volts > kMostVolts) return words.Fail("there is no such battery");
  script.battery = static_cast<int>(std::lround(volts * 100));
}

struct FixtureRow {
  std::string_view word;
  std::string_view values;
  std::span<const Model> models;
  void (*take)(LineWords& words, FixtureScript& script);
  std::string_view help;
  bool isOfMany = false;  ///< may stand in several lines
};

constexpr Model kBP[] = {Model::BP};
constexpr Model kKA2[] = {Model::KA2};
constexpr Model kBQ[] = {Model::BQ};
constexpr Model kAll[] = {Model::BP, Model::BQ, Model::KA2};

constexpr FixtureRow kFixtureRows[] = {
    {"rest", "INPUTS A0 A1 A2 A3", kBP, TakeRest, "what is read while nothing is driven"},
    {"output", "N VOLTS INPUTS A0 A1 A2 A3", kBP, TakeOutput,
     "what is read with output 0 to 3 at 12 or 24 V", true},
    {"outputs", "on|off INPUTS", kKA2, TakeSwitched, "what is read with both outputs on, and else",
     true},
    {"charger", "VOLTS...", kKA2, TakeCharger, "one a reading; the last lasts"},
    {"probe", "DEGREES", kKA2, TakeProbe, "temperature of the probe"},
    {"mains", "MS|lasts", kKA2, TakeMains, "goes that long after the outputs were last set"},
    {"keys", "[INPUTS...]", kBQ, TakeKeys, "pressed in turn, over and over; none without any"},
    {"key-time", "MS", kBQ, TakeKeyTime, "each key is pressed that long"},
    {"gsm", "MS STATE...", kAll, TakeGsm, "states of the modem from when the port is opened on"},
    {"battery", "VOLTS", kAll, TakeBattery, "as the board tells it"},
};

std::string ModelWords(std::span<const Model> models) {
  std::string words;
  for (const Model model : models)
    words.append(words.empty() ? "" : " ").append(TraitsOf(model).word);
  return words;
}

/// What is wrong with a line; empty for nothing.
std::string TakeLine(std::string_view line, Model model, std::set<std::string_view>& taken,
                     FixtureScript& script) {
  LineWords words(line);
  if (!words.More()) return {};
  const std::string_view word = words.Word("");
  const auto* row = std::ranges::find(kFixtureRows, word, &FixtureRow::word);
  const std::string quoted = "\"" + std::string(word) + "\"";
  if (row == std::ranges::end(kFixtureRows)) return "no word of a fixture is " + quoted;
  if (std::ranges::find(row->models, model) == row->models.end())
    return quoted + " is for " + ModelWords(row->models) + ", not for " +
           std::string(TraitsOf(model).word);
  if (!taken.insert(word).second && !row->isOfMany) return quoted + " stands twice";
  row->take(words, script);
  if (words.More()) words.Fail("\"" + std::string(words.Word("")) + "\" is too much");
  return words.Why().empty() ? "" : std::string(word) + ": " + words.Why();
}

}  // namespace

std::string ReadFixture(std::string_view text, Model model, FixtureScript& script) {
  std::set<std::string_view> taken;
  for (int number = 1; !text.empty(); ++number) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    const std::string why = TakeLine(line, model, taken, script);
    if (!why.empty()) return "line " + std::to_string(number) + ": " + why;
  }
  return {};
}

std::string FixtureHelp() {
  constexpr std::size_t kUsageWidth = 36, kModelsWidth = 11;
  std::string help;
  for (const FixtureRow& row : kFixtureRows) {
    std::string line = std::string(row.word) + " " + std::string(row.values);
    line.resize(std::max(line.size() + 2, kUsageWidth), ' ');
    line += ModelWords(row.models);
    line.resize(std::max(line.size() + 2, kUsageWidth + kModelsWidth), ' ');
    help.append(line).append(row.help).append("\n");
  }
  return help;
}

}  // namespace ostrel::sim
