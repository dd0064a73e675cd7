#include "pages/inputs/E_Aux.h"

namespace ostrel {

AuxiliaryChannel::AuxiliaryChannel(Form& form, const PageContext&)
    : Nombre(form, "Nombre"),
      Unidad(form, "Unidad"),
      interface_(form, {}, kOffOrOn),
      Label1(form, "Label1", "Inicio escala:"),
      IE(form, "IE"),
      Label2(form, "Label2", "Fondo escala:"),
      FE(form, "FE"),
      EqIE(form, "EqIE"),
      EqFE(form, "EqFE") {
  fields_.Bind(Nombre, &ConfAux::NOMBRE);
  interface_.NoteField(&ConfAux::INTERFAZ);
  fields_.Bind(Unidad, &ConfAux::UNIDAD);
  fields_.Bind(IE, &ConfAux::IE, NumberForm::Dec, kFloat);
  fields_.Bind(FE, &ConfAux::FE, NumberForm::Dec, kFloat);
  fields_.Bind(EqIE, &ConfAux::EqIE, NumberForm::Dec, kFloat);
  fields_.Bind(EqFE, &ConfAux::EqFE, NumberForm::Dec, kFloat);
}

std::string_view AuxiliaryChannel::TitleEnd(std::int16_t index) {
  constexpr std::array<std::string_view, kTraits.channels> kRanges{" (15VCC)", " (150mVCC)",
                                                                   " (100VCA)", " (100VCC)"};
  return kRanges.at(static_cast<std::size_t>(index));
}

void AuxiliaryChannel::Load(const ConfAux& record) {
  interface_.Load(record.INTERFAZ);
  fields_.Load(record);
}

void AuxiliaryChannel::Save(ConfAux& record) const {
  fields_.Save(record);
  record.INTERFAZ = interface_.Code();
}

}  // namespace ostrel
