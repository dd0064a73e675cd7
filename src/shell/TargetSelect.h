#pragma once

#include <functional>
#include <string>

#include "controls/Form.h"
#include "pages/PageContext.h"
#include "shell/StoredSettings.h"

namespace ostrel {

/// The window in which the operator picks the model.
class TargetSelect {
 public:
  /// `change` selects a model by its display name.
  TargetSelect(PageContext& context, StoredSettings settings,
               std::function<void(const std::string&)> change);

  Form& GetForm() { return form_; }
  void LoadText();
  void Form_Load();
  /// The model cannot change while a session stands.
  void Form_Activate();

 private:
  PageContext& context_;
  StoredSettings settings_;
  Form form_{"TargetSelect", ""};
  Label LabelNotice;
  ComboBox ComboTarget;
  Label LabelWarning;
  Button CommandChange;
};

}  // namespace ostrel
