#include "base/Numbers.h"
#include "factory/TestNames.h"
#include "factory/TestPlan.h"
#include "factory/TestRun.h"

// The test of the Ostrel KA2: its charger, its outputs and inputs, a probe, the modem, and what it
// does when the mains fails.

namespace ostrel {
namespace {

constexpr std::string_view kSwitchedOff = "#41OUT0=0;OUT1=0";
constexpr std::string_view kSwitchedOn = "#41OUT0=1;OUT1=1";
constexpr float kMainsFailure = 256;  ///< bit of the inputs
constexpr int kChargeRounds = 21;
constexpr int kTooManyRounds = 20;

constexpr std::string_view kFalling = "Carga baja";
constexpr std::string_view kRising = "Carga sube";
constexpr std::string_view kInputsOn = "S OUT=1";
constexpr std::string_view kInputsOff = "S OUT=0";
constexpr std::string_view kProbe = "Sonda";
constexpr std::string_view kMains = "Fallo de red";

/// Reads until the charger has brought the voltage where it must be. One that gets there in the
/// very last round counts as too late.
void CheckCharge(TestRun& run, std::string_view name, const Band& band, std::string_view failure) {
  int round = 0;
  for (; round < kChargeRounds && run.GoesOn(); ++round) {
    run.ReadTestFrame();
    if (band.Holds(run.Battery().value)) break;
  }
  const bool passed = round < kTooManyRounds;
  run.Note(name, run.Battery(), band, passed);
  if (!passed) run.Fail(std::string(failure));
}

void CheckInputs(TestRun& run, std::string_view order, std::string_view name, std::int16_t inputs,
                 std::string_view failure) {
  run.Order(order);
  run.Delay(kSettleMs);
  run.ReadTestFrame();
  run.Check(name, run.Inputs(), {.kind = Band::Kind::Equal, .low = static_cast<float>(inputs)},
            failure);
}

void CheckBoard(TestRun& run) {
  run.TakeSerial();
  CheckCharge(run, kFalling, {.kind = Band::Kind::Below, .high = 0.1F},
              "Error en circuito de carga, la tension no baja");
  CheckCharge(run, kRising, {.kind = Band::Kind::Above, .low = 4.18F},
              "Error en circuito de carga, la tension no alcanza 4.2v");
  run.Request("Conecte la bateria");
  run.Step("Comprobando E/S...");
  CheckInputs(run, kSwitchedOn, kInputsOn, 85, "Error en S0, se esperaba 85, lectura=");
  CheckInputs(run, kSwitchedOff, kInputsOff, 170, "Error en S0, se esperaba 170, lectura=");
  run.Order(kSwitchedOff);
  run.Check(kProbe, run.Analog(0), {.low = 5, .high = 40},
            "Error temperatura de sonda fuera de rango, lectura=");
  run.CheckGsm();
}

void TestKA2Board(TestRun& run) {
  run.Step("Iniciando...");
  run.Delay(2000);
  // The first probe that it finds is a temperature probe.
  run.Order("#41ONEWCONF0=,UNIT=,ONEWADD=000.000.000.000.000.000.000.000,1WTEMP");
  if (run.FirstOrder(kSwitchedOff)) CheckBoard(run);
  run.Request("Desconecte la tension de red");
  run.Delay(kSettleMs);
  run.ReadTestFrame();
  run.Check(kMains, run.Inputs(), {.kind = Band::Kind::HasBits, .low = kMainsFailure},
            "Error en deteccion fallo de red", Telling::Plain);
  run.Step("Escribiendo numero de serie");
  run.NumberBoard(NumVal(run.Info().SerialNumber) == -1);
  run.ShowSerial();
}

std::vector<std::string> KA2Values() {
  std::vector<std::string> names;
  for (const std::string_view name :
       {kFalling, kRising, kInputsOn, kInputsOff, kProbe, kGsmValue, kMains})
    names.emplace_back(name);
  return names;
}

}  // namespace

const TestPlan kTestKA2{
    .form = "TestKA2",
    .word = "ka2",
    .modelName = "Ostrel KA2",
    .scale = 1,
    .atRest = kSwitchedOff,
    .hint = "Iniciar el test con la bateria desconectada.",
    .steps = TestKA2Board,
    .lastRequest = "",
    .values = KA2Values,
};

}  // namespace ostrel
