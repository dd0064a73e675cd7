#include "shell/compare/ChannelPiece.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "blocks/Configuration.h"

namespace ostrel {
namespace {

constexpr std::array<std::string_view, 5> kOwnWords{"NOMBRE", "ADDRESS1", "ADDRESS2", "DIR",
                                                    "ENTRADA"};

bool IsItsOwn(const FieldId& id) {
  return id.slot.config < 0 && std::ranges::find(kOwnWords, id.word) != kOwnWords.end();
}

}  // namespace

std::vector<ChannelName> ChannelsOf(const DeviceConf& conf, const TargetProfile& profile,
                                    PageId page) {
  std::vector<ChannelName> channels;
  for (const ConstField& field : FieldsOf(conf, profile)) {
    const FieldId& id = field.id;
    if (field.page != page || id.channel < 0) continue;
    auto known = std::ranges::find(channels, id.channel, &ChannelName::channel);
    if (known == channels.end()) known = channels.insert(known, {id.channel, {}});
    const auto* const* text = std::get_if<const std::string*>(&field.value);
    if (text && known->name.empty() && id.word == "NOMBRE" && id.slot.config < 0)
      known->name = **text;
  }
  return channels;
}

int AlarmConfigsOf(const DeviceConf& conf, const TargetProfile& profile, PageId page) {
  int configs = 0;
  for (const ConstField& field : FieldsOf(conf, profile))
    if (field.page == page) configs = std::max(configs, field.id.slot.config + 1);
  return configs;
}

ChannelPiece TakePiece(const DeviceConf& conf, const TargetProfile& profile, PageId page,
                       int channel, std::optional<int> config) {
  ChannelPiece piece{page, config.has_value(), {}};
  for (const ConstField& field : FieldsOf(conf, profile)) {
    const FieldId& id = field.id;
    if (field.page != page || id.channel != channel || IsItsOwn(id)) continue;
    if (config && id.slot.config != *config) continue;
    piece.parts.push_back({id, ValueOf(field.value)});
  }
  return piece;
}

void PutPiece(const ChannelPiece& piece, DeviceConf& conf, const TargetProfile& profile,
              int channel, int config) {
  for (const Field& field : FieldsOf(conf, profile)) {
    if (field.page != piece.page || field.id.channel != channel) continue;
    const auto part = std::ranges::find_if(piece.parts, [&](const ChannelPiece::Part& one) {
      FieldId wanted = one.id;
      wanted.channel = channel;
      if (piece.isAlarm) wanted.slot.config = config;
      return wanted == field.id;
    });
    if (part != piece.parts.end()) CopyField(ViewOf(part->value), field.value);
  }
}

}  // namespace ostrel
