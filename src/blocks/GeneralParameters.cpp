#include "blocks/GeneralParameters.h"

#include "blocks/TelephoneWire.h"
#include "model/Assign.h"
#include "model/PhoneRow.h"

namespace ostrel {
namespace {

constexpr int kSecondsPerMinute = 60;
constexpr std::int32_t kFirstResendTime = 10;  // minutes
constexpr std::int16_t kFirstResends = 3;
/// Word of the telephones in files of the earlier form.
constexpr std::string_view kEarlierPhone = "TLF";

}  // namespace

void GeneralParameters::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  conf.General = {};
  conf.General.RENVT = kFirstResendTime;
  conf.General.RENVN = kFirstResends;
  // The rest of a slot keeps its values: without a number nothing of it is shown, sent or saved.
  for (ConfPhone& phone : conf.Phone) phone.TLF.clear();
}

void GeneralParameters::Restore(DeviceConf& conf, const TargetProfile& profile,
                                const KeyReader& read) {
  bool hasPresentForm = false;
  const auto restore = [&](const FieldId& id, const FieldMeta& meta, auto& field) {
    const std::string text = read(SectionName(id), KeyName(id, meta.placeForm));
    if constexpr (std::same_as<std::remove_reference_t<decltype(field)>, ConfPhone>) {
      if (text.empty()) return;
      hasPresentForm = true;
    }
    SetFieldText(FieldRef(&field), text);
  };
  Fields(conf, profile, restore);
  for (int slot = 0; slot < kPhones && !hasPresentForm; ++slot) {
    const FieldId id{&kSection, -1, kEarlierPhone, {.place = slot}};
    const std::string row = read(SectionName(id), KeyName(id, PlaceForm::Bare));
    if (!row.empty()) ReadEarlierPhoneRow(row, conf.Phone[slot]);
  }
}

const std::array<LineSection, 7> GeneralParameters::kLines{{
    {"DNAME",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) { line.Into(conf.General.DNAME); }},
    {"SMC",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) { line.Into(conf.General.CSM); }},
    {"PTLF",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) { line.Into(conf.General.PTLF); }},
    {"RENVT",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       Assign(conf.General.RENVT, line.Number() / kSecondsPerMinute);
     }},
    {"RENVN",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) { line.Into(conf.General.RENVN); }},
    {"REST",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) { line.Into(conf.General.REST); }},
    {"TLF", [](LineReader& line, DeviceConf& conf,
               const DeviceInfo& info) { ReadPhone(line, info.Features, conf); }},
}};

void GeneralParameters::ComposeIdentity(const DeviceConf& conf, const Receiver&, int,
                                        StatementList& out) {
  out.Add(Statement("ID=").Text(conf.General.DNAME));
  out.Add(Statement("CSM=").Text(conf.General.CSM));
  out.Add(Statement("PTLF=").Text(conf.General.PTLF));
  out.Add(Statement("REST=").Text(conf.General.REST));
}

void GeneralParameters::ComposeResendRules(const DeviceConf& conf, const Receiver&, int,
                                           StatementList& out) {
  out.Add(Statement("").Num("RETRYMAX=", conf.General.RENVN));
  out.Add(Statement("").Num("RETRYTIME=", std::int64_t{conf.General.RENVT} * kSecondsPerMinute));
}

void GeneralParameters::ComposeTelephones(const DeviceConf& conf, const Receiver& receiver, int,
                                          StatementList& out) {
  out.Add(Statement("CLRTLF"));
  for (int slot = 0; slot < kPhones; ++slot)
    if (!conf.Phone[slot].TLF.empty()) out.Add(PhoneStatement(conf.Phone[slot], receiver));
}

}  // namespace ostrel
