#include "desktop/layouts/Layouts.h"

#include <algorithm>
#include <array>

namespace ostrel {
namespace {

struct LayoutOf {
  std::string_view form;
  void (*layOut)(FormView& view, const LayoutContext& context);
};

template <void (*kLayOut)(FormView&)>
void Plain(FormView& view, const LayoutContext&) {
  kLayOut(view);
}

constexpr std::array<LayoutOf, 36> kLayouts{{
    {"General", LayOutGeneral},
    {"E_Digital", Plain<LayOutDigital>},
    {"E_Analog", Plain<LayOutAnalog>},
    {"Grupos", Plain<LayOutGrupos>},
    {"Flags", Plain<LayOutFlags>},
    {"Caudal", Plain<LayOutCaudal>},
    {"SampleRate", Plain<LayOutSampleRate>},
    {"E_OneWire", Plain<LayOutOneWire>},
    {"E_Math", Plain<LayOutMath>},
    {"CONF_MODBUS", Plain<LayOutModbusBus>},
    {"E_MODBUS", Plain<LayOutModbusChannel>},
    {"E_Modular", Plain<LayOutExpansion>},
    {"E_Aux", Plain<LayOutAux>},
    {"Katodex", Plain<LayOutKatodex>},
    {"CTimer", Plain<LayOutCyclicTimers>},
    {"LTimer", Plain<LayOutLongTimers>},
    {"WTimer", Plain<LayOutWeeklyTimers>},
    {"MTimer", Plain<LayOutMonthlyTimers>},
    {"Macros", Plain<LayOutMacros>},
    {"GPRS", Plain<LayOutGprs>},
    {"Aut_Voz", Plain<LayOutVoice>},
    {"ActEdit", Plain<LayOutActEdit>},
    {"SetTotal", Plain<LayOutSetTotal>},
    {"ExpSetTotal", Plain<LayOutSetTotal>},
    {"Ayuda", Plain<LayOutPulseCalculator>},
    {"AyudaHex", Plain<LayOutMaskCalculator>},
    {"PWForm", Plain<LayOutPWForm>},
    {"Lang", Plain<LayOutLang>},
    {"TargetSelect", Plain<LayOutTargetSelect>},
    {"Test", Plain<LayOutTest>},
    {"TestKA2", Plain<LayOutTest>},
    {"TestBQ", Plain<LayOutTest>},
    {"T_Real_Tavro", Plain<LayOutMonitor>},
    {"T_Real_Katodex", Plain<LayOutCathodicMonitor>},
    {"Firm", Plain<LayOutFirm>},
    {"Terminal", Plain<LayOutTerminal>},
}};

}  // namespace

FormView* MakeView(Form& form, const LayoutContext& context, QWidget* parent) {
  auto* view = new FormView(form, context.guard, parent);
  const auto found = std::ranges::find(kLayouts, form.Name(), &LayoutOf::form);
  if (found == kLayouts.end())
    LayOutInOrder(*view);
  else
    found->layOut(*view, context);
  view->Finish();
  return view;
}

}  // namespace ostrel
