#include "pages/ActionCatalogue.h"

#include <array>

#include "model/ConfMacro.h"

namespace ostrel {
namespace {

using Condition = bool (*)(const TargetProfile& model, int index);

/// A run of action numbers that share a name.
struct ActionRow {
  std::int16_t first;
  std::int16_t last;
  std::string_view name;
  bool indexed;         ///< the index, counted from 0, stands behind the name
  Condition isOffered;  ///< by model and index
};

bool Always(const TargetProfile&, int) { return true; }
bool Never(const TargetProfile&, int) { return false; }
bool OnBQ(const TargetProfile& model, int) { return model.IsBQ; }
bool OnBP(const TargetProfile& model, int) { return model.IsBP; }
bool OnS100(const TargetProfile& model, int) { return model.IsS100; }
bool OnTavro(const TargetProfile& model, int) { return model.IsBP || model.IsBQ; }
bool OnKA(const TargetProfile& model, int) { return model.IsKA1 || model.IsKA2; }
bool OnModbus(const TargetProfile& model, int) { return model.IsVR200 || model.IsS100; }
bool PerAnalog(const TargetProfile& model, int index) {
  return model.AnalogCount > index && !(index == 0 && model.IsBQ);
}
bool PerCaudal(const TargetProfile& model, int index) { return model.CaudalCount > index; }
bool PerDigital(const TargetProfile& model, int index) { return model.DigitalCount > index; }
template <int Meters>
bool AboveCaudal(const TargetProfile& model, int) {
  return model.CaudalCount > Meters;
}

constexpr std::array kRows{
    ActionRow{1, kMacrosOfActions, "Ejecutar macro", true, Always},
    ActionRow{42, 42, "Sincronizar reloj", false, Always},
    ActionRow{43, 43, "Encender GSM durante 5m", false, Always},
    ActionRow{44, 44, "Leer presion", false, OnBQ},
    ActionRow{44, 47, "Leer grupo de analogicas", true, PerAnalog},
    ActionRow{48, 48, "Enviar SMS tipo Kestrel", false, Always},
    ActionRow{50, 50, "Encender GSM durante 10m", false, OnTavro},
    ActionRow{51, 51, "Encender GSM durante 20m", false, OnTavro},
    ActionRow{52, 52, "Encender GSM durante 30m", false, OnTavro},
    ActionRow{53, 53, "Registrar presion", false, OnBQ},
    ActionRow{53, 56, "Registrar grupo de analogicas", true, PerAnalog},
    ActionRow{57, 64, "Registrar contador", true, PerCaudal},
    ActionRow{65, 65, "Registrar caudal 0 y 1", false, AboveCaudal<0>},
    ActionRow{66, 66, "Registrar caudal 2 y 3", false, AboveCaudal<2>},
    ActionRow{67, 67, "Registrar caudal 4 y 5", false, AboveCaudal<4>},
    ActionRow{68, 68, "Registrar caudal 6 y 7", false, AboveCaudal<6>},
    ActionRow{70, 70, "Leer MODBUS todo", false, OnModbus},
    ActionRow{71, 74, "Leer MODBUS grupo", true, OnModbus},
    ActionRow{75, 78, "Registrar MODBUS grupo", true, OnModbus},
    ActionRow{79, 79, "Iniciar conexion GPRS", false, Always},
    ActionRow{80, 80, "Registrar alarma", false, Always},
    ActionRow{81, 84, "Registrar canal auxiliar", true, OnBP},
    ActionRow{85, 88, "Leer canal auxiliar", true, OnBP},
    ActionRow{89, 89, "Iniciar conexion FTP", false, Always},
    ActionRow{90, 93, "Leer canal matematico", true, Always},
    ActionRow{94, 97, "Registrar canal matematico", true, Always},
    ActionRow{98, 101, "Registrar sonda", true, OnKA},
    ActionRow{102, 109, "Registrar entrada digital", true, PerDigital},
    ActionRow{110, 125, "Registrar grupo de expansiones", true, OnS100},
    ActionRow{200, 200, "Registrar medidas ON/OFF", false, Never},  // reserved
};

}  // namespace

std::vector<ActionItem> OfferedActions(
    const TargetProfile& profile, const std::function<std::string(std::string_view)>& translate) {
  std::vector<ActionItem> items;
  for (const ActionRow& row : kRows) {
    for (std::int16_t number = row.first; number <= row.last; ++number) {
      const int index = number - row.first;
      if (!row.isOffered(profile, index)) continue;
      std::string text = std::to_string(number) + " - " + translate(row.name);
      if (row.indexed) text += " " + std::to_string(index);
      items.push_back({number, std::move(text)});
    }
  }
  return items;
}

std::vector<std::string_view> ActionNames() {
  std::vector<std::string_view> names;
  for (const ActionRow& row : kRows) names.push_back(row.name);
  return names;
}

}  // namespace ostrel
