#pragma once

#include <deque>

#include "pages/PlainPage.h"
#include "pages/parts/FirmwareNotice.h"

namespace ostrel {

/// What all flow meters share: the sampling rate of a pressure logger, and the weight of a pulse of
/// each meter in its totaliser.
class SamplingControls {
 public:
  static constexpr PlainTraits kTraits{.page = PageId::SampleRate,
                                       .form = "SampleRate",
                                       .title = "Configuracion global de caudalimetros",
                                       .help = "FlowC"};

  SamplingControls(Form& form, PageContext& context);

  void LoadData();
  void Save(DeviceConf& conf) const;
  /// Shows what the model has.
  void Activate();
  void Tick() { notice_.Update(); }
  void CheckNumbers() {}

 private:
  /// The weight of one meter, numbered as an array of controls is.
  struct WeightControls {
    WeightControls(Form& form, int meter);

    Label LabelT;
    ComboBox ComboT;
  };

  PageContext& context_;
  Label LabelFrecuencia;
  ComboBox ComboSampleRate;
  Label WarningMsg;
  std::deque<WeightControls> weights_;
  FirmwareNotice notice_;
};

using SampleRate = PlainPage<SamplingControls>;

}  // namespace ostrel
