#include "pages/inputs/SampleRate.h"

#include <array>

#include "blocks/inputs/Sampling.h"
#include "pages/parts/ControlNames.h"
#include "pages/parts/Edits.h"

namespace ostrel {
namespace {

/// A row of the list of weights, and what it stands for in cubic metres a pulse.
struct WeightRow {
  std::string_view text;
  float weight;
};

constexpr std::array<WeightRow, 5> kWeights{{
    {"0.001m3", 0.001F},
    {"0.01m3", 0.01F},
    {"0.1m3", 0.1F},
    {"1m3", 1},
    {"10m3", 10},
}};

constexpr int kSlowRow = 0;
constexpr int kFastRow = 1;

ControlNames OfMeter(int meter) { return {.suffix = "(" + std::to_string(meter) + ")"}; }

}  // namespace

SamplingControls::WeightControls::WeightControls(Form& form, int meter)
    : LabelT(form, OfMeter(meter)("LabelT"),
             "Totalizador " + std::to_string(meter) + ", un pulso equivale a:"),
      ComboT(form, OfMeter(meter)("ComboT")) {
  ComboT.face.SetField({.word = Sampling::kWeightMeta.word, .channel = meter});
  for (const WeightRow& row : kWeights) ComboT.Add(row.text);
}

SamplingControls::SamplingControls(Form& form, PageContext& context)
    : context_(context),
      LabelFrecuencia(form, "LabelFrecuencia", "Frecuencia de muestreo:"),
      ComboSampleRate(form, "ComboSampleRate"),
      WarningMsg(form, "WarningMsg",
                 "¡ATENCION! El muestreo a 256Hz reduce la autonomia del equipo en un 20%"),
      notice_(form, context, Feature::TotalRatio,
              "no soporta la configuracion del peso por pulso en los totalizadores.") {
  Edits(ComboSampleRate.face, Sampling::kRateMeta);
  ComboSampleRate.Add("64Hz", kSlowSampling);
  ComboSampleRate.Add("256Hz", kFastSampling);
  for (int meter = 0; meter < Sampling::kMeters; ++meter) weights_.emplace_back(form, meter);
}

/// A weight that no row stands for leaves the list where it was.
void SamplingControls::LoadData() {
  ComboSampleRate.SetPosition(context_.conf.SAMPLERATE == kFastSampling ? kFastRow : kSlowRow);
  for (std::size_t meter = 0; meter < weights_.size(); ++meter)
    for (std::size_t row = 0; row < kWeights.size(); ++row)
      if (kWeights[row].weight == context_.conf.Caudal[meter].TOTALRATIO)
        weights_[meter].ComboT.SetPosition(static_cast<int>(row));
}

/// What the chosen rows say counts, not what stood in the model.
void SamplingControls::Save(DeviceConf& conf) const {
  conf.SAMPLERATE = ComboSampleRate.Position() == kFastRow ? kFastSampling : kSlowSampling;
  for (std::size_t meter = 0; meter < weights_.size(); ++meter)
    if (const int row = weights_[meter].ComboT.Position(); row >= 0)
      conf.Caudal[meter].TOTALRATIO = kWeights[static_cast<std::size_t>(row)].weight;
}

void SamplingControls::Activate() {
  for (Face* face : {&LabelFrecuencia.face, &ComboSampleRate.face, &WarningMsg.face})
    face->SetVisible(context_.profile.IsBQ);
  for (std::size_t meter = 0; meter < weights_.size(); ++meter) {
    const bool exists = std::cmp_less(meter, context_.profile.CaudalCount);
    weights_[meter].LabelT.face.SetVisible(exists);
    weights_[meter].ComboT.face.SetVisible(exists);
  }
}

}  // namespace ostrel
