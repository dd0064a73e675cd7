#pragma once

#include "pages/PlainPage.h"

namespace ostrel {

/// The macros of the logger and the equations of its flags: ready-made statements that are put
/// together from number, command and name, and what is left of the memory for them.
class MacroControls {
 public:
  static constexpr PlainTraits kTraits{.page = PageId::Macros,
                                       .form = "Macros",
                                       .title = "Configuracion Macros / Ecuaciones",
                                       .help = "Macros",
                                       .loadsAfterClear = false};

  MacroControls(Form& form, PageContext& context);

  void LoadText() { ShowMemory(); }
  void LoadData();
  void Save(DeviceConf& conf) const;
  void CheckNumbers() const {}
  /// Empties fields and list; the model gets that with the next commit.
  void AfterClear();

 private:
  void AddMacro();
  void AddEquation();
  void Delete();
  /// Brings the selected line back into the fields. It stays in the list.
  void Edit();
  /// The two forms of a line; false, with nothing changed, for one that is not of its form.
  bool EditMacro(const std::string& line);
  bool EditEquation(const std::string& line);
  void Add(std::string line, int lastToAdvance);
  void Changed();
  /// What is left of the memory, and how many lines stand behind those that are sent.
  void ShowMemory();

  PageContext& context_;
  Label Label4;
  ComboBox MacroNum;
  Label Label1;
  TextBox MacroName;
  Label Label2;
  TextBox MacroCommand;
  Button AddBut, AddEqBut;
  Label Label8;
  ListBox MacroPool;
  Button DelBut;
  Label FreeMem, NotSent;
};

using Macros = PlainPage<MacroControls>;

}  // namespace ostrel
