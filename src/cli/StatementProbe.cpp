#include "cli/StatementProbe.h"

namespace ostrel::cli {

StatementProbe::StatementProbe(Configurator& configurator, const DeviceConf& conf,
                               std::int32_t features)
    : configurator_(configurator),
      features_(features),
      kept_(conf),
      tried_(conf),
      keptFields_(FieldsOf(configurator, kept_)),
      triedFields_(FieldsOf(configurator, tried_)),
      statements_(configurator.StatementsOf(kept_, features)) {}

bool StatementProbe::Changes(std::size_t index, const FieldRef& value) {
  CopyField(value, triedFields_[index].field);
  const bool changes = configurator_.StatementsOf(tried_, features_) != statements_;
  CopyField(keptFields_[index].field, triedFields_[index].field);
  return changes;
}

}  // namespace ostrel::cli
