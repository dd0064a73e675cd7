#include "factory/GsmStates.h"

#include <array>
#include <cstddef>

namespace ostrel {

std::string_view GsmFailure(std::int16_t state) {
  constexpr std::array<std::string_view, 9> kTexts{
      "Error, Gsm inicializando",   "",
      "Error, PIN bloqueado",       "Error, PUK bloqueado",
      "Error, Gsm no registrado",   "Error, Gsm no presente",
      "Error, Gsm SIM no presente", "Error, Gsm SIM invalida",
      "Error, Gsm PIN no valido"};
  if (state < 0 || static_cast<std::size_t>(state) >= kTexts.size()) return {};
  return kTexts[static_cast<std::size_t>(state)];
}

}  // namespace ostrel
