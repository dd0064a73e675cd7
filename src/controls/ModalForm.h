#pragma once

#include "controls/Form.h"
#include "platform/Dialogs.h"

namespace ostrel {

/// Shows a form until its logic closes it or the operator dismisses it.
inline void ShowModal(Dialogs& dialogs, Form& form) {
  form.Show();
  dialogs.ShowModal(form);
  form.Hide();
}

}  // namespace ostrel
