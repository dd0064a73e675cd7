#pragma once

#include <functional>

#include "pages/Page.h"
#include "pages/PageContext.h"
#include "pages/PhoneFrame.h"
#include "pages/SessionFrame.h"
#include "pages/parts/BoundFields.h"
#include "pages/parts/FirmwareNotice.h"

namespace ostrel {

/// The general page: what a logger has only once, its telephones, and the session with it. It
/// commits itself once a second while no download replaces the model.
class General final : public Page {
 public:
  explicit General(PageContext& context);

  PageId Id() const override { return PageId::General; }
  Form& GetForm() override { return form_; }
  void LoadText() override;
  void ChangeIndex(std::int16_t index) override;
  void Clear() override;
  void LoadData() override;
  void SaveConf(IniClass& document) override;
  void RestoreConf() override;
  void SavePage() override;
  void SaveInto(DeviceConf& conf) const override;
  void Form_Load() override;
  void Form_Activate() override { PageActive = true; }
  void Form_Deactivate() override { PageActive = false; }

  /// Refills the list of channels of a telephone's mask from the model's counts.
  void LoadMaskSelection() { phones_.LoadMaskSelection(); }
  /// Selects the option that fits the number of the SMS centre.
  void CSMCheck();
  /// Selects the first telephone, as after a file has been opened.
  void SelectFirstPhone() { phones_.SelectFirst(); }
  /// Empties the port list and fills it anew, through `OnScanPorts`.
  void SearchPorts();
  /// The session controls, for the session driver and the link.
  SessionFrame& Session() { return session_; }
  /// Shows one value of the device information, by the key under which it has arrived.
  void ShowInfo(std::string_view key);

  /// Fills the port list with what the machine has; set by the shell.
  std::function<void()> OnScanPorts;
  bool PageActive = false;

 private:
  void SelectCentre(std::string_view number);

  PageContext& context_;
  Form form_{"General", ""};
  BoundFields<ConfGeneral> fields_;
  TextBox NameBox;
  OptionGroup centre_;
  OptionButton CSMMovi, CSMVoda, CSMAmen, CSMOtro;
  TextBox SMSCBox, RENVT, RENVN, PTLF, RestoreText;
  PhoneFrame phones_;
  SessionFrame session_;
  Label FirmText, SerialText, VBatText, MaxHText, UsedHText;
  ProgressBar RSSIBar;
  Label LabelRSSI;
  FirmwareNotice notice_;
  Button help_;
  Timer Timer1_;
};

}  // namespace ostrel
