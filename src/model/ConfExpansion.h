#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/Bounded.h"
#include "model/AlarmBlock.h"
#include "model/Describe.h"
#include "model/InputMeta.h"

namespace ostrel {

/// What an expansion input measures.
enum ExpansionMode : std::int16_t {
  kModeOff = 0,
  kModeDigital = 1,
  kModeFlow = 2,
  kModeCounter = 3,
  kModeAnalog = 4,
};

inline constexpr std::array<CodeWords, 5> kModeWords{{{kModeOff, "off"},
                                                      {kModeDigital, "digital"},
                                                      {kModeFlow, "flow meter"},
                                                      {kModeCounter, "counter"},
                                                      {kModeAnalog, "analog"}}};
inline constexpr std::array<CodeWords, 2> kExpansionInterfaceWords{{{1, "4/20 mA"}, {3, "0-10 V"}}};

/// What an expansion input is as a contact.
struct ModuloDigital {
  static constexpr AlarmShape kShape{.configs = 1, .hasFlag = true, .hasNormal = false};

  std::string NOMBRE;
  Bool16 NC;  ///< normally closed contact
  Bounded<Alarm<ContactThresholds>, 2> ALARM;

  bool operator==(const ModuloDigital&) const = default;
};

template <Is<ModuloDigital> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [nombre, nc, alarm] = r;
  visit(FieldMeta{"NOMBRE", "name"}, nombre);
  visit(FieldMeta{"NC", "normally closed"}, nc);
  DescribeAlarms(alarm, ModuloDigital::kShape, visit);
}

/// What an expansion input is as a flow meter.
struct ModuloFlow {
  static constexpr AlarmShape kShape{
      .configs = 1, .hasFlag = true, .hasNormal = true, .persistence = "cycles"};

  std::string NOMBRE, UNIDAD;
  std::int16_t TIMEBASE = 0;  ///< seconds
  float RATIO = 0;            ///< units of a pulse
  Bounded<Alarm<LevelThresholds>, 2> ALARM;

  bool operator==(const ModuloFlow&) const = default;
};

template <Is<ModuloFlow> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [nombre, unidad, timebase, ratio, alarm] = r;
  visit(FieldMeta{"NOMBRE", "name"}, nombre);
  visit(FieldMeta{"UNIDAD", "unit"}, unidad);
  visit(NumberMeta("TIMEBASE", "time base", "s", SensibleRange{}), timebase);
  visit(NumberMeta("RATIO", "units of a pulse", {}, kPulseWeight), ratio);
  DescribeAlarms(alarm, ModuloFlow::kShape, visit);
}

/// What an expansion input is as a counter.
struct ModuloCounter {
  std::string NOMBRE, UNIDAD;
  float RATIO = 0;  ///< units of a pulse

  bool operator==(const ModuloCounter&) const = default;
};

template <Is<ModuloCounter> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [nombre, unidad, ratio] = r;
  visit(FieldMeta{"NOMBRE", "name"}, nombre);
  visit(FieldMeta{"UNIDAD", "unit"}, unidad);
  visit(NumberMeta("RATIO", "units of a pulse", {}, kPulseWeight), ratio);
}

/// What an expansion input is as an analog one.
struct ModuloAnalog {
  static constexpr AlarmShape kShape{.configs = 1, .hasFlag = true, .hasNormal = true};

  std::string NOMBRE, UNIDAD;
  std::int16_t INTERFAZ = 0;  ///< 1 4/20mA, 3 0-10V
  float IE = 0, FE = 0;       ///< start of scale and full scale of the signal
  float EqIE = 0, EqFE = 0;   ///< engineering values at these
  std::int16_t GRUPO = 0;     ///< stands in the file alone; loggers get the group of the input
  Bounded<Alarm<LevelThresholds>, 2> ALARM;

  bool operator==(const ModuloAnalog&) const = default;
};

template <Is<ModuloAnalog> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [nombre, unidad, interfaz, ie, fe, eqIe, eqFe, grupo, alarm] = r;
  visit(FieldMeta{"NOMBRE", "name"}, nombre);
  visit(FieldMeta{"UNIDAD", "unit"}, unidad);
  visit(CodeMeta("INTERFAZ", "interface", kExpansionInterfaceWords), interfaz);
  visit(FieldMeta{"IE", "start of scale"}, ie);
  visit(FieldMeta{"FE", "full scale"}, fe);
  visit(FieldMeta{"EqIE", "value at start of scale"}, eqIe);
  visit(FieldMeta{"EqFE", "value at full scale"}, eqFe);
  visit(FieldMeta{"GRUPO", "group, in the file alone"}, grupo);
  DescribeAlarms(alarm, ModuloAnalog::kShape, visit);
}

/// An input on an expansion module. It keeps what it is in every mode side by side, so that one
/// that changes its mode and goes back has lost nothing.
struct ConfModulo {
  std::int16_t MODO = 0;     ///< an `ExpansionMode`
  std::int16_t DIR = 0;      ///< address of the module, 0 to 15
  std::int16_t ENTRADA = 0;  ///< input on the module, 0 to 7
  std::int16_t GRUPO = 0;    ///< group that it is read in, 0 to 15
  ModuloDigital D;
  ModuloFlow Q;
  ModuloCounter C;
  ModuloAnalog A;

  bool operator==(const ConfModulo&) const = default;
};

/// The fields that an input has in every mode. Those of its modes stand in sections of their own.
template <Is<ConfModulo> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [modo, dir, entrada, grupo, digital, flow, counter, analog] = r;
  visit(CodeMeta("MODO", "mode", kModeWords), modo);
  visit(FieldMeta{"DIR", "module address"}, dir);
  visit(FieldMeta{"ENTRADA", "input on the module"}, entrada);
  visit(FieldMeta{"GRUPO", "group"}, grupo);
}

}  // namespace ostrel
