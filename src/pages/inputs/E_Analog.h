#pragma once

#include <array>

#include "pages/ChannelPage.h"
#include "pages/parts/BoundFields.h"
#include "pages/parts/CodeChoice.h"

namespace ostrel {

/// An analog input: name and unit, electrical interface, scale, power group, and its alarms.
class AnalogChannel {
 public:
  using Record = ConfAnalog;
  static constexpr ChannelTraits kTraits{.page = PageId::E_Analog,
                                         .form = "E_Analog",
                                         .title = "Configuracion entrada analogica ",
                                         .help = "Analog",
                                         .channels = 4};
  static constexpr std::array<ThresholdBox, 4> kThresholds{
      ThresholdBox{"Minimo"}, ThresholdBox{"Maximo"}, ThresholdBox{"Histeresis"},
      ThresholdBox{"Persist"}};

  AnalogChannel(Form& form, const PageContext& context);

  static auto& Records(DeviceConf& conf) { return conf.Analog; }
  void Load(const ConfAnalog& record);
  void Save(ConfAnalog& record) const;
  bool Activate();
  void CheckNumbers() { fields_.CheckNumbers(); }

 private:
  /// Shows the jumpers of an interface, where the model has them.
  void ShowJumpers(std::int16_t code);

  const PageContext& context_;
  BoundFields<ConfAnalog> fields_;
  TextBox Nombre, Unidad;
  CodeChoice interface_;
  Label Label1;
  TextBox IE;
  Label Label2;
  TextBox FE;
  TextBox EqIE, EqFE;
  ComboBox Grupo;
  Label Label11;
  Picture Jumper;
  Label Asterisk, Notice;
};

using E_Analog = ChannelPage<AnalogChannel>;

}  // namespace ostrel
