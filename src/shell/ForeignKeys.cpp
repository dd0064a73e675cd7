#include "shell/ForeignKeys.h"

#include <algorithm>
#include <set>
#include <utility>

#include "base/CodePage.h"
#include "blocks/Configuration.h"
#include "store/IniClass.h"
#include "store/ProfileIndex.h"

namespace ostrel {
namespace {

constexpr std::size_t kMostNamed = 5;

/// Sections and keys as the file's reader compares them.
using Names = std::set<std::pair<std::string, std::string>>;

/// Keys that earlier files have in place of present ones: they are read, and written anew.
bool IsEarlierForm(const std::string& section, const std::string& key) {
  return section == FoldText(GeneralParameters::kSection.word) && key.starts_with(FoldText("TLF "));
}

/// Notes the keys that a configuration of a model writes.
void WriteKeysOf(const TargetProfile& profile, Names& written) {
  const DeviceConf conf;
  for (const ConstField& field : FieldsOf(conf, profile))
    written.emplace(NameRead(field.Section()), NameRead(field.Key()));
}

}  // namespace

std::vector<std::string> ForeignKeys(Files& files, const std::string& path,
                                     const TargetProfile& profile) {
  if (!files.Exists(path)) return {};
  IniClass standing(files);
  Names written{{NameRead(kStampSection), NameRead(kStampKey)}};
  WriteKeysOf(profile, written);
  standing.OpenINI(path, false);
  // What only another model has is no loss in a file of that model, which is replaced as a whole.
  const std::string* stamp = standing.Find(kStampSection, kStampKey);
  if (const TargetModel* other = stamp ? FindTarget(*stamp) : nullptr;
      other && other->type != profile.TargetType) {
    TargetProfile own;
    SelectTarget(own, other->name);
    WriteKeysOf(own, written);
  }
  std::vector<std::string> foreign;
  std::string_view section;
  standing.Visit([&](std::string_view name) { section = name; },
                 [&](std::string_view key, std::string_view) {
                   const std::pair names(NameRead(section), NameRead(key));
                   if (written.contains(names) || IsEarlierForm(names.first, names.second)) return;
                   foreign.push_back("[" + std::string(section) + "] " + std::string(key));
                 });
  return foreign;
}

std::string ForeignKeysText(const std::vector<std::string>& keys) {
  std::string text;
  for (std::size_t i = 0; i < std::min(keys.size(), kMostNamed); ++i)
    text += (i == 0 ? "" : ", ") + keys[i];
  if (keys.size() > kMostNamed)
    text += " and " + std::to_string(keys.size() - kMostNamed) + " more";
  return text;
}

}  // namespace ostrel
