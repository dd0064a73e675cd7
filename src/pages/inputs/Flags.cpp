#include "pages/inputs/Flags.h"

#include "model/Features.h"
#include "pages/AlarmWire.h"

namespace ostrel {

std::vector<WireSection> FlagChannel::WireSections() {
  auto& flags = context_.conf.Flag;
  return {
      {"FLAG.ALM",
       [&flags](LineReader& line) {
         AlarmBlock& alarm = AlarmCell(line, flags).common;
         line.Into(alarm.TEXTO);
         ReadAlarmGroup(line, alarm);
       }},
      {"FLAG.ACT",
       [&flags](LineReader& line) {
         AlarmBlock& alarm = AlarmCell(line, flags).common;
         ReadActions(line, {&alarm.ACTHI, &alarm.ACTLO});
       }},
  };
}

std::vector<WireBlock> FlagChannel::WireBlocks() {
  return {{"Flags", [this](StatementList& out) {
             if (!Has(context_.info.Features, Feature::FlagAlarms)) return;
             for (int f = 0; f < kChannels; ++f)
               AddAlarms(out, {"ALMF", ",ACTHI=", ",ACTLO=", ""}, f, context_.conf.Flag[f].ALARM,
                         ConfFlag::kShape, [](Statement&, const NoThresholds&) {});
           }}};
}

}  // namespace ostrel
