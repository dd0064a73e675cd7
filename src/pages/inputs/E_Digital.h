#pragma once

#include "pages/AlarmChannelPage.h"

namespace ostrel {

/// A digital input: its name, the rest state of its contact, and its alarms.
class DigitalChannel {
 public:
  using Record = ConfDigital;
  static constexpr std::string_view kForm = "E_Digital";
  static constexpr std::string_view kTitle = "Configuracion entrada digital ";
  static constexpr std::string_view kHelp = "Digital";
  static constexpr std::string_view kSection = "DIGITAL";
  static constexpr int kChannels = 9;
  static constexpr int kConfigsShown = 4;

  DigitalChannel(Form& form, const PageContext& context);

  static ThresholdBoxes Thresholds();
  static auto& Records(DeviceConf& conf) { return conf.Digital; }
  static void ClearFields(ConfDigital& record);
  void Load(const ConfDigital& record);
  void Save(ConfDigital& record) const;
  void AfterClear() {}
  bool Activate() { return false; }
  void CheckNumbers() {}
  std::vector<WireSection> WireSections();
  std::vector<WireBlock> WireBlocks();

 private:
  const PageContext& context_;
  TextBox Nombre;
  OptionGroup contact_;
  OptionButton Int_NA, Int_NC;
  bool CurrentNC_ = false;
};

using E_Digital = AlarmChannelPage<DigitalChannel>;

}  // namespace ostrel
