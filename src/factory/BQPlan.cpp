#include <array>

#include "factory/TestNames.h"
#include "factory/TestPlan.h"
#include "factory/TestRun.h"

// The test of the Tavro BQ: the keys at its inputs, and the modem.

namespace ostrel {
namespace {

constexpr std::string_view kAtRest = "#41DISPOF";
constexpr int kBesideKeyMs = 1000;

struct Key {
  std::string_view step;
  std::string_view name;
  std::int16_t inputs;
};

constexpr std::array<Key, 6> kKeys{{
    {"Comprobacion de IN0, pulse la tecla 0", "IN0 tecla 0", 1},
    {"Comprobacion de IN0, pulse la tecla 1", "IN0 tecla 1", 16},
    {"Comprobacion de IN0, pulse la tecla 2", "IN0 tecla 2", 4},
    {"Comprobacion de IN1, pulse la tecla 0", "IN1 tecla 0", 2},
    {"Comprobacion de IN1, pulse la tecla 1", "IN1 tecla 1", 32},
    {"Comprobacion de IN1, pulse la tecla 2", "IN1 tecla 2", 8},
}};

/// Waits until a key is pressed, however long that takes: the operator stops a run that gets
/// nowhere.
void AwaitKey(TestRun& run, const Key& key) {
  const Band band{.kind = Band::Kind::Equal, .low = static_cast<float>(key.inputs)};
  run.Prompt(key.step);
  run.Delay(kBesideKeyMs);
  do {
    run.ReadTestFrame();
  } while (run.GoesOn() && !band.Holds(run.Inputs().value));
  run.Note(key.name, run.Inputs(), band, true);
  run.Step("Ok");
  run.Delay(kBesideKeyMs);
}

void TestBQBoard(TestRun& run) {
  run.Step("Iniciando...");
  if (run.FirstOrder(kAtRest)) {
    run.TakeSerial();
    run.CheckBattery();
    if (!run.SkipsKeys())
      for (const Key& key : kKeys) AwaitKey(run, key);
    run.CheckGsm();
  }
  run.NumberBoard(run.Info().SerialNumber == "0");
  run.ShowSerial();
  run.Step("Comprobacion de consumo en modo idle");
  run.Order("#FB");
}

std::vector<std::string> BQValues() {
  std::vector<std::string> names{std::string(kBatteryValue)};
  for (const Key& key : kKeys) names.emplace_back(key.name);
  names.emplace_back(kGsmValue);
  return names;
}

}  // namespace

const TestPlan kTestBQ{
    .form = "TestBQ",
    .word = "bq",
    .modelName = "Tavro BQ",
    .scale = kVoltsPerStep,
    .atRest = kAtRest,
    .hint = "",
    .steps = TestBQBoard,
    .lastRequest =
        "Desconecte el cable de diagnostico y compruebe que la tension del polimetro es menor de "
        "50mV",
    .values = BQValues,
};

}  // namespace ostrel
