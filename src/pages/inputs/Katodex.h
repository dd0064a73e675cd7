#pragma once

#include "pages/PlainPage.h"
#include "pages/parts/BoundFields.h"

namespace ostrel {

/// How a cathodic protection is measured while it is switched off.
class OffMeasurementControls {
 public:
  static constexpr PlainTraits kTraits{.page = PageId::Katodex,
                                       .form = "Katodex",
                                       .title = "Proteccion catodica",
                                       .help = {},
                                       .loadsAfterClear = false};

  OffMeasurementControls(Form& form, PageContext& context);

  /// A value that no row stands for selects the first row, and is corrected to it.
  void LoadData();
  void Save(DeviceConf& conf) const;
  void CheckNumbers() const { fields_.CheckNumbers(); }
  /// The first rows; the model gets them with the next commit.
  void AfterClear();

 private:
  PageContext& context_;
  BoundFields<ConfKatodex> fields_;
  Frame FrameOff;
  Label LabelOff;
  ComboBox ComboT_OFF;
  Label Label4, LabelFreq;
  ComboBox ComboSamples;
  Frame FrameRatio;
  Label Label3;
  TextBox TextRatio;
};

using Katodex = PlainPage<OffMeasurementControls>;

}  // namespace ostrel
