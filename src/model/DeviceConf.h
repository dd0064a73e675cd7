#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/Bounded.h"
#include "model/AlarmBlock.h"
#include "model/ConfAutVoz.h"
#include "model/ConfAux.h"
#include "model/ConfExpansion.h"
#include "model/ConfFlow.h"
#include "model/ConfGprs.h"
#include "model/ConfMacro.h"
#include "model/ConfMath.h"
#include "model/ConfModbus.h"
#include "model/ConfOneWire.h"
#include "model/ConfTimers.h"
#include "model/Describe.h"

namespace ostrel {

// An initialiser here is what the memory of a fresh program holds; what emptying sets stands with
// the blocks.

/// What a logger has only once.
struct ConfGeneral {
  std::string DNAME;       ///< name of the logger
  std::string CSM;         ///< SMS service centre
  std::int32_t RENVT = 0;  ///< minutes between alarm resends
  std::int16_t RENVN = 0;  ///< resends at the most
  std::string PTLF;        ///< the logger's own number
  std::string REST;        ///< text appended when an alarm ends

  bool operator==(const ConfGeneral&) const = default;
};

/// Most characters of a telephone number that an operator may type.
inline constexpr int kNumberLength = 16;

template <Is<ConfGeneral> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [dname, csm, renvt, renvn, ptlf, rest] = r;
  visit(TextMeta("NOMBRE", "name", 50), dname);
  visit(TextMeta("CSM", "SMS centre", kNumberLength), csm);
  visit(NumberMeta("RENVT", "time between resends", "minutes", {0, 1440}, 3), renvt);
  visit(NumberMeta("RENVN", "resends", "times", {0, 100}, 3), renvn);
  visit(TextMeta("PTLF", "own number", kNumberLength), ptlf);
  visit(TextMeta("RESTORE", "text of a restoration", 19), rest);
}

/// Mask places of a telephone in use; a further one exists and stays untouched.
inline constexpr int kMaskPlaces = 16;
/// An empty mask place.
inline constexpr std::int16_t kNoChannel = 255;

/// One slot of the telephone list.
struct ConfPhone {
  std::string TLF;                                   ///< the number; empty for a free slot
  std::int16_t Prio = 0;                             ///< 0 none, 1 to 8
  std::int16_t PRV = 0;                              ///< privilege level 0 to 3
  std::int16_t MASKMODE = 0;                         ///< 0 no mask, 1 include, 2 exclude
  Bounded<std::int16_t, kMaskPlaces + 1> ListaMask;  ///< channel numbers

  bool operator==(const ConfPhone&) const = default;
};

/// Telephone slots that are shown, sent and saved; one more exists.
inline constexpr int kPhones = 20;

/// A digital input.
struct ConfDigital {
  static constexpr AlarmShape kShape{.configs = 4, .hasFlag = true, .hasNormal = false};

  std::string NOMBRE;
  Bool16 NC;  ///< normally closed contact
  Bounded<Alarm<ContactThresholds>, 5> ALARM;

  bool operator==(const ConfDigital&) const = default;
};

template <Is<ConfDigital> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [nombre, nc, alarm] = r;
  visit(TextMeta("NOMBRE", "name", 19), nombre);
  visit(FieldMeta{"NC", "normally closed"}, nc);
  DescribeAlarms(alarm, ConfDigital::kShape, visit);
}

/// What an analog input measures with. A model has some of these.
inline constexpr std::array<CodeWords, 5> kAnalogInterfaceWords{
    {{0, "off"}, {1, "4/20 mA"}, {2, "0-5 V"}, {3, "0-10 V"}, {7, "pressure"}}};

/// An analog input.
struct ConfAnalog {
  static constexpr AlarmShape kShape{.configs = 4, .hasFlag = true, .hasNormal = true};

  std::string NOMBRE, UNIDAD;
  std::int16_t INTERFAZ = 0;  ///< 0 off, 1 4/20mA, 2 0-5V, 3 0-10V, 7 pressure
  float IE = 0, FE = 0;       ///< start of scale and full scale of the signal
  float EqIE = 0, EqFE = 0;   ///< engineering values at these
  std::int16_t GRUPO = 0;     ///< power group 0 to 3
  Bounded<Alarm<LevelThresholds>, 5> ALARM;

  bool operator==(const ConfAnalog&) const = default;
};

template <Is<ConfAnalog> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [nombre, unidad, interfaz, ie, fe, eqIe, eqFe, grupo, alarm] = r;
  visit(TextMeta("NOMBRE", "name", 19), nombre);
  visit(TextMeta("UNIDAD", "unit", 9), unidad);
  visit(CodeMeta("INTERFAZ", "interface", kAnalogInterfaceWords), interfaz);
  visit(FieldMeta{"IE", "start of scale"}, ie);
  visit(FieldMeta{"FE", "full scale"}, fe);
  visit(FieldMeta{"EqIE", "value at start of scale"}, eqIe);
  visit(FieldMeta{"EqFE", "value at full scale"}, eqFe);
  visit(NumberMeta("GRUPO", "group", {}, {0, 3}), grupo);
  DescribeAlarms(alarm, ConfAnalog::kShape, visit);
}

/// A power group of analog inputs.
struct ConfGrupo {
  std::int16_t SALIDA = 0;   ///< output that feeds the group
  std::int16_t VOLTAJE = 0;  ///< excitation in volts
  float PERIOD = 0;          ///< activation period in hundredths of a second

  bool operator==(const ConfGrupo&) const = default;
};

template <Is<ConfGrupo> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [salida, voltaje, period] = r;
  visit(NumberMeta("SALIDA", "output", {}, {0, 3}), salida);
  visit(NumberMeta("VOLTAJE", "voltage", "V", {0, 24}), voltaje);
  visit(NumberMeta("PERIOD", "period", "hundredths of a second", {0, 60'000}, 5), period);
}

/// A flag of the logger, with the alarm that its change can raise.
struct ConfFlag {
  static constexpr AlarmShape kShape{.configs = 1, .hasFlag = false, .hasNormal = false};

  Bounded<Alarm<NoThresholds>, 2> ALARM;

  bool operator==(const ConfFlag&) const = default;
};

template <Is<ConfFlag> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [alarm] = r;
  DescribeAlarms(alarm, ConfFlag::kShape, visit);
}

/// The whole configuration of a logger. Arrays have a spare element beyond the channels.
struct DeviceConf {
  ConfGeneral General;
  Bounded<ConfPhone, kPhones + 1> Phone;
  Bounded<ConfDigital, 10> Digital;
  Bounded<ConfAnalog, 5> Analog;
  Bounded<ConfGrupo, 5> Grupo;
  Bounded<ConfCTimer, kTimers + 1> CTimer;
  Bounded<ConfLTimer, kTimers + 1> LTimer;
  Bounded<ConfWTimer, kTimers + 1> WTimer;
  Bounded<ConfMTimer, kTimers + 1> MTimer;
  Bounded<ConfCaudal, 10> Caudal;
  std::int16_t SAMPLERATE = 0;  ///< of the flow meters, in hertz: 64 or 256
  Bounded<ConfFlag, 17> Flag;
  Bounded<ConfMath, 9> Math;
  Bounded<ConfOneWire, 33> OneWire;
  ConfModbusBus ModbusBus;
  Bounded<ConfModbus, 33> Modbus;
  Bounded<ConfModulo, 129> Modulo;
  Bounded<ConfAux, 5> Aux;
  ConfKatodex Katodex;
  ConfMacro Macro;
  ConfGprs Gprs;
  ConfAutVoz AutVoz;

  bool operator==(const DeviceConf&) const = default;
};

}  // namespace ostrel
