#include "sim/Logger.h"
#include "sim/StatementParser.h"

// What a logger does in a test fixture.

namespace ostrel::sim {
namespace {

bool IsTested(Model model) {
  return model == Model::BP || model == Model::BQ || model == Model::KA2;
}

/// Takes "VO0=12;VO1=0": levels of outputs.
template <class Drive>
void ReadLevels(StatementCursor& in, std::string_view word, int outputs, int most,
                const Drive& drive) {
  do {
    const int output = in.Plain(0, outputs - 1);
    in.Expect("=");
    const int level = in.Plain(0, most);
    if (!in.Failed()) drive(output, level);
    if (!in.Has(";")) return in.End();
    in.Expect(word);
  } while (!in.Failed());
}

}  // namespace

void Logger::DriveVolts(StatementCursor& in) {
  constexpr int kMostVolts = 24;
  ReadLevels(in, "VO", Self().Traits().outputs, kMostVolts,
             [this](int output, int volts) { fixture_.Drive(output, volts, loop_.Now()); });
}

void Logger::DriveSwitches(StatementCursor& in) {
  ReadLevels(in, "OUT", Self().Traits().outputs, 1,
             [this](int output, int on) { fixture_.Drive(output, on, loop_.Now()); });
}

void Logger::TakeDisplayOff(StatementCursor& in) { in.End(); }

void Logger::TakeProbe(StatementCursor& in) {
  const std::string why = ApplyStatement("ONEWCONF" + std::string(in.Rest()), Self(), conf_);
  if (!why.empty()) return in.Fail(why);
  fixture_.FindProbe();
}

bool Logger::AnswerTestFrame(std::string_view rest) {
  if (!rest.empty() || !IsTested(options_.model)) return false;
  Reply("#0B" + fixture_.Read(options_.model, loop_.Now()));
  return true;
}

/// A number that is empty leaves the logger with the one that it has.
bool Logger::AnswerNumber(std::string_view rest) {
  if (!IsTested(options_.model)) return false;
  if (!rest.empty()) options_.serial = rest;
  Reply(rest.empty() ? "#BE0" : "#BE1");
  return true;
}

bool Logger::AnswerIdle(std::string_view rest) {
  if (!rest.empty() || options_.model != Model::BP) return false;
  Reply("#BE1");
  fixture_.Sleep();
  return true;
}

bool Logger::AnswerIdleOfBQ(std::string_view rest) {
  if (!rest.empty() || options_.model != Model::BQ) return false;
  Reply("#BE1");
  fixture_.Sleep();
  return true;
}

}  // namespace ostrel::sim
