#pragma once

#include <charconv>
#include <string>

#include "platform/Settings.h"

namespace ostrel {

/// How many records the downloads of each model have, so that the next one can tell its remaining
/// time.
class RecordCounts {
 public:
  explicit RecordCounts(Settings& settings) : settings_(settings) {}

  /// As many as the user's last download from the model had, else as many as is usual.
  int Expected(const std::string& targetType) const {
    constexpr int kUsual = 150;
    const std::string text = settings_.Get(kMaker, kRecords, targetType);
    int records = 0;
    std::from_chars(text.data(), text.data() + text.size(), records);
    return records > 0 ? records : kUsual;
  }
  void Keep(const std::string& targetType, int records) {
    if (records > 0 && records != Expected(targetType))
      settings_.Set(kMaker, kRecords, targetType, std::to_string(records));
  }

 private:
  static constexpr std::string_view kRecords = "Records";

  Settings& settings_;
};

}  // namespace ostrel
