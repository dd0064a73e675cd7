#pragma once

#include <string>
#include <vector>

#include "blocks/Configuration.h"
#include "blocks/Receiver.h"

namespace ostrel {

/// Tells which fields of a configuration a logger gets to know: a field is sent when another value
/// in it changes a statement. Only the statements that can carry it are made anew.
class SentFields {
 public:
  SentFields(const DeviceConf& conf, const Receiver& receiver);
  SentFields(const SentFields&) = delete;
  SentFields& operator=(const SentFields&) = delete;

  /// Whether the statements change when field `index`, in file order, takes another value.
  bool Changes(std::size_t index, const FieldView& value);
  /// The statements that can carry field `index`, as it is.
  const std::vector<std::string>& StatementsOf(std::size_t index);

 private:
  std::vector<std::string> StatementsFor(const Field& field) const;

  Receiver receiver_;
  DeviceConf conf_;
  std::vector<Field> fields_;
  /// The statements of the record that was asked for last: fields are asked in file order.
  PageId keptPage_{};
  int keptChannel_ = 0;
  std::vector<std::string> kept_;
  bool hasKept_ = false;
};

}  // namespace ostrel
