#include "tools/live/T_Real_Tavro.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Scope.h"

namespace ostrel {
namespace {

constexpr int kDigitalLamps = 9;
constexpr int kOutputLamps = 6;
constexpr std::string_view kAnalogTitle = "Entradas analogicas";
constexpr std::string_view kProbeTitle = "Sondas";

template <class Controls>
auto& At(Controls& controls, int index) {
  return controls[static_cast<std::size_t>(index)];
}

}  // namespace

T_Real_Tavro::T_Real_Tavro(ToolContext& context, LivePoll& poll, LiveRecorder& recorder)
    : context_(context),
      poll_(poll),
      RTCText(form_, "RTCText"),
      LabelLectura(form_, "LabelLectura"),
      recorder_(form_, context, recorder),
      SSTab1(form_, "SSTab1"),
      Frame1(form_, "Frame1", kAnalogTitle),
      Frame2(form_, "Frame2", "Entradas / Salidas digitales"),
      Line1(form_, "Line1"),
      Label3(form_, "Label3", "Cambiar estado"),
      Frame3(form_, "Frame3", "Contadores / Caudalimetros"),
      Frame4(form_, "Frame4", "Flags"),
      Frame5(form_, "Frame5", "Variables MODBUS"),
      math_(form_),
      Timer1(form_, "Timer1", context.platform.loop, kLivePeriod) {
  AddRows(analogs_, form_, "AN", kAnalogRows);
  AddLamps(Led_D, Label1, form_, "Led_D", "Label1", "I", kDigitalLamps);
  AddLamps(Led_O, Label2, form_, "Led_O", "Label2", "O", kOutputLamps);
  for (int i = 0; i < kOutputLamps; ++i)
    CheckCambiarEstado.emplace_back(form_, ControlName("CheckCambiarEstado", i), "");
  AddRows(counters_, form_, "CNT", kPulseRows, {.hasUnit = false, .hasBar = false});
  AddRows(flows_, form_, "FL", kPulseRows);
  AddLamps(Led_F, Label4, form_, "Led_F", "Label4", "F", kLiveFlags);
  AddRows(modbus_, form_, "MB", kModbusRows);
  for (int i = 0; i < kModuleLines; ++i) {
    LabelModulo.emplace_back(form_, ControlName("LabelModulo", i));
    moduleBars_.emplace_back(form_, ControlName("Bar_EX", i));
  }
  Timer1.OnTimer = [this] { Poll(); };
  Shape();
}

void T_Real_Tavro::LoadText() {
  form_.TranslateCaptions(context_.Translate);
  recorder_.Follow();
  ShapeTabs();
}

void T_Real_Tavro::Form_Activate() {
  LoadText();
  Shape();
  FollowOutputs();
  Show();
  rounds_ = poll_.OnRound([this](const LiveRound&) { TakeRound(); });
  Timer1.SetEnabled(true);
}

void T_Real_Tavro::Form_Deactivate() {
  Timer1.SetEnabled(false);
  rounds_.reset();
  for (CheckBox& box : CheckCambiarEstado) box.SetChecked(false);
}

int T_Real_Tavro::Outputs() const {
  return std::min<int>(context_.profile.OutputCount, kOutputLamps);
}

// ---- The shape of the model

void T_Real_Tavro::Shape() {
  ShapeInputs();
  ShapeLabels();
  ShapeTabs();
}

void T_Real_Tavro::ShapeInputs() {
  const TargetProfile& model = context_.profile;
  const int analogs = HasProbes(model) ? model.OneWireCount : model.AnalogCount;
  for (int i = 0; i < kAnalogRows; ++i) At(analogs_, i).SetVisible(i < analogs);
  for (int i = 0; i < kPulseRows; ++i) {
    At(counters_, i).SetVisible(i < model.CaudalCount);
    At(flows_, i).SetVisible(i < model.CaudalCount);
  }
  for (int i = 0; i < kDigitalLamps; ++i) {
    At(Led_D, i).face.SetVisible(i < DigitalInputsShown(model));
    At(Label1, i).face.SetVisible(i < DigitalInputsShown(model));
  }
  for (int i = 0; i < kOutputLamps; ++i)
    for (Face* face : {&At(Led_O, i).face, &At(Label2, i).face, &At(CheckCambiarEstado, i).face})
      face->SetVisible(i < Outputs());
  for (int i = 0; i < kModbusRows; ++i)
    At(modbus_, i).SetVisible(model.IsVR200 && i < model.ModbusCount);
  for (int i = 0; i < kModuleLines; ++i) {
    At(LabelModulo, i).face.SetVisible(model.IsS100);
    if (!model.IsS100) At(moduleBars_, i).Set({}, {});
  }
}

void T_Real_Tavro::ShapeLabels() {
  const TargetProfile& model = context_.profile;
  for (int i = 0; i < kDigitalLamps; ++i)
    At(Label1, i).face.SetCaption(DigitalInputLabel(model, i));
  const std::string_view title = HasProbes(model) ? kProbeTitle : kAnalogTitle;
  Frame1.face.SetCaption(title, context_.Translate(title));
  const bool hasBus = model.IsVR200 || model.IsS100;
  Line1.face.SetVisible(hasBus);
  Label3.face.SetVisible(hasBus || HasProbes(model));
}

void T_Real_Tavro::ShapeTabs() {
  const TargetProfile& model = context_.profile;
  SSTab1.SetTabs({{context_.Translate("General"), true},
                  {context_.Translate("MODBUS"), model.IsVR200 || model.IsS100},
                  {context_.Translate("C.Matematicos"), model.IsS100}});
}

// ---- Polling

void T_Real_Tavro::OutputChange(std::int16_t index) {
  const auto mask = static_cast<std::uint16_t>(context_.live.OutputMask);
  context_.comms.SetSingleOutput(index, (mask >> index & 1) == 0);
}

void T_Real_Tavro::Poll() {
  recorder_.Follow();
  // A tick waits for the end of another dialogue, as the reading does.
  if (context_.comms.LinkBusy) return;
  FollowOutputs();
  if (!context_.Connected) return Show();
  const Lent polling(polls_, true);
  SwitchTicked();
  poll_.Read();
}

/// Also of rounds that go on for others: what was ticked during one goes out behind it, since the
/// ticks may all fall into them.
void T_Real_Tavro::TakeRound() {
  Show();
  FollowOutputs();
  if (!polls_) SwitchTicked();
}

void T_Real_Tavro::SwitchTicked() {
  for (int i = 0; i < Outputs(); ++i) {
    if (!At(CheckCambiarEstado, i).Checked()) continue;
    OutputChange(static_cast<std::int16_t>(i));
    At(CheckCambiarEstado, i).SetChecked(false);
  }
}

/// An output is switched to the other state than was read. Where that is not known to be the state
/// of now, nothing can be ticked, and a tick from before does not count any more.
void T_Real_Tavro::FollowOutputs() {
  const bool isKnown = !show_.AgeOf(LiveAnswer::Masks).isStale;
  for (CheckBox& box : CheckCambiarEstado) {
    box.face.SetEnabled(isKnown);
    if (!isKnown) box.SetChecked(false);
  }
}

void T_Real_Tavro::Show() {
  // What stands here may be of a session before, whose end is to be seen.
  hasShown_ = hasShown_ || std::ranges::any_of(context_.live.reads, [](const LiveRead& read) {
                return read.hasCome || read.missed > 0;
              });
  if (!hasShown_) return;
  ShowNames();
  ShowValues();
  ShowBus();
  ShowLampsAndMath();
  show_.ShowClock(RTCText);
  LabelLectura.face.SetCaption(show_.AgeText());
}

void T_Real_Tavro::ShowNames() {
  const RealTimeData& live = context_.live;
  for (int i = 0; i < kPulseRows; ++i) {
    At(counters_, i).SetNames(live.CounterName[i]);
    At(flows_, i).SetNames(live.FlowName[i], live.FlowUnit[i]);
  }
  const bool probes = HasProbes(context_.profile);
  for (int i = 0; i < kAnalogRows; ++i)
    At(analogs_, i)
        .SetNames((probes ? live.AuxName : live.AnalogName)[i],
                  (probes ? live.AuxUnit : live.AnalogUnit)[i]);
  if (context_.profile.IsVR200)
    for (int i = 0; i < kModbusRows; ++i)
      At(modbus_, i).SetNames(live.ModbusName[i], live.ModbusUnit[i]);
  ShowMathNames(math_, live, context_.profile);
}

void T_Real_Tavro::ShowValues() {
  const RealTimeData& live = context_.live;
  for (int i = 0; i < kPulseRows; ++i) {
    show_.Measure(At(counters_, i), {LiveKind::Counter, i}, LiveAnswer::Counters,
                  NumText(live.CounterValue[i]), live.CounterValue[i]);
    show_.Measure(At(flows_, i), {LiveKind::Flow, i}, LiveAnswer::Flows, NumText(live.FlowValue[i]),
                  live.FlowValue[i]);
  }
  const bool probes = HasProbes(context_.profile);
  for (int i = 0; i < kAnalogRows; ++i) {
    const float value = (probes ? live.AuxValue : live.AnalogValue)[i];
    show_.Measure(At(analogs_, i), {probes ? LiveKind::Probe : LiveKind::Analog, i},
                  probes ? LiveAnswer::Aux : LiveAnswer::Masks, NumText(value), value);
  }
}

void T_Real_Tavro::ShowBus() {
  const RealTimeData& live = context_.live;
  const TargetProfile& model = context_.profile;
  if (model.IsVR200)
    for (int i = 0; i < std::min<int>(kModbusRows, model.ModbusCount); ++i)
      show_.Measure(At(modbus_, i), {LiveKind::Modbus, i}, LiveAnswer::Modbus,
                    NumText(live.ModbusValue[i]), live.ModbusValue[i]);
  if (!model.IsS100) return;
  for (int i = 0; i < kModuleLines; ++i) {
    const LiveId id{LiveKind::Module, i};
    ReadoutLine& line = At(LabelModulo, i);
    line.face.SetCaption(live.ModuloName[i] + ":" + NumText(live.ModuloValue[i]) + " " +
                         live.ModuloUnit[i]);
    line.SetStale(show_.AgeOf(AnswerOfModule(i)));
    At(moduleBars_, i).face.SetCaption(LiveName(id, live.ModuloName[i]));
    show_.Bar(At(moduleBars_, i), id, AnswerOfModule(i), live.ModuloValue[i]);
  }
}

void T_Real_Tavro::ShowLampsAndMath() {
  const RealTimeData& live = context_.live;
  show_.ShowLamps(Led_D, static_cast<std::uint16_t>(live.DigitalMask));
  show_.ShowLamps(Led_O, static_cast<std::uint16_t>(live.OutputMask));
  show_.ShowLamps(Led_F, static_cast<std::uint32_t>(live.FlagMask));
  show_.ShowMath(math_);
}

}  // namespace ostrel
