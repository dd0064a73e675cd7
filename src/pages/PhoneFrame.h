#pragma once

#include "controls/Form.h"
#include "pages/PageContext.h"

namespace ostrel {

/// The telephone list of the general page and the controls in which one telephone is entered.
class PhoneFrame {
 public:
  PhoneFrame(Form& form, PageContext& context);

  void LoadMaskSelection();
  /// Shows the telephones of the model, one row each.
  void LoadList();
  /// Commits the rows of the list to the slots in use of a model.
  void SaveList(DeviceConf& conf) const;
  /// Applies the state of `CheckMask` and starts the entry controls.
  void Start();
  void SelectFirst();

 private:
  void ApplyCheckMask();
  /// Adds the telephone of the entry controls, or replaces the one of the same number when the
  /// operator agrees.
  void AddPhone();
  /// The row of a number; -1 when it is not in the list.
  int RowOf(std::string_view number) const;
  /// The row of the entry controls; `channels` counts the channels in its mask.
  std::string EnteredRow(int& channels) const;
  /// Empties the entry controls for the next number.
  void ResetEntry();
  /// Loads a row of the list into the entry controls.
  void EditRow();
  void SelectMask(const std::string& row);

  Form& form_;
  PageContext& context_;
  TextBox NewTlf;
  ComboBox PrioBox, Privilegios;
  CheckBox CheckMask;
  OptionGroup mode_;
  OptionButton MaskInclude, MaskExclude;
  MultiListBox MaskSelection;
  Button Anadir, Borrar;
  Label LabelEditar;
  ListBox ListaTlf;
};

}  // namespace ostrel
