#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/Bounded.h"
#include "model/AlarmBlock.h"
#include "model/Describe.h"

namespace ostrel {

/// The MODBUS port of a logger.
struct ConfModbusBus {
  std::int32_t BAUD = 0;           ///< bit/s
  Bool16 MASTER;                   ///< the logger polls; else it is a slave
  std::int16_t SLAVE_ADDRESS = 0;  ///< its own, as a slave

  bool operator==(const ConfModbusBus&) const = default;
};

template <Is<ConfModbusBus> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [baud, master, slaveAddress] = r;
  visit(NumberMeta("BAUD", "bit rate", "bit/s", {}), baud);
  visit(FieldMeta{"MASTER", "bus master"}, master);
  visit(FieldMeta{"SLAVE_ADDRESS", "own address as a slave"}, slaveAddress);
}

/// Thresholds of a MODBUS channel. On a digital one MINIMO is the rearming time and MAXIMO the
/// persistence.
struct RegisterThresholds {
  float MINIMO = 0, MAXIMO = 0, HISTERESIS = 0, PERSIST = 0;

  bool operator==(const RegisterThresholds&) const = default;
};

template <Is<RegisterThresholds> T, class Visit>
void Describe(T& t, Visit&& visit) {
  auto& [minimo, maximo, histeresis, persist] = t;
  visit(NumberMeta("MINIMO", "minimum, or rearming of a digital one", {}, kLevel), minimo);
  visit(NumberMeta("MAXIMO", "maximum, or persistence of a digital one", {}, kLevel), maximo);
  visit(NumberMeta("HISTERESIS", "hysteresis", {}, {0, kLevel.most}), histeresis);
  visit(NumberMeta("PERSIST", "persistence", {}, kPersistence), persist);
}

/// Codes of the size of a register.
enum RegisterSize : std::int16_t { kRegister16Bits = 0, kRegister32Bits = 1, kRegisterFloat = 2 };

inline constexpr std::array<CodeWords, 3> kRegisterSizeWords{
    {{kRegister16Bits, "16 bits"}, {kRegister32Bits, "32 bits"}, {kRegisterFloat, "float"}}};
/// Registers of a bus have addresses of 16 bits.
inline constexpr SensibleRange kRegisterAddresses{.most = 65'535};

/// A register of a slave that is read as a channel.
struct ConfModbus {
  static constexpr AlarmShape kShape{.configs = 1, .hasFlag = true, .hasNormal = true};

  std::string NOMBRE, UNIDAD;
  std::int16_t SLAVE = 0;    ///< address of the slave; 0 inhibits reading
  std::int32_t REGADD = 0;   ///< address of the register
  float MULT = 0;            ///< multiplier; a logger holds 0 for a digital channel
  Bool16 ANALOG_MODE;        ///< else digital
  float CONSTANTE = 0;       ///< added to the value
  std::int32_t MASCARA = 0;  ///< bits that count, of a digital channel
  Bool16 NEGATE;             ///< turns the masked result over
  std::int16_t TYPE = 0;     ///< a `RegisterSize`
  Bounded<Alarm<RegisterThresholds>, 2> ALARM;

  bool operator==(const ConfModbus&) const = default;
};

template <Is<ConfModbus> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [nombre, unidad, slave, regadd, mult, analog, constante, mascara, negate, type, alarm] = r;
  visit(FieldMeta{"NOMBRE", "name"}, nombre);
  visit(FieldMeta{"UNIDAD", "unit"}, unidad);
  visit(FieldMeta{"SLAVE", "slave address"}, slave);
  visit(NumberMeta("REGADD", "register address", {}, kRegisterAddresses), regadd);
  visit(FieldMeta{"MULT", "multiplier"}, mult);
  visit(FieldMeta{"ANALOG_MODE", "analog"}, analog);
  visit(FieldMeta{"CONSTANTE", "constant"}, constante);
  visit(FieldMeta{"MASCARA", "bit mask"}, mascara);
  visit(FieldMeta{"NEGATE", "negated"}, negate);
  visit(CodeMeta("TYPE", "register size", kRegisterSizeWords), type);
  DescribeAlarms(alarm, ConfModbus::kShape, visit);
}

}  // namespace ostrel
