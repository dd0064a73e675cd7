#include "pages/ActEdit.h"

#include "model/Assign.h"
#include "pages/ActionCatalogue.h"

namespace ostrel {

ActEdit::ActEdit(PageContext& context)
    : context_(context),
      LabelRef(form_, "LabelRef", "Acciones disponibles:"),
      LabelDevice(form_, "LabelDevice", "Acciones configuradas:"),
      RefList(form_, "RefList"),
      DeviceList(form_, "DeviceList"),
      AddButton(form_, "AddButton", "Añadir --->"),
      DelButton(form_, "DelButton", "Eliminar"),
      OKButton(form_, "OKButton", "Aceptar"),
      CancelButton(form_, "CancelButton", "Cancelar") {
  AddButton.OnClick = [this] { Add(); };
  DelButton.OnClick = [this] { RemoveChosen(); };
  RefList.OnDoubleClick = [this] { Add(); };
  DeviceList.OnDoubleClick = [this] { RemoveChosen(); };
  DeviceList.isOrdered = true;
  OKButton.OnClick = [this] {
    StoreActionList();
    form_.Close();
  };
  CancelButton.OnClick = [this] { form_.Close(); };
}

void ActEdit::ShowModal(std::string_view subject) {
  Form_Load();
  if (!subject.empty()) form_.SetTitle(form_.Title() + ": " + std::string(subject));
  context_.ShowModal(form_);
}

void ActEdit::Form_Load() {
  const auto translate = [this](std::string_view text) { return context_.Translate(text); };
  form_.TranslateCaptions(translate);
  RefList.Clear();
  for (const ActionItem& item : OfferedActions(context_.profile, translate))
    RefList.Add(item.text, item.number);
  DeviceList.Clear();
  for (int place = 0; place < kActionPlaces; ++place)
    if (const std::string line = FindActionItem(context_.ActionBuffer[place]); !line.empty())
      DeviceList.Add(line, context_.ActionBuffer[place]);
}

std::string ActEdit::FindActionItem(std::int16_t number) const {
  for (const ListRow& row : RefList.Rows())
    if (row.value == number) return row.text;
  return {};
}

void ActEdit::StoreActionList() {
  const auto& rows = DeviceList.Rows();
  for (std::size_t place = 0; place < kActionPlaces; ++place)
    Assign(context_.ActionBuffer[place], place < rows.size() ? rows[place].value : 0);
}

void ActEdit::Add() {
  if (RefList.Position() < 0) return;
  if (DeviceList.Rows().size() < kActionPlaces) {
    const ListRow& row = RefList.Rows()[static_cast<std::size_t>(RefList.Position())];
    DeviceList.Add(row.text, row.value);
    return;
  }
  context_.ShowMessage(context_.Translate("No se pueden añadir mas de") + NumText(kActionPlaces) +
                           context_.Translate(" acciones"),
                       BoxIcon::None);
}

}  // namespace ostrel
