#pragma once

#include "controls/Form.h"
#include "pages/PageContext.h"

namespace ostrel {

/// The language dialog.
class LangForm {
 public:
  explicit LangForm(PageContext& context);

  Form& GetForm() { return form_; }
  /// Offers the languages of the table, modal, and selects the one that the operator accepts. False
  /// when none was accepted.
  bool AskUser();

 private:
  PageContext& context_;
  Form form_{"Lang", ""};
  ComboBox ComboLang;
  Button CommandOk, CommandCancel;
  bool accepted_ = false;
};

}  // namespace ostrel
