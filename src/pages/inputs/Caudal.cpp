#include "pages/inputs/Caudal.h"

#include "blocks/inputs/InterfaceCodes.h"
#include "model/Features.h"

namespace ostrel {
namespace {

constexpr std::array<CodeOption, 2> kFlowInterfaces{{
    {"Int_NoHabil", "No Habil.", kInterfaceOff},
    {"Int_Habil", "Habil.", kInterfaceOn},
}};

}  // namespace

FlowChannel::FlowChannel(Form& form, const PageContext& context)
    : context_(context),
      Nombre(form, "Nombre"),
      interface_(form, {}, kFlowInterfaces),
      FrameUnidad(form, "FrameUnidad", "Unidad"),
      Unidad(form, "Unidad"),
      FrameTimeBase(form, "FrameTimeBase", "Base de tiempo"),
      TimeBase(form, "TimeBase"),
      LabelSeconds(form, "LabelSeconds", "Seg."),
      FrameConversion(form, "FrameConversion", "Equivalencia pulsos - unidad de ingenieria"),
      Label1(form, "Label1", "Un pulso equivale a:"),
      Ratio(form, "Ratio"),
      RatioUnit(form, "RatioUnit"),
      HelpBut(form, "HelpBut", "Ayuda"),
      FrameTotal(form, "FrameTotal", "Totalizador"),
      TotalText(form, "TotalText"),
      BotonModificar(form, "BotonModificar", "Modificar"),
      Asterisk(form, "Asterisk"),
      Notice(form, "Notice",
             "* La persistencia se expresa en ciclos de la base de tiempo. T= Persistencia * Base "
             "de tiempos.") {
  fields_.Bind(Nombre, &ConfCaudal::NOMBRE);
  interface_.NoteField(&ConfCaudal::INTERFAZ);
  fields_.Bind(Unidad, &ConfCaudal::UNIDAD);
  fields_.Bind(TimeBase, &ConfCaudal::TIMEBASE, NumberForm::Num, kInt);
  fields_.Bind(Ratio, &ConfCaudal::RATIO, NumberForm::Dec, kFloat);
  Asterisk.face.SetCaption("*");
  interface_.OnChosen = [this](std::int16_t code) { ApplyInterface(code); };
  HelpBut.OnClick = [this] { context_.showPulseCalculator(Ratio); };
  BotonModificar.OnClick = [this] {
    context_.showTotal(index_);
    LoadLive(index_);
  };
}

void FlowChannel::ApplyInterface(std::int16_t code) {
  if (code != kInterfaceOff && code != kInterfaceOn) return;
  for (Face* face : {&FrameTotal.face, &FrameUnidad.face, &FrameTimeBase.face,
                     &FrameConversion.face, &HelpBut.face})
    face->SetEnabled(code == kInterfaceOn);
}

void FlowChannel::Load(const ConfCaudal& record) {
  hasPulses_ = !Has(context_.info.Features, Feature::FlowThresholds);
  interface_.Load(record.INTERFAZ);
  ApplyInterface(record.INTERFAZ);
  fields_.Load(record);
  ShowUnit();
}

void FlowChannel::Save(ConfCaudal& record) const {
  fields_.Save(record);
  record.INTERFAZ = interface_.Code();
}

void FlowChannel::LoadLive(std::int16_t index) {
  index_ = index;
  TotalText.face.SetCaption(NumText(context_.totals[index]));
}

}  // namespace ostrel
