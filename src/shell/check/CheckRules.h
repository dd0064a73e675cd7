#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shell/ConfigurationFile.h"
#include "shell/Phrase.h"
#include "shell/SentFields.h"
#include "store/IniClass.h"

namespace ostrel {

/// What no logger can hold is an error, all else a warning.
enum class Severity { Error, Warning };

/// Something that a rule has found, with a sentence that helps.
struct Finding {
  std::string section, key;  ///< as a file names them; empty where it is about none
  Phrase sentence;
};

/// A configuration under examination, with what the rules ask of it.
class Examined {
 public:
  /// `document` is the file as it stands. Without features those rules that depend on a firmware
  /// take it for one that can do everything.
  Examined(const ModelConfiguration& configuration, std::optional<std::int32_t> features,
           const IniClass& document, const Translation& translate);

  const TargetProfile& Model() const { return configuration_.profile; }
  const DeviceConf& Conf() const { return configuration_.conf; }
  const std::optional<std::int32_t>& Features() const { return features_; }
  const IniClass& Document() const { return document_; }
  const std::vector<ConstField>& Fields() const { return fields_; }
  /// The value of field `index` as it stands in the file; null where it stands nowhere. Names
  /// compare as the file's reader compares them: ignoring letter case and the blanks around them.
  const std::string* Written(std::size_t index) const { return written_[index]; }

  /// Whether a field holds something else than in an empty configuration.
  bool IsSet(std::size_t index) const;
  /// Whether the logger gets to know that field `index` takes another value.
  bool IsSent(std::size_t index, const FieldView& other) const {
    return sent_.Changes(index, other);
  }
  /// Whether a setting is known to other firmware, but not to this one.
  bool IsUnknownToFirmware(std::size_t index) const;
  std::size_t StatementCount() const { return statements_; }
  std::string ValueText(const ConstField& field) const;

 private:
  const ModelConfiguration& configuration_;
  std::optional<std::int32_t> features_;
  const IniClass& document_;
  DeviceConf empty_;
  std::vector<ConstField> fields_, emptyFields_;
  std::vector<const std::string*> written_;  ///< a field each
  std::size_t statements_;
  mutable SentFields sent_;  ///< under the features, or under all where they are not known
  mutable std::optional<SentFields> fullySent_;  ///< under all features, once it is asked
};

/// What a finding says, in English.
std::string SentenceText(const Finding& finding);
/// A finding in words: "[DIGITAL 0] NOMBRE: a comma ends the text ...".
std::string FindingText(const Finding& finding);
/// The same as a phrase, for those who speak other languages.
Phrase FindingPhrase(const Finding& finding);

struct Rule {
  std::string_view id;
  Severity severity;
  std::string_view summary;
  std::vector<Finding> (*examine)(const Examined& file);
};

// The ids of the rules on what a cut file lacks.
inline constexpr std::string_view kMissingSections = "section-missing";
inline constexpr std::string_view kMissingKeys = "key-missing";

/// All rules, errors first.
std::span<const Rule> Rules();

/// A finding with the rule that made it.
struct FoundByRule {
  const Rule* rule;
  Finding finding;
};

/// Runs all rules but the silenced ones, which are named by their ids.
std::vector<FoundByRule> Examine(const Examined& file, std::span<const std::string> silenced);

/// Visits the alarms that are enabled and that the logger gets to know.
void VisitEnabledAlarms(const Examined& file, const AlarmVisitor& visit);
/// A finding at one field of a record.
Finding AtField(const SectionMeta& section, int channel, std::string_view word, Phrase sentence);
/// A finding at one field of an alarm.
Finding AtAlarm(const AlarmPlace& place, std::string_view word, Phrase sentence);

/// The text of a field that is one or has one; null for others.
const std::string* TextOf(const FieldView& field);

/// The texts of a configuration that a file does not keep as they are.
std::vector<Finding> TextsNotKept(const ModelConfiguration& configuration);

// The rules on what the file's reader makes of values, which stand in a file of their own.
std::vector<Finding> CutValues(const Examined& file);
std::vector<Finding> StrippedTexts(const Examined& file);

// The rules on alarms, which stand in a file of their own.
std::vector<Finding> AlarmsForNobody(const Examined& file);
std::vector<Finding> AlarmsNeverValid(const Examined& file);
std::vector<Finding> MasksWithoutAlarm(const Examined& file);

// The rules on channels, which stand in another one.
std::vector<Finding> WrongOrderOfThresholds(const Examined& file);
std::vector<Finding> WideHysteresis(const Examined& file);
std::vector<Finding> AlarmsOfSilentChannels(const Examined& file);
std::vector<Finding> ModbusOutOfRange(const Examined& file);
std::vector<Finding> OddBitRates(const Examined& file);
std::vector<Finding> ModbusNotKept(const Examined& file);
std::vector<Finding> SharedExpansionInputs(const Examined& file);
std::vector<Finding> ExpansionOutOfRange(const Examined& file);
std::vector<Finding> ExpansionWithoutInterface(const Examined& file);

// The rules on timers.
std::vector<Finding> LongPeriods(const Examined& file);
std::vector<Finding> TimersThatNeverRun(const Examined& file);
std::vector<Finding> TimersWithoutActions(const Examined& file);
std::vector<Finding> ModbusNeverRead(const Examined& file);

// The rules on numbers and codes.
std::vector<Finding> NumbersBeyondLogger(const Examined& file);
std::vector<Finding> UselessScales(const Examined& file);
std::vector<Finding> UnknownInterfaces(const Examined& file);
std::vector<Finding> SenselessNumbers(const Examined& file);

// The rules on probes and math channels.
std::vector<Finding> BrokenIdentities(const Examined& file);
std::vector<Finding> SharedIdentities(const Examined& file);
std::vector<Finding> EquationsOfMissingChannels(const Examined& file);

// The rules on macros, on what starts them or hangs on an equation, and on GPRS.
std::vector<Finding> BrokenMacros(const Examined& file);
std::vector<Finding> EquationsWithoutFlag(const Examined& file);
std::vector<Finding> MacrosBeyondMemory(const Examined& file);
std::vector<Finding> UnsentMacros(const Examined& file);
std::vector<Finding> RepeatedMacros(const Examined& file);
std::vector<Finding> ActionsWithoutMacro(const Examined& file);
std::vector<Finding> ConditionsWithoutEquation(const Examined& file);
std::vector<Finding> VoiceCallsWithoutMacro(const Examined& file);
std::vector<Finding> GprsWithoutApn(const Examined& file);
std::vector<Finding> GprsWithoutServer(const Examined& file);

}  // namespace ostrel
