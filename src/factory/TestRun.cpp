#include "factory/TestRun.h"

#include <array>
#include <utility>

#include "base/Numbers.h"
#include "factory/GsmStates.h"
#include "factory/RecordFile.h"
#include "factory/SerialCounter.h"
#include "factory/TestNames.h"
#include "platform/Clock.h"

namespace ostrel {
namespace {

constexpr float kLeastBatteryVolts = 5.0F;
constexpr int kGsmRounds = 11;
constexpr int kGsmPauseMs = 3000;

}  // namespace

TestRun::TestRun(const TestBench& bench, const TestPlan& plan, const TestChoice& choice,
                 TestPanel& panel, TestFrame& frame)
    : bench_(bench),
      plan_(plan),
      choice_(choice),
      panel_(panel),
      line_(bench.comms.TheLine()),
      frame_(frame) {}

const TestRecord& TestRun::Run() {
  began_ = bench_.platform.loop.Now();
  record_ = {.test = std::string(plan_.word),
             .model = bench_.profile.TargetName,
             .startedAt = bench_.platform.clock.LocalNow(),
             .operatorName = choice_.station.operatorName,
             .station = choice_.station.name};
  bench_.book.Begins(record_);
  HoldLine();
  try {
    plan_.steps(*this);
  } catch (...) {
    lineLost_ = true;
    End();
    throw;
  }
  End();
  return record_;
}

void TestRun::Stop() {
  if (!judged_ && !std::exchange(stopped_, true)) line_.BreakOff();
}

void TestRun::HoldLine() {
  hold_.reset();
  hold_.emplace(line_);
  line_.ExpectAnswer(false);
}

bool TestRun::GoesOn() const { return !stopped_ && !lineLost_; }

/// A wait that ended ahead of its time, and was not stopped, has lost the line.
void TestRun::NoteLine() { lineLost_ = !stopped_ && !line_.GoesOn(); }

// ---- The board

bool TestRun::Order(std::string_view message) {
  if (!GoesOn()) return false;
  const bool confirmed = OrderTest(line_, std::string(message));
  NoteLine();
  return confirmed && GoesOn();
}

bool TestRun::FirstOrder(std::string_view message) {
  record_.checked = Order(message);
  return record_.checked;
}

void TestRun::Delay(int ms) {
  if (!GoesOn()) return;
  line_.Delay(ms);
  NoteLine();
}

void TestRun::ReadTestFrame() {
  if (!GoesOn()) return;
  came_ = ostrel::ReadTestFrame(line_, plan_.scale, frame_);
  NoteLine();
}

Reading TestRun::Analog(std::size_t analog) const {
  constexpr std::array kValues{&TestFrame::A0, &TestFrame::A1, &TestFrame::A2, &TestFrame::A3};
  constexpr std::array kCame{&TestFrameCame::A0, &TestFrameCame::A1, &TestFrameCame::A2,
                             &TestFrameCame::A3};
  return {frame_.*kValues.at(analog), came_.*kCame.at(analog)};
}

void TestRun::NumberBoard(bool isBlank) {
  if (!isBlank || !mayNumber_ || !GoesOn()) return;
  if (Order("#F6" + newSerial_)) record_.givenSerial = newSerial_;
}

void TestRun::ShowSerial() {
  if (!GoesOn()) return;
  hold_.reset();
  bench_.comms.ReadInfo();
  NoteLine();
  HoldLine();
  panel_.ShowSerial(bench_.info.SerialNumber);
}

// ---- The operator

void TestRun::Step(std::string_view text) {
  if (GoesOn()) panel_.ShowStep(text, StepKind::Work);
}

void TestRun::Prompt(std::string_view text) {
  if (GoesOn()) panel_.ShowStep(text, StepKind::Prompt);
}

void TestRun::Request(std::string_view text) {
  if (!GoesOn()) return;
  hold_.reset();
  panel_.Request(std::string(text));
  HoldLine();
}

void TestRun::Fail(std::string text) {
  if (!GoesOn()) return;
  failed_ = true;
  record_.failures.push_back(text);
  hold_.reset();
  panel_.TellFailure(text);
  HoldLine();
}

// ---- Checks

void TestRun::Note(std::string_view name, Reading reading, const Band& band, bool passed) {
  if (!GoesOn()) return;
  record_.values.push_back({std::string(name),
                            reading.isRead ? std::optional(reading.value) : std::nullopt, band,
                            passed});
  panel_.ShowMeasured(record_.values.back());
}

void TestRun::Check(std::string_view name, Reading reading, const Band& band,
                    std::string_view failure, Telling telling) {
  const bool passed = band.Holds(reading.value);
  Note(name, reading, band, passed);
  if (passed) return;
  Fail(std::string(failure) +
       (telling == Telling::WithReading ? NumText(reading.value) : std::string()));
}

void TestRun::TakeSerial() {
  if (!GoesOn()) return;
  int counter = 0;
  SerialCounter counters(bench_.platform, choice_.station.folder);
  const FileResult raised = counters.Raise(counter);
  mayNumber_ = raised.Ok();
  if (!mayNumber_)
    return Fail("Error en el contador de numeros de serie " + counters.Path() + ": " +
                raised.error);
  newSerial_ = SerialOf(bench_.platform.clock.LocalNow(), counter);
}

void TestRun::CheckBattery() {
  Check(kBatteryValue, {bench_.info.BatteryVoltage, bench_.comms.InfoFault().Ok()},
        {.kind = Band::Kind::AtLeast, .low = kLeastBatteryVolts},
        "Tension de bateria demasiado baja", Telling::Plain);
}

void TestRun::CheckGsm() {
  Step("Comprobando GSM...");
  for (int round = 0; round < kGsmRounds && GoesOn(); ++round) {
    Delay(kGsmPauseMs);
    ReadTestFrame();
    if (frame_.GsmState != 0) break;
  }
  Check(kGsmValue, Gsm(), {.kind = Band::Kind::GsmCode}, GsmFailure(frame_.GsmState),
        Telling::Plain);
  if (GoesOn()) panel_.ShowSignal(bench_.info.Rssi);
}

// ---- The end

TestVerdict TestRun::Verdict() const {
  if (stopped_) return TestVerdict::Stopped;
  if (lineLost_) return TestVerdict::BrokenOff;
  return failed_ ? TestVerdict::Failed : TestVerdict::Passed;
}

void TestRun::End() {
  if (!GoesOn()) {
    HoldLine();
    OrderTest(line_, std::string(plan_.atRest));
  }
  hold_.reset();
  record_.verdict = Verdict();
  judged_ = true;
  Keep();
  bench_.book.Ends(record_);
  panel_.CloseSession();
  if (GoesOn() && !plan_.lastRequest.empty()) panel_.Request(std::string(plan_.lastRequest));
  panel_.ShowStep(record_.verdict == TestVerdict::Passed ? "Control de calidad superado con exito"
                                                         : "Control de calidad NO SUPERADO",
                  StepKind::Verdict);
}

/// A board without a record has not passed.
void TestRun::Keep() {
  record_.serial = bench_.info.SerialNumber;
  record_.duration = bench_.platform.loop.Now() - began_;
  for (bool again = true; again && !kept_;) {
    const FileResult kept =
        KeepRecord(bench_.platform, choice_.station.folder, record_, plan_.values());
    kept_ = kept.Ok();
    again = !kept_ && panel_.AskAgain("No se puede guardar el registro de la prueba en " +
                                      RecordPath(choice_.station.folder, record_.test) + ": " +
                                      kept.error + ". Se intenta otra vez?");
  }
  if (!kept_ && record_.verdict == TestVerdict::Passed) record_.verdict = TestVerdict::Failed;
}

}  // namespace ostrel
