#pragma once

#include <array>

#include "pages/ChannelPage.h"
#include "pages/parts/BoundFields.h"
#include "pages/parts/CodeChoice.h"

namespace ostrel {

/// A MODBUS channel: the register of a slave, what is made of its value, and its alarm.
class ModbusChannelControls {
 public:
  using Record = ConfModbus;
  static constexpr ChannelTraits kTraits{.page = PageId::E_MODBUS,
                                         .form = "E_MODBUS",
                                         .title = "Configuracion canal MODBUS ",
                                         .help = "MODBUS",
                                         .channels = 32};
  static constexpr std::array<ThresholdBox, 4> kThresholds{
      ThresholdBox{"Minimo"}, ThresholdBox{"Maximo"}, ThresholdBox{"Histeresis"},
      ThresholdBox{"Persist", {}, kInt}};

  ModbusChannelControls(Form& form, PageContext& context);

  static auto& Records(DeviceConf& conf) { return conf.Modbus; }
  void Load(const ConfModbus& record);
  void Save(ConfModbus& record) const;
  void CheckNumbers() const { fields_.CheckNumbers(); }
  /// A slave of the bus polls nothing.
  void Tick();

 private:
  void ShowMode(bool isAnalog);

  const PageContext& context_;
  BoundFields<ConfModbus> fields_;
  TextBox Nombre, Unidad;
  Label Label8;
  TextBox SlaveAddres;
  Label Label9;
  TextBox RegAddres;
  CodeChoice size_;
  OptionGroup mode_;
  OptionButton OptAnalog, OptDigital;
  Label LabelMult;
  TextBox Multiplicador;
  Label LabelPlus;
  TextBox Constante;
  Label LabelMask;
  TextBox Mascara;
  Button HelpBut;
  CheckBox CheckNegar;
  Label LabelMin, LabelMax, LabelHist, LabelPersist;
  Label Notice, NoticeTimer;
};

using E_MODBUS = ChannelPage<ModbusChannelControls>;

}  // namespace ostrel
