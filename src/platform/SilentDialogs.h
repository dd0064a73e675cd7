#pragma once

#include <optional>
#include <string>

#include "platform/Dialogs.h"

namespace ostrel {

/// Lets a program work where nobody can be asked: boxes are passed over, questions answered with no
/// or not at all.
class SilentDialogs final : public Dialogs {
 public:
  BoxAnswer ShowMessage(const MessageBox& box) override {
    return box.buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::No;
  }
  std::optional<std::string> ChooseFile(const FileQuestion&) override { return {}; }
  std::string AskCode(const std::string&) override { return {}; }
  void ShowModal(Modal&, const std::function<void()>&) override {}
  void Beep() override {}
};

}  // namespace ostrel
