#pragma once

#include <cstdint>
#include <deque>

#include "controls/FrontForm.h"
#include "tools/ToolContext.h"
#include "tools/live/LivePoll.h"
#include "tools/live/LiveRecorder.h"
#include "tools/live/MonitorParts.h"

namespace ostrel {

/// The monitor: what the connected logger measures at this moment, with its clock. While it has the
/// front it reads twice a second. It switches outputs, too.
class T_Real_Tavro final : public FrontForm {
 public:
  T_Real_Tavro(ToolContext& context, LivePoll& poll, LiveRecorder& recorder);

  Form& GetForm() override { return form_; }
  void LoadText() override;
  void Form_Activate() override;
  void Form_Deactivate() override;
  /// Switches an output over.
  void OutputChange(std::int16_t index);

 private:
  // The shape of the model.
  void Shape();
  void ShapeInputs();
  void ShapeLabels();
  void ShapeTabs();

  void Poll();
  void TakeRound();
  void SwitchTicked();
  void FollowOutputs();
  void Show();
  void ShowNames();
  void ShowValues();
  void ShowLampsAndMath();
  void ShowBus();
  int Outputs() const;

  ToolContext& context_;
  LivePoll& poll_;
  LiveShow show_{context_};
  Form form_{"T_Real_Tavro", "Tiempo real"};
  ReadoutLine RTCText;
  Label LabelLectura;
  RecorderPart recorder_;
  TabRow SSTab1;
  Frame Frame1;
  MeasureRows analogs_;
  Frame Frame2;
  Lamps Led_D;
  Labels Label1;
  Label Line1, Label3;
  Lamps Led_O;
  Labels Label2;
  std::deque<CheckBox> CheckCambiarEstado;
  Frame Frame3;
  MeasureRows counters_, flows_;
  Frame Frame4;
  Lamps Led_F;
  Labels Label4;
  Frame Frame5;
  MeasureRows modbus_;
  std::deque<ReadoutLine> LabelModulo;
  std::deque<LimitBar> moduleBars_;
  MathPart math_;
  Timer Timer1;
  LivePoll::RoundFeed::Subscription rounds_;  ///< while it has the front
  bool polls_ = false;                        ///< the round under way is its own
  bool hasShown_ = false;                     ///< values stand here, of whichever session
};

}  // namespace ostrel
