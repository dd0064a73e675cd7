#include "tools/live/T_Real_Katodex.h"

#include <array>
#include <utility>

#include "base/Numbers.h"

namespace ostrel {
namespace {

constexpr int kInputLamps = 8;

struct FixedChannel {
  std::string_view name, unit;
};
constexpr std::array<FixedChannel, kAnalogRows> kAuxChannels{{{"Canal 0 (15VCC):", "V"},
                                                              {"Canal 1 (150mVCC):", "mV"},
                                                              {"Canal 2 (100VCA):", "V"},
                                                              {"Canal 3 (100VCC):", "V"}}};

}  // namespace

T_Real_Katodex::T_Real_Katodex(ToolContext& context, LivePoll& poll, LiveRecorder& recorder)
    : context_(context),
      poll_(poll),
      RTCText(form_, "RTCText"),
      LabelLectura(form_, "LabelLectura"),
      recorder_(form_, context, recorder),
      Frame1(form_, "Frame1", "Entradas analogicas"),
      Frame2(form_, "Frame2", "Entradas/ Salidas digitales"),
      Frame4(form_, "Frame4", "Flags"),
      math_(form_),
      Timer1(form_, "Timer1", context.platform.loop, kLivePeriod) {
  AddRows(analogs_, form_, "AN", kAnalogRows);
  AddRows(aux_, form_, "AUX", kAnalogRows, {.hasUnit = true, .hasBar = false});
  AddLamps(Led_D, Label1, form_, "Led_D", "Label1", "I", kInputLamps);
  AddLamps(Led_F, Label4, form_, "Led_F", "Label4", "F", kLiveFlags);
  Timer1.OnTimer = [this] { Poll(); };
}

void T_Real_Katodex::LoadText() {
  form_.TranslateCaptions(context_.Translate);
  for (std::size_t i = 0; i < kAuxChannels.size(); ++i)
    aux_[i].SetNames(context_.Translate(kAuxChannels.at(i).name),
                     std::string(kAuxChannels.at(i).unit));
  recorder_.Follow();
}

void T_Real_Katodex::Form_Activate() {
  LoadText();
  if (hasNames_) Show();  // as of a session that may have ended
  rounds_ = poll_.OnRound([this](const LiveRound&) { TakeRound(); });
  Timer1.SetEnabled(true);
}

void T_Real_Katodex::Form_Deactivate() {
  Timer1.SetEnabled(false);
  rounds_.reset();
}

void T_Real_Katodex::OutputChange(std::int16_t index) {
  const auto mask = static_cast<std::uint16_t>(context_.live.OutputMask);
  pending_ = static_cast<std::int16_t>(mask ^ (1U << index));
}

void T_Real_Katodex::Poll() {
  LoadText();
  if (context_.comms.LinkBusy) return;
  if (context_.Connected) return poll_.Read();
  if (hasNames_) Show();
}

/// Also of rounds that go on for others, into which all ticks may fall.
void T_Real_Katodex::TakeRound() {
  if (pending_) context_.comms.SetOutput(*std::exchange(pending_, {}));
  ShowNames();
  Show();
}

void T_Real_Katodex::ShowNames() {
  ShowMathNames(math_, context_.live, context_.profile);
  if (std::exchange(hasNames_, true)) return;
  for (int i = 0; i < kAnalogRows; ++i)
    analogs_[static_cast<std::size_t>(i)].SetNames(context_.live.AnalogName[i],
                                                   context_.live.AnalogUnit[i]);
}

void T_Real_Katodex::Show() {
  const RealTimeData& live = context_.live;
  for (int i = 0; i < kAnalogRows; ++i) {
    const auto row = static_cast<std::size_t>(i);
    show_.Measure(analogs_[row], {LiveKind::Analog, i}, LiveAnswer::Masks,
                  NumText(live.AnalogValue[i]), live.AnalogValue[i]);
    aux_[row].digit.SetText(NumText(live.AuxMeasure[i]));
  }
  show_.ShowLamps(Led_D, static_cast<std::uint16_t>(live.DigitalMask));
  show_.ShowLamps(Led_F, static_cast<std::uint32_t>(live.FlagMask));
  show_.ShowMath(math_);
  show_.ShowClock(RTCText);
  LabelLectura.face.SetCaption(show_.AgeText());
}

}  // namespace ostrel
