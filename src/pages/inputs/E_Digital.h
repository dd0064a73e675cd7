#pragma once

#include <array>

#include "pages/ChannelPage.h"
#include "pages/parts/BoundFields.h"

namespace ostrel {

/// A digital input: its name, the rest state of its contact, and its alarms.
class DigitalChannel {
 public:
  using Record = ConfDigital;
  static constexpr ChannelTraits kTraits{.page = PageId::E_Digital,
                                         .form = "E_Digital",
                                         .title = "Configuracion entrada digital ",
                                         .help = "Digital",
                                         .channels = 9,
                                         .thresholds = NumberForm::Num};
  static constexpr std::array<ThresholdBox, 2> kThresholds{ThresholdBox{"Persist", "Persist:"},
                                                           ThresholdBox{"Rearm", "Rearme:"}};

  DigitalChannel(Form& form, const PageContext& context);

  static auto& Records(DeviceConf& conf) { return conf.Digital; }
  void Load(const ConfDigital& record);
  void Save(ConfDigital& record) const;
  void CheckNumbers() {}

 private:
  BoundFields<ConfDigital> fields_;
  TextBox Nombre;
  OptionGroup contact_;
  OptionButton Int_NA, Int_NC;
  bool CurrentNC_ = false;
};

using E_Digital = ChannelPage<DigitalChannel>;

}  // namespace ostrel
