#include "pages/bus/CONF_MODBUS.h"

#include "blocks/bus/ModbusBus.h"

namespace ostrel {

ModbusBusControls::ModbusBusControls(Form& form, PageContext& context)
    : context_(context),
      FrameVelocidad(form, "FrameVelocidad", "Velocidad"),
      ComboVelocidad(form, "ComboVelocidad"),
      LabelBaudios(form, "LabelBaudios", "Baudios"),
      FrameMasterSlave(form, "FrameMasterSlave", "Maestro / Esclavo"),
      MasterOpt(form, role_, "MasterOpt", "Maestro"),
      SlaveOpt(form, role_, "SlaveOpt", "Esclavo"),
      Line1(form, "Line1"),
      LabelAddress(form, "LabelAddress", "Slave Address:"),
      SlaveAddress(form, "SlaveAddress"),
      notice_(form, context, Feature::ModbusSlave, "no soporta el modo esclavo en MODBUS.") {
  for (const std::int32_t rate : kModbusBitRates) ComboVelocidad.Add(std::to_string(rate), rate);
  fields_.Bind(SlaveAddress, &ConfModbusBus::SLAVE_ADDRESS, NumberForm::Num, kInt);
  Edits(ComboVelocidad.face, &ConfModbusBus::BAUD);
  Edits(MasterOpt.face, &ConfModbusBus::MASTER);
  MasterOpt.OnClick = [this] { ShowRole(false); };
  SlaveOpt.OnClick = [this] { ShowRole(true); };
}

void ModbusBusControls::ShowRole(bool isSlave) {
  LabelAddress.face.SetEnabled(isSlave);
  SlaveAddress.face.SetEnabled(isSlave);
  Line1.face.SetVisible(isSlave);
}

void ModbusBusControls::LoadData() {
  const ConfModbusBus& bus = context_.conf.ModbusBus;
  for (std::size_t row = 0; row < kModbusBitRates.size(); ++row)
    if (kModbusBitRates[row] == bus.BAUD) ComboVelocidad.SetPosition(static_cast<int>(row));
  (bus.MASTER ? MasterOpt : SlaveOpt).SetSelected(true);
  fields_.Load(bus);
}

void ModbusBusControls::Save(DeviceConf& conf) const {
  ConfModbusBus& bus = conf.ModbusBus;
  bus.BAUD = ComboVelocidad.Value(bus.BAUD);
  bus.MASTER = Bool16(MasterOpt.Selected());
  fields_.Save(bus);
}

void ModbusBusControls::Tick() {
  const bool isMasterOnly = notice_.Update();
  if (isMasterOnly) MasterOpt.SetSelected(true);
  MasterOpt.face.SetEnabled(!isMasterOnly);
  SlaveOpt.face.SetEnabled(!isMasterOnly);
}

}  // namespace ostrel
