#pragma once

#include <functional>

#include "pages/PlainPage.h"
#include "pages/parts/FirmwareNotice.h"

namespace ostrel {

/// The numbers whose voice calls are let through, and the macro that such a call starts. They are
/// read and written from here, apart from the rest of the configuration.
class VoiceListControls {
 public:
  static constexpr PlainTraits kTraits{.page = PageId::Aut_Voz,
                                       .form = "Aut_Voz",
                                       .title = "Autorizados llamada de voz",
                                       .help = "Voice"};

  VoiceListControls(Form& form, PageContext& context);

  void LoadText();
  void LoadData();
  /// While the list is being read the controls have nothing to commit.
  void Save(DeviceConf& conf) const;
  void CheckNumbers() const {}
  /// What the connected logger is able to do.
  void Tick();
  void Activate() { Tick(); }
  void AfterClear() { PhoneText.SetText(""); }

 private:
  // What the operator does with single numbers.
  void Add();
  void Delete();
  void Search();
  /// The number typed; nothing, after saying so, where it is none.
  std::optional<std::string> TypedNumber();

  // With many at once.
  void Paste();
  void Import();
  void Export();
  void TakeNumbers(std::string_view text);
  std::vector<std::string> Numbers() const;
  void Show(const std::vector<std::string>& numbers);

  // And with the logger.
  void Read();
  void Write();
  void RunDialogue(std::string_view during, std::string_view success,
                   const std::function<bool()>& dialogue);
  void ShowState(std::string_view key);

  Form& form_;
  PageContext& context_;
  bool isReading_ = false;
  FirmwareNotice notice_;
  Label PhoneLabel;
  TextBox PhoneText;
  Button Add_, Del, SearchBut;
  ListBox PhoneList;
  Button PasteBut, ImportBut, ExportBut;
  Label MacroLabel;
  ComboBox PNMacro;
  CheckBox ACKCheck;
  Button ReadBut, WriteBut;
  ProgressBar PBar;
  Label StateLabel;
};

using Aut_Voz = PlainPage<VoiceListControls>;

}  // namespace ostrel
