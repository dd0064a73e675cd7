#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "controls/FrontForm.h"
#include "tools/LineStamper.h"
#include "tools/ToolContext.h"
#include "tools/TypedHistory.h"

namespace ostrel {

/// The console of the connected logger: shows what arrives as long as it has the front, and sends
/// what is typed.
class Terminal final : public FrontForm {
 public:
  explicit Terminal(ToolContext& context);

  Form& GetForm() override { return form_; }
  void LoadText() override;
  void Form_Activate() override;
  void Form_Deactivate() override;
  bool IsInFront() const { return isActive_; }

 private:
  void Take();
  void Show(std::string_view text);
  void Send(std::string_view head, TextBox& box, TypedHistory& history);
  /// Sends a message and runs `sent`, unless a dialogue has the line.
  std::string_view Hindrance() const;
  void Post(std::string message, const std::function<void()>& sent = {});
  void Save();
  void SwitchLog();
  void EndLog();
  void ShowLines();

  ToolContext& context_;
  Form form_{"Terminal", "Terminal"};
  Frame EnviarFrame;
  TextBox TextComando;
  Button EnviarBut;
  TextBox TextTrama;
  Button TramaBut, TraceEnable, TraceDisable;
  CheckBox StampCheck, PauseCheck, LogCheck;
  Button SaveBut, BorrarBut;
  TextView TextWin;
  Label LabelLines;
  Timer Timer1;
  bool isActive_ = false;
  int lines_ = 0;  ///< line feeds received
  LineStamper stamper_;
  std::string heldBack_;  ///< came during a pause
  std::unique_ptr<std::ostream> log_;
  TypedHistory commands_, frames_;
};

}  // namespace ostrel
