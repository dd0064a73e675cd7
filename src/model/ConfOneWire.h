#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/Bounded.h"
#include "model/AlarmBlock.h"
#include "model/Describe.h"

namespace ostrel {

/// What a probe measures.
inline constexpr std::array<CodeWords, 3> kProbeInterfaceWords{
    {{0, "off"}, {4, "temperature"}, {5, "humidity"}}};

/// A 1-Wire probe.
struct ConfOneWire {
  static constexpr AlarmShape kShape{.configs = 4, .hasFlag = true, .hasNormal = true};

  std::string NOMBRE, UNIDAD;
  std::int16_t INTERFAZ = 0;       ///< 0 off, 4 temperature, 5 humidity
  Bool16 ID;                       ///< addressed by its identity, else the only one on the bus
  std::string ADDRESS1, ADDRESS2;  ///< the halves of the identity, "nnn.nnn.nnn.nnn" each
  Bounded<Alarm<LevelThresholds>, 5> ALARM;

  bool operator==(const ConfOneWire&) const = default;
};

template <Is<ConfOneWire> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [nombre, unidad, interfaz, id, address1, address2, alarm] = r;
  visit(FieldMeta{"NOMBRE", "name"}, nombre);
  visit(FieldMeta{"UNIDAD", "unit"}, unidad);
  visit(CodeMeta("INTERFAZ", "interface", kProbeInterfaceWords), interfaz);
  visit(FieldMeta{"ID", "addressed by identity"}, id);
  visit(TextMeta("ADDRESS1", "first half of the identity", 15), address1);
  visit(TextMeta("ADDRESS2", "second half of the identity", 15), address2);
  DescribeAlarms(alarm, ConfOneWire::kShape, visit);
}

/// Each half of the identity in single-probe mode.
inline constexpr std::string_view kNoIdentity = "000.000.000.000";

}  // namespace ostrel
