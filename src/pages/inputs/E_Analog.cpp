#include "pages/inputs/E_Analog.h"

#include "blocks/inputs/AnalogInputs.h"

namespace ostrel {

AnalogChannel::AnalogChannel(Form& form, const PageContext& context)
    : context_(context),
      Nombre(form, "Nombre"),
      Unidad(form, "Unidad"),
      Int_NoHabil(form, interface_, "Int_NoHabil", "No habil."),
      Int_4_20(form, interface_, "Int_4_20", "4/20mA"),
      Int_0_5(form, interface_, "Int_0_5", "0-5V"),
      Int_0_10(form, interface_, "Int_0_10", "0-10V"),
      Int_Press(form, interface_, "Int_Press", "Presion"),
      Label1(form, "Label1", "Inicio escala:"),
      IE(form, "IE"),
      Label2(form, "Label2", "Fondo escala:"),
      FE(form, "FE"),
      EqIE(form, "EqIE"),
      EqFE(form, "EqFE"),
      Grupo(form, "Grupo"),
      Label11(form, "Label11", "Jumpers:"),
      Jumper(form, "Jumper"),
      Asterisk(form, "Asterisk"),
      Notice(
          form, "Notice",
          "* La persistencia se expresa en numero de lecturas del canal. La frecuencia de lectura "
          "depende del temporizador configurado.") {
  fields_.Bind(Nombre, &ConfAnalog::NOMBRE);
  fields_.Bind(Unidad, &ConfAnalog::UNIDAD);
  fields_.Bind(IE, &ConfAnalog::IE, NumberForm::Dec, kFloat);
  fields_.Bind(FE, &ConfAnalog::FE, NumberForm::Dec, kFloat);
  fields_.Bind(EqIE, &ConfAnalog::EqIE, NumberForm::Dec, kFloat);
  fields_.Bind(EqFE, &ConfAnalog::EqFE, NumberForm::Dec, kFloat);
  fields_.Bind(Grupo, &ConfAnalog::GRUPO);
  Asterisk.face.SetCaption("*");
  for (int group = 0; group < 4; ++group) Grupo.Add(std::to_string(group), group);
  Int_NoHabil.OnClick = [this] { ClickInterface(kInterfaceOff); };
  Int_4_20.OnClick = [this] { ClickInterface(kInterfaceCurrent); };
  Int_0_5.OnClick = [this] { ClickInterface(kInterface5V); };
  Int_0_10.OnClick = [this] { ClickInterface(kInterface10V); };
  Int_Press.OnClick = [this] { ClickInterface(kInterfacePressure); };
}

bool AnalogChannel::Activate() {
  const TargetProfile& model = context_.profile;
  for (OptionButton* option : {&Int_Press, &Int_4_20, &Int_0_5, &Int_0_10})
    option->face.SetEnabled(false);
  for (Face* face : {&Label11.face, &Jumper.face, &Asterisk.face, &Notice.face})
    face->SetVisible(false);
  if (model.IsBP) {
    for (OptionButton* option : {&Int_4_20, &Int_0_5, &Int_0_10}) option->face.SetEnabled(true);
    for (Face* face : {&Label11.face, &Jumper.face, &Asterisk.face, &Notice.face})
      face->SetVisible(true);
  }
  if (model.IsVR200) {
    for (OptionButton* option : {&Int_4_20, &Int_0_10}) option->face.SetEnabled(true);
    for (Face* face : {&Label11.face, &Jumper.face}) face->SetVisible(true);
  }
  for (Face* face : {&Label1.face, &Label2.face, &IE.face, &FE.face, &Grupo.face})
    face->SetEnabled(!model.IsBQ);
  if (model.IsBQ) {
    Int_Press.face.SetEnabled(true);
    Jumper.face.SetVisible(false);
    Grupo.SetPosition(0);
  }
  if (model.IsS100) Int_4_20.face.SetEnabled(true);
  return true;
}

void AnalogChannel::ClickInterface(std::int16_t code) {
  CurrentInterface_ = code;
  if (code == kInterface5V) Jumper.SetImage(1);
  if (code == kInterface10V && context_.profile.IsBP) Jumper.SetImage(2);
  if (code == kInterface10V && context_.profile.IsVR200) Jumper.SetImage(4);
  if (code == kInterfaceCurrent && context_.profile.IsBP) Jumper.SetImage(3);
  if (code == kInterfaceCurrent && context_.profile.IsVR200) Jumper.SetImage(5);
}

void AnalogChannel::ShowInterface(std::int16_t code) {
  switch (code) {
    case kInterfaceOff:
      return Int_NoHabil.SetSelected(true);
    case kInterfaceCurrent:
      return Int_4_20.SetSelected(true);
    case kInterface5V:
      return Int_0_5.SetSelected(true);
    case kInterface10V:
      return Int_0_10.SetSelected(true);
    case kInterfacePressure:
      return Int_Press.SetSelected(true);
    default:
      // A code without an option is kept as it is.
      for (OptionButton* option : interface_.Options()) option->SetSelected(false);
      CurrentInterface_ = code;
  }
}

void AnalogChannel::Load(const ConfAnalog& record) {
  ShowInterface(record.INTERFAZ);
  fields_.Load(record);
}

void AnalogChannel::Save(ConfAnalog& record) const {
  fields_.Save(record);
  record.INTERFAZ = CurrentInterface_;
}

}  // namespace ostrel
