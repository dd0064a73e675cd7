#include "tools/SetTotal.h"

#include "base/Numbers.h"
#include "controls/ModalForm.h"

namespace ostrel {

SetTotal::SetTotal(ToolContext& context, const CounterKind& kind)
    : context_(context),
      kind_(kind),
      form_(kind.form, "Totalizador"),
      Titulo(form_, "Titulo", "Introduzca el nuevo valor"),
      LabelActual(form_, "LabelActual", "Valor actual:"),
      LabelPreValue(form_, "LabelPreValue"),
      LabelNuevo(form_, "LabelNuevo", "Nuevo valor:"),
      TextNew(form_, "TextNew"),
      LabelEstado(form_, "LabelEstado"),
      OKButton(form_, "OKButton", "Actualizar"),
      CancelButton(form_, "CancelButton", "Salir") {
  OKButton.OnClick = [this] { context_.comms.Reading().WhenFree([this] { Update(); }); };
  CancelButton.OnClick = [this] { form_.Close(); };
  for (Face* face : {&LabelActual.face, &LabelPreValue.face}) face->SetVisible(kind.hasTotals);
}

void SetTotal::SetIndex(std::int16_t index) {
  index_ = index;
  TextNew.SetText("");
  ShowPresent();
}

void SetTotal::ShowPresent() {
  if (kind_.hasTotals) LabelPreValue.face.SetCaption(NumText(context_.totals[index_]));
}

void SetTotal::SetState(std::string_view text) {
  LabelEstado.face.SetCaption(context_.Translate(text));
}

void SetTotal::ShowModal() {
  Form_Load();
  ostrel::ShowModal(context_.dialogs, form_,
                    [this] { context_.comms.Reading().WhenFree([this] { Refresh(); }); });
}

void SetTotal::Form_Load() {
  form_.TranslateCaptions(context_.Translate);
  SetState(context_.Connected ? "Actualizando..." : "Sin comunicacion");
}

/// The dialog stands while the logger is asked: nothing behind it can begin another dialogue.
void SetTotal::Refresh() {
  if (!context_.Connected) return;
  OKButton.face.SetEnabled(false);
  context_.comms.ReadTotalCount();
  OKButton.face.SetEnabled(true);
  ShowPresent();
  SetState("Preparado");
}

void SetTotal::Update() {
  const auto refuse = [this](std::string_view text) {
    context_.dialogs.ShowMessage(
        {.text = context_.Translate(text), .title = context_.profile.TargetName});
  };
  if (!IsIntText(TextNew.Text())) return refuse("Escriba un valor numerico valido");
  if (!context_.Connected) return refuse("No hay comunicacion con el dispositivo");
  OKButton.face.SetEnabled(false);
  Write();
  OKButton.face.SetEnabled(true);
}

void SetTotal::Write() {
  SetState("Escribiendo...");
  // A number beyond 32 bits is not sent.
  const auto value = RoundToEven<std::int32_t>(NumVal(TextNew.Text()));
  SetState(value && (context_.comms.*kind_.set)(index_, *value) ? "Ok" : "Error!");
  context_.comms.ReadTotalCount();
  ShowPresent();
}

}  // namespace ostrel
