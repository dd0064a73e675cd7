#include "desktop/layouts/Layouts.h"

#include <array>
#include <stdexcept>

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

constexpr std::array<LayoutOf, 9> kLayouts{{
    {"General", LayOutGeneral},
    {"E_Digital", Plain<LayOutDigital>},
    {"E_Analog", Plain<LayOutAnalog>},
    {"Grupos", Plain<LayOutGrupos>},
    {"Flags", Plain<LayOutFlags>},
    {"ActEdit", Plain<LayOutActEdit>},
    {"PWForm", Plain<LayOutPWForm>},
    {"Lang", Plain<LayOutLang>},
    {"TargetSelect", Plain<LayOutTargetSelect>},
}};

}  // namespace

FormView* MakeView(Form& form, const LayoutContext& context, QWidget* parent) {
  for (const auto& [name, layOut] : kLayouts) {
    if (name != form.Name()) continue;
    auto* view = new FormView(form, context.guard, parent);
    layOut(*view, context);
    view->Finish();
    return view;
  }
  throw std::logic_error("form " + form.Name() + " has no layout");
}

}  // namespace ostrel
