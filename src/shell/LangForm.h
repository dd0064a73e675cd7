#pragma once

#include "controls/Form.h"
#include "pages/PageContext.h"

namespace ostrel {

/// The language dialog.
class LangForm {
 public:
  explicit LangForm(PageContext& context);

  Form& GetForm() { return form_; }
  /// Offers the languages of the table, modal, and selects the one that the operator accepts.
  void AskUser();

 private:
  PageContext& context_;
  Form form_{"Lang", ""};
  ComboBox ComboLang;
  Button CommandOk, CommandCancel;
};

}  // namespace ostrel
