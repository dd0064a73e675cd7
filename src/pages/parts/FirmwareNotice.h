#pragma once

#include <string_view>

#include "controls/Form.h"
#include "model/Features.h"
#include "pages/PageContext.h"

namespace ostrel {

/// The notice that the firmware of the connected logger lacks something. It only warns.
class FirmwareNotice {
 public:
  /// `sentence` goes on behind the name of the model.
  FirmwareNotice(Form& form, const PageContext& context, Feature feature,
                 std::string_view sentence);

  /// Shows or hides it, for the model and the language in use; the result tells which.
  bool Update();

 private:
  const PageContext& context_;
  Feature feature_;
  std::string_view sentence_;
  Picture Warning;
  Label WarningText;
};

}  // namespace ostrel
