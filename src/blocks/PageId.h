#pragma once

#include <string_view>

namespace ostrel {

/// The pages of a configuration: each edits one block of it.
enum class PageId {
  Aut_Voz,
  Caudal,
  CONF_MODBUS,
  CTimer,
  E_Analog,
  E_Aux,
  E_Digital,
  E_Math,
  E_MODBUS,
  E_Modular,
  E_OneWire,
  Flags,
  General,
  GPRS,
  Grupos,
  Katodex,
  LTimer,
  Macros,
  MTimer,
  SampleRate,
  WTimer,
};

}  // namespace ostrel
