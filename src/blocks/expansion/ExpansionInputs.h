#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// Where an expansion input is wired: the address of its module, 0 to 15, and an input of it, 0
/// to 7.
struct ModuleInput {
  int module = 0;
  int input = 0;
  bool operator==(const ModuleInput&) const = default;
};
inline constexpr int kModules = 16;
inline constexpr int kInputsOfModule = 8;

/// The inputs on expansion modules of a configuration.
struct ExpansionInputs {
  static constexpr SectionMeta kFrame{"MINPUT", "expansion input", ""};
  static constexpr SectionMeta kDigital{"MINPUT.D", "digital expansion input", "EX"};
  static constexpr SectionMeta kFlow{"MINPUT.Q", "flow meter expansion input", "EX"};
  static constexpr SectionMeta kCounter{"MINPUT.C", "counter expansion input", "EX"};
  static constexpr SectionMeta kAnalog{"MINPUT.A", "analog expansion input", "EX"};
  /// Inputs that are emptied, saved and restored, whatever the model has; one more record exists
  /// and stays untouched.
  static constexpr int kInputs = 128;

  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    for (int i = 0; i < kInputs; ++i) {
      auto& input = conf.Modulo[i];
      Describe(input, AtRecord(kFrame, i, visit));
      Describe(input.D, AtRecord(kDigital, i, visit));
      Describe(input.Q, AtRecord(kFlow, i, visit));
      Describe(input.C, AtRecord(kCounter, i, visit));
      Describe(input.A, AtRecord(kAnalog, i, visit));
    }
  }
  /// The first other input that is on and wired to the same place as `place`; -1 for none.
  static int OtherUser(const DeviceConf& conf, ModuleInput place, int self);
  /// The next place behind one that no other input uses, from the first module again behind the
  /// last one; the place itself where all others are used.
  static ModuleInput NextFree(const DeviceConf& conf, ModuleInput behind, int self);
  /// The alarm of the mode that an input is in.
  static void Alarms(const DeviceConf& conf, const Receiver& receiver, const AlarmVisitor& visit);
  static const std::array<LineSection, 10> kLines;

  /// Inputs that statements are made for.
  static int Count(const Receiver& receiver) { return receiver.profile.ModuloCount; }
  /// Adds the statements of the mode that an input is in. One that is off has no alarm statement,
  /// one in a mode that does not exist no statement at all.
  static void Compose(const DeviceConf& conf, const Receiver&, int channel, StatementList& out);
};

}  // namespace ostrel
