#include "sim/blocks/Modbus.h"

#include <array>

#include "sim/blocks/Block.h"
#include "sim/wire/AlarmStatement.h"

namespace ostrel::sim {
namespace {

constexpr std::array kBitRates = {1200, 2400, 4800, 9600, 19'200, 38'400, 57'600};
constexpr int kMostSlave = 247;

// ---- The bus

/// Whatever rate it is told, it keeps: which ones its port can run at it does not look at.
void SetBitRate(const Work& w) { w.SetWhole(w.conf.modbusBus.baud, kMost32); }

void SetSlaveMode(const Work& w) {
  w.in.Expect("=");
  w.conf.modbusBus.slave = w.in.Plain(0, 1) == 1;
  w.in.End();
}

struct BusSettings {
  static constexpr StatementRule kRules[] = {
      {"BAUD", SetBitRate},
      {"MBSLAVE", SetSlaveMode, kModbusSlave},
      {"MBSLAVEADD", [](const Work& w) { w.SetWhole(w.conf.modbusBus.address, kMostSlave); },
       kModbusSlave},
  };

  static bool Stands(const Identity& self) { return self.Traits().modbus > 0; }

  static void Tell(const Configuration& conf, const Identity& self, Report& out) {
    const ModbusBus& bus = conf.modbusBus;
    out.Start("MODBUS.PRM").Add(bus.baud);
    if (self.Has(kModbusSlave)) out.Add(bus.slave ? 1 : 0).Add(bus.address);
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    conf.modbusBus.baud = make.Pick(kBitRates);
    if (!make.Self().Has(kModbusSlave)) return;
    conf.modbusBus.slave = make.Chance(0.5);
    conf.modbusBus.address = make.Between(1, kMostSlave);
  }

  static void Demonstrate(Demonstration& demo) { demo.Say("BAUD= 9600"); }

  static void Visit(auto& conf, auto& visit) {
    auto& bus = conf.modbusBus;
    visit("modbus-bus.baud", bus.baud);
    visit("modbus-bus.slave", bus.slave);
    visit("modbus-bus.address", bus.address);
  }
};

// ---- The channels

ModbusChannel& ChannelOf(const Work& w) { return w.Channel(w.conf.modbus, w.self.Traits().modbus); }

void SetUpChannel(const Work& w) {
  ModbusChannel& channel = ChannelOf(w);
  w.SetNames(channel);
  w.in.Expect(",SLAVE=");
  channel.slave = w.in.Whole(0, kMostSlave);
  w.in.Expect(",REGADD=");
  channel.address = w.in.Whole(0, kMost32);
  if (w.self.Has(kModbusFormats)) {
    channel.size = w.in.HasToken(",32BIT")   ? RegisterSize::Bits32
                   : w.in.HasToken(",FLOAT") ? RegisterSize::Float
                                             : RegisterSize::Bits16;
  }
  if (w.self.Has(kModbusConstants)) {
    w.in.Expect(",CONST=");
    channel.constant = w.in.Decimal();
    w.in.Expect(",MASK=");
    channel.mask = w.in.Whole(kLeast32, kMost32);
    channel.negate = w.in.HasToken(",NEGATE");
  }
  w.in.Expect(",RATIO=");
  channel.multiplier = w.in.PlainDecimal();
  w.in.End();
}

void ReadChannelAlarm(const Work& w) {
  const auto persistence = w.self.Has(kModbusConstants) ? Persistence::Told : Persistence::Unknown;
  ReadLevelAlarm(w.in, ChannelOf(w).alarms, persistence);
}

ModbusChannel MakeChannel(RandomParts& make) {
  constexpr RegisterSize kSizes[] = {RegisterSize::Bits16, RegisterSize::Bits32,
                                     RegisterSize::Float};
  ModbusChannel channel;
  channel.name = make.Text(19);
  channel.unit = make.Unit();
  channel.slave = make.Between(0, kMostSlave);
  channel.address = make.Between(0, 65'535);
  if (make.Self().Has(kModbusFormats)) channel.size = make.Pick(kSizes);
  channel.multiplier = make.Value(1, 9999);
  if (!make.Self().Has(kModbusConstants)) return channel;
  channel.constant = make.Value(-9999, 9999);
  channel.mask = make.Between(1, 65'535);
  channel.negate = make.Chance(0.5);
  if (make.Chance(0.3)) channel.multiplier = 0;  // a digital one
  return channel;
}

struct Channels {
  static constexpr StatementRule kRules[] = {
      {"MBCONF", SetUpChannel},
      {"DISMB", [](const Work& w) { Disable(w.in, ChannelOf(w)); }},
      {"+ALMMB", ReadChannelAlarm},
      {"-ALMMB", [](const Work& w) { RemoveAlarm(w.in, ChannelOf(w).alarms); }},
  };

  static bool Stands(const Identity& self) { return self.Traits().modbus > 0; }

  static void Tell(const Configuration& conf, const Identity& self, Report& out) {
    const bool constants = self.Has(kModbusConstants);
    const bool formats = self.Has(kModbusFormats);
    for (int i = 0; i < self.Traits().modbus; ++i) {
      const ModbusChannel& channel = conf.modbus[static_cast<std::size_t>(i)];
      out.Start("MODBUS").Add(i).Add(channel.name).Add(channel.unit);
      out.Add(channel.slave).Add(channel.address).Add(channel.multiplier);
      // Fields have fixed places: what stands behind others needs them filled.
      if (constants || formats)
        out.Add(channel.constant).Add(channel.mask).Add(channel.negate ? 1 : 0);
      if (formats) out.Add(static_cast<int>(channel.size));
      out.LevelAlarms("MODBUS", i, channel.alarms, constants);
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    for (int i = 0; i < make.Self().Traits().modbus; ++i) {
      ModbusChannel& channel = conf.modbus[static_cast<std::size_t>(i)];
      if (make.Wanted()) channel = MakeChannel(make);
      make.LevelAlarms(channel.alarms);
      if (!make.Self().Has(kModbusConstants)) channel.alarms[0].persistence = 0;
    }
  }

  static void Demonstrate(Demonstration& demo) {
    demo.SayEach({"MBCONF?=Energ\xED"
                  "a bomba 1,UNIT=kWh,SLAVE= 1,REGADD= 256,32BIT,CONST= 0,MASK= 0,RATIO=0.1",
                  "MBCONF?=Energ\xED"
                  "a bomba 2,UNIT=kWh,SLAVE= 2,REGADD= 256,32BIT,CONST= 0,MASK= 0,RATIO=0.1",
                  "MBCONF?=Tensi\xF3n L1,UNIT=V,SLAVE= 1,REGADD= 3000,FLOAT,CONST= 0,MASK= 0,"
                  "RATIO=1",
                  "MBCONF?=Fallo variador,UNIT=,SLAVE= 3,REGADD= 8,CONST= 0,MASK= 4,RATIO=0"},
                 demo.Self().Traits().modbus);
    demo.Say(
        "+ALMMB2=Tensi\xF3n fuera de margen,INDEX= 0,MAX= 253,MIN= 207,HIST= 3,P= 5,SREST,EQ= 0,"
        "ACTHI= 80,ACTLO= 80,ACTNOM= 80");
  }

  static void Visit(auto& conf, auto& visit) {
    VisitEach("modbus", conf.modbus, visit, [&](const std::string& prefix, auto& channel) {
      visit(prefix + "name", channel.name);
      visit(prefix + "unit", channel.unit);
      visit(prefix + "slave", channel.slave);
      visit(prefix + "address", channel.address);
      visit(prefix + "size", channel.size, RegisterSize::Float);
      visit(prefix + "multiplier", channel.multiplier);
      visit(prefix + "constant", channel.constant);
      visit(prefix + "mask", channel.mask);
      visit(prefix + "negate", channel.negate);
      VisitAlarms(prefix, channel.alarms, visit);
    });
  }
};

}  // namespace

constinit const Block kModbusBusBlock = MakeBlock<BusSettings>();
constinit const Block kModbusBlock = MakeBlock<Channels>();

}  // namespace ostrel::sim
