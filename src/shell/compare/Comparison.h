#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "blocks/Configuration.h"
#include "shell/files/ConfigurationFile.h"
#include "shell/words/FieldWords.h"

namespace ostrel {

/// One field in which two configurations differ.
struct Difference {
  PageId page;  ///< that edits it
  FieldId id;
  FieldMeta meta;
  /// As a file holds them, save for hidden passwords; empty for a side that lacks the field.
  std::string before{}, after{};
  std::string beforeWords{}, afterWords{};  ///< as a person reads them
  /// The values themselves; nothing for a side that lacks the field.
  std::optional<FieldValue> valueBefore{}, valueAfter{};
  bool isSent = true;  ///< a statement carries it under the features in question

  std::string Section() const { return SectionName(id); }
  std::string Key() const { return KeyName(id, meta.placeForm); }
};

/// How two configurations differ.
struct Comparison {
  std::vector<Difference> differences{};  ///< in file order
  /// Whether they are the same to a logger; when its features are not known, whether all fields are
  /// the same.
  bool isSame = true;
};

/// Compares two configurations. With features they are the same when they give the same statements,
/// and a difference counts as sent when copying that one field from either to the other changes a
/// statement. Configurations of different models differ in the model too, and are compared field by
/// field. Passwords are compared in any case, and shown when asked for.
Comparison Compare(const ModelConfiguration& before, const ModelConfiguration& after,
                   std::optional<std::int32_t> features = {},
                   Passwords passwords = Passwords::Hidden);

}  // namespace ostrel
