#pragma once

#include "pages/PlainPage.h"
#include "pages/parts/BoundFields.h"
#include "pages/parts/FirmwareNotice.h"

namespace ostrel {

/// The MODBUS port: its bit rate, and whether the logger is the master of the bus or a slave.
class ModbusBusControls {
 public:
  static constexpr PlainTraits kTraits{.page = PageId::CONF_MODBUS,
                                       .form = "CONF_MODBUS",
                                       .title = "Configuracion general MODBUS ",
                                       .help = "MODBUSC"};

  ModbusBusControls(Form& form, PageContext& context);

  void LoadData();
  void Save(DeviceConf& conf) const;
  void CheckNumbers() const { fields_.CheckNumbers(); }
  /// A firmware without the slave mode leaves the role of the master alone.
  void Tick();

 private:
  void ShowRole(bool isSlave);

  PageContext& context_;
  BoundFields<ConfModbusBus> fields_;
  Frame FrameVelocidad;
  ComboBox ComboVelocidad;
  Label LabelBaudios;
  Frame FrameMasterSlave;
  OptionGroup role_;
  OptionButton MasterOpt, SlaveOpt;
  Label Line1, LabelAddress;
  TextBox SlaveAddress;
  FirmwareNotice notice_;
};

using CONF_MODBUS = PlainPage<ModbusBusControls>;

}  // namespace ostrel
