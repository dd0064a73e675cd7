#include "shell/ForeignKeys.h"

#include <algorithm>

#include "blocks/Configuration.h"
#include "store/IniClass.h"

namespace ostrel {
namespace {

constexpr std::size_t kMostNamed = 5;

/// Keys that earlier files have in place of present ones: they are read, and written anew.
bool IsEarlierForm(std::string_view section, std::string_view key) {
  return section == GeneralParameters::kSection.word && key.starts_with("TLF ");
}

std::string UpperCase(std::string_view name) {
  std::string upper(name);
  for (char& c : upper)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return upper;
}

/// Notes the keys that a configuration of a model writes.
void WriteKeysOf(const TargetProfile& profile, IniClass& document) {
  const DeviceConf conf;
  for (const ConstField& field : FieldsOf(conf, profile))
    document.WriteKey(field.Section(), field.Key(), "");
}

}  // namespace

std::vector<std::string> ForeignKeys(Files& files, const std::string& path,
                                     const TargetProfile& profile) {
  if (!files.Exists(path)) return {};
  IniClass written(files), standing(files);
  written.NewINI();
  written.WriteKey(kStampSection, kStampKey, profile.TargetType);
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
  std::string section;
  standing.Visit([&](std::string_view name) { section = name; },
                 [&](std::string_view key, std::string_view) {
                   if (written.KeyExists(section, key) || IsEarlierForm(UpperCase(section), key))
                     return;
                   foreign.push_back("[" + section + "] " + std::string(key));
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
