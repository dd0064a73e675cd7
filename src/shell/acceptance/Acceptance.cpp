#include "shell/acceptance/Acceptance.h"

#include <algorithm>
#include <array>
#include <set>

#include "blocks/Configuration.h"
#include "shell/ChannelOverview.h"
#include "shell/Navigation.h"
#include "shell/NavigationTree.h"

namespace ostrel {
namespace {

constexpr std::array<PageId, 7> kInputPages{PageId::E_Digital, PageId::E_Analog, PageId::Caudal,
                                            PageId::E_OneWire, PageId::E_Aux,    PageId::E_MODBUS,
                                            PageId::E_Modular};

std::set<std::string> NodesOf(const TargetProfile& profile) {
  std::set<std::string> keys;
  for (const TreeNode& node :
       BuildNavigationTree(profile, [](std::string_view text) { return std::string(text); }))
    keys.insert(node.key);
  return keys;
}

}  // namespace

std::string_view VerdictWord(Verdict verdict) {
  constexpr std::array<std::string_view, 3> kWords{"open", "pass", "fail"};
  return kWords[static_cast<std::size_t>(verdict)];
}

std::vector<AcceptancePoint> ConfiguredInputs(const ModelConfiguration& configuration,
                                              const Translation& translate) {
  const auto& [profile, conf] = configuration;
  const DeviceConf empty = EmptyConfiguration(profile, translate);
  const std::vector<ConstField> fields = FieldsOf(conf, profile);
  const std::vector<ConstField> emptied = FieldsOf(empty, profile);
  const std::set<std::string> nodes = NodesOf(profile);
  std::vector<AcceptancePoint> inputs;
  std::set<std::string> configured;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const auto& [page, id, meta, value] = fields[i];
    if (id.channel < 0 || std::ranges::find(kInputPages, page) == kInputPages.end()) continue;
    const std::string node = NodeOf(page, id.channel);
    if (!nodes.contains(node) || !IsInForce(conf, id)) continue;
    if (inputs.empty() || inputs.back().node != node)
      inputs.push_back({.node = node, .kind = {}, .number = id.channel});
    AcceptancePoint& input = inputs.back();
    input.kind = id.section->words;  // of the mode that it is in, where it has some
    if (id.word == "NOMBRE" && IsOfChannel(id))
      input.name = **std::get_if<const std::string*>(&value);
    if (!IsSameValue(value, emptied[i].value)) configured.insert(node);
  }
  std::erase_if(inputs,
                [&](const AcceptancePoint& input) { return !configured.contains(input.node); });
  return inputs;
}

std::vector<AcceptancePoint> WithNotes(std::vector<AcceptancePoint> inputs,
                                       const std::vector<AcceptancePoint>& noted) {
  for (const AcceptancePoint& note : noted) {
    if (!note.IsTouched()) continue;
    const auto input = std::ranges::find_if(inputs, [&](const AcceptancePoint& each) {
      return each.node == note.node && each.name == note.name && !each.IsTouched();
    });
    if (input == inputs.end())
      inputs.push_back(note);
    else
      *input = note;
  }
  return inputs;
}

AcceptanceCount CountOf(const std::vector<AcceptancePoint>& points) {
  const auto with = [&](Verdict verdict) {
    return static_cast<int>(std::ranges::count(points, verdict, &AcceptancePoint::verdict));
  };
  return {with(Verdict::Passed), with(Verdict::Failed), with(Verdict::Open)};
}

}  // namespace ostrel
