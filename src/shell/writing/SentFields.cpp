#include "shell/writing/SentFields.h"

#include <algorithm>

#include "blocks/Orders.h"

namespace ostrel {

SentFields::SentFields(const DeviceConf& conf, const Receiver& receiver)
    : receiver_(receiver), conf_(conf), fields_(FieldsOf(conf_, receiver.profile)) {}

const std::vector<std::string>& SentFields::StatementsOf(std::size_t index) {
  const Field& field = fields_[index];
  if (!hasKept_ || keptPage_ != field.page || keptChannel_ != field.id.channel) {
    kept_ = StatementsFor(field);
    keptPage_ = field.page;
    keptChannel_ = field.id.channel;
    hasKept_ = true;
  }
  return kept_;
}

bool SentFields::Changes(std::size_t index, const FieldView& value) {
  const Field& field = fields_[index];
  const std::vector<std::string>& present = StatementsOf(index);
  // The one field is changed and put back.
  return std::visit(
      [&](auto* tried) {
        const auto former = *tried;
        CopyField(value, tried);
        const bool changes = StatementsFor(field) != present;
        *tried = former;
        return changes;
      },
      field.value);
}

std::vector<std::string> SentFields::StatementsFor(const Field& field) const {
  StatementList statements;
  for (const UploadStep& step : UploadOrder()) {
    if (std::ranges::find(step.pages, field.page) == step.pages.end()) continue;
    const int count = step.count(receiver_);
    const bool isNumbered = field.id.channel >= 0;
    const int first = isNumbered ? field.id.channel : 0;
    const int last = isNumbered ? std::min(count, first + 1) : count;
    for (int channel = first; channel < last; ++channel)
      step.compose(conf_, receiver_, channel, statements);
  }
  return statements.All();
}

}  // namespace ostrel
