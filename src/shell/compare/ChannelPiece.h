#pragma once

#include <optional>
#include <string>
#include <vector>

#include "blocks/PageId.h"
#include "model/DeviceConf.h"
#include "model/Field.h"
#include "model/TargetProfile.h"

namespace ostrel {

/// A channel or a timer, or one alarm of a channel, taken out of a configuration so that it can be
/// put into others of its kind.
struct ChannelPiece {
  struct Part {
    FieldId id;
    FieldValue value;
  };
  PageId page;              ///< that edits the kind
  bool isAlarm = false;     ///< one alarm configuration alone
  std::vector<Part> parts;  ///< in file order
};

/// A channel by its number and name.
struct ChannelName {
  int channel;
  std::string name;  ///< empty for one without
};

/// The channels that a page edits, one after the other; none for a page of what there is once.
std::vector<ChannelName> ChannelsOf(const DeviceConf& conf, const TargetProfile& profile,
                                    PageId page);

/// How many alarm configurations each channel of a page has.
int AlarmConfigsOf(const DeviceConf& conf, const TargetProfile& profile, PageId page);

/// Takes a channel, or one of its alarm configurations.
ChannelPiece TakePiece(const DeviceConf& conf, const TargetProfile& profile, PageId page,
                       int channel, std::optional<int> config = {});

/// Puts a piece into a channel of its kind; an alarm into one of its alarm configurations. What
/// tells the channel from its neighbours stays: its name, the identity of a probe, address and
/// input of a module.
void PutPiece(const ChannelPiece& piece, DeviceConf& conf, const TargetProfile& profile,
              int channel, int config);

}  // namespace ostrel
