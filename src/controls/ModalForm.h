#pragma once

#include "controls/Form.h"
#include "platform/Dialogs.h"

namespace ostrel {

/// Shows a form until its logic closes it or the operator dismisses it. `shown`, if any, runs once
/// the form is on the screen.
inline void ShowModal(Dialogs& dialogs, Form& form, const std::function<void()>& shown = nullptr) {
  form.Show();
  dialogs.ShowModal(form, shown);
  form.Hide();
}

}  // namespace ostrel
