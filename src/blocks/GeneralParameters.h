#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/FileKeys.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"

namespace ostrel {

/// What a logger has only once, and its telephones.
struct GeneralParameters {
  static constexpr SectionMeta kSection{"GENERAL", "general", ""};
  static constexpr FieldMeta kPhoneMeta{
      .word = "TLFM", .words = "telephone", .longest = kNumberLength, .placeForm = PlaceForm::Bare};

  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    Describe(conf.General, AtRecord(kSection, -1, visit));
    for (int slot = 0; slot < kPhones; ++slot)
      visit(FieldId{&kSection, -1, kPhoneMeta.word, {.place = slot}}, kPhoneMeta, conf.Phone[slot]);
  }
  /// Reads the fields of an emptied record; telephones also in the form of earlier files, which
  /// counts only when the file has none in the present form.
  static void Restore(DeviceConf& conf, const TargetProfile& profile, const KeyReader& read);
  static const std::array<LineSection, 7> kLines;

  static void ComposeIdentity(const DeviceConf& conf, const Receiver&, int, StatementList& out);
  static void ComposeResendRules(const DeviceConf& conf, const Receiver&, int, StatementList& out);
  static void ComposeTelephones(const DeviceConf& conf, const Receiver& receiver, int,
                                StatementList& out);
};

}  // namespace ostrel
