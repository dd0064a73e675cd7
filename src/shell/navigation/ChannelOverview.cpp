#include "shell/navigation/ChannelOverview.h"

#include <algorithm>
#include <array>
#include <utility>

#include "blocks/expansion/ExpansionInputs.h"
#include "controls/Form.h"
#include "model/Features.h"
#include "shell/navigation/Navigation.h"

namespace ostrel {
namespace {

/// Whether two fields of one place read alike.
bool IsSame(const ConstField& a, const ConstField& b, bool isS100) {
  return IsSameValue(a.value, b.value) || FieldText(a.value, isS100) == FieldText(b.value, isS100);
}

/// Finds the facts of a field's node. Fields of one record stand together.
class NodeFinder {
 public:
  explicit NodeFinder(FactTable& facts) : facts_(facts) {}

  /// Null for a record that no node shows.
  NodeFacts* Of(PageId page, int channel) {
    if (page == page_ && channel == channel_) return found_;
    page_ = page;
    channel_ = channel;
    const std::string node = NodeOf(page, channel);
    found_ = node.empty() ? nullptr : &facts_[node];
    return found_;
  }

 private:
  FactTable& facts_;
  std::optional<PageId> page_;
  int channel_ = -1;
  NodeFacts* found_ = nullptr;
};

}  // namespace

bool IsInForce(const DeviceConf& conf, const FieldId& id) {
  constexpr std::array<std::pair<const SectionMeta*, ExpansionMode>, 4> kSections{{
      {&ExpansionInputs::kDigital, kModeDigital},
      {&ExpansionInputs::kFlow, kModeFlow},
      {&ExpansionInputs::kCounter, kModeCounter},
      {&ExpansionInputs::kAnalog, kModeAnalog},
  }};
  for (const auto& [section, mode] : kSections)
    if (id.section == section) return conf.Modulo[id.channel].MODO == mode;
  return true;
}

bool IsOfChannel(const FieldId& id) { return id.slot.config < 0 && id.slot.place < 0; }

std::optional<ConstField> FieldOf(const Finding& finding, const std::vector<ConstField>& fields) {
  for (const ConstField& field : fields)
    if (std::string_view(finding.section).starts_with(field.id.section->word) &&
        std::string_view(finding.key).starts_with(field.id.word) &&
        finding.section == field.Section() && finding.key == field.Key())
      return field;
  return {};
}

std::string ControlOf(const Form& form, const FieldId& id) {
  for (const ControlRef& control : form.Controls()) {
    const Face& face = FaceOf(control);
    const EditedField& field = face.Field();
    if (field.word == id.word && (field.section.empty() || field.section == id.section->word) &&
        (field.channel < 0 || field.channel == id.channel))
      return face.Name();
  }
  return {};
}

FactTable FactsOfNodes(const ModelConfiguration& present, const DeviceConf& kept,
                       std::span<const FoundByRule> found) {
  const auto& [profile, conf] = present;
  FactTable facts;
  NodeFinder nodes(facts);
  const std::vector<ConstField> fields = FieldsOf(conf, profile);
  const std::vector<ConstField> former = FieldsOf(kept, profile);
  std::map<const SectionMeta*, PageId> pages;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const ConstField& field = fields[i];
    pages.emplace(field.id.section, field.page);
    NodeFacts* node = nodes.Of(field.page, field.id.channel);
    if (!node) continue;
    node->isChanged = node->isChanged || !IsSame(field, former[i], profile.IsS100);
    if (field.id.word == "NOMBRE" && IsOfChannel(field.id) && IsInForce(conf, field.id))
      node->name = **std::get_if<const std::string*>(&field.value);
  }
  VisitAlarms(conf, {profile, kEveryFeature},
              [&](const AlarmPlace& place, const AlarmBlock& alarm) {
                if (!alarm.HABIL) return;
                if (NodeFacts* node = nodes.Of(pages.at(place.section), place.channel))
                  node->hasAlarm = true;
              });
  for (const auto& [rule, finding] : found) {
    const auto field = FieldOf(finding, fields);
    NodeFacts* node = field ? nodes.Of(field->page, field->id.channel) : nullptr;
    if (node) node->worst = std::min(node->worst.value_or(rule->severity), rule->severity);
  }
  return facts;
}

ChannelTable TableOfGroup(std::string_view group, const ModelConfiguration& configuration,
                          const std::function<bool(std::string_view node)>& hasNode) {
  const auto page = PageOfGroup(group);
  if (!page) return {};
  const auto& [profile, conf] = configuration;
  ChannelTable table;
  for (const ConstField& field : FieldsOf(conf, profile)) {
    if (field.page != *page || field.id.channel < 0) continue;
    const std::string node = NodeOf(*page, field.id.channel);
    if (node.empty() || !hasNode(node)) continue;
    if (table.rows.empty() || table.rows.back().channel != field.id.channel)
      table.rows.push_back({node, field.id.channel, {}, false});
    ChannelTable::Row& row = table.rows.back();
    if (!IsInForce(conf, field.id)) continue;
    if (field.meta.sense == FieldSense::Enabled)
      row.hasAlarm = row.hasAlarm || bool(**std::get_if<const Bool16*>(&field.value));
    if (!IsOfChannel(field.id)) continue;
    auto column = std::ranges::find(table.columns, field.id.word, &FieldMeta::word);
    if (column == table.columns.end()) column = table.columns.insert(column, field.meta);
    const auto place = static_cast<std::size_t>(column - table.columns.begin());
    if (row.cells.size() <= place) row.cells.resize(place + 1);
    row.cells[place] = field;
  }
  // The name stands first, by which people know a channel.
  const auto name = std::ranges::find(table.columns, "NOMBRE", &FieldMeta::word);
  const auto place = name == table.columns.end() ? 0 : name - table.columns.begin();
  for (ChannelTable::Row& row : table.rows) {
    row.cells.resize(table.columns.size());
    std::rotate(row.cells.begin(), row.cells.begin() + place,
                row.cells.begin() + std::min<std::ptrdiff_t>(place + 1, std::ssize(row.cells)));
  }
  if (place > 0) std::rotate(table.columns.begin(), name, name + 1);
  return table;
}

}  // namespace ostrel
