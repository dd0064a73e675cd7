#include "Mutator.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace ostrel::fuzz {
namespace {

constexpr std::size_t kLongest = 6000;
constexpr int kMostChanges = 8;
constexpr int kMostRepeats = 40;
constexpr std::string_view kTelling = ",;=#{}[]()*+-.:\"'\\/ \t\r\n@!<>0189AFaf";
constexpr std::string_view kDigits = "0123456789";
constexpr const char* kNumbers[] = {
    "0",          "-0",         "-1",         "1e9",
    "1e39",       "-32769",     "32768",      "65535",
    "65536",      "255",        "256",        "0x1F",
    "2147483647", "2147483648", "4294967296", "99999999999999999999",
    "000001",     ".5",         "5.",         "",
    "nan",        "inf",        "1,5",        "-"};

std::size_t Place(const std::string& text, sim::Random& random) {
  return static_cast<std::size_t>(random.Next() % (text.size() + 1));
}

/// A range of a text, short ones more often.
std::pair<std::size_t, std::size_t> Range(const std::string& text, sim::Random& random) {
  const std::size_t start = Place(text, random);
  const std::size_t most = random.Chance(0.7) ? 12 : text.size();
  const std::size_t length = static_cast<std::size_t>(random.Next() % (most + 1));
  return {start, std::min(length, text.size() - start)};
}

}  // namespace

Mutator::Mutator(std::vector<std::string> corpus, std::vector<std::string> words,
                 std::uint64_t seed)
    : corpus_(std::move(corpus)), words_(std::move(words)), seed_(seed) {
  if (corpus_.empty()) corpus_.emplace_back();
}

std::string Mutator::Make(std::uint64_t number) const {
  if (number < corpus_.size()) return corpus_[static_cast<std::size_t>(number)];
  sim::Random random(seed_ * 0x9E3779B97F4A7C15U + number);
  std::string text = random.Pick(corpus_);
  for (int changes = random.Between(1, kMostChanges); changes > 0; --changes) {
    switch (random.Between(0, 4)) {
      case 0:
        ChangeOctets(text, random);
        break;
      case 1:
        ChangeRange(text, random);
        break;
      case 2:
        ChangeLines(text, random);
        break;
      case 3:
        ChangeNumber(text, random);
        break;
      default:
        Splice(text, random);
    }
    if (text.size() > kLongest) text.resize(kLongest);
  }
  return text;
}

void Mutator::ChangeOctets(std::string& text, sim::Random& random) const {
  if (text.empty()) return;
  char& octet = text[static_cast<std::size_t>(random.Next() % text.size())];
  if (random.Chance(0.4))
    octet = static_cast<char>(octet ^ (1 << random.Between(0, 7)));
  else
    octet = random.Chance(0.7) ? random.Pick(kTelling) : static_cast<char>(random.Between(0, 255));
}

void Mutator::ChangeRange(std::string& text, sim::Random& random) const {
  const auto [start, length] = Range(text, random);
  if (random.Chance(0.6)) {
    text.erase(start, length);
    return;
  }
  const std::string part = text.substr(start, length);
  std::string repeated;
  for (int count = random.Between(1, kMostRepeats); count > 0; --count) repeated += part;
  text.insert(start, repeated);
}

/// Cuts the end, doubles a line, or moves one.
void Mutator::ChangeLines(std::string& text, sim::Random& random) const {
  if (random.Chance(0.3)) return text.resize(Place(text, random));
  const std::size_t at = Place(text, random);
  const std::size_t start = at == 0 ? 0 : text.rfind('\n', at - 1) + 1;  // behind none is 0
  const std::size_t end = std::min(text.find('\n', at), text.size() - 1) + 1;
  if (start >= end) return;
  const std::string line = text.substr(start, end - start);
  if (random.Chance(0.5)) text.erase(start, end - start);
  text.insert(random.Chance(0.5) ? std::min(start, text.size()) : Place(text, random), line);
}

void Mutator::ChangeNumber(std::string& text, sim::Random& random) const {
  const std::size_t start = text.find_first_of(kDigits, Place(text, random));
  if (start == std::string::npos) return;
  const std::size_t end = std::min(text.find_first_not_of(kDigits, start), text.size());
  const bool small = random.Chance(0.5);
  text.replace(start, end - start,
               small ? std::to_string(random.Between(-2, 300)) : random.Pick(kNumbers));
}

/// Puts a word or a part of another kept input in.
void Mutator::Splice(std::string& text, sim::Random& random) const {
  const std::size_t at = Place(text, random);
  if (!words_.empty() && random.Chance(0.6)) {
    text.insert(at, random.Pick(words_));
    return;
  }
  const std::string& other = random.Pick(corpus_);
  const auto [start, length] = Range(other, random);
  if (random.Chance(0.5))
    text.insert(at, other, start, length);
  else
    text.replace(at, std::string::npos, other, start, std::string::npos);
}

}  // namespace ostrel::fuzz
