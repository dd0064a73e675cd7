#pragma once

#include <functional>

#include "controls/Form.h"

namespace ostrel {

/// The session controls of the general page. Buttons never talk to a logger: they raise a request
/// and set the hourglass, and the session timer serves it.
class SessionFrame {
 public:
  SessionFrame(Form& form, EventLoop& loop);

  /// Requests to open or close the session.
  void IniCom_Click();
  /// Sets `Leer` and `Escribir`.
  void EnableTransfers(bool enabled);
  /// Runs after a request has been raised. Set by the shell.
  std::function<void()> OnRequest;
  /// The port number that the selected text of `Puerto` names in its characters 4 to 6; 0 for none.
  std::int16_t SelectedPort() const;

  bool IniRequest = false;    ///< open or close the session at the next tick
  bool ReadRequest = false;   ///< download the configuration
  bool WriteRequest = false;  ///< upload the configuration

  Button IniCom, Leer, Escribir, SearchBut;
  CheckBox ModemCheck;
  TextBox CallNum;
  ComboBox Puerto;
  Label ComStat;
  ProgressBar PBar;
  Timer TimerComms;

 private:
  void Raise(bool& request);

  Form& form_;
};

}  // namespace ostrel
