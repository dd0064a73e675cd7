#include "sim/blocks/Block.h"

namespace ostrel::sim {
namespace {

constexpr const Block* kBlocks[] = {
    &kGeneralBlock, &kTelephoneBlock,   &kDigitalBlock,   &kAnalogBlock,      &kGroupBlock,
    &kFlagBlock,    &kCyclicTimerBlock, &kLongTimerBlock, &kWeeklyTimerBlock, &kMonthlyTimerBlock,
    &kFlowBlock,    &kModbusBusBlock,   &kModbusBlock,    &kExpansionBlock,   &kProbeBlock,
    &kMathBlock,    &kMacroBlock,       &kKatodexBlock,   &kAuxiliaryBlock,   &kGprsBlock,
    &kVoiceBlock,
};

}  // namespace

std::span<const Block* const> Blocks() { return kBlocks; }

void Work::SetText(std::string& text) const {
  in.Expect("=");
  text = in.Text();
  in.End();
}

void Work::SetWhole(int& number, int last) const {
  in.Expect("=");
  number = in.Whole(0, last);
  in.End();
}

}  // namespace ostrel::sim
