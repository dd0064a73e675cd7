#include "shell/compare/Comparison.h"

#include <unordered_map>

#include "base/Printable.h"
#include "shell/words/FieldWords.h"
#include "shell/writing/SentFields.h"

namespace ostrel {
namespace {

/// Words for a field that one side lacks.
constexpr std::string_view kAbsent = "-";
constexpr FieldMeta kModelMeta{.word = kStampKey, .words = "model"};

std::string Address(const ConstField& field) { return field.Section() + "/" + field.Key(); }

/// The same for all to whom a free telephone slot is nothing.
bool IsNothing(const ConstField& field) {
  const auto* phone = std::get_if<const ConfPhone*>(&field.value);
  return phone && (*phone)->TLF.empty();
}

/// One side of a difference.
struct Side {
  std::string text{}, words{kAbsent};
  std::optional<FieldValue> value{};
};

Side SideOf(const ConstField& field, bool isS100, Passwords passwords) {
  return {ShownText(field.value, field.meta, isS100, passwords),
          ReadableValue(field.value, field.meta, isS100, passwords), ValueOf(field.value)};
}

Difference DifferenceOf(const ConstField& field, Side before, Side after) {
  return {.page = field.page,
          .id = field.id,
          .meta = field.meta,
          .before = std::move(before.text),
          .after = std::move(after.text),
          .beforeWords = std::move(before.words),
          .afterWords = std::move(after.words),
          .valueBefore = std::move(before.value),
          .valueAfter = std::move(after.value)};
}

Comparison CompareModels(const ModelConfiguration& before, const ModelConfiguration& after,
                         Passwords passwords) {
  Comparison comparison{.isSame = false};
  const std::string &nameBefore = before.profile.TargetName, &nameAfter = after.profile.TargetName;
  comparison.differences.push_back({.page = PageId::General,
                                    .id = {&GeneralParameters::kSection, -1, kStampKey, {}},
                                    .meta = kModelMeta,
                                    .before = nameBefore,
                                    .after = nameAfter,
                                    .beforeWords = nameBefore,
                                    .afterWords = nameAfter,
                                    .valueBefore = nameBefore,
                                    .valueAfter = nameAfter});
  const auto fieldsBefore = FieldsOf(before.conf, before.profile);
  const auto fieldsAfter = FieldsOf(after.conf, after.profile);
  std::unordered_map<std::string, const ConstField*> others;
  for (const ConstField& field : fieldsAfter)
    if (!IsNothing(field)) others[Address(field)] = &field;
  for (const ConstField& field : fieldsBefore) {
    if (IsNothing(field)) continue;
    const auto other = others.find(Address(field));
    const std::string text = FieldText(field.value, before.profile.IsS100);
    const std::string otherText = other == others.end()
                                      ? std::string()
                                      : FieldText(other->second->value, after.profile.IsS100);
    if (text != otherText)
      comparison.differences.push_back(DifferenceOf(
          field, SideOf(field, before.profile.IsS100, passwords),
          other == others.end() ? Side{}
                                : SideOf(*other->second, after.profile.IsS100, passwords)));
    if (other != others.end()) others.erase(other);
  }
  for (const ConstField& field : fieldsAfter) {
    const std::string text = FieldText(field.value, after.profile.IsS100);
    if (text.empty() || !others.contains(Address(field))) continue;
    comparison.differences.push_back(
        DifferenceOf(field, Side{}, SideOf(field, after.profile.IsS100, passwords)));
  }
  return comparison;
}

/// Two configurations of one model as they are sent.
class SentSides {
 public:
  SentSides(const ModelConfiguration& before, const ModelConfiguration& after,
            std::int32_t features)
      : receiver_{before.profile, features},
        before_(before.conf),
        after_(after.conf),
        fieldsBefore_(FieldsOf(before_, before.profile)),
        fieldsAfter_(FieldsOf(after_, before.profile)),
        sentBefore_(before_, receiver_),
        sentAfter_(after_, receiver_) {}

  /// Whether copying field `index` from either to the other changes a statement.
  bool Differ(std::size_t index) {
    return sentBefore_.Changes(index, fieldsAfter_[index].value) ||
           sentAfter_.Changes(index, fieldsBefore_[index].value);
  }
  bool AreSame() const {
    return ComposeStatements(before_, receiver_) == ComposeStatements(after_, receiver_);
  }

 private:
  Receiver receiver_;
  const DeviceConf &before_, &after_;
  std::vector<ConstField> fieldsBefore_, fieldsAfter_;
  SentFields sentBefore_, sentAfter_;
};

}  // namespace

Comparison Compare(const ModelConfiguration& before, const ModelConfiguration& after,
                   std::optional<std::int32_t> features, Passwords passwords) {
  const TargetProfile& profile = before.profile;
  if (profile.TargetName != after.profile.TargetName)
    return CompareModels(before, after, passwords);
  const auto fieldsBefore = FieldsOf(before.conf, profile);
  const auto fieldsAfter = FieldsOf(after.conf, profile);
  std::optional<SentSides> sides;
  if (features) sides.emplace(before, after, *features);
  Comparison comparison;
  for (std::size_t i = 0; i < fieldsBefore.size(); ++i) {
    const ConstField &one = fieldsBefore[i], &other = fieldsAfter[i];
    if (FieldText(one.value, profile.IsS100) == FieldText(other.value, profile.IsS100)) continue;
    Difference difference = DifferenceOf(one, SideOf(one, profile.IsS100, passwords),
                                         SideOf(other, profile.IsS100, passwords));
    difference.isSent = !sides || sides->Differ(i);
    comparison.differences.push_back(std::move(difference));
  }
  comparison.isSame = sides ? sides->AreSame() : comparison.differences.empty();
  return comparison;
}

}  // namespace ostrel
