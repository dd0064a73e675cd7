#include "controls/Readouts.h"

#include <utility>

#include "controls/Form.h"

namespace ostrel {
namespace {

/// Sets what a control shows, and tells its face of a change.
template <class T>
void Put(T& shown, T value, const Face& face) {
  if (shown == value) return;
  shown = std::move(value);
  face.Changed();
}

}  // namespace

DigitBox::DigitBox(Form& form, std::string_view name) : face(name, "") { form.Register(this); }

void DigitBox::SetText(std::string_view text) { Put(text_, std::string(text), face); }

void DigitBox::SetStale(const Staleness& stale) { Put(stale_, stale, face); }

ReadoutLine::ReadoutLine(Form& form, std::string_view name) : face(name, "") {
  form.Register(this);
}

void ReadoutLine::SetStale(const Staleness& stale) { Put(stale_, stale, face); }

LedMedio::LedMedio(Form& form, std::string_view name) : face(name, "") { form.Register(this); }

void LedMedio::SetValue(int value) { Put(value_, value, face); }

void LedMedio::SetStale(const Staleness& stale) { Put(stale_, stale, face); }

BandPlace PlaceIn(const AlarmBand& band, double value) {
  if (value > band.maximum) return BandPlace::Above;
  if (value < band.minimum) return BandPlace::Below;
  if (value > band.maximum - band.hysteresis) return BandPlace::NearMaximum;
  if (value < band.minimum + band.hysteresis) return BandPlace::NearMinimum;
  return BandPlace::Inside;
}

LimitBar::LimitBar(Form& form, std::string_view name) : face(name, "") {
  form.Register(this);
  face.SetVisible(false);
}

void LimitBar::Set(const std::vector<AlarmBand>& bands, const std::optional<double>& value) {
  const bool isSame = bands == bands_ && value == value_;
  bands_ = bands;
  value_ = value;
  face.SetVisible(!bands.empty());
  if (!isSame) face.Changed();
}

TabRow::TabRow(Form& form, std::string_view name) : face(name, "") { form.Register(this); }

bool TabRow::IsVisible(int tab) const {
  return tab >= 0 && tab < static_cast<int>(tabs_.size()) &&
         tabs_[static_cast<std::size_t>(tab)].visible;
}

void TabRow::SetTabs(std::vector<Tab> tabs) {
  if (tabs == tabs_) return;
  tabs_ = std::move(tabs);
  if (!IsVisible(chosen_)) chosen_ = 0;
  face.Changed();
}

void TabRow::Choose(int tab) {
  if (tab == chosen_ || !IsVisible(tab)) return;
  chosen_ = tab;
  face.Changed();
}

}  // namespace ostrel
