#pragma once

#include <cstdint>
#include <string>

#include "base/Bounded.h"
#include "model/AlarmBlock.h"
#include "model/Describe.h"
#include "model/InputMeta.h"

namespace ostrel {

/// A channel that the logger computes from others.
struct ConfMath {
  static constexpr AlarmShape kShape{.configs = 1, .hasFlag = true, .hasNormal = true};

  std::string NOMBRE, UNIDAD;
  std::int16_t INTERFAZ = 0;  ///< 0 off, 6 on
  std::string ECUACION;       ///< plain text that the logger interprets
  Bounded<Alarm<LevelThresholds>, 2> ALARM;

  bool operator==(const ConfMath&) const = default;
};

template <Is<ConfMath> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [nombre, unidad, interfaz, ecuacion, alarm] = r;
  visit(TextMeta("NOMBRE", "name", 19), nombre);
  visit(TextMeta("UNIDAD", "unit", 9), unidad);
  visit(CodeMeta("INTERFAZ", "interface", kOnOrOffWords), interfaz);
  visit(TextMeta("ECUACION", "equation", 31), ecuacion);
  DescribeAlarms(alarm, ConfMath::kShape, visit);
}

}  // namespace ostrel
