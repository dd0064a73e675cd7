#include "pages/expansion/InputFrame.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "pages/parts/Edits.h"

namespace ostrel {
namespace {

constexpr std::array<std::string_view, 5> kModes{"NO HABIL.", "DIGITAL", "CAUDALIMETRO", "CONTADOR",
                                                 "ANALOGICA"};
constexpr std::string_view kHexDigits = "0123456789ABCDEF";
constexpr int kReadingGroups = 16;

void ShowRowOf(ComboBox& box, std::int16_t value) {
  box.SetPosition(std::cmp_less(value, box.Rows().size()) ? std::max<int>(value, -1) : -1);
}

void SaveRowOf(const ComboBox& box, std::int16_t& value) {
  if (box.Position() >= 0) value = static_cast<std::int16_t>(box.Position());
}

}  // namespace

InputFrame::InputFrame(Form& form)
    : Titulo(form, "Titulo"),
      LabelMode(form, "LabelMode", "Modo:"),
      ModeCombo(form, "ModeCombo"),
      LabelAddress(form, "LabelAddress", "Direccion:"),
      AddressCombo(form, "AddressCombo"),
      LabelInput(form, "LabelInput", "Entrada:"),
      InputCombo(form, "InputCombo"),
      FindFree(form, "FindFree", "Buscar libre"),
      Shared(form, "Shared"),
      LabelGroup(form, "LabelGroup", "Grupo:"),
      GroupCombo(form, "GroupCombo"),
      SSTab1(form, "SSTab1"),
      LabelNoHabil(form, "LabelNoHabil", "Canal no habilitado") {
  for (const std::string_view mode : kModes)
    ModeCombo.Add(mode, static_cast<std::int32_t>(ModeCombo.Rows().size()));
  for (const char digit : kHexDigits) AddressCombo.Add(std::string(1, digit));
  for (int input = 0; input < kInputsOfModule; ++input) InputCombo.Add(std::to_string(input));
  for (int group = 0; group < kReadingGroups; ++group) GroupCombo.Add(std::to_string(group));
  Edits(ModeCombo.face, &ConfModulo::MODO);
  Edits(AddressCombo.face, &ConfModulo::DIR);
  Edits(InputCombo.face, &ConfModulo::ENTRADA);
  Edits(GroupCombo.face, &ConfModulo::GRUPO);
  ModeCombo.OnClick = [this] {
    SSTab1.SetTab(std::max(ModeCombo.Position(), 0));
    if (OnChosen) OnChosen();
  };
  for (ComboBox* box : {&AddressCombo, &InputCombo})
    box->OnClick = [this] {
      if (OnChosen) OnChosen();
    };
  FindFree.OnClick = [this] {
    if (OnFindFree) OnFindFree();
  };
}

void InputFrame::Load(const ConfModulo& input) {
  ShowRowOf(ModeCombo, input.MODO);
  ShowRowOf(AddressCombo, input.DIR);
  ShowRowOf(InputCombo, input.ENTRADA);
  ShowRowOf(GroupCombo, input.GRUPO);
}

ModuleInput InputFrame::Place() const {
  return {std::max(AddressCombo.Position(), 0), std::max(InputCombo.Position(), 0)};
}

void InputFrame::SetPlace(ModuleInput place) {
  AddressCombo.SetPosition(place.module);
  InputCombo.SetPosition(place.input);
}

void InputFrame::SetShared(std::string_view words) {
  Shared.face.SetCaption(words);
  Shared.face.SetVisible(!words.empty());
}

void InputFrame::Save(ConfModulo& input) const {
  SaveRowOf(ModeCombo, input.MODO);
  SaveRowOf(AddressCombo, input.DIR);
  SaveRowOf(InputCombo, input.ENTRADA);
  SaveRowOf(GroupCombo, input.GRUPO);
}

}  // namespace ostrel
