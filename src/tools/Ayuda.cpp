#include "tools/Ayuda.h"

#include <utility>

#include "base/Numbers.h"
#include "controls/ModalForm.h"
#include "controls/NumberBox.h"
#include "lang/Calculators.h"

namespace ostrel {

Ayuda::Ayuda(ToolContext& context)
    : context_(context),
      LabelPulsos(form_, "LabelPulsos", "Por cada pulso pasan:"),
      TextPulsos(form_, "TextPulsos"),
      ComboPulso(form_, "ComboPulso"),
      LabelTimeBase(form_, "LabelTimeBase", "Base de tiempos:"),
      TextTimeBase(form_, "TextTimeBase"),
      LabelSegundos(form_, "LabelSegundos", "Segundos"),
      LabelEq(form_, "LabelEq", "El caudal se debe expresar en:"),
      ComboEq(form_, "ComboEq"),
      LabelEqUn(form_, "LabelEqUn", "Equivalencia pulsos - unidad de ingenieria:"),
      TextEqUn(form_, "TextEqUn"),
      CalcButton(form_, "CalcButton", "Calcular"),
      UseButton(form_, "UseButton", "Usar el resultado"),
      CancelButton(form_, "CancelButton", "Salir") {
  CalcButton.OnClick = [this] { Calculate(); };
  UseButton.OnClick = [this] { UseResult(); };
  CancelButton.OnClick = [this] { form_.Close(); };
}

void Ayuda::ShowModal(TextBox& field) {
  field_ = &field;
  Form_Load();
  ostrel::ShowModal(context_.dialogs, form_);
  field_ = nullptr;
}

void Ayuda::Form_Load() {
  form_.TranslateCaptions(context_.Translate);
  const auto fill = [this](ComboBox& list, const auto& units) {
    list.Clear();
    for (const auto& unit : units) list.Add(context_.Translate(unit.name));
    list.SetPosition(0);
  };
  fill(ComboPulso, kPulseUnits);
  fill(ComboEq, kFlowUnits);
  for (TextBox* box : {&TextPulsos, &TextTimeBase, &TextEqUn}) {
    box->SetText("");
    box->face.SetColour(BackColour::Window);
  }
  UseButton.face.SetEnabled(false);
}

void Ayuda::Calculate() {
  if (!CheckNumberBox(TextTimeBase, "int")) return;
  if (!CheckNumberBox(TextPulsos, "float")) return;
  const auto timeBase = RoundToEven<std::int16_t>(NumVal(TextTimeBase.Text()));
  if (!timeBase || *timeBase == 0) return TextTimeBase.face.SetColour(BackColour::Red);
  const auto amount = ToFloat(NumVal(TextPulsos.Text()));
  const auto result =
      amount ? PulseRatio(*amount, kPulseUnits[static_cast<std::size_t>(ComboPulso.Position())],
                          *timeBase, kFlowUnits[static_cast<std::size_t>(ComboEq.Position())])
             : std::nullopt;
  // More than a number holds.
  if (!result) return TextPulsos.face.SetColour(BackColour::Red);
  result_ = *result;
  TextEqUn.SetText(NumText(result_));
  UseButton.face.SetEnabled(field_ && field_->face.Enabled());
}

void Ayuda::UseResult() {
  field_->SetText(DecText(result_));
  form_.Close();
}

}  // namespace ostrel
