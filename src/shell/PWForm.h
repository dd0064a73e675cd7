#pragma once

#include <string>
#include <string_view>

#include "controls/Form.h"
#include "pages/PageContext.h"

namespace ostrel {

/// Asks for the access code of a logger behind a modem, where the face draws forms.
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

/// Whether a text can be an access code, which is a number. Says so in a box when it cannot.
bool CheckCode(const PageContext& context, std::string_view code);

}  // namespace ostrel
