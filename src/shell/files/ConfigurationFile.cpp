#include "shell/files/ConfigurationFile.h"

#include <array>
#include <utility>

#include "base/CodePage.h"
#include "blocks/Configuration.h"
#include "store/IniClass.h"
#include "store/IniTool.h"

namespace ostrel {
namespace {

/// Stamps and the models that they lead to. A stamp that is no type word changes the model and is
/// refused after that all the same.
constexpr std::array<std::pair<std::string_view, std::string_view>, 14> kStamps{{
    {"VR200", "Ostrel VR200"},
    {"PX-6000", "Ostrel VR200"},
    {"PX250", "Ostrel VR200"},
    {"TAVRO", "Tavro BP"},
    {"PX120-D", "Tavro BP"},
    {"PX-8000", "Tavro BP"},
    {"PX240", "Tavro BP"},
    {"OSTREL_KA2", "Ostrel KA2"},
    {"PX235", "Ostrel KA2"},
    {"PX PLUS", "Ostrel KA2"},
    {"OSTREL_KA1", "Ostrel KA1"},
    {"PX220", "Ostrel KA1"},
    {"TAVRO_BQ", "Tavro BQ"},
    {"OSTREL_S100", "Ostrel S100"},
}};

std::optional<ModelConfiguration> ReadKeys(const KeyReader& read, const TargetProfile& present,
                                           const Translation& translate) {
  ModelConfiguration made{present, {}};
  const std::string stamp = read(std::string(kStampSection), std::string(kStampKey));
  if (stamp != made.profile.TargetType) SelectTarget(made.profile, ModelOfStamp(stamp));
  if (stamp.empty() || stamp != made.profile.TargetType) return {};
  made.conf = EmptyConfiguration(made.profile, translate);
  RestoreConfiguration(made.conf, made.profile, translate, read);
  return made;
}

}  // namespace

std::string_view ModelOfStamp(std::string_view stamp) {
  for (const auto& [known, model] : kStamps)
    if (known == stamp) return model;
  return {};
}

std::optional<ModelConfiguration> ReadConfiguration(Files& files, const std::string& path,
                                                    const TargetProfile& present,
                                                    const Translation& translate) {
  IniTool tool(files);
  return ReadKeys([&](const std::string& section,
                      const std::string& key) { return tool.ProfileRead(section, key, path); },
                  present, translate);
}

std::optional<ModelConfiguration> ReadContent(std::string octets, const TargetProfile& present,
                                              const Translation& translate) {
  ProfileIndex index(std::move(octets));
  return ReadKeys([&](const std::string& section,
                      const std::string& key) { return ProfileValue(index, section, key); },
                  present, translate);
}

std::string ContentOf(Files& files, const DeviceConf& conf, const TargetProfile& profile) {
  IniClass document(files);
  SaveConfiguration(conf, profile, document);
  return ToCodePage(document.OutputINI());
}

}  // namespace ostrel
