#pragma once

#include <functional>
#include <string>

#include "controls/FrontForm.h"
#include "pages/PageContext.h"
#include "shell/files/StoredSettings.h"

namespace ostrel {

/// The window in which the operator picks the model.
class TargetSelect final : public FrontForm {
 public:
  /// `change` selects a model by its display name.
  TargetSelect(PageContext& context, StoredSettings settings,
               std::function<void(const std::string&)> change);

  Form& GetForm() override { return form_; }
  void LoadText() override;
  void Form_Load() override;
  /// The model cannot change while a session stands.
  void Form_Activate() override;

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
