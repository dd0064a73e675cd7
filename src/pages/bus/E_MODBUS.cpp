#include "pages/bus/E_MODBUS.h"

namespace ostrel {
namespace {

constexpr std::array<CodeOption, 3> kSizes{{
    {"Size16Opt", "16 bits", kRegister16Bits},
    {"Size32Opt", "32 bits", kRegister32Bits},
    {"SizeFloatOpt", "Float", kRegisterFloat},
}};

}  // namespace

ModbusChannelControls::ModbusChannelControls(Form& form, PageContext& context)
    : context_(context),
      Nombre(form, "Nombre"),
      Unidad(form, "Unidad"),
      Label8(form, "Label8", "Slave Address:"),
      SlaveAddres(form, "SlaveAddres"),
      Label9(form, "Label9", "Registro:"),
      RegAddres(form, "RegAddres"),
      size_(form, {}, kSizes),
      OptAnalog(form, mode_, "OptAnalog", "Analogico"),
      OptDigital(form, mode_, "OptDigital", "Digital"),
      LabelMult(form, "LabelMult", "Multiplicador:"),
      Multiplicador(form, "Multiplicador"),
      LabelPlus(form, "LabelPlus", "+"),
      Constante(form, "Constante"),
      LabelMask(form, "LabelMask", "Mascara:"),
      Mascara(form, "Mascara"),
      HelpBut(form, "HelpBut", "Ayuda"),
      CheckNegar(form, "CheckNegar", "Negar"),
      LabelMin(form, "LabelMin", "Minimo:"),
      LabelMax(form, "LabelMax", "Maximo:"),
      LabelHist(form, "LabelHist", "Histeresis:"),
      LabelPersist(form, "LabelPersist", "Persisten:"),
      Notice(form, "Notice", "Slave Address = 0 Inhibe lectura en el canal."),
      NoticeTimer(form, "NoticeTimer",
                  "Recuerde configurar un temporizador para la lectura de este canal.") {
  fields_.Bind(Nombre, &ConfModbus::NOMBRE);
  Edits(OptAnalog.face, &ConfModbus::ANALOG_MODE);
  size_.NoteField(&ConfModbus::TYPE);
  fields_.Bind(Unidad, &ConfModbus::UNIDAD);
  fields_.Bind(SlaveAddres, &ConfModbus::SLAVE, NumberForm::Num, kInt);
  fields_.Bind(RegAddres, &ConfModbus::REGADD, NumberForm::Num, kInt);
  fields_.Bind(Multiplicador, &ConfModbus::MULT, NumberForm::Dec, kFloat);
  fields_.Bind(Constante, &ConfModbus::CONSTANTE, NumberForm::Dec, kFloat);
  fields_.Bind(Mascara, &ConfModbus::MASCARA, NumberForm::Num, kInt);
  fields_.Bind(CheckNegar, &ConfModbus::NEGATE);
  OptAnalog.OnClick = [this] { ShowMode(true); };
  OptDigital.OnClick = [this] { ShowMode(false); };
  HelpBut.OnClick = [&context] {
    if (context.showMaskCalculator) context.showMaskCalculator();
  };
}

void ModbusChannelControls::ShowMode(bool isAnalog) {
  for (Face* face : {&LabelMult.face, &Multiplicador.face, &LabelPlus.face, &Constante.face})
    face->SetEnabled(isAnalog);
  for (Face* face : {&LabelMask.face, &Mascara.face, &HelpBut.face, &CheckNegar.face})
    face->SetEnabled(!isAnalog);
  const auto say = [this](Label& label, std::string_view key) {
    label.face.SetCaption(key, context_.Translate(key));
  };
  say(LabelMin, isAnalog ? "Minimo:" : "Rearme:");
  say(LabelMax, isAnalog ? "Maximo:" : "Persisten:");
  if (!isAnalog) return;
  say(LabelHist, "Histeresis:");
  say(LabelPersist, "Persisten:");
}

void ModbusChannelControls::Load(const ConfModbus& record) {
  fields_.Load(record);
  size_.Load(record.TYPE);
  (record.ANALOG_MODE ? OptAnalog : OptDigital).SetSelected(true);
}

void ModbusChannelControls::Save(ConfModbus& record) const {
  fields_.Save(record);
  record.TYPE = size_.Code();
  record.ANALOG_MODE = Bool16(OptAnalog.Selected());
}

void ModbusChannelControls::Tick() {
  const bool isMaster(context_.conf.ModbusBus.MASTER);
  for (Face* face : {&Label8.face, &SlaveAddres.face, &Label9.face, &RegAddres.face})
    face->SetEnabled(isMaster);
  size_.SetEnabled(isMaster);
}

}  // namespace ostrel
