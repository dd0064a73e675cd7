#pragma once

#include <cstdint>
#include <string>

#include "base/Bounded.h"
#include "model/AlarmBlock.h"
#include "model/Describe.h"
#include "model/InputMeta.h"

namespace ostrel {

/// A flow meter: a pulse input with the weight of a pulse.
struct ConfCaudal {
  static constexpr AlarmShape kShape{
      .configs = 4, .hasFlag = true, .hasNormal = true, .persistence = "cycles"};

  std::string NOMBRE, UNIDAD;
  std::int16_t INTERFAZ = 0;  ///< 0 off, 6 on
  float RATIO = 0;            ///< engineering units of a pulse
  std::int16_t TIMEBASE = 0;  ///< seconds
  float TOTALRATIO = 0;       ///< weight of a pulse in the totaliser
  Bounded<Alarm<LevelThresholds>, 5> ALARM;

  bool operator==(const ConfCaudal&) const = default;
};

/// The weight in the totaliser is left out: it belongs to the sampling that all meters share.
template <Is<ConfCaudal> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [nombre, unidad, interfaz, ratio, timeBase, totalRatio, alarm] = r;
  visit(TextMeta("NOMBRE", "name", 31), nombre);
  visit(TextMeta("UNIDAD", "unit", 9), unidad);
  visit(CodeMeta("INTERFAZ", "interface", kOnOrOffWords), interfaz);
  visit(NumberMeta("TIMEBASE", "time base", "s", SensibleRange{}, 6), timeBase);
  visit(NumberMeta("RATIO", "units a pulse", {}, kPulseWeight), ratio);
  DescribeAlarms(alarm, ConfCaudal::kShape, visit);
}

}  // namespace ostrel
