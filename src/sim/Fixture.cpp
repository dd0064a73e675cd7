#include "sim/Fixture.h"

#include <algorithm>

#include "sim/NumberText.h"

namespace ostrel::sim {
namespace {

constexpr int kMainsFailure = 256;
constexpr int kFullVolts = 24;

}  // namespace

void Fixture::PutIn(TimePoint now) {
  putIn_ = lastDriven_ = now;
  levels_ = {};
  readings_ = 0;
  hasProbe_ = asleep_ = false;
}

void Fixture::Drive(int output, int level, TimePoint now) {
  levels_.at(static_cast<std::size_t>(output)) = level;
  lastDriven_ = now;
}

/// Several outputs at once: what any of them drives is read.
InputReading Fixture::ReadDriven() const {
  InputReading read = script_.atRest;
  for (std::size_t output = 0; output < kOutputs; ++output) {
    if (levels_[output] == 0) continue;
    const bool isFull = levels_[output] == kFullVolts;
    const InputReading& one = script_.driven.at(output + (isFull ? kOutputs : 0U));
    read.inputs |= one.inputs;
    for (std::size_t i = 0; i < read.analogs.size(); ++i)
      read.analogs[i] = std::max(read.analogs[i], one.analogs[i]);
  }
  return read;
}

InputReading Fixture::ReadInputs(Model model, TimePoint now) const {
  if (model == Model::BP) return ReadDriven();
  if (model == Model::BQ) {
    if (script_.keys.empty()) return {};
    const auto turn = static_cast<std::size_t>((now - putIn_) / script_.keyTime);
    return {script_.keys[turn % script_.keys.size()], {}};
  }
  const bool isOn = levels_[0] != 0 && levels_[1] != 0;
  const bool hasMains = !script_.mainsLasts || now - lastDriven_ < *script_.mainsLasts;
  return {(isOn ? script_.inputsOn : script_.inputsOff) | (hasMains ? 0 : kMainsFailure),
          {hasProbe_ ? script_.probe : 0.0F}};
}

int Fixture::GsmState(TimePoint now) const {
  int state = 0;
  for (const auto& [from, next] : script_.gsm)
    if (now - putIn_ >= from) state = next;
  return state;
}

std::string Fixture::Read(Model model, TimePoint now) {
  const InputReading read = ReadInputs(model, now);
  std::string fields;
  const auto add = [&fields](auto number) { AppendNumber(fields += ',', number); };
  add(read.inputs);
  add(0);
  for (const float analog : read.analogs) add(analog);
  add(0);
  const bool hasCharger = model == Model::KA2 && !script_.charger.empty();
  add(hasCharger ? script_.charger[std::min(readings_, script_.charger.size() - 1)] : 0.0F);
  ++readings_;
  add(GsmState(now));
  add(0);
  return fields;
}

}  // namespace ostrel::sim
