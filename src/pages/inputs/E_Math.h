#pragma once

#include <array>

#include "pages/ChannelPage.h"
#include "pages/parts/BoundFields.h"
#include "pages/parts/CodeChoice.h"

namespace ostrel {

/// A channel that the logger computes: name and unit, its equation, and its alarm.
class MathChannel {
 public:
  using Record = ConfMath;
  static constexpr ChannelTraits kTraits{.page = PageId::E_Math,
                                         .form = "E_Math",
                                         .title = "Configuracion canal matematico ",
                                         .help = "Math",
                                         .channels = 4};
  static constexpr std::array<ThresholdBox, 4> kThresholds{
      ThresholdBox{"Minimo"}, ThresholdBox{"Maximo"}, ThresholdBox{"Histeresis"},
      ThresholdBox{"Persist"}};

  MathChannel(Form& form, const PageContext&);

  static auto& Records(DeviceConf& conf) { return conf.Math; }
  void Load(const ConfMath& record);
  void Save(ConfMath& record) const;
  void CheckNumbers() {}

 private:
  BoundFields<ConfMath> fields_;
  TextBox Nombre, Unidad;
  CodeChoice interface_;
  Frame FrameEcuacion;
  TextBox Ecuacion;
};

using E_Math = ChannelPage<MathChannel>;

}  // namespace ostrel
