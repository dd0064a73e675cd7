#include "shell/writing/ModelEvidence.h"

#include <algorithm>

#include "link/LineReader.h"
#include "link/dialogues/NumberedStream.h"
#include "model/TargetProfile.h"

namespace ostrel {
namespace {

/// How many channels a model has of one kind.
using ChannelsOf = int (*)(const TargetModel& model);

int AtLeastNone(std::int16_t count) { return std::max<int>(count, 0); }

/// Lines of a download that only a model with channels of their kind has. Field 2 tells the channel
/// unless `isOne` is set.
struct StreamKind {
  std::string_view key;  ///< and what stands behind it after a full stop
  ChannelsOf channels;
  bool isOne = false;
};

constexpr StreamKind kStreamKinds[] = {
    {"MODBUS.PRM", [](const TargetModel& model) { return AtLeastNone(model.modbus); }, true},
    {"MODBUS", [](const TargetModel& model) { return AtLeastNone(model.modbus); }},
    // A total that is counted beside the flow meters and the mains input have records on every
    // model.
    {"DIGITAL", [](const TargetModel& model) { return model.digital + 1; }},
    {"CAUDAL", [](const TargetModel& model) { return model.caudal + 1; }},
    {"ANALOG", [](const TargetModel& model) { return int{model.analog}; }},
    {"ONEWIRE", [](const TargetModel& model) { return AtLeastNone(model.oneWire); }},
    // The auxiliary inputs stand beside the probes.
    {"AUX", [](const TargetModel& model) { return AtLeastNone(model.oneWire); }},
    {"KTX", [](const TargetModel& model) { return AtLeastNone(model.oneWire); }, true},
    {"EXPINPUT", [](const TargetModel& model) { return int{model.modulo}; }},
};

/// Answers with names: the fields that each channel takes, and how many channels one tells.
struct NameKind {
  std::string_view head;
  int fields;
  ChannelsOf channels;
};

constexpr int kModulesAnAnswer = 8;

constexpr NameKind kNameKinds[] = {
    {"#DA", 6, [](const TargetModel& model) { return int{model.analog}; }},
    {"#D9", 1, [](const TargetModel& model) { return int{model.caudal}; }},
    {"#D8", 2, [](const TargetModel& model) { return int{model.caudal}; }},
    {"#D3", 4, [](const TargetModel& model) { return AtLeastNone(model.modbus); }},
    {"#CA", 4, [](const TargetModel& model) { return AtLeastNone(model.oneWire); }},
    {"#D4", 2,
     [](const TargetModel& model) { return std::min<int>(model.modulo, kModulesAnAnswer); }},
};

bool IsOfKind(std::string_view key, std::string_view kind) {
  return key.starts_with(kind) && (key.size() == kind.size() || key[kind.size()] == '.');
}

/// Leaves out the models that a condition does not hold for.
template <class Condition>
void Narrow(ModelSet& models, const Condition& fits) {
  for (std::size_t i = 0; i < models.size(); ++i) models[i] = models[i] && fits(TargetModels()[i]);
}

}  // namespace

std::string_view ModelInGreeting(std::string_view greeting) {
  std::string_view found, by;
  for (const TargetModel& model : TargetModels())
    for (const std::string_view name : {model.name, model.type})
      if (name.size() > by.size() && greeting.find(name) != std::string_view::npos) {
        found = model.name;
        by = name;
      }
  return found;
}

ModelSet ModelsOfStream(std::span<const std::string> lines) {
  ModelSet models = kAnyModel;
  for (const std::string& line : lines) {
    const std::string_view key = KeyOf(line);
    const auto* kind = std::ranges::find_if(
        kStreamKinds, [key](const StreamKind& one) { return IsOfKind(key, one.key); });
    if (kind == std::end(kStreamKinds)) continue;
    const int channel = kind->isOne ? 0 : LineReader(line).Index();
    Narrow(models, [&](const TargetModel& model) { return channel < kind->channels(model); });
  }
  return models;
}

ModelSet ModelsOfNames(std::span<const NameAnswer> told) {
  ModelSet models = kAnyModel;
  for (const NameAnswer& answer : told) {
    const auto* kind = std::ranges::find(kNameKinds, answer.head, &NameKind::head);
    if (kind == std::end(kNameKinds)) continue;
    Narrow(models, [&](const TargetModel& model) {
      return kind->channels(model) <= answer.fields / kind->fields;
    });
  }
  return models;
}

}  // namespace ostrel
