#include "pages/inputs/E_Math.h"

namespace ostrel {

MathChannel::MathChannel(Form& form, const PageContext&)
    : Nombre(form, "Nombre"),
      Unidad(form, "Unidad"),
      interface_(form, {}, kOffOrOn),
      FrameEcuacion(form, "FrameEcuacion", "Ecuacion de conversion"),
      Ecuacion(form, "Ecuacion") {
  fields_.Bind(Nombre, &ConfMath::NOMBRE);
  interface_.NoteField(&ConfMath::INTERFAZ);
  fields_.Bind(Unidad, &ConfMath::UNIDAD);
  fields_.Bind(Ecuacion, &ConfMath::ECUACION);
}

void MathChannel::Load(const ConfMath& record) {
  interface_.Load(record.INTERFAZ);
  fields_.Load(record);
}

void MathChannel::Save(ConfMath& record) const {
  fields_.Save(record);
  record.INTERFAZ = interface_.Code();
}

}  // namespace ostrel
