#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "controls/Form.h"
#include "model/LiveRound.h"
#include "tools/ToolContext.h"

namespace ostrel {

/// What a row of a monitor has beside its name and its digits.
struct RowShape {
  bool hasUnit = true;
  bool hasBar = true;
};

// How many rows the pages have; a model shows as many of them as it has channels.
inline constexpr int kAnalogRows = 4;
inline constexpr int kPulseRows = 9;
inline constexpr int kMathRows = 4;
inline constexpr int kModbusRows = 32;
inline constexpr int kModuleLines = 96;

/// "Led_D(3)": a control of a family.
std::string ControlName(std::string_view stem, int index);
/// "Label_AN_Name(0)": a control of a row, whose family is "AN".
std::string ControlName(std::string_view stem, std::string_view family, std::string_view end,
                        int index);

/// One measured value on a monitor: name, digits, unit, and a bar with the limits of its alarms.
class MeasureRow {
 public:
  /// `family` names the controls: "AN" of row 0 has "Digit_AN(0)", "Label_AN_Name(0)" and so on.
  MeasureRow(Form& form, std::string_view family, int index, const RowShape& shape = {});

  void SetVisible(bool visible);
  bool IsVisible() const { return digit.face.Visible(); }
  void SetNames(const std::string& name, const std::string& unit = {});

  Label name;
  DigitBox digit;
  std::optional<Label> unit;
  std::optional<LimitBar> bar;
};

/// Rows or lamps of one family, in the order of their channels.
using MeasureRows = std::deque<MeasureRow>;
using Lamps = std::deque<LedMedio>;
using Labels = std::deque<Label>;

void AddRows(MeasureRows& rows, Form& form, std::string_view family, int count,
             const RowShape& shape = {});
/// Lamps with a label each; the captions are `letter` and the number.
void AddLamps(Lamps& lamps, Labels& labels, Form& form, std::string_view lamp,
              std::string_view label, std::string_view letter, int count);

/// The math channels and registers of a monitor.
struct MathPart {
  explicit MathPart(Form& form);

  Frame FrameCMat;
  MeasureRows rows;
  Frame FrameRMat;
  MeasureRows registers;
};

/// Names the math channels as the logger does.
void ShowMathNames(MathPart& math, const RealTimeData& live, const TargetProfile& model);

/// Brings what was read onto the controls of a monitor, and marks what has not come lately: after
/// two rounds without it, and as soon as the session has ended.
class LiveShow {
 public:
  explicit LiveShow(const ToolContext& context) : context_(context) {}

  Staleness AgeOf(LiveAnswer answer) const { return AgeOf(context_.live.ReadOf(answer)); }
  /// A value by its text; `number` is where the bar has it.
  void Measure(MeasureRow& row, LiveId id, LiveAnswer answer, std::string_view text,
               double number) const;
  void Bar(LimitBar& bar, LiveId id, LiveAnswer answer, double number) const;
  void ShowLamps(Lamps& lamps, std::uint32_t mask) const;
  /// On firmware that computes channels; on older one they stay as they are, and grey where they
  /// are of another logger.
  void ShowMath(MathPart& math) const;
  /// "RTC: 02/03/2026 9:05:07".
  void ShowClock(ReadoutLine& line) const;
  /// "Ultima lectura: 9:05:07", of the answer that has to come in every round.
  std::string AgeText() const;

 private:
  Staleness AgeOf(const LiveRead& read) const;

  const ToolContext& context_;
};

}  // namespace ostrel
