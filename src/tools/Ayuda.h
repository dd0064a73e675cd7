#pragma once

#include "controls/Form.h"
#include "tools/ToolContext.h"

namespace ostrel {

/// Works out the ratio of a flow channel from the weight of a pulse.
class Ayuda {
 public:
  explicit Ayuda(ToolContext& context);

  Form& GetForm() { return form_; }
  /// Shows the dialog until it closes. The operator may put the result into `field`.
  void ShowModal(TextBox& field);

 private:
  void Form_Load();
  void Calculate();
  /// Puts the result into the field that the dialog was opened for, and closes.
  void UseResult();

  ToolContext& context_;
  Form form_{"Ayuda", "Ayuda"};
  Label LabelPulsos;
  TextBox TextPulsos;
  ComboBox ComboPulso;
  Label LabelTimeBase;
  TextBox TextTimeBase;
  Label LabelSegundos;
  Label LabelEq;
  ComboBox ComboEq;
  Label LabelEqUn;
  TextBox TextEqUn;
  Button CalcButton, UseButton, CancelButton;
  TextBox* field_ = nullptr;  ///< gets the result
  float result_ = 0;
};

}  // namespace ostrel
