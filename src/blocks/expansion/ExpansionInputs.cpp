#include "blocks/expansion/ExpansionInputs.h"

#include "blocks/AlarmWire.h"
#include "blocks/inputs/InterfaceCodes.h"

namespace ostrel {
namespace {

void ClearModes(ConfModulo& input) {
  input.D.NOMBRE.clear();
  input.D.NC = kFalse;
  ClearAlarms(input.D.ALARM, ModuloDigital::kShape);
  input.Q.NOMBRE.clear();
  input.Q.UNIDAD.clear();
  input.Q.TIMEBASE = 0;
  input.Q.RATIO = 1;
  ClearAlarms(input.Q.ALARM, ModuloFlow::kShape);
  input.C = {.NOMBRE = {}, .UNIDAD = {}, .RATIO = 1};
  // The interface keeps its value.
  input.A.NOMBRE.clear();
  input.A.UNIDAD.clear();
  input.A.IE = input.A.FE = input.A.EqIE = input.A.EqFE = 0;
  input.A.GRUPO = 0;
  ClearAlarms(input.A.ALARM, ModuloAnalog::kShape);
}

/// Starts a statement that sets an input up.
Statement SetUp(std::string_view key, int channel, const std::string& name) {
  Statement statement(key);
  return statement.Digits(channel).Text("=").Text(name);
}

void AddAddress(Statement& statement, const ConfModulo& input) {
  statement.Num(",ADRS=", input.DIR).Num(",chanel=", input.ENTRADA).Num(",group=", input.GRUPO);
}

void ComposeDigital(const ConfModulo& input, int channel, StatementList& out) {
  const ModuloDigital& digital = input.D;
  Statement statement = SetUp("EXPINPUTDCONF", channel, digital.NOMBRE);
  AddAddress(statement, input);
  out.Add(statement.TokenIf(bool(digital.NC), ",NC"));
  AddAlarms(out, "ALMEXPINPUTD", channel, ModuloDigital::kShape, digital.ALARM);
}

void ComposeFlow(const ConfModulo& input, int channel, StatementList& out) {
  const ModuloFlow& flow = input.Q;
  Statement statement = SetUp("EXPINPUTQCONF", channel, flow.NOMBRE);
  statement.Text(",UNIT=").Text(flow.UNIDAD);
  AddAddress(statement, input);
  statement.Num(",TB=", flow.TIMEBASE).Text(",REGDAYMIN");
  out.Add(statement.Text(",RATIO=").Text(DecText(flow.RATIO)));
  AddAlarms(out, "ALMEXPINPUTQ", channel, ModuloFlow::kShape, flow.ALARM);
}

void ComposeCounter(const ConfModulo& input, int channel, StatementList& out) {
  const ModuloCounter& counter = input.C;
  Statement statement = SetUp("EXPINPUTCCONF", channel, counter.NOMBRE);
  AddAddress(statement, input);
  out.Add(
      statement.Text(",UNIT=").Text(counter.UNIDAD).Text(",RATIO=").Text(DecText(counter.RATIO)));
}

/// The group stands in it twice, in two spellings.
void ComposeAnalog(const ConfModulo& input, int channel, StatementList& out) {
  const ModuloAnalog& analog = input.A;
  Statement statement = SetUp("EXPINPUTACONF", channel, analog.NOMBRE);
  statement.Text(",UNIT=").Text(analog.UNIDAD);
  AddAddress(statement, input);
  out.Add(statement.TokenIf(analog.INTERFAZ == kInterfaceCurrent, ",CURRENT")
              .TokenIf(analog.INTERFAZ == kInterface10V, ",10V")
              .Num(",BSVAL=", analog.IE)
              .Num(",FSVAL=", analog.FE)
              .Num(",BSUNIT=", analog.EqIE)
              .Num(",FSUNIT=", analog.EqFE)
              .Num(",GROUP=", input.GRUPO));
  AddAlarms(out, "ALMEXPINPUTA", channel, ModuloAnalog::kShape, analog.ALARM);
}

/// The input that a line is about, in the mode that its key names, with its address.
ConfModulo& ReadInput(LineReader& line, DeviceConf& conf, ExpansionMode mode) {
  ConfModulo& input = conf.Modulo[line.Index()];
  input.MODO = mode;
  line.Into(input.DIR);
  line.Into(input.ENTRADA);
  line.Into(input.GRUPO);
  return input;
}

void ReadDigital(LineReader& line, DeviceConf& conf, const DeviceInfo&) {
  ModuloDigital& digital = ReadInput(line, conf, kModeDigital).D;
  digital.NC = Bool16(line.Number() != 0);
  line.Into(digital.NOMBRE);
}

void ReadFlow(LineReader& line, DeviceConf& conf, const DeviceInfo&) {
  ModuloFlow& flow = ReadInput(line, conf, kModeFlow).Q;
  line.Into(flow.NOMBRE);
  line.Into(flow.UNIDAD);
  line.Into(flow.TIMEBASE);
  line.Into(flow.RATIO);
}

void ReadCounter(LineReader& line, DeviceConf& conf, const DeviceInfo&) {
  ModuloCounter& counter = ReadInput(line, conf, kModeCounter).C;
  line.Into(counter.NOMBRE);
  line.Into(counter.UNIDAD);
  line.Into(counter.RATIO);
}

void ReadAnalog(LineReader& line, DeviceConf& conf, const DeviceInfo&) {
  ModuloAnalog& analog = ReadInput(line, conf, kModeAnalog).A;
  line.Into(analog.NOMBRE);
  line.Into(analog.UNIDAD);
  const bool isCurrent = line.Number() == 1;
  analog.INTERFAZ = isCurrent ? kInterfaceCurrent : kInterface10V;
  line.Into(analog.IE);
  line.Into(analog.EqIE);
  line.Into(analog.FE);
  line.Into(analog.EqFE);
}

/// The alarm of one mode that a line is about.
template <auto kPart>
auto& CellOf(LineReader& line, DeviceConf& conf) {
  auto& alarms = (conf.Modulo[line.Index()].*kPart).ALARM;
  return alarms[line.Index()];
}

template <auto kPart>
void ReadModeAlarm(LineReader& line, DeviceConf& conf, const DeviceInfo&) {
  auto& cell = CellOf<kPart>(line, conf);
  ReadAlarm(line, cell);
}

template <auto kPart>
void ReadModeActions(LineReader& line, DeviceConf& conf, const DeviceInfo&) {
  auto& cell = CellOf<kPart>(line, conf);
  ReadLevelActions(line, cell.common);
}

}  // namespace

void ExpansionInputs::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  for (int i = 0; i < kInputs; ++i) {
    ConfModulo& input = conf.Modulo[i];
    input.MODO = input.DIR = input.ENTRADA = input.GRUPO = 0;
    ClearModes(input);
  }
}

int ExpansionInputs::OtherUser(const DeviceConf& conf, ModuleInput place, int self) {
  for (int i = 0; i < kInputs; ++i) {
    const ConfModulo& other = conf.Modulo[i];
    const bool isUser = i != self && other.MODO != kModeOff;
    if (isUser && ModuleInput{other.DIR, other.ENTRADA} == place) return i;
  }
  return -1;
}

ModuleInput ExpansionInputs::NextFree(const DeviceConf& conf, ModuleInput behind, int self) {
  constexpr int kPlaces = kModules * kInputsOfModule;
  const int start = behind.module * kInputsOfModule + behind.input;
  for (int step = 1; step < kPlaces; ++step) {
    const int number = (start + step) % kPlaces;
    const ModuleInput place{number / kInputsOfModule, number % kInputsOfModule};
    if (OtherUser(conf, place, self) < 0) return place;
  }
  return behind;
}

void ExpansionInputs::Alarms(const DeviceConf& conf, const Receiver& receiver,
                             const AlarmVisitor& visit) {
  for (int i = 0; i < Count(receiver); ++i) {
    const ConfModulo& input = conf.Modulo[i];
    if (input.MODO == kModeDigital) visit({&kDigital, i, 0}, input.D.ALARM[0].common);
    if (input.MODO == kModeFlow) visit({&kFlow, i, 0}, input.Q.ALARM[0].common);
    if (input.MODO == kModeAnalog) visit({&kAnalog, i, 0}, input.A.ALARM[0].common);
  }
}

const std::array<LineSection, 10> ExpansionInputs::kLines{{
    {"EXPINPUT.D", ReadDigital},
    {"EXPINPUT.D.ALM", ReadModeAlarm<&ConfModulo::D>},
    {"EXPINPUT.D.ACT",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = CellOf<&ConfModulo::D>(line, conf);
       ReadContactActions(line, cell.common);
     }},
    {"EXPINPUT.C", ReadCounter},
    {"EXPINPUT.Q", ReadFlow},
    {"EXPINPUT.Q.ALM", ReadModeAlarm<&ConfModulo::Q>},
    {"EXPINPUT.Q.ACT", ReadModeActions<&ConfModulo::Q>},
    {"EXPINPUT.A", ReadAnalog},
    {"EXPINPUT.A.ALM", ReadModeAlarm<&ConfModulo::A>},
    {"EXPINPUT.A.ACT", ReadModeActions<&ConfModulo::A>},
}};

void ExpansionInputs::Compose(const DeviceConf& conf, const Receiver&, int channel,
                              StatementList& out) {
  const ConfModulo& input = conf.Modulo[channel];
  switch (input.MODO) {
    case kModeOff:
      return out.Add(Statement("DISEXPINPUT").Digits(channel));
    case kModeDigital:
      return ComposeDigital(input, channel, out);
    case kModeFlow:
      return ComposeFlow(input, channel, out);
    case kModeCounter:
      return ComposeCounter(input, channel, out);
    case kModeAnalog:
      return ComposeAnalog(input, channel, out);
    default:
      return;
  }
}

}  // namespace ostrel
