#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Face.h"

namespace ostrel {

class Form;

// Controls on which an operator reads what a logger measures. One whose value has not come lately
// is stale: it keeps its value and is shown grey.

/// Since when a value has not come.
struct Staleness {
  bool isStale = false;
  std::string since{};  ///< "12:03:05", when it came last; empty when it never did

  bool operator==(const Staleness&) const = default;
};

/// A number in large digits.
class DigitBox {
 public:
  DigitBox(Form& form, std::string_view name);
  const std::string& Text() const { return text_; }
  void SetText(std::string_view text);
  const Staleness& Stale() const { return stale_; }
  void SetStale(const Staleness& stale);

  Face face;

 private:
  std::string text_;
  Staleness stale_;
};

/// A line of text that holds what was read; its caption is the text.
class ReadoutLine {
 public:
  ReadoutLine(Form& form, std::string_view name);
  const Staleness& Stale() const { return stale_; }
  void SetStale(const Staleness& stale);

  Face face;

 private:
  Staleness stale_;
};

/// A lamp, which is dark or lit.
class LedMedio {
 public:
  static constexpr int kDark = 1;
  static constexpr int kLit = 3;

  LedMedio(Form& form, std::string_view name);
  int Value() const { return value_; }
  void SetValue(int value);
  const Staleness& Stale() const { return stale_; }
  void SetStale(const Staleness& stale);

  Face face;

 private:
  int value_ = kDark;
  Staleness stale_;
};

/// Where an alarm begins, and how far a value has to come back for it to end.
struct AlarmBand {
  double minimum = 0, maximum = 0, hysteresis = 0;

  bool operator==(const AlarmBand&) const = default;
};

/// Where a value stands in a band. Within the hysteresis an alarm that has begun goes on, and one
/// that has not does not begin.
enum class BandPlace { Inside, NearMinimum, NearMaximum, Below, Above };
BandPlace PlaceIn(const AlarmBand& band, double value);

/// A bar that shows a value among the bands of its alarms. It is hidden while there are none. Its
/// caption is the name of the value.
class LimitBar {
 public:
  LimitBar(Form& form, std::string_view name);
  const std::vector<AlarmBand>& Bands() const { return bands_; }
  const std::optional<double>& Value() const { return value_; }
  /// Shows bands, and a value where there is one.
  void Set(const std::vector<AlarmBand>& bands, const std::optional<double>& value);

  Face face;

 private:
  std::vector<AlarmBand> bands_;
  std::optional<double> value_;
};

/// Tabs of which the operator chooses one. Some may be hidden.
class TabRow {
 public:
  struct Tab {
    std::string caption;
    bool visible = true;

    bool operator==(const Tab&) const = default;
  };

  TabRow(Form& form, std::string_view name);
  const std::vector<Tab>& Tabs() const { return tabs_; }
  void SetTabs(std::vector<Tab> tabs);
  int Chosen() const { return chosen_; }
  /// Chooses a tab; one that is hidden or does not exist changes nothing.
  void Choose(int tab);

  Face face;

 private:
  bool IsVisible(int tab) const;

  std::vector<Tab> tabs_;
  int chosen_ = 0;
};

}  // namespace ostrel
