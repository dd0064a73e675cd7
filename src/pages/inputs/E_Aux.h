#pragma once

#include <array>

#include "pages/ChannelPage.h"
#include "pages/parts/BoundFields.h"
#include "pages/parts/CodeChoice.h"

namespace ostrel {

/// An auxiliary input of a logger for cathodic protection: name and unit, scale, and its alarms.
class AuxiliaryChannel {
 public:
  using Record = ConfAux;
  static constexpr ChannelTraits kTraits{.page = PageId::E_Aux,
                                         .form = "E_Aux",
                                         .title = "Configuracion entrada auxiliar ",
                                         .help = {},
                                         .channels = 4};
  static constexpr std::array<ThresholdBox, 4> kThresholds{
      ThresholdBox{"Minimo"}, ThresholdBox{"Maximo"}, ThresholdBox{"Histeresis"},
      ThresholdBox{"Persist"}};

  AuxiliaryChannel(Form& form, const PageContext&);

  static auto& Records(DeviceConf& conf) { return conf.Aux; }
  /// The fixed range of an input.
  static std::string_view TitleEnd(std::int16_t index);
  void Load(const ConfAux& record);
  void Save(ConfAux& record) const;
  void CheckNumbers() const { fields_.CheckNumbers(); }

 private:
  BoundFields<ConfAux> fields_;
  TextBox Nombre, Unidad;
  CodeChoice interface_;
  Label Label1;
  TextBox IE;
  Label Label2;
  TextBox FE, EqIE, EqFE;
};

using E_Aux = ChannelPage<AuxiliaryChannel>;

}  // namespace ostrel
