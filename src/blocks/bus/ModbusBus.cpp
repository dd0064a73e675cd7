#include "blocks/bus/ModbusBus.h"

namespace ostrel {
namespace {

constexpr ConfModbusBus kFirstBus{.BAUD = 1200, .MASTER = kTrue, .SLAVE_ADDRESS = 1};

}  // namespace

void ModbusBus::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  conf.ModbusBus = kFirstBus;
}

void ModbusBus::Restore(DeviceConf& conf, const TargetProfile&, const KeyReader& read) {
  const std::string section = SectionName(kSection, -1);
  ConfModbusBus& bus = conf.ModbusBus;
  Describe(bus, [&](const FieldMeta& meta, auto& field) {
    SetFieldText(FieldRef(&field), read(section, std::string(meta.word)));
  });
  if (!read(section, std::string(kRole)).empty()) return;
  bus.MASTER = kTrue;
  bus.SLAVE_ADDRESS = 0;
}

const std::array<LineSection, 1> ModbusBus::kLines{{
    {"MODBUS.PRM",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo& info) {
       ConfModbusBus& bus = conf.ModbusBus;
       line.Into(bus.BAUD);
       const bool hasRole = Has(info.Features, Feature::ModbusSlave);
       bus.MASTER = Bool16(!hasRole || line.Number() == 0);
       if (hasRole) line.Into(bus.SLAVE_ADDRESS);
     }},
}};

void ModbusBus::Compose(const DeviceConf& conf, const Receiver& receiver, int, StatementList& out) {
  const ConfModbusBus& bus = conf.ModbusBus;
  out.Add(Statement("").Num("BAUD=", bus.BAUD));
  if (!receiver.Has(Feature::ModbusSlave)) return;
  out.Add(Statement("MBSLAVE=").Digits(bus.MASTER ? 0 : 1));
  out.Add(Statement("").Num("MBSLAVEADD=", bus.SLAVE_ADDRESS));
}

}  // namespace ostrel
