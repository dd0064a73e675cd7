#include "blocks/Blocks.h"

#include <algorithm>
#include <array>

#include "blocks/FileKeys.h"
#include "blocks/GprsParameters.h"
#include "blocks/MacroPool.h"
#include "blocks/VoiceNumbers.h"
#include "blocks/bus/ModbusBus.h"
#include "blocks/bus/ModbusChannels.h"
#include "blocks/expansion/ExpansionInputs.h"
#include "blocks/inputs/AnalogInputs.h"
#include "blocks/inputs/AuxiliaryInputs.h"
#include "blocks/inputs/DigitalInputs.h"
#include "blocks/inputs/FlagAlarms.h"
#include "blocks/inputs/FlowMeters.h"
#include "blocks/inputs/MathChannels.h"
#include "blocks/inputs/Probes.h"
#include "blocks/inputs/Sampling.h"
#include "blocks/timers/CyclicTimers.h"
#include "blocks/timers/LongTimers.h"
#include "blocks/timers/MonthlyTimers.h"
#include "blocks/timers/WeeklyTimers.h"
#include "store/IniTool.h"

namespace ostrel {
namespace {

template <class Kind>
void VisitFields(DeviceConf& conf, const TargetProfile& profile, const FieldVisitor& visit) {
  const auto each = [&](const FieldId& id, const FieldMeta& meta, auto& field) {
    visit(id, meta, FieldRef(&field));
  };
  Kind::Fields(conf, profile, each);
}

template <class Kind>
void ViewFields(const DeviceConf& conf, const TargetProfile& profile, const FieldViewer& view) {
  const auto each = [&](const FieldId& id, const FieldMeta& meta, const auto& field) {
    view(id, meta, FieldView(&field));
  };
  Kind::Fields(conf, profile, each);
}

template <class Kind>
void RestoreFields(DeviceConf& conf, const TargetProfile& profile, const KeyReader& read) {
  if constexpr (requires { Kind::Restore(conf, profile, read); }) {
    Kind::Restore(conf, profile, read);
  } else {
    const auto each = [&](const FieldId& id, const FieldMeta& meta, auto& field) {
      SetFieldText(FieldRef(&field), read(SectionName(id), KeyName(id, meta.placeForm)));
    };
    Kind::Fields(conf, profile, each);
  }
}

template <class Kind>
constexpr auto AlarmsOf() -> decltype(Block::alarms) {
  if constexpr (requires { &Kind::Alarms; })
    return &Kind::Alarms;
  else
    return nullptr;
}

template <class Kind>
constexpr auto AsSentOf() -> decltype(Block::asSent) {
  if constexpr (requires { &Kind::AsSent; })
    return &Kind::AsSent;
  else
    return nullptr;
}

template <class Kind>
constexpr auto BeginStreamOf() -> decltype(Block::beginStream) {
  if constexpr (requires { &Kind::BeginStream; })
    return &Kind::BeginStream;
  else
    return nullptr;
}

template <class Kind>
Block MakeBlock(PageId page) {
  return {.page = page,
          .clear = &Kind::Clear,
          .visit = &VisitFields<Kind>,
          .view = &ViewFields<Kind>,
          .restore = &RestoreFields<Kind>,
          .alarms = AlarmsOf<Kind>(),
          .asSent = AsSentOf<Kind>(),
          .beginStream = BeginStreamOf<Kind>(),
          .lines = Kind::kLines};
}

}  // namespace

std::span<const Block> Blocks() {
  static const std::array blocks{
      MakeBlock<GeneralParameters>(PageId::General), MakeBlock<DigitalInputs>(PageId::E_Digital),
      MakeBlock<AnalogInputs>(PageId::E_Analog),     MakeBlock<AnalogGroups>(PageId::Grupos),
      MakeBlock<FlowMeters>(PageId::Caudal),         MakeBlock<Sampling>(PageId::SampleRate),
      MakeBlock<FlagAlarms>(PageId::Flags),          MakeBlock<Probes>(PageId::E_OneWire),
      MakeBlock<MathChannels>(PageId::E_Math),       MakeBlock<ModbusBus>(PageId::CONF_MODBUS),
      MakeBlock<ModbusChannels>(PageId::E_MODBUS),   MakeBlock<ExpansionInputs>(PageId::E_Modular),
      MakeBlock<CyclicTimers>(PageId::CTimer),       MakeBlock<LongTimers>(PageId::LTimer),
      MakeBlock<WeeklyTimers>(PageId::WTimer),       MakeBlock<MonthlyTimers>(PageId::MTimer),
      MakeBlock<AuxiliaryInputs>(PageId::E_Aux),     MakeBlock<OffMeasurement>(PageId::Katodex),
      MakeBlock<MacroPool>(PageId::Macros),          MakeBlock<GprsParameters>(PageId::GPRS),
      MakeBlock<VoiceNumbers>(PageId::Aut_Voz),
  };
  return blocks;
}

const Block* FindBlock(PageId page) {
  const auto found = std::ranges::find(Blocks(), page, &Block::page);
  return found == Blocks().end() ? nullptr : &*found;
}

void SaveBlock(const Block& block, const DeviceConf& conf, const TargetProfile& profile,
               IniClass& document) {
  block.view(conf, profile, [&](const FieldId& id, const FieldMeta& meta, FieldView field) {
    const std::string text = FieldText(field, profile.IsS100);
    if (std::holds_alternative<const ConfPhone*>(field) && text.empty()) return;
    ConfWriteKey(text, SectionName(id), KeyName(id, meta.placeForm), document);
  });
}

void RestoreBlock(const Block& block, DeviceConf& conf, const TargetProfile& profile,
                  const Translation& translate, const KeyReader& read) {
  block.clear(conf, profile, translate);
  block.restore(conf, profile, read);
}

}  // namespace ostrel
