#include "shell/writing/ModelEvidence.h"

#include <algorithm>
#include <array>
#include <limits>

#include "blocks/Configuration.h"

namespace ostrel {
namespace {

/// How many channels of a page's kind a model has. A total that is counted beside the flow meters
/// and the mains input have records on every model.
int ChannelsOf(PageId page, const TargetModel& model) {
  switch (page) {
    case PageId::E_Analog:
      return model.analog;
    case PageId::E_Digital:
      return model.digital + 1;
    case PageId::Caudal:
      return model.caudal + 1;
    case PageId::E_MODBUS:
      return std::max<int>(model.modbus, 0);
    case PageId::E_OneWire:
      return std::max<int>(model.oneWire, 0);
    case PageId::E_Modular:
      return model.modulo;
    default:
      return std::numeric_limits<int>::max();
  }
}

/// Whether two fields of one kind hold the same.
bool IsSame(const FieldView& field, const FieldView& other) {
  return std::visit([&](const auto* typed) { return *typed == *std::get<decltype(typed)>(other); },
                    field);
}

}  // namespace

std::string_view ModelInGreeting(std::string_view greeting) {
  std::string_view found, by;
  for (const TargetModel& model : TargetModels())
    for (const std::string_view name : {model.name, model.type})
      if (name.size() > by.size() && greeting.find(name) != std::string_view::npos) {
        found = model.name;
        by = name;
      }
  return found;
}

std::vector<std::string> ModelsThatFit(const DeviceConf& held, const TargetProfile& profile,
                                       const Translation& translate) {
  const DeviceConf empty = EmptyConfiguration(profile, translate);
  std::array<bool, 6> fits;
  fits.fill(true);
  for (const Block& block : Blocks()) {
    std::vector<FieldView> fields;
    block.view(empty, profile, [&](const FieldId&, const FieldMeta&, const FieldView& value) {
      fields.push_back(value);
    });
    auto before = fields.cbegin();
    block.view(held, profile, [&](const FieldId& id, const FieldMeta&, const FieldView& value) {
      if (IsSame(value, *before++)) return;
      for (std::size_t i = 0; i < fits.size(); ++i)
        if (id.channel >= ChannelsOf(block.page, TargetModels()[i])) fits[i] = false;
    });
  }
  std::vector<std::string> names;
  for (std::size_t i = 0; i < fits.size(); ++i)
    if (fits[i]) names.emplace_back(TargetModels()[i].name);
  return names;
}

}  // namespace ostrel
