#pragma once

#include "controls/Form.h"

namespace ostrel {

/// A form that the tree brings to the front and that is no page of the configuration: the choice of
/// the model, a live tool, a test run.
class FrontForm {
 public:
  virtual ~FrontForm() = default;

  virtual Form& GetForm() = 0;
  /// Sets every caption in the language in use.
  virtual void LoadText() = 0;
  virtual void Form_Load() { LoadText(); }
  /// It has the front from now on.
  virtual void Form_Activate() {}
  /// It loses the front.
  virtual void Form_Deactivate() {}
};

}  // namespace ostrel
