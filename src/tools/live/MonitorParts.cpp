#include "tools/live/MonitorParts.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Values.h"
#include "model/Features.h"
#include "tools/live/LiveLimits.h"

namespace ostrel {
namespace {

/// "9:05:07".
std::string TimeOfDayText(const DateTime& time) {
  return TimeText({(time.hour * 60 + time.minute) * 60 + time.second});
}

std::string TimeOfRead(const LiveRead& read) {
  return TimeOfDayText(WallTime{read.at, {}}.LocalSeconds());
}

}  // namespace

std::string ControlName(std::string_view stem, int index) {
  return std::string(stem) + "(" + std::to_string(index) + ")";
}

std::string ControlName(std::string_view stem, std::string_view family, std::string_view end,
                        int index) {
  return ControlName(std::string(stem).append(family).append(end), index);
}

MeasureRow::MeasureRow(Form& form, std::string_view family, int index, const RowShape& shape)
    : name(form, ControlName("Label_", family, "_Name", index)),
      digit(form, ControlName("Digit_", family, "", index)) {
  if (shape.hasUnit) unit.emplace(form, ControlName("Label_", family, "_Unit", index));
  if (shape.hasBar) bar.emplace(form, ControlName("Bar_", family, "", index));
}

void MeasureRow::SetVisible(bool visible) {
  name.face.SetVisible(visible);
  digit.face.SetVisible(visible);
  if (unit) unit->face.SetVisible(visible);
  if (bar && !visible) bar->Set({}, {});
}

void MeasureRow::SetNames(const std::string& shownName, const std::string& shownUnit) {
  name.face.SetCaption(shownName);
  if (unit) unit->face.SetCaption(shownUnit);
}

void AddRows(MeasureRows& rows, Form& form, std::string_view family, int count,
             const RowShape& shape) {
  for (int i = 0; i < count; ++i) rows.emplace_back(form, family, i, shape);
}

void AddLamps(Lamps& lamps, Labels& labels, Form& form, std::string_view lamp,
              std::string_view label, std::string_view letter, int count) {
  for (int i = 0; i < count; ++i) {
    lamps.emplace_back(form, ControlName(lamp, i));
    labels.emplace_back(form, ControlName(label, i));
    labels.back().face.SetCaption(std::string(letter) + std::to_string(i));
  }
}

MathPart::MathPart(Form& form)
    : FrameCMat(form, "FrameCMat", "Canales matematicos"),
      FrameRMat(form, "FrameRMat", "Registros matematicos") {
  AddRows(rows, form, "MAT", kMathRows);
  AddRows(registers, form, "RMAT", kMathRegisters, {.hasUnit = false, .hasBar = false});
  for (int i = 0; i < kMathRegisters; ++i)
    registers[static_cast<std::size_t>(i)].SetNames("R" + std::to_string(i));
}

Staleness LiveShow::AgeOf(const LiveRead& read) const {
  if (context_.Connected && !read.IsStale()) return {};
  return {.isStale = true, .since = read.hasCome ? TimeOfRead(read) : ""};
}

void LiveShow::Measure(MeasureRow& row, LiveId id, LiveAnswer answer, std::string_view text,
                       double number) const {
  row.digit.SetText(text);
  row.digit.SetStale(AgeOf(answer));
  if (!row.bar || !row.IsVisible()) return;
  row.bar->face.SetCaption(LiveName(id, row.name.face.Caption()));
  Bar(*row.bar, id, answer, number);
}

void LiveShow::Bar(LimitBar& bar, LiveId id, LiveAnswer answer, double number) const {
  std::optional<double> value;
  if (!AgeOf(answer).isStale) value = number;
  bar.Set(BandsOf(context_.conf, context_.info, id), value);
}

void LiveShow::ShowLamps(Lamps& lamps, std::uint32_t mask) const {
  const Staleness age = AgeOf(LiveAnswer::Masks);
  for (LedMedio& lamp : lamps) {
    lamp.SetValue((mask & 1U) != 0 ? LedMedio::kLit : LedMedio::kDark);
    lamp.SetStale(age);
    mask >>= 1U;
  }
}

void LiveShow::ShowMath(MathPart& math) const {
  const bool computes = Has(context_.info.Features, Feature::Math);
  const auto show = [&](MeasureRow& row, LiveId id, LiveAnswer answer, const std::string& text,
                        double number) {
    const std::string kept = row.digit.Text();
    if (computes || !kept.empty()) Measure(row, id, answer, computes ? text : kept, number);
  };
  const RealTimeData& live = context_.live;
  for (int i = 0; i < std::min<int>(kMathRows, context_.profile.MathCount); ++i)
    show(math.rows[static_cast<std::size_t>(i)], {LiveKind::Math, i}, LiveAnswer::Math,
         NumText(live.MathValue[i]), live.MathValue[i]);
  for (int i = 0; i < kMathRegisters; ++i)
    show(math.registers[static_cast<std::size_t>(i)], {LiveKind::MathRegister, i},
         LiveAnswer::MathRaw, live.MathRaw[i], 0);
}

void ShowMathNames(MathPart& math, const RealTimeData& live, const TargetProfile& model) {
  for (int i = 0; i < std::min<int>(kMathRows, model.MathCount); ++i)
    math.rows[static_cast<std::size_t>(i)].SetNames(live.MathName[i], live.MathUnit[i]);
}

void LiveShow::ShowClock(ReadoutLine& line) const {
  const DateTime& now = context_.live.DeviceClock;
  const std::string date = DateTimeText(now);  // "2026-03-02 ..."
  line.face.SetCaption("RTC: " + date.substr(8, 2) + "/" + date.substr(5, 2) + "/" +
                       date.substr(0, 4) + " " + TimeOfDayText(now));
  line.SetStale(AgeOf(context_.live.ClockRead));
}

std::string LiveShow::AgeText() const {
  const LiveRead& read = context_.live.ReadOf(LiveAnswer::Masks);
  if (!read.hasCome) return {};
  return context_.Translate("Ultima lectura:") + " " + TimeOfRead(read);
}

}  // namespace ostrel
