#pragma once

#include "pages/AlarmChannelPage.h"

namespace ostrel {

/// An analog input: name and unit, electrical interface, scale, power group, and its alarms.
class AnalogChannel {
 public:
  using Record = ConfAnalog;
  static constexpr std::string_view kForm = "E_Analog";
  static constexpr std::string_view kTitle = "Configuracion entrada analogica ";
  static constexpr std::string_view kHelp = "Analog";
  static constexpr std::string_view kSection = "ANALOG";
  static constexpr int kChannels = 4;
  static constexpr int kConfigsShown = 4;

  AnalogChannel(Form& form, const PageContext& context);

  static ThresholdBoxes Thresholds();
  static auto& Records(DeviceConf& conf) { return conf.Analog; }
  static void ClearFields(ConfAnalog& record);
  void Load(const ConfAnalog& record);
  void Save(ConfAnalog& record) const;
  void AfterClear();
  bool Activate();
  void CheckNumbers();
  std::vector<WireSection> WireSections();
  std::vector<WireBlock> WireBlocks();

 private:
  /// Selects the option of an interface code; a code without an option selects nothing.
  void ShowInterface(std::int16_t code);
  void ClickInterface(std::int16_t code);

  const PageContext& context_;
  TextBox Nombre, Unidad;
  OptionGroup interface_;
  OptionButton Int_NoHabil, Int_4_20, Int_0_5, Int_0_10, Int_Press;
  Label Label1;
  TextBox IE;
  Label Label2;
  TextBox FE;
  TextBox EqIE, EqFE;
  ComboBox Grupo;
  Label Label11;
  Picture Jumper;
  Label Asterisk, Notice;
  std::int16_t CurrentInterface_ = 0;
};

using E_Analog = AlarmChannelPage<AnalogChannel>;

}  // namespace ostrel
