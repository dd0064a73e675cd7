#include "shell/files/EditHistory.h"

#include "blocks/Configuration.h"

namespace ostrel {

bool ReadsAlike(const DeviceConf& one, const DeviceConf& other, const TargetProfile& profile) {
  if (one == other) return true;
  const std::vector<ConstField> fields = FieldsOf(one, profile);
  const std::vector<ConstField> others = FieldsOf(other, profile);
  for (std::size_t i = 0; i < fields.size(); ++i)
    if (FieldText(fields[i].value, profile.IsS100) != FieldText(others[i].value, profile.IsS100))
      return false;
  return true;
}

void EditHistory::Start(const DeviceConf& state) {
  steps_.assign(1, {state, {}});
  at_ = 0;
}

void EditHistory::Note(const DeviceConf& present, const TargetProfile& profile,
                       const std::string& node) {
  if (!IsEdited(present, profile)) return;
  steps_.resize(at_ + 1);
  steps_.push_back({present, node});
  if (steps_.size() > kMost) steps_.pop_front();
  at_ = steps_.size() - 1;
}

EditHistory::Step EditHistory::Undo() {
  const std::string node = steps_[at_].node;
  --at_;
  return {steps_[at_].state, node};
}

EditHistory::Step EditHistory::Redo() {
  ++at_;
  return steps_[at_];
}

}  // namespace ostrel
