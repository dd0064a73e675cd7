#pragma once

#include <string>

#include "controls/Form.h"
#include "pages/PageContext.h"

namespace ostrel {

/// Asks for the access code of a logger behind a modem.
class PWForm {
 public:
  explicit PWForm(PageContext& context);

  Form& GetForm() { return form_; }
  /// Shows the form until it closes; `AccessCode` then holds the number typed, empty when the
  /// operator cancelled. A form dismissed in any other way leaves it as it was.
  void ShowModal(std::string& AccessCode);

 private:
  PageContext& context_;
  Form form_{"PWForm", "Clave de acceso"};
  Label LabelPrompt;
  TextBox PWText;
  Button Aceptar, Cancelar;
};

}  // namespace ostrel
