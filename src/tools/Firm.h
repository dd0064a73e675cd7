#pragma once

#include <cstddef>
#include <string_view>

#include "controls/FrontForm.h"
#include "link/Progress.h"
#include "tools/FirmwareChoice.h"
#include "tools/ToolContext.h"

namespace ostrel {

/// Replaces the firmware of the connected logger.
class Firm final : public FrontForm {
 public:
  explicit Firm(ToolContext& context);

  Form& GetForm() override { return form_; }
  void LoadText() override;
  void Form_Load() override;
  void Form_Activate() override;
  void Form_Deactivate() override;
  bool IsInFront() const { return isActive_; }

 private:
  void Choose(TextBox& path);
  void Start();
  /// Shows what looks wrong with the files; true when nothing does, or the operator goes on.
  bool MayGoOn(const FirmwarePaths& paths, const FirmwareFiles& files);
  void SendFirmware(const FirmwareFiles& files);
  void ShowStage(FirmwareStage stage);
  void EnableAll(bool enabled);
  void SetInfo(std::string_view key);
  /// Shows a box; `why` stands below, where there is something to say.
  void Tell(std::string_view key, std::string_view why = {});

  ToolContext& context_;
  Form form_{"Firm", "Actualizacion de firmware"};
  Label LabelFirm;
  TextBox FirmPath;
  Button FirmBut;
  Label LabelLoader;
  TextBox LoaderPath;
  Button LoaderBut, StarBut;
  Label LabelInfo;
  ProgressBar PBar;
  Button Help;
  Timer Timer1;
  std::size_t imageOctets_ = 0;  ///< as stored
  bool isActive_ = false;
  ProgressFeed::Subscription progress_;
};

}  // namespace ostrel
