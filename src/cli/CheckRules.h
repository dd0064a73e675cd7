#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/CommandContext.h"
#include "cli/Fields.h"
#include "cli/StatementProbe.h"
#include "cli/TextLimits.h"
#include "store/IniClass.h"

namespace ostrel::cli {

/// What no logger can hold is an error, all else a warning.
enum class Severity { Error, Warning };

/// Something that a rule has found, with a sentence that helps.
struct Finding {
  std::string section, key;
  std::string sentence;
};

/// A configuration under examination, with what the rules ask of it.
struct Examined {
  Configurator& configurator;
  std::optional<std::int32_t> features;  ///< of the firmware, where known
  const std::vector<FieldEntry>& fields;
  const std::vector<FieldEntry>& emptyFields;  ///< the same of an empty configuration
  StatementProbe& probe;      ///< under the features, or under all where they are not known
  StatementProbe& fullProbe;  ///< under all features
  const TextLimits& limits;
  IniClass& document;  ///< the file as it stands

  const TargetProfile& Model() const { return configurator.profile; }
  /// Whether a field holds something else than in an empty configuration.
  bool IsSet(std::size_t index) const;
};

struct Rule {
  std::string_view id;
  Severity severity;
  std::string_view summary;
  std::vector<Finding> (*examine)(const Examined& file);
};

/// All rules, errors first.
std::span<const Rule> Rules();

/// Whether the mask form of older firmware can name a channel: it knows DI0 to DI7 and AI0 to AI3.
bool IsShortMaskToken(std::string_view token);

// The rules on alarms, which stand in a file of their own.
std::vector<Finding> AlarmsForNobody(const Examined& file);
std::vector<Finding> AlarmsNeverValid(const Examined& file);

}  // namespace ostrel::cli
