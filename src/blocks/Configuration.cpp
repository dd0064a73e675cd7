#include "blocks/Configuration.h"

#include "blocks/Orders.h"
#include "store/IniClass.h"

namespace ostrel {
namespace {

/// Runs `work` on each block that takes part in a file of the model, in file order.
template <class Work>
void InFileOrder(const TargetProfile& profile, const Work& work) {
  for (const FileTurn& turn : kFileOrder)
    if (const Block* block = FindBlock(turn.page); block && turn.takesPart(profile)) work(*block);
}

/// A range that covers everything is read back as valid at all times, however it was sent.
void TakeWholeRanges(DeviceConf& read, const DeviceConf& sent, const TargetProfile& profile) {
  const auto readFields = FieldsOf(read, profile);
  const auto sentFields = FieldsOf(sent, profile);
  for (std::size_t i = 0; i < readFields.size(); ++i) {
    if (readFields[i].id.word != kAlwaysWord) continue;
    const auto start = *std::get<const TimeOfDay*>(sentFields[i + 1].value);
    const auto stop = *std::get<const TimeOfDay*>(sentFields[i + 2].value);
    const auto days = *std::get<const std::uint8_t*>(sentFields[i + 3].value);
    if (CheckSiempre(start.seconds, stop.seconds, days) && *std::get<Bool16*>(readFields[i].value))
      CopyField(sentFields[i].value, readFields[i].value);
  }
}

}  // namespace

DeviceConf EmptyConfiguration(const TargetProfile& profile, const Translation& translate) {
  DeviceConf conf;
  for (const PageId page : kClearAtDownload)
    if (const Block* block = FindBlock(page)) block->clear(conf, profile, translate);
  return conf;
}

std::vector<Field> FieldsOf(DeviceConf& conf, const TargetProfile& profile) {
  std::vector<Field> fields;
  InFileOrder(profile, [&](const Block& block) {
    block.visit(conf, profile, [&](const FieldId& id, const FieldMeta& meta, FieldRef value) {
      fields.push_back({block.page, id, meta, value});
    });
  });
  return fields;
}

std::vector<ConstField> FieldsOf(const DeviceConf& conf, const TargetProfile& profile) {
  std::vector<ConstField> fields;
  InFileOrder(profile, [&](const Block& block) {
    block.view(conf, profile, [&](const FieldId& id, const FieldMeta& meta, FieldView value) {
      fields.push_back({block.page, id, meta, value});
    });
  });
  return fields;
}

void VisitAlarms(const DeviceConf& conf, const Receiver& receiver, const AlarmVisitor& visit) {
  InFileOrder(receiver.profile, [&](const Block& block) {
    if (block.alarms) block.alarms(conf, receiver, visit);
  });
}

DeviceConf ReadAsSent(DeviceConf read, const DeviceConf& sent, const Receiver& receiver) {
  for (const Block& block : Blocks())
    if (block.asSent) block.asSent(read, sent, receiver);
  TakeWholeRanges(read, sent, receiver.profile);
  return read;
}

StatementList ComposeUpload(const DeviceConf& conf, const Receiver& receiver) {
  StatementList statements;
  for (const UploadStep& step : UploadOrder()) ComposeStep(step, conf, receiver, statements);
  return statements;
}

std::vector<std::string> ComposeStatements(const DeviceConf& conf, const Receiver& receiver) {
  return ComposeUpload(conf, receiver).All();
}

void SaveConfiguration(const DeviceConf& conf, const TargetProfile& profile, IniClass& document) {
  document.NewINI();
  document.WriteKey(kStampSection, kStampKey, profile.TargetType);
  InFileOrder(profile, [&](const Block& block) { SaveBlock(block, conf, profile, document); });
}

void RestoreConfiguration(DeviceConf& conf, const TargetProfile& profile,
                          const Translation& translate, const KeyReader& read) {
  InFileOrder(profile,
              [&](const Block& block) { RestoreBlock(block, conf, profile, translate, read); });
}

}  // namespace ostrel
