#pragma once

#include <vector>

#include "model/DeviceConf.h"
#include "model/Field.h"
#include "model/TargetProfile.h"

namespace ostrel {

/// Copies fields from one configuration of a model to another. An address that the model has no
/// field for is ignored.
void CopyFields(const DeviceConf& from, DeviceConf& to, const TargetProfile& profile,
                const std::vector<FieldId>& fields);

}  // namespace ostrel
