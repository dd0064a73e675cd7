#pragma once

#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shell/check/CheckRules.h"

namespace ostrel {

class Form;

// What a whole configuration tells of the channels in it, for trees and tables.

/// What is to be told of a node of the tree beside its text.
struct NodeFacts {
  std::string name;               ///< of its channel
  bool hasAlarm = false;          ///< an alarm of the channel is enabled
  bool isChanged = false;         ///< differs from what was last saved, sent or read
  std::optional<Severity> worst;  ///< of what the check finds
};

/// The facts of all nodes that have some, by their keys.
using FactTable = std::map<std::string, NodeFacts, std::less<>>;
FactTable FactsOfNodes(const ModelConfiguration& present, const DeviceConf& kept,
                       std::span<const FoundByRule> found);

/// Whether a field counts: an expansion input keeps those of the modes that it is not in, too.
bool IsInForce(const DeviceConf& conf, const FieldId& id);

/// Whether a field is of a channel itself, and no alarm's and no list's.
bool IsOfChannel(const FieldId& id);

/// The field that a finding is about; nothing for one about a whole section or file.
std::optional<ConstField> FieldOf(const Finding& finding, const std::vector<ConstField>& fields);

/// The control of a form that edits a field; empty when there is none. A form that has several
/// alarm configurations or channels has it for all of them.
std::string ControlOf(const Form& form, const FieldId& id);

/// The channels of a group as a table of their main fields.
struct ChannelTable {
  struct Row {
    std::string node;
    int channel;
    /// By column; nothing where a channel has no such field in the mode that it is in.
    std::vector<std::optional<ConstField>> cells;
    bool hasAlarm = false;
  };
  std::vector<FieldMeta> columns;
  std::vector<Row> rows;
};

/// The table of a group of the tree; empty for a node that is none. The cells refer into the
/// configuration. `hasNode` says which channels the model has.
ChannelTable TableOfGroup(std::string_view group, const ModelConfiguration& configuration,
                          const std::function<bool(std::string_view node)>& hasNode);

}  // namespace ostrel
