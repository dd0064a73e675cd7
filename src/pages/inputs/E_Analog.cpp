#include "pages/inputs/E_Analog.h"

#include "blocks/inputs/AnalogInputs.h"

namespace ostrel {
namespace {

constexpr std::array<CodeOption, 5> kAnalogInterfaces{{
    {"Int_NoHabil", "No habil.", kInterfaceOff},
    {"Int_4_20", "4/20mA", kInterfaceCurrent},
    {"Int_0_5", "0-5V", kInterface5V},
    {"Int_0_10", "0-10V", kInterface10V},
    {"Int_Press", "Presion", kInterfacePressure},
}};

}  // namespace

AnalogChannel::AnalogChannel(Form& form, const PageContext& context)
    : context_(context),
      Nombre(form, "Nombre"),
      Unidad(form, "Unidad"),
      interface_(form, {}, kAnalogInterfaces),
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
  interface_.NoteField(&ConfAnalog::INTERFAZ);
  fields_.Bind(Unidad, &ConfAnalog::UNIDAD);
  fields_.Bind(IE, &ConfAnalog::IE, NumberForm::Dec, kFloat);
  fields_.Bind(FE, &ConfAnalog::FE, NumberForm::Dec, kFloat);
  fields_.Bind(EqIE, &ConfAnalog::EqIE, NumberForm::Dec, kFloat);
  fields_.Bind(EqFE, &ConfAnalog::EqFE, NumberForm::Dec, kFloat);
  fields_.Bind(Grupo, &ConfAnalog::GRUPO);
  Asterisk.face.SetCaption("*");
  for (int group = 0; group < 4; ++group) Grupo.Add(std::to_string(group), group);
  interface_.OnChosen = [this](std::int16_t code) { ShowJumpers(code); };
}

bool AnalogChannel::Activate() {
  const TargetProfile& model = context_.profile;
  const auto enable = [this](std::initializer_list<std::int16_t> codes, bool enabled) {
    for (const std::int16_t code : codes) interface_.Option(code).face.SetEnabled(enabled);
  };
  enable({kInterfacePressure, kInterfaceCurrent, kInterface5V, kInterface10V}, false);
  for (Face* face : {&Label11.face, &Jumper.face, &Asterisk.face, &Notice.face})
    face->SetVisible(false);
  if (model.IsBP) {
    enable({kInterfaceCurrent, kInterface5V, kInterface10V}, true);
    for (Face* face : {&Label11.face, &Jumper.face, &Asterisk.face, &Notice.face})
      face->SetVisible(true);
  }
  if (model.IsVR200) {
    enable({kInterfaceCurrent, kInterface10V}, true);
    for (Face* face : {&Label11.face, &Jumper.face}) face->SetVisible(true);
  }
  for (Face* face : {&Label1.face, &Label2.face, &IE.face, &FE.face, &Grupo.face})
    face->SetEnabled(!model.IsBQ);
  if (model.IsBQ) {
    enable({kInterfacePressure}, true);
    Jumper.face.SetVisible(false);
    Grupo.SetPosition(0);
  }
  if (model.IsS100) enable({kInterfaceCurrent}, true);
  return true;
}

void AnalogChannel::ShowJumpers(std::int16_t code) {
  if (code == kInterface5V) Jumper.SetImage(1);
  if (code == kInterface10V && context_.profile.IsBP) Jumper.SetImage(2);
  if (code == kInterface10V && context_.profile.IsVR200) Jumper.SetImage(4);
  if (code == kInterfaceCurrent && context_.profile.IsBP) Jumper.SetImage(3);
  if (code == kInterfaceCurrent && context_.profile.IsVR200) Jumper.SetImage(5);
}

void AnalogChannel::Load(const ConfAnalog& record) {
  interface_.Load(record.INTERFAZ);
  fields_.Load(record);
}

void AnalogChannel::Save(ConfAnalog& record) const {
  fields_.Save(record);
  record.INTERFAZ = interface_.Code();
}

}  // namespace ostrel
