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
    BitCheck.emplace_back(form_, "BitCheck(" + std::to_string(bit) + ")", "");
    BitCheck.back().OnClick = [this] { AddUp(); };
  }
  CancelButton.OnClick = [this] { form_.Close(); };
}

void AyudaHex::ShowModal() {
  form_.TranslateCaptions(context_.Translate);
  const std::string word = context_.Translate("Bit");
  for (std::size_t bit = 0; bit < BitCheck.size(); ++bit) {
    BitCheck[bit].face.SetCaption(word + " " + std::to_string(bit));
    BitCheck[bit].SetChecked(false);
  }
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
