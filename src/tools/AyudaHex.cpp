#include "tools/AyudaHex.h"

#include "base/Numbers.h"
#include "controls/ModalForm.h"
#include "lang/Calculators.h"

namespace ostrel {

AyudaHex::AyudaHex(ToolContext& context)
    : context_(context),
      Resultado(form_, "Resultado"),
      CancelButton(form_, "CancelButton", "Salir") {
  for (int bit = 0; bit < kMaskBits; ++bit) {
    const std::string number = std::to_string(bit);
    BitCheck.emplace_back(form_, "BitCheck(" + number + ")", "Bit " + number);
    BitCheck.back().OnClick = [this] { AddUp(); };
  }
  CancelButton.OnClick = [this] { form_.Close(); };
}

void AyudaHex::ShowModal() {
  form_.TranslateCaptions(context_.Translate);
  for (CheckBox& bit : BitCheck) bit.SetChecked(false);
  Resultado.SetText("");
  ostrel::ShowModal(context_.dialogs, form_);
}

void AyudaHex::AddUp() {
  std::int32_t mask = 0;
  for (int bit = 0; bit < kMaskBits; ++bit)
    if (BitCheck[static_cast<std::size_t>(bit)].Checked()) mask = WithBit(mask, bit);
  Resultado.SetText(NumText(mask));
}

}  // namespace ostrel
