#pragma once

#include <functional>
#include <optional>
#include <string>

namespace ostrel {

enum class BoxIcon { None, Information, Question, Exclamation };
enum class BoxButtons { Ok, YesNo };
enum class BoxAnswer { Ok, Yes, No };

/// A message box; texts are UTF-8 and already translated.
struct MessageBox {
  std::string text;
  std::string title;
  BoxIcon icon = BoxIcon::None;
  BoxButtons buttons = BoxButtons::Ok;
  bool prefersNo = false;  ///< of Yes and No, Return presses No
};

/// A question for a file name. `filter` is a list of description and pattern pairs, all joined by
/// "|"; `filterIndex` counts pairs from 1.
struct FileQuestion {
  enum class Mode { Open, Save } mode = Mode::Open;
  std::string filter;
  int filterIndex = 1;
  bool overwritePrompt = false;
  std::string suggested{};  ///< path to start from, if any
};

/// What a face shows until it is closed: a form. A platform hands it through and does not look
/// inside.
class Modal {
 protected:
  ~Modal() = default;
};

/// What asks the operator, modal; injected because each face asks in its own way.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual BoxAnswer ShowMessage(const MessageBox& box) = 0;
  /// The chosen path, or nothing when the operator cancels.
  virtual std::optional<std::string> ChooseFile(const FileQuestion& question) = 0;
  /// Asks for the access code of a logger; `prompt` is translated. Empty when the operator gives
  /// none.
  virtual std::string AskCode(const std::string& prompt) = 0;
  /// Shows a form until its logic closes it or the operator dismisses it. `shown`, if any, runs
  /// once it is on the screen.
  virtual void ShowModal(Modal& modal, const std::function<void()>& shown) = 0;
  virtual void Beep() = 0;
};

}  // namespace ostrel
