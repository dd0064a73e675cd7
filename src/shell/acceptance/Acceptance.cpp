#include "shell/acceptance/Acceptance.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

#include "blocks/Configuration.h"
#include "shell/navigation/ChannelOverview.h"
#include "shell/navigation/Navigation.h"
#include "shell/navigation/NavigationTree.h"

namespace ostrel {
namespace {

constexpr std::array<PageId, 7> kInputPages{PageId::E_Digital, PageId::E_Analog, PageId::Caudal,
                                            PageId::E_OneWire, PageId::E_Aux,    PageId::E_MODBUS,
                                            PageId::E_Modular};

struct InputKind {
  PageId page;
  LiveKind kind;
};
/// What the inputs of a page measure.
constexpr std::array<InputKind, 7> kMeasured{{{PageId::E_Digital, LiveKind::Digital},
                                              {PageId::E_Analog, LiveKind::Analog},
                                              {PageId::Caudal, LiveKind::Flow},
                                              {PageId::Caudal, LiveKind::Counter},
                                              {PageId::E_OneWire, LiveKind::Probe},
                                              {PageId::E_MODBUS, LiveKind::Modbus},
                                              {PageId::E_Modular, LiveKind::Module}}};

std::set<std::string> NodesOf(const TargetProfile& profile) {
  std::set<std::string> keys;
  for (const TreeNode& node :
       BuildNavigationTree(profile, [](std::string_view text) { return std::string(text); }))
    keys.insert(node.key);
  return keys;
}

bool IsOfSameInput(const AcceptancePoint& one, const AcceptancePoint& other) {
  return one.node == other.node && one.kind == other.kind && one.name == other.name;
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
  bool isConfigured = false;
  std::optional<std::pair<PageId, int>> last;  // fields of one input stand together
  const auto endInput = [&] {
    if (!inputs.empty() && !isConfigured) inputs.pop_back();
    isConfigured = false;
  };
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const auto& [page, id, meta, value] = fields[i];
    if (id.channel < 0 || std::ranges::find(kInputPages, page) == kInputPages.end()) continue;
    if (last != std::pair(page, id.channel)) {
      endInput();
      last = {page, id.channel};
      inputs.push_back({.node = NodeOf(page, id.channel), .kind = {}, .number = id.channel});
    }
    AcceptancePoint& input = inputs.back();
    if (!nodes.contains(input.node) || !IsInForce(conf, id)) continue;
    input.kind = id.section->words;  // of the mode that it is in, where it has some
    if (id.word == "NOMBRE" && IsOfChannel(id))
      input.name = **std::get_if<const std::string*>(&value);
    // The rest of an alarm that is not enabled is of no consequence, and loggers fill it variously.
    const bool counts = IsOfChannel(id) || meta.sense == FieldSense::Enabled;
    isConfigured = isConfigured || (counts && !IsSameValue(value, emptied[i].value));
  }
  endInput();
  return inputs;
}

std::vector<AcceptancePoint> WithNotes(std::vector<AcceptancePoint> inputs,
                                       const std::vector<AcceptancePoint>& noted) {
  for (const AcceptancePoint& note : noted) {
    if (!note.IsTouched()) continue;
    const auto input = std::ranges::find_if(
        inputs, [&](const AcceptancePoint& each) { return IsOfSameInput(each, note); });
    if (input == inputs.end())
      inputs.push_back(note);
    else
      *input = note;
  }
  return inputs;
}

std::vector<AcceptancePoint> NotesOf(const std::vector<AcceptancePoint>& inputs,
                                     const std::vector<AcceptancePoint>& noted) {
  std::vector<AcceptancePoint> notes;
  for (const AcceptancePoint& note : noted)
    if (note.IsTouched() && std::ranges::any_of(inputs, [&](const AcceptancePoint& each) {
          return IsOfSameInput(each, note);
        }))
      notes.push_back(note);
  return notes;
}

std::string InputValue(const AcceptancePoint& point, const LiveRound& round) {
  const auto target = FindNodeTarget(point.node, {}, false);
  std::string text;
  for (const auto& [page, kind] : kMeasured) {
    if (!target || target->form != FormId(page)) continue;
    const LiveValue* value = round.Find({kind, point.number});
    if (!value || !value->IsFresh()) continue;
    text += (text.empty() ? "" : "; ") + LiveText(*value);
    if (!value->unit.empty()) text += " " + value->unit;
  }
  return text;
}

AcceptanceCount CountOf(const std::vector<AcceptancePoint>& points) {
  const auto with = [&](Verdict verdict) {
    return static_cast<int>(std::ranges::count(points, verdict, &AcceptancePoint::verdict));
  };
  return {with(Verdict::Passed), with(Verdict::Failed), with(Verdict::Open)};
}

}  // namespace ostrel
