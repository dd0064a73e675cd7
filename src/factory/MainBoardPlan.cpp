#include <array>

#include "base/Numbers.h"
#include "factory/TestNames.h"
#include "factory/TestPlan.h"
#include "factory/TestRun.h"

// The test of the main board of the Tavro BP: each of its outputs drives two digital inputs and one
// analog input through the fixture, at two voltages.

namespace ostrel {
namespace {

constexpr std::string_view kOutputsOff = "#41VO0=0;VO1=0;VO2=0;VO3=0";
constexpr float kMostIdleVolts = 0.7F;  ///< at an input that nothing drives
constexpr std::size_t kAnalogs = 4;

/// One output switched on, and what must be read then. Some texts for the operator name something
/// else than what is compared, the inputs at the first output and the last analog input at the
/// first two; stations know them so, and they stay.
struct Stage {
  std::string_view step;
  std::string_view order;
  std::int16_t inputs;
  std::string_view inputsFailure;
  std::size_t driven;  ///< the analog input that is
  float low, high;     ///< volts there
  std::string_view expected;
  std::string_view lastName;  ///< of the last analog input
};

constexpr std::array<Stage, 8> kStages{{
    {"Comprobando E/S (1/8)...", "#41VO0=12", 5, "Error en S0, se esperaba 3, lectura=", 0, 4.4F,
     4.8F, "4.7", "A31"},
    {"Comprobando E/S (2/8)...", "#41VO1=12", 10, "Error en S1, se esperaba 10, lectura=", 1, 4.4F,
     4.8F, "4.7", "A31"},
    {"Comprobando E/S (3/8)...", "#41VO2=12", 80, "Error en S2, se esperaba 80, lectura=", 2, 4.4F,
     4.8F, "4.7", "A3"},
    {"Comprobando E/S (4/8)...", "#41VO3=12", 160, "Error en S3, se esperaba 160, lectura=", 3,
     2.485F, 2.51F, "2.5", "A3"},
    {"Comprobando E/S (5/8)...", "#41VO0=24", 5, "Error en S0, se esperaba 3, lectura=", 0, 8.6F,
     8.8F, "8.7", "A31"},
    {"Comprobando E/S (6/8)...", "#41VO1=24", 10, "Error en S1, se esperaba 10, lectura=", 1, 8.6F,
     8.8F, "8.7", "A31"},
    {"Comprobando E/S (7/8)...", "#41VO2=24", 80, "Error en S2, se esperaba 80, lectura=", 2, 8.6F,
     8.8F, "8.7", "A3"},
    {"Comprobando E/S (8/8)...", "#41VO3=24", 160, "Error en S3, se esperaba 160, lectura=", 3,
     2.485F, 2.51F, "2.5", "A3"},
}};

/// How records call a value of a stage: "VO0=12 A3".
std::string ValueName(const Stage& stage, std::string_view value) {
  constexpr std::string_view kOrderHead = "#41";
  return std::string(stage.order.substr(kOrderHead.size())).append(" ").append(value);
}
std::string AnalogName(std::size_t analog) { return "A" + std::to_string(analog); }

void CheckAnalog(TestRun& run, const Stage& stage, std::size_t analog) {
  const bool isDriven = analog == stage.driven;
  const std::string name = AnalogName(analog);
  std::string failure = "Error en ";
  failure += analog == kAnalogs - 1 ? stage.lastName : std::string_view(name);
  failure.append(", se esperaba ").append(isDriven ? stage.expected : "< 0.7");
  const Band band = isDriven ? Band{.low = stage.low, .high = stage.high}
                             : Band{.kind = Band::Kind::AtMost, .high = kMostIdleVolts};
  run.Check(ValueName(stage, name), run.Analog(analog), band, failure.append(", lectura="));
}

void CheckStage(TestRun& run, const Stage& stage) {
  run.Step(stage.step);
  run.Order(stage.order);
  run.Delay(kSettleMs);
  run.ReadTestFrame();
  run.Check(ValueName(stage, "S"), run.Inputs(),
            {.kind = Band::Kind::Equal, .low = static_cast<float>(stage.inputs)},
            stage.inputsFailure);
  for (std::size_t analog = 0; analog < kAnalogs; ++analog) CheckAnalog(run, stage, analog);
  run.Order(kOutputsOff);
}

void TestMainBoard(TestRun& run) {
  run.Step("Iniciando...");
  if (run.FirstOrder(kOutputsOff)) {
    run.TakeSerial();
    run.CheckBattery();
    run.Order(kOutputsOff);
    for (const Stage& stage : kStages) CheckStage(run, stage);
    run.CheckGsm();
  }
  run.NumberBoard(run.Info().SerialNumber == "0");
  run.ShowSerial();
  run.Prompt("Comprobacion de consumo en modo idle, desconecte el USB y J9");
  run.Order("#F5");
}

std::vector<std::string> MainBoardValues() {
  std::vector<std::string> names{std::string(kBatteryValue)};
  for (const Stage& stage : kStages) {
    names.push_back(ValueName(stage, "S"));
    for (std::size_t analog = 0; analog < kAnalogs; ++analog)
      names.push_back(ValueName(stage, AnalogName(analog)));
  }
  names.emplace_back(kGsmValue);
  return names;
}

}  // namespace

const TestPlan kTest{
    .form = "Test",
    .word = "main",
    .modelName = "Tavro BP",
    .scale = kVoltsPerStep,
    .atRest = kOutputsOff,
    .hint = "",
    .steps = TestMainBoard,
    .lastRequest = "Compruebe que la tension del polimetro es menor de 50mV",
    .values = MainBoardValues,
};

}  // namespace ostrel
