#pragma once

#include <array>

#include "pages/ChannelPage.h"
#include "pages/parts/BoundFields.h"
#include "pages/parts/CodeChoice.h"

namespace ostrel {

/// A 1-Wire probe: name and unit, what it measures, how it is addressed, and its alarms.
class ProbeChannel {
 public:
  using Record = ConfOneWire;
  static constexpr ChannelTraits kTraits{.page = PageId::E_OneWire,
                                         .form = "E_OneWire",
                                         .title = "Configuracion sonda 1Wire ",
                                         .help = "Probe",
                                         .channels = 4};
  static constexpr std::array<ThresholdBox, 4> kThresholds{
      ThresholdBox{"Minimo"}, ThresholdBox{"Maximo"}, ThresholdBox{"Histeresis"},
      ThresholdBox{"Persist"}};

  ProbeChannel(Form& form, const PageContext& context);

  static auto& Records(DeviceConf& conf) { return conf.OneWire; }
  void Load(const ConfOneWire& record);
  void Save(ConfOneWire& record) const;
  void LoadLive(std::int16_t index) { index_ = index; }
  void CheckNumbers() {}

 private:
  void ClickId();
  /// The identity is lost at once, not at the next commit.
  void ClickNoId();
  void EnableIdentity(bool enabled);
  /// Asks the logger for the identity of the one probe on its bus, and shows it.
  void ReadIdentity();

  const PageContext& context_;
  BoundFields<ConfOneWire> fields_;
  TextBox Nombre, Unidad;
  Frame FrameInterface;
  CodeChoice interface_;
  Frame FrameID;
  OptionGroup addressing_;
  OptionButton OptionNoId, OptionId;
  TextBox ID0, ID1;
  Button BotonLeerId;
  std::int16_t index_ = 0;
};

using E_OneWire = ChannelPage<ProbeChannel>;

}  // namespace ostrel
