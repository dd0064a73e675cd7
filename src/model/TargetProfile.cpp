#include "model/TargetProfile.h"

#include "base/CodePage.h"

namespace ostrel {
namespace {

constexpr std::int16_t kKept = -1;

/// The inputs of a Tavro BQ; the last two tell the direction of its flows.
constexpr std::array<std::string_view, 6> kInputsOfBQ{"IN0", "IN1", "IN2", "IN3", "DR0", "DR1"};

}  // namespace

const std::array<TargetModel, 6>& TargetModels() {
  using P = TargetProfile;
  static constexpr std::array<TargetModel, 6> models{{
      // name, type, word, flag, analog, digital, caudal, modbus, 1-Wire, output, math, modulo
      {"Ostrel KA1", "OSTREL_KA1", "KA1", &P::IsKA1, 0, 8, 8, 0, 4, 6, 4, 0},
      {"Ostrel KA2", "OSTREL_KA2", "KA2", &P::IsKA2, 0, 9, 8, 0, 4, 2, 4, 0},
      {"Ostrel VR200", "VR200", "VR200", &P::IsVR200, 4, 8, 8, 32, 0, 4, 4, 0},
      {"Ostrel S100", "OSTREL_S100", "S100", &P::IsS100, 2, 2, 2, 0, 0, 1, 4, 96},
      {"Tavro BQ", "TAVRO_BQ", "BQ", &P::IsBQ, 1, 4, 2, kKept, kKept, kKept, 4, 0},
      {"Tavro BP", "TAVRO", "BP", &P::IsBP, 4, 8, 8, kKept, kKept, kKept, 4, 0},
  }};
  return models;
}

const std::array<std::string_view, 6>& TargetNamesOffered() {
  static constexpr std::array<std::string_view, 6> names{
      "Ostrel KA1", "Ostrel KA2", "Ostrel VR200", "Ostrel S100", "Tavro BP", "Tavro BQ"};
  return names;
}

int DigitalInputsShown(const TargetProfile& profile) {
  return profile.IsBQ ? static_cast<int>(kInputsOfBQ.size()) : profile.DigitalCount;
}

std::string DigitalInputLabel(const TargetProfile& profile, int index) {
  constexpr int kMainsInput = 8;
  if (profile.IsKA2 && index == kMainsInput) return "UPS";
  if (profile.IsBQ && index < DigitalInputsShown(profile))
    return std::string(kInputsOfBQ.at(static_cast<std::size_t>(index)));
  return "I" + std::to_string(index);
}

const TargetModel* FindTarget(std::string_view anyName) {
  const std::string wanted = FoldText(anyName);
  for (const TargetModel& model : TargetModels())
    for (const std::string_view name : {model.name, model.type, model.word})
      if (FoldText(name) == wanted) return &model;
  return nullptr;
}

void SelectTarget(TargetProfile& profile, std::string_view name) {
  const auto set = [](std::int16_t& count, std::int16_t value) {
    if (value != kKept) count = value;
  };
  for (const TargetModel& model : TargetModels()) profile.*model.flag = false;
  profile.TargetName = name;
  for (const TargetModel& model : TargetModels()) {
    if (model.name != name) continue;
    profile.*model.flag = true;
    profile.TargetType = model.type;
    profile.AnalogCount = model.analog;
    profile.DigitalCount = model.digital;
    profile.CaudalCount = model.caudal;
    set(profile.ModbusCount, model.modbus);
    set(profile.OneWireCount, model.oneWire);
    set(profile.OutputCount, model.output);
    profile.MathCount = model.math;
    profile.ModuloCount = model.modulo;
  }
}

}  // namespace ostrel
