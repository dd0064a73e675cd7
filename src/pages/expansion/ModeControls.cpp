#include "pages/expansion/ModeControls.h"

#include "blocks/inputs/InterfaceCodes.h"

namespace ostrel {
namespace {

constexpr std::array<CodeOption, 2> kModuloInterfaces{{
    {"Int_0_10", "0-10V", kInterface10V},
    {"Int_4_20", "4/20mA", kInterfaceCurrent},
}};
constexpr std::string_view kPulseFrame = "Equivalencia pulsos - unidad de ingenieria";
constexpr std::string_view kPulseLabel = "Un pulso equivale a:";

}  // namespace

ModuloDigitalControls::ModuloDigitalControls(Form& form, const PageContext&)
    : Nombre(form, "D_Nombre"),
      Int_NA(form, contact_, "D_Int_NA", "N.A."),
      Int_NC(form, contact_, "D_Int_NC", "N.C.") {
  fields_.Bind(Nombre, &ModuloDigital::NOMBRE);
  Edits(Int_NC.face, &ModuloDigital::NC);
  Int_NA.OnClick = [this] { CurrentNC_ = false; };
  Int_NC.OnClick = [this] { CurrentNC_ = true; };
}

void ModuloDigitalControls::Load(const ModuloDigital& record) {
  fields_.Load(record);
  (record.NC ? Int_NC : Int_NA).SetSelected(true);
}

void ModuloDigitalControls::Save(ModuloDigital& record) const {
  fields_.Save(record);
  record.NC = Bool16(CurrentNC_);
}

ModuloFlowControls::ModuloFlowControls(Form& form, PageContext& context)
    : Nombre(form, "Q_Nombre"),
      FrameUnidad(form, "Q_FrameUnidad", "Unidad"),
      Unidad(form, "Q_Unidad"),
      FrameTimeBase(form, "Q_FrameTimeBase", "Base de tiempo"),
      TimeBase(form, "Q_TimeBase"),
      LabelSeconds(form, "Q_LabelSeconds", "Seg."),
      FrameConversion(form, "Q_FrameConversion", kPulseFrame),
      Label1(form, "Q_Label1", kPulseLabel),
      Ratio(form, "Q_Ratio"),
      RatioUnit(form, "Q_RatioUnit"),
      HelpBut(form, "Q_HelpBut", "Ayuda"),
      Notice(form, "Q_Notice",
             "* La persistencia se expresa en ciclos de la base de tiempo. T= Persistencia * Base "
             "de tiempos.") {
  fields_.Bind(Nombre, &ModuloFlow::NOMBRE);
  fields_.Bind(Unidad, &ModuloFlow::UNIDAD);
  fields_.Bind(TimeBase, &ModuloFlow::TIMEBASE, NumberForm::Num, kInt);
  fields_.Bind(Ratio, &ModuloFlow::RATIO, NumberForm::Dec, kFloat);
  HelpBut.OnClick = [this, &context] {
    if (context.showPulseCalculator) context.showPulseCalculator(Ratio);
  };
}

ModuloCounterControls::ModuloCounterControls(Form& form, const PageContext& context)
    : context_(context),
      Nombre(form, "C_Nombre"),
      Unidad(form, "C_Unidad"),
      FrameConversion(form, "C_FrameConversion", kPulseFrame),
      Label1(form, "C_Label1", kPulseLabel),
      Ratio(form, "C_Ratio"),
      TotalText(form, "C_TotalText"),
      BotonModificar(form, "C_BotonModificar", "Modificar") {
  fields_.Bind(Nombre, &ModuloCounter::NOMBRE);
  fields_.Bind(Unidad, &ModuloCounter::UNIDAD);
  fields_.Bind(Ratio, &ModuloCounter::RATIO, NumberForm::Dec, kFloat);
  BotonModificar.OnClick = [this] { OnModify(); };
}

void ModuloCounterControls::ShowTotal(int input) {
  const bool isKnown = context_.Connected && context_.live.ReadOf(AnswerOfModule(input)).hasCome;
  TotalText.face.SetCaption(isKnown ? NumText(context_.live.ModuloValue[input]) : "");
}

ModuloAnalogControls::ModuloAnalogControls(Form& form, const PageContext&)
    : Nombre(form, "A_Nombre"),
      Unidad(form, "A_Unidad"),
      interface_(form, kNames(), kModuloInterfaces),
      Label1(form, "A_Label1", "Inicio escala:"),
      IE(form, "A_IE"),
      Label2(form, "A_Label2", "Fondo escala:"),
      FE(form, "A_FE"),
      EqIE(form, "A_EqIE"),
      EqFE(form, "A_EqFE") {
  fields_.Bind(Nombre, &ModuloAnalog::NOMBRE);
  interface_.NoteField(&ModuloAnalog::INTERFAZ);
  fields_.Bind(Unidad, &ModuloAnalog::UNIDAD);
  fields_.Bind(IE, &ModuloAnalog::IE, NumberForm::Dec, kFloat);
  fields_.Bind(FE, &ModuloAnalog::FE, NumberForm::Dec, kFloat);
  fields_.Bind(EqIE, &ModuloAnalog::EqIE, NumberForm::Dec, kFloat);
  fields_.Bind(EqFE, &ModuloAnalog::EqFE, NumberForm::Dec, kFloat);
}

void ModuloAnalogControls::Load(const ModuloAnalog& record) {
  interface_.Load(record.INTERFAZ);
  fields_.Load(record);
}

void ModuloAnalogControls::Save(ModuloAnalog& record) const {
  fields_.Save(record);
  record.INTERFAZ = interface_.Code();
}

}  // namespace ostrel
