#pragma once

#include <deque>

#include "controls/Form.h"
#include "tools/ToolContext.h"

namespace ostrel {

/// Adds bits up into a decimal mask.
class AyudaHex {
 public:
  explicit AyudaHex(ToolContext& context);

  Form& GetForm() { return form_; }
  /// Shows the dialog until it closes.
  void ShowModal();

 private:
  void AddUp();

  ToolContext& context_;
  Form form_{"AyudaHex", "Ayuda"};
  std::deque<CheckBox> BitCheck;
  TextBox Resultado;
  Button CancelButton;
};

}  // namespace ostrel
