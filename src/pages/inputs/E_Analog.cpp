#include "pages/inputs/E_Analog.h"

#include <array>

#include "controls/NumberBox.h"
#include "model/Features.h"
#include "pages/AlarmWire.h"

namespace ostrel {
namespace {

constexpr std::int16_t kOff = 0;
constexpr std::int16_t kCurrent = 1;
constexpr std::int16_t kVolt5 = 2;
constexpr std::int16_t kVolt10 = 3;
constexpr std::int16_t kPressure = 7;

/// One electrical interface: its code in the model and in the file, the number by which a logger
/// reports it, and its token in a statement.
struct InterfaceCode {
  std::int16_t code;
  std::int32_t reported;
  std::string_view token;
};

constexpr std::array<InterfaceCode, 5> kInterfaces{{
    {kOff, 0, ""},
    {kCurrent, 1, ",CURRENT"},
    {kVolt5, 2, ",5V"},
    {kVolt10, 3, ",10V"},
    {kPressure, 4, ",PRESSURE"},
}};

std::string_view InterfaceToken(std::int16_t code) {
  for (const InterfaceCode& known : kInterfaces)
    if (known.code == code) return known.token;
  return {};
}

}  // namespace

AnalogChannel::AnalogChannel(Form& form, const PageContext& context)
    : context_(context),
      Nombre(form, "Nombre", 19),
      Unidad(form, "Unidad", 9),
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
  Asterisk.face.SetCaption("*");
  for (int group = 0; group < 4; ++group) Grupo.Add(std::to_string(group), group);
  Int_NoHabil.OnClick = [this] { ClickInterface(kOff); };
  Int_4_20.OnClick = [this] { ClickInterface(kCurrent); };
  Int_0_5.OnClick = [this] { ClickInterface(kVolt5); };
  Int_0_10.OnClick = [this] { ClickInterface(kVolt10); };
  Int_Press.OnClick = [this] { ClickInterface(kPressure); };
}

ThresholdBoxes AnalogChannel::Thresholds() {
  return {NumberForm::Dec, {{"Minimo", ""}, {"Maximo", ""}, {"Histeresis", ""}, {"Persist", ""}}};
}

void AnalogChannel::ClearFields(ConfAnalog& record) {
  record.NOMBRE.clear();
  record.UNIDAD.clear();
  record.INTERFAZ = kOff;
  record.IE = record.FE = record.EqIE = record.EqFE = 0;
  record.GRUPO = 0;
}

void AnalogChannel::AfterClear() {
  if (!context_.profile.IsBQ) return;
  ConfAnalog& pressure = context_.conf.Analog[0];
  pressure.EqFE = 10;
  pressure.UNIDAD = context_.Translate("bar");
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
  if (code == kVolt5) Jumper.SetImage(1);
  if (code == kVolt10 && context_.profile.IsBP) Jumper.SetImage(2);
  if (code == kVolt10 && context_.profile.IsVR200) Jumper.SetImage(4);
  if (code == kCurrent && context_.profile.IsBP) Jumper.SetImage(3);
  if (code == kCurrent && context_.profile.IsVR200) Jumper.SetImage(5);
}

void AnalogChannel::ShowInterface(std::int16_t code) {
  switch (code) {
    case kOff:
      return Int_NoHabil.SetSelected(true);
    case kCurrent:
      return Int_4_20.SetSelected(true);
    case kVolt5:
      return Int_0_5.SetSelected(true);
    case kVolt10:
      return Int_0_10.SetSelected(true);
    case kPressure:
      return Int_Press.SetSelected(true);
    default:
      // A code without an option is kept as it is.
      for (OptionButton* option : interface_.Options()) option->SetSelected(false);
      CurrentInterface_ = code;
  }
}

void AnalogChannel::Load(const ConfAnalog& record) {
  Nombre.SetText(record.NOMBRE);
  Unidad.SetText(record.UNIDAD);
  ShowInterface(record.INTERFAZ);
  IE.SetText(DecText(record.IE));
  FE.SetText(DecText(record.FE));
  EqIE.SetText(DecText(record.EqIE));
  EqFE.SetText(DecText(record.EqFE));
  Grupo.SetPosition(record.GRUPO);
}

void AnalogChannel::Save(ConfAnalog& record) const {
  record.NOMBRE = Nombre.Text();
  record.UNIDAD = Unidad.Text();
  record.INTERFAZ = CurrentInterface_;
  Assign(record.IE, NumVal(IE.Text()));
  Assign(record.FE, NumVal(FE.Text()));
  Assign(record.EqIE, NumVal(EqIE.Text()));
  Assign(record.EqFE, NumVal(EqFE.Text()));
  Assign(record.GRUPO, Grupo.Position());
}

void AnalogChannel::CheckNumbers() {
  for (TextBox* box : {&IE, &FE, &EqIE, &EqFE}) CheckNumberBox(*box, "float");
}

std::vector<WireSection> AnalogChannel::WireSections() {
  auto& inputs = context_.conf.Analog;
  return {
      {"ANALOG",
       [&inputs](LineReader& line) {
         ConfAnalog& input = inputs[line.Index()];
         line.Into(input.NOMBRE);
         line.Into(input.UNIDAD);
         const double reported = line.Number();
         for (const InterfaceCode& known : kInterfaces)
           if (known.reported == reported) input.INTERFAZ = known.code;
         line.Into(input.GRUPO);
         line.Into(input.IE);
         line.Into(input.EqIE);
         line.Into(input.FE);
         line.Into(input.EqFE);
       }},
      {"ANALOG.ALM",
       [&inputs](LineReader& line) {
         auto& [alarm, limits] = AlarmCell(line, inputs);
         line.Into(alarm.TEXTO);
         line.Into(limits.MINIMO);
         line.Into(limits.MAXIMO);
         line.Into(limits.HISTERESIS);
         ReadAlarmGroup(line, alarm);
         line.Into(alarm.FLAG);
         line.Into(limits.PERSISTENCIA);
       }},
      {"ANALOG.ACT",
       [&inputs](LineReader& line) {
         AlarmBlock& alarm = AlarmCell(line, inputs).common;
         ReadActions(line, {&alarm.ACTHI, &alarm.ACTNO, &alarm.ACTLO});
       }},
  };
}

std::vector<WireBlock> AnalogChannel::WireBlocks() {
  return {{"Analog inputs", [this](StatementList& out) {
             const bool sendsPersistence = Has(context_.info.Features, Feature::AnalogPersistence);
             for (int c = 0; c < context_.profile.AnalogCount; ++c) {
               const ConfAnalog& input = context_.conf.Analog[c];
               if (input.INTERFAZ == kOff)
                 out.Add(Statement("DISAI").Digits(c));
               else
                 out.Add(Statement("AICONF")
                             .Digits(c)
                             .Text("=")
                             .Text(input.NOMBRE)
                             .Text(",UNIT=")
                             .Text(input.UNIDAD)
                             .Text(InterfaceToken(input.INTERFAZ))
                             .Num(",BSVAL=", input.IE)
                             .Num(",FSVAL=", input.FE)
                             .Num(",BSUNIT=", input.EqIE)
                             .Num(",FSUNIT=", input.EqFE)
                             .Num(",GROUP=", input.GRUPO));
               AddAlarms(out, {"ALMA", ",ACTHI=", ",ACTLO=", ",ACTNOM="}, c, input.ALARM,
                         ConfAnalog::kShape,
                         [&](Statement& statement, const LevelThresholds& limits) {
                           statement.Num(",MAX=", limits.MAXIMO)
                               .Num(",MIN=", limits.MINIMO)
                               .Num(",HIST=", limits.HISTERESIS);
                           if (sendsPersistence) statement.Num(",P=", limits.PERSISTENCIA);
                         });
             }
           }}};
}

}  // namespace ostrel
