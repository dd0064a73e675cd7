#pragma once

#include <cstdint>
#include <string>

#include "base/Bounded.h"
#include "model/AlarmBlock.h"
#include "model/Describe.h"
#include "model/InputMeta.h"

namespace ostrel {

/// An auxiliary input of a logger for cathodic protection.
struct ConfAux {
  static constexpr AlarmShape kShape{.configs = 4, .hasFlag = true, .hasNormal = true};

  std::string NOMBRE, UNIDAD;
  std::int16_t INTERFAZ = 0;  ///< 0 off, 6 on
  float IE = 0, FE = 0;       ///< start of scale and full scale of the signal
  float EqIE = 0, EqFE = 0;   ///< engineering values at these
  Bounded<Alarm<LevelThresholds>, 5> ALARM;

  bool operator==(const ConfAux&) const = default;
};

template <Is<ConfAux> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [nombre, unidad, interfaz, ie, fe, eqIe, eqFe, alarm] = r;
  visit(FieldMeta{"NOMBRE", "name"}, nombre);
  visit(FieldMeta{"UNIDAD", "unit"}, unidad);
  visit(CodeMeta("INTERFAZ", "interface", kOnOrOffWords), interfaz);
  visit(FieldMeta{"IE", "start of scale"}, ie);
  visit(FieldMeta{"FE", "full scale"}, fe);
  visit(FieldMeta{"EqIE", "value at start of scale"}, eqIe);
  visit(FieldMeta{"EqFE", "value at full scale"}, eqFe);
  DescribeAlarms(alarm, ConfAux::kShape, visit);
}

/// How a cathodic protection is measured while it is switched off.
struct ConfKatodex {
  std::int16_t OFFTIME = 1;     ///< seconds of a measurement, 1 to 3
  std::int16_t SAMPLERATE = 3;  ///< 3, 5, 10, 20 or 30
  float AUX1RATIO = 0;          ///< amperes of a volt at the shunt

  bool operator==(const ConfKatodex&) const = default;
};

template <Is<ConfKatodex> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [offtime, samplerate, aux1ratio] = r;
  visit(NumberMeta("OFFTIME", "length of an OFF measurement", "s", {1, 3}), offtime);
  visit(FieldMeta{"SAMPLERATE", "sampling of an OFF measurement"}, samplerate);
  visit(FieldMeta{"AUX1RATIO", "amperes of a volt at the shunt"}, aux1ratio);
}

}  // namespace ostrel
