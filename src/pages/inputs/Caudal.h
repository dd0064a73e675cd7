#pragma once

#include <array>

#include "pages/ChannelPage.h"
#include "pages/parts/BoundFields.h"
#include "pages/parts/CodeChoice.h"

namespace ostrel {

/// A flow meter: name and unit, time base, weight of a pulse, its live total, and its alarms.
class FlowChannel {
 public:
  using Record = ConfCaudal;
  static constexpr ChannelTraits kTraits{.page = PageId::Caudal,
                                         .form = "Caudal",
                                         .title = "Configuracion caudalimetro",
                                         .help = "Flow",
                                         .channels = 9};
  static constexpr std::array<ThresholdBox, 4> kThresholds{
      ThresholdBox{.name = "Minimo", .isScaled = true},
      ThresholdBox{.name = "Maximo", .isScaled = true},
      ThresholdBox{.name = "Histeresis", .isScaled = true}, ThresholdBox{.name = "Persist"}};

  FlowChannel(Form& form, const PageContext& context);

  static auto& Records(DeviceConf& conf) { return conf.Caudal; }
  void Load(const ConfCaudal& record);
  void Save(ConfCaudal& record) const;
  void LoadLive(std::int16_t index);
  /// An older firmware keeps the thresholds in pulses. What the boxes were filled by holds until
  /// they are filled anew, whatever logger has answered meanwhile.
  float Factor(const ConfCaudal& record) const { return hasPulses_ ? record.RATIO : 1; }
  void Tick() { ShowUnit(); }
  void CheckNumbers() { fields_.CheckNumbers(); }

 private:
  /// Enables what only a meter that is on has; a code of neither changes nothing.
  void ApplyInterface(std::int16_t code);
  void ShowUnit() { RatioUnit.face.SetCaption(Unidad.Text()); }

  const PageContext& context_;
  BoundFields<ConfCaudal> fields_;
  TextBox Nombre;
  CodeChoice interface_;
  Frame FrameUnidad;
  TextBox Unidad;
  Frame FrameTimeBase;
  TextBox TimeBase;
  Label LabelSeconds;
  Frame FrameConversion;
  Label Label1;
  TextBox Ratio;
  Label RatioUnit;
  Button HelpBut;
  Frame FrameTotal;
  Label TotalText;
  Button BotonModificar;
  Label Asterisk, Notice;
  std::int16_t index_ = 0;
  bool hasPulses_ = false;
};

using Caudal = ChannelPage<FlowChannel>;

}  // namespace ostrel
