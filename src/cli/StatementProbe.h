#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "cli/Fields.h"
#include "shell/Configurator.h"

namespace ostrel::cli {

/// Tells which fields of a configuration a logger of some features gets to know: a field is sent
/// when another value in it changes a statement.
class StatementProbe {
 public:
  StatementProbe(Configurator& configurator, const DeviceConf& conf, std::int32_t features);
  StatementProbe(const StatementProbe&) = delete;
  StatementProbe& operator=(const StatementProbe&) = delete;

  /// Whether the statements change when field `index`, in file order, takes another value.
  bool Changes(std::size_t index, const FieldRef& value);
  const std::vector<std::string>& Statements() const { return statements_; }

 private:
  Configurator& configurator_;
  std::int32_t features_;
  DeviceConf kept_, tried_;
  std::vector<FieldEntry> keptFields_, triedFields_;
  std::vector<std::string> statements_;
};

}  // namespace ostrel::cli
