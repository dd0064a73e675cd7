#include "pages/inputs/Katodex.h"

#include <algorithm>
#include <array>

namespace ostrel {
namespace {

constexpr std::array<std::int16_t, 3> kOffTimes{1, 2, 3};
constexpr std::array<std::int16_t, 5> kSampleRates{3, 5, 10, 20, 30};

void AddRows(ComboBox& box, std::span<const std::int16_t> values) {
  for (const std::int16_t value : values) box.Add(std::to_string(value), value);
}

/// Selects the row of a value; one without a row becomes that of the first.
void ShowRow(ComboBox& box, std::int16_t& value) {
  const auto& rows = box.Rows();
  const auto found = std::ranges::find(rows, value, &ListRow::value);
  box.SetPosition(found == rows.end() ? 0 : static_cast<int>(found - rows.begin()));
  Assign(value, box.Value());
}

}  // namespace

OffMeasurementControls::OffMeasurementControls(Form& form, PageContext& context)
    : context_(context),
      FrameOff(form, "FrameOff", "Configuracion medidas OFF"),
      LabelOff(form, "LabelOff", "T_OFF:"),
      ComboT_OFF(form, "ComboT_OFF"),
      Label4(form, "Label4", "Sec"),
      LabelFreq(form, "LabelFreq", "Frecuencia de muestreo:"),
      ComboSamples(form, "ComboSamples"),
      FrameRatio(form, "FrameRatio", "Conversion voltaje shunt / amperios"),
      Label3(form, "Label3", "Coeficiente:"),
      TextRatio(form, "TextRatio") {
  AddRows(ComboT_OFF, kOffTimes);
  AddRows(ComboSamples, kSampleRates);
  Edits(ComboT_OFF.face, &ConfKatodex::OFFTIME);
  Edits(ComboSamples.face, &ConfKatodex::SAMPLERATE);
  fields_.Bind(TextRatio, &ConfKatodex::AUX1RATIO, NumberForm::Num, kFloat);
}

void OffMeasurementControls::LoadData() {
  ConfKatodex& off = context_.conf.Katodex;
  ShowRow(ComboT_OFF, off.OFFTIME);
  ShowRow(ComboSamples, off.SAMPLERATE);
  fields_.Load(off);
}

void OffMeasurementControls::Save(DeviceConf& conf) const {
  Assign(conf.Katodex.OFFTIME, ComboT_OFF.Value());
  Assign(conf.Katodex.SAMPLERATE, ComboSamples.Value());
  fields_.Save(conf.Katodex);
}

void OffMeasurementControls::AfterClear() {
  ComboT_OFF.SetPosition(0);
  ComboSamples.SetPosition(0);
}

}  // namespace ostrel
