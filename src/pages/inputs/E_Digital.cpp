#include "pages/inputs/E_Digital.h"

namespace ostrel {

DigitalChannel::DigitalChannel(Form& form, const PageContext&)
    : Nombre(form, "Nombre"),
      Int_NA(form, contact_, "Int_NA", "N.A."),
      Int_NC(form, contact_, "Int_NC", "N.C.") {
  fields_.Bind(Nombre, &ConfDigital::NOMBRE);
  Edits(Int_NC.face, &ConfDigital::NC);
  Int_NA.OnClick = [this] { CurrentNC_ = false; };
  Int_NC.OnClick = [this] { CurrentNC_ = true; };
}

void DigitalChannel::Load(const ConfDigital& record) {
  fields_.Load(record);
  (record.NC ? Int_NC : Int_NA).SetSelected(true);
}

void DigitalChannel::Save(ConfDigital& record) const {
  fields_.Save(record);
  record.NC = Bool16(CurrentNC_);
}

}  // namespace ostrel
