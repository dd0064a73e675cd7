#pragma once

#include <string>

#include "controls/Form.h"
#include "pages/PageContext.h"

namespace ostrel {

/// The one editor of every action list: a modal dialog that works on `ActionBuffer`. Leaving it by
/// anything but `OKButton` leaves the buffer as it was.
class ActEdit {
 public:
  explicit ActEdit(PageContext& context);

  Form& GetForm() { return form_; }
  /// Loads the dialog from the buffer and shows it until it closes. Its title says whose list it
  /// is.
  void ShowModal(std::string_view subject = {});

 private:
  void Form_Load();
  /// The line of `RefList` for an action number; empty when the model does not offer it.
  std::string FindActionItem(std::int16_t number) const;
  /// Writes the lines of `DeviceList` into the buffer, the rest of it 0.
  void StoreActionList();
  void Add();
  void RemoveChosen() { DeviceList.Remove(DeviceList.Position()); }

  PageContext& context_;
  Form form_{"ActEdit", "Editar acciones"};
  Label LabelRef, LabelDevice;
  ListBox RefList, DeviceList;
  Button AddButton, DelButton, OKButton, CancelButton;
};

}  // namespace ostrel
