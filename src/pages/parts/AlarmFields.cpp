#include "pages/parts/AlarmFields.h"

#include <array>
#include <utility>

namespace ostrel {

std::string_view ControlOfAlarmField(std::string_view word) {
  using Row = std::pair<std::string_view, std::string_view>;
  constexpr std::array<Row, 15> kControls{{
      {"HABIL", "AlarmaHabil"},
      {"REST", "RestHabil"},
      {"RENV", "ReenvHabil"},
      {"SMS", "NotSMS"},
      {"VOZ", "NotVoz"},
      {"GPRS", "NotGPRS"},
      {"TEXTO", "TextoAlarma"},
      {"SIEMPRE", "HorarioHabil"},
      {"INICIO", "HoraInicio"},
      {"FINAL", "HoraFinal"},
      {"SEMANA", "CheckLun"},
      {"FLAG", "FlagCombo"},
      {"ACTHI", "BotonAlto"},
      {"ACTLO", "BotonBajo"},
      {"ACTNO", "BotonNormal"},
  }};
  for (const auto& [field, control] : kControls)
    if (field == word) return control;
  return {};
}

}  // namespace ostrel
