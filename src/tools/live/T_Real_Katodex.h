#pragma once

#include <cstdint>
#include <optional>

#include "controls/FrontForm.h"
#include "tools/ToolContext.h"
#include "tools/live/LivePoll.h"
#include "tools/live/LiveRecorder.h"
#include "tools/live/MonitorParts.h"

namespace ostrel {

/// The monitor of a logger for cathodic protection. Its four measuring channels have fixed ranges.
class T_Real_Katodex final : public FrontForm {
 public:
  T_Real_Katodex(ToolContext& context, LivePoll& poll, LiveRecorder& recorder);

  Form& GetForm() override { return form_; }
  void LoadText() override;
  void Form_Activate() override;
  void Form_Deactivate() override;
  /// Switches an output over with the next round. All outputs are written at once, so of two in
  /// one round the second alone takes effect.
  void OutputChange(std::int16_t index);

 private:
  void Poll();
  void TakeRound();
  void ShowNames();
  void Show();

  ToolContext& context_;
  LivePoll& poll_;
  LiveShow show_{context_};
  Form form_{"T_Real_Katodex", "Tiempo real"};
  ReadoutLine RTCText;
  Label LabelLectura;
  RecorderPart recorder_;
  Frame Frame1;
  MeasureRows analogs_, aux_;
  Frame Frame2;
  Lamps Led_D;
  Labels Label1;
  Frame Frame4;
  Lamps Led_F;
  Labels Label4;
  MathPart math_;
  Timer Timer1;
  LivePoll::RoundFeed::Subscription rounds_;  ///< while it has the front
  bool hasNames_ = false;                     ///< of the inputs: those of the first round stay
  std::optional<std::int16_t> pending_;       ///< the outputs to be written
};

}  // namespace ostrel
