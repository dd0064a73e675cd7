#include "shell/writing/WriteDoubts.h"

#include "blocks/Orders.h"
#include "shell/Configurator.h"
#include "shell/compare/Comparison.h"
#include "shell/ledger/IdentityGuard.h"

namespace ostrel {
namespace {

/// Whether a configuration is what the program starts with, or what emptying it leaves: the start
/// empties less.
bool IsEmpty(const Configurator& configurator) {
  const auto translate = [&](std::string_view text) {
    return configurator.context.Translate(text);
  };
  DeviceConf fresh;
  for (const PageId page : kClearAtStart)
    if (const Block* block = FindBlock(page)) block->clear(fresh, configurator.profile, translate);
  const auto isAs = [&](const DeviceConf& conf) {
    return Compare({configurator.profile, conf}, {configurator.profile, configurator.conf})
        .differences.empty();
  };
  return isAs(fresh) || isAs(EmptyConfiguration(configurator.profile, translate));
}

}  // namespace

std::vector<FoundByRule> ErrorsIn(const ModelConfiguration& configuration,
                                  std::optional<std::int32_t> features, const IniClass* document,
                                  Files& files, const Translation& translate) {
  IniClass own(files);
  if (!document) SaveConfiguration(configuration.conf, configuration.profile, own);
  const Examined examined(configuration, features, document ? *document : own, translate);
  std::vector<FoundByRule> found = Examine(examined, {});
  std::erase_if(found,
                [](const FoundByRule& one) { return one.rule->severity != Severity::Error; });
  return found;
}

std::optional<Phrase> WhatLacks(const ModelConfiguration& configuration, const std::string& path,
                                Files& files, const Translation& translate) {
  IniClass document(files);
  document.OpenINI(path, false);
  const Examined examined(configuration, {}, document, translate);
  for (const Rule& rule : Rules()) {
    if (rule.id != kMissingSections && rule.id != kMissingKeys) continue;
    const std::vector<Finding> found = rule.examine(examined);
    if (!found.empty())
      return Phrase{
          "the file that was opened is not whole: %1", {}, {FindingPhrase(found.front())}};
  }
  return {};
}

std::vector<Phrase> DoubtsOfWriting(const Configurator& configurator) {
  std::vector<Phrase> doubts;
  if (auto model = configurator.session.ModelDoubt()) doubts.push_back(std::move(*model));
  for (Phrase& doubt : DoubtsOfIdentity(configurator)) doubts.push_back(std::move(doubt));
  if (configurator.session.LastReadFailed())
    doubts.push_back({"the last reading of the logger failed"});
  else if (!configurator.WhereFrom().isKnown)
    doubts.push_back({"nothing has been read from a logger or opened since the program started"});
  if (const auto& lacking = configurator.WhereFrom().lacking) doubts.push_back(*lacking);
  if (IsEmpty(configurator)) doubts.push_back({"the configuration on the pages is empty"});
  const auto errors =
      ErrorsIn({configurator.profile, configurator.conf}, configurator.info.Features, nullptr,
               configurator.context.platform.files,
               [&](std::string_view text) { return configurator.context.Translate(text); });
  if (!errors.empty())
    doubts.push_back({"the check finds %1 error(s), the first: %2",
                      {std::to_string(errors.size())},
                      {FindingPhrase(errors.front().finding)}});
  return doubts;
}

}  // namespace ostrel
