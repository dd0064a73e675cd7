#pragma once

#include <array>

#include "pages/PageContext.h"
#include "pages/parts/BoundFields.h"
#include "pages/parts/CodeChoice.h"
#include "pages/parts/ThresholdBoxes.h"

namespace ostrel {

// The controls of an expansion input in each of its modes, without those of its alarm.

class ModuloDigitalControls {
 public:
  using Record = ModuloDigital;
  static constexpr NumberForm kNumberForm = NumberForm::Num;
  static constexpr std::array<ThresholdBox, 2> kThresholds{ThresholdBox{"Persist", "Persist:"},
                                                           ThresholdBox{"Rearm", "Rearme:"}};
  static ControlNames kNames() { return {.prefix = "D_"}; }

  ModuloDigitalControls(Form& form, const PageContext&);

  void Load(const ModuloDigital& record);
  void Save(ModuloDigital& record) const;
  void CheckNumbers() const {}

 private:
  BoundFields<ModuloDigital> fields_;
  TextBox Nombre;
  OptionGroup contact_;
  OptionButton Int_NA, Int_NC;
  bool CurrentNC_ = false;
};

class ModuloFlowControls {
 public:
  using Record = ModuloFlow;
  static constexpr NumberForm kNumberForm = NumberForm::Dec;
  static constexpr std::array<ThresholdBox, 4> kThresholds{
      ThresholdBox{"Minimo"}, ThresholdBox{"Maximo"}, ThresholdBox{"Histeresis"},
      ThresholdBox{"Persist"}};
  static ControlNames kNames() { return {.prefix = "Q_"}; }

  ModuloFlowControls(Form& form, PageContext& context);

  void Load(const ModuloFlow& record) { fields_.Load(record); }
  void Save(ModuloFlow& record) const { fields_.Save(record); }
  void CheckNumbers() const { fields_.CheckNumbers(); }
  /// The unit stands behind the weight of a pulse, too.
  void Tick() { RatioUnit.face.SetCaption(Unidad.Text()); }

 private:
  BoundFields<ModuloFlow> fields_;
  TextBox Nombre;
  Frame FrameUnidad;
  TextBox Unidad;
  Frame FrameTimeBase;
  TextBox TimeBase;
  Label LabelSeconds;
  Frame FrameConversion;
  Label Label1;
  TextBox Ratio;
  Label RatioUnit;
  Button HelpBut;
  Label Notice;
};

/// A counter has no alarm: its controls are the whole of its tab.
class ModuloCounterControls {
 public:
  ModuloCounterControls(Form& form, const PageContext& context);

  void Load(const ModuloCounter& record) { fields_.Load(record); }
  /// Shows the live value of an input; nothing until it came in this session.
  void ShowTotal(int input);
  void Save(ModuloCounter& record) const { fields_.Save(record); }
  void CheckNumbers() const { fields_.CheckNumbers(); }

  /// Runs when the total is to be modified.
  std::function<void()> OnModify;

 private:
  const PageContext& context_;
  BoundFields<ModuloCounter> fields_;
  TextBox Nombre, Unidad;
  Frame FrameConversion;
  Label Label1;
  TextBox Ratio;
  Label TotalText;
  Button BotonModificar;
};

class ModuloAnalogControls {
 public:
  using Record = ModuloAnalog;
  static constexpr NumberForm kNumberForm = NumberForm::Dec;
  static constexpr std::array<ThresholdBox, 4> kThresholds{
      ThresholdBox{"Minimo"}, ThresholdBox{"Maximo"}, ThresholdBox{"Histeresis"},
      ThresholdBox{"Persist"}};
  static ControlNames kNames() { return {.prefix = "A_"}; }

  ModuloAnalogControls(Form& form, const PageContext&);

  void Load(const ModuloAnalog& record);
  void Save(ModuloAnalog& record) const;
  void CheckNumbers() const { fields_.CheckNumbers(); }

 private:
  BoundFields<ModuloAnalog> fields_;
  TextBox Nombre, Unidad;
  CodeChoice interface_;
  Label Label1;
  TextBox IE;
  Label Label2;
  TextBox FE, EqIE, EqFE;
};

}  // namespace ostrel
