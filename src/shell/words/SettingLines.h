#pragma once

#include <string>
#include <vector>

#include "shell/files/ConfigurationFile.h"
#include "shell/words/FieldWords.h"

namespace ostrel {

// A whole configuration in words, for those who read it on paper or on a terminal.

/// One line. The places of a list of actions are one line together.
struct SettingLine {
  FieldId id;
  std::string key;    ///< in a file
  std::string words;  ///< what it is
  std::string value;
};

/// All lines of one record.
struct SettingSection {
  std::string name;  ///< in a file
  PageId page;
  FieldId id;  ///< of its first field
  std::vector<SettingLine> lines{};
};

struct SettingChoice {
  bool all =
      false;  ///< also what is as in an empty configuration, and alarms and timers that are off
  Passwords passwords = Passwords::Hidden;
  Translation translate{};      ///< of the names of actions
  Translation say = InEnglish;  ///< of the description
};

/// The lines of a configuration by record, in the order in which these stand in a file.
std::vector<SettingSection> SettingsOf(const ModelConfiguration& configuration,
                                       const SettingChoice& choice);

}  // namespace ostrel
