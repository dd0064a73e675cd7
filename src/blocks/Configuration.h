#pragma once

#include <string>
#include <vector>

#include "blocks/Blocks.h"
#include "blocks/FileKeys.h"

namespace ostrel {

class IniClass;

// Work on a whole configuration as a plain value, for one model.

/// What a file or a logger is read into: a new configuration, every block of it emptied.
DeviceConf EmptyConfiguration(const TargetProfile& profile, const Translation& translate);

/// One field of a configuration, with its address and the page that edits it. It refers into the
/// configuration.
template <class Ref>
struct BasicField {
  PageId page;
  FieldId id;
  FieldMeta meta;
  Ref value;

  std::string Section() const { return SectionName(id); }
  std::string Key() const { return KeyName(id, meta.placeForm); }
};
using Field = BasicField<FieldRef>;
using ConstField = BasicField<FieldView>;

/// Every field that a file of the model holds, in file order.
std::vector<Field> FieldsOf(DeviceConf& conf, const TargetProfile& profile);
std::vector<ConstField> FieldsOf(const DeviceConf& conf, const TargetProfile& profile);

/// Visits every alarm that a logger gets to know.
void VisitAlarms(const DeviceConf& conf, const Receiver& receiver, const AlarmVisitor& visit);

/// A reading beside what was sent, or is to be: where a logger tells the same thing in another
/// form, the reading takes the form of what was sent. All else stays as it was read.
DeviceConf ReadAsSent(DeviceConf read, const DeviceConf& sent, const Receiver& receiver);

/// A whole upload, in the order of sending and without numbers.
StatementList ComposeUpload(const DeviceConf& conf, const Receiver& receiver);
/// The statements of it that can be made.
std::vector<std::string> ComposeStatements(const DeviceConf& conf, const Receiver& receiver);

/// Section and key of a file's stamp, which names the model that the file is of.
inline constexpr std::string_view kStampSection = "General";
inline constexpr std::string_view kStampKey = "VERSION";

/// Puts stamp and fields into a document, which starts anew.
void SaveConfiguration(const DeviceConf& conf, const TargetProfile& profile, IniClass& document);

/// Reads all fields that a file of the model holds into a configuration.
void RestoreConfiguration(DeviceConf& conf, const TargetProfile& profile,
                          const Translation& translate, const KeyReader& read);

}  // namespace ostrel
