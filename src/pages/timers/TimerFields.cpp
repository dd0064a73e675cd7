#include "pages/timers/TimerFields.h"

#include <array>
#include <utility>

namespace ostrel {

std::string_view ControlOfTimerField(std::string_view word) {
  using Row = std::pair<std::string_view, std::string_view>;
  constexpr std::array<Row, 9> kControls{{
      {"HABIL", "TimerHabil"},
      {"PERIOD", "Period"},
      {"SIEMPRE", "HorarioHabil"},
      {"INICIO", "HoraInicio"},
      {"FINAL", "HoraFinal"},
      {"SEMANA", "CheckLun"},
      {"EQ", "FlagCombo"},
      {"MES", "Check1"},
      {"ACT", "BotonEditar"},
  }};
  for (const auto& [field, control] : kControls)
    if (field == word) return control;
  return {};
}

}  // namespace ostrel
