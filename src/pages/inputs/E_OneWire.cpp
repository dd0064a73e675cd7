#include "pages/inputs/E_OneWire.h"

#include "blocks/inputs/InterfaceCodes.h"
#include "blocks/inputs/Probes.h"

namespace ostrel {
namespace {

constexpr std::array<CodeOption, 3> kProbeInterfaces{{
    {"Int_NoHabil", "No habil.", kInterfaceOff},
    {"Int_1WTemp", "Temperatura", kInterfaceTemperature},
    {"Int_1WHum", "Humedad", kInterfaceHumidity},
}};

/// The boxes hold three digits an octet.
ConfOneWire WithWholeIdentity(ConfOneWire record) {
  for (std::string* half : {&record.ADDRESS1, &record.ADDRESS2}) *half = WholeHalf(*half);
  return record;
}

}  // namespace

ProbeChannel::ProbeChannel(Form& form, const PageContext& context)
    : context_(context),
      Nombre(form, "Nombre"),
      Unidad(form, "Unidad"),
      FrameInterface(form, "FrameInterface", "Interfaz"),
      interface_(form, {}, kProbeInterfaces),
      FrameID(form, "FrameID", "Direccion"),
      OptionNoId(form, addressing_, "OptionNoId", "Modo sonda unica"),
      OptionId(form, addressing_, "OptionId", "ID de la sonda:"),
      ID0(form, "ID0"),
      ID1(form, "ID1"),
      BotonLeerId(form, "BotonLeerId", "Leer ID") {
  fields_.Bind(Nombre, &ConfOneWire::NOMBRE);
  Edits(OptionId.face, &ConfOneWire::ID);
  interface_.NoteField(&ConfOneWire::INTERFAZ);
  fields_.Bind(Unidad, &ConfOneWire::UNIDAD);
  fields_.Bind(ID0, &ConfOneWire::ADDRESS1);
  fields_.Bind(ID1, &ConfOneWire::ADDRESS2);
  OptionId.OnClick = [this] { ClickId(); };
  OptionNoId.OnClick = [this] { ClickNoId(); };
  BotonLeerId.OnClick = [this] { context_.WhenFree([this] { ReadIdentity(); }); };
}

void ProbeChannel::ClickId() { EnableIdentity(true); }

void ProbeChannel::ClickNoId() {
  EnableIdentity(false);
  ID0.SetText(kNoIdentity);
  ID1.SetText(kNoIdentity);
}

void ProbeChannel::EnableIdentity(bool enabled) {
  for (Face* face : {&ID0.face, &ID1.face, &BotonLeerId.face}) face->SetEnabled(enabled);
}

void ProbeChannel::ReadIdentity() {
  context_.ShowMessage(context_.Translate("Recuerde que solo debe haber una sonda conectada"),
                       BoxIcon::Information);
  const std::int16_t asked = index_;
  const auto identity = context_.readProbeIdentity();
  // Another probe may have been opened meanwhile, or the identity given up.
  if (!identity || asked != index_ || !OptionId.Selected()) return;
  ID0.SetText(identity->first);
  ID1.SetText(identity->second);
}

void ProbeChannel::Load(const ConfOneWire& record) {
  interface_.Load(record.INTERFAZ);
  (record.ID ? OptionId : OptionNoId).SetSelected(true);
  EnableIdentity(bool(record.ID));
  fields_.Load(WithWholeIdentity(record));
}

void ProbeChannel::Save(ConfOneWire& record) const {
  fields_.Save(record);
  record = WithWholeIdentity(record);
  record.INTERFAZ = interface_.Code();
  record.ID = Bool16(OptionId.Selected());
}

}  // namespace ostrel
