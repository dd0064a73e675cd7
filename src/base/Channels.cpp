#include "base/Channels.h"

#include <charconv>
#include <optional>

namespace ostrel {
namespace {

/// Channels that follow each other: both the channel number and the token number rise by one.
struct Run {
  std::string_view prefix;
  std::int16_t firstChannel;
  std::int16_t firstToken;
  std::int16_t count;
};

enum class Models { All, OnlyS100, AllButS100 };

struct Row {
  Run run;
  Models models;  ///< where numbers become these tokens; tokens are understood for every model
};

constexpr Row kRows[] = {
    {{"AI", 0, 0, 4}, Models::All},        {{"FL", 12, 0, 8}, Models::All},
    {{"DI", 21, 0, 8}, Models::All},       {{"MB", 29, 0, 32}, Models::AllButS100},
    {{"EX", 29, 0, 32}, Models::OnlyS100}, {{"FG", 61, 0, 16}, Models::All},
    {{"DI", 97, 8, 1}, Models::All},       {{"PB", 105, 0, 4}, Models::All},
    {{"EX", 117, 32, 96}, Models::All},
};

constexpr std::string_view kUnreadToken = "EX91";

bool Holds(const Run& run, std::int32_t channel) {
  return channel >= run.firstChannel && channel < run.firstChannel + run.count;
}

bool Serves(Models models, bool isS100) {
  return models == Models::All || (models == Models::OnlyS100) == isS100;
}

/// The token number in plain digits, without sign or leading zeros.
std::optional<std::int16_t> TokenNumber(std::string_view digits) {
  std::int16_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || std::to_string(number) != digits) return std::nullopt;
  return number;
}

}  // namespace

std::int16_t TokenToChannel(std::string_view token) {
  // A known fault, kept on purpose: what is stored as EX91 reads as AI0.
  if (token == kUnreadToken || token.size() < 3) return 0;
  const auto number = TokenNumber(token.substr(2));
  if (!number) return 0;
  for (const Row& row : kRows) {
    const int place = *number - row.run.firstToken;
    if (token.starts_with(row.run.prefix) && place >= 0 && place < row.run.count)
      return static_cast<std::int16_t>(row.run.firstChannel + place);
  }
  return 0;
}

std::string ChannelToToken(std::int32_t channel, bool isS100) {
  for (const Row& row : kRows) {
    if (!Holds(row.run, channel) || !Serves(row.models, isS100)) continue;
    return std::string(row.run.prefix) +
           std::to_string(channel - row.run.firstChannel + row.run.firstToken);
  }
  return {};
}

}  // namespace ostrel
