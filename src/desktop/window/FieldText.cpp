#include "desktop/window/FieldText.h"

#include <string>

#include "desktop/forms/Words.h"
#include "shell/FieldWords.h"

namespace ostrel {
namespace {

/// Words of the model's description, which the window's own translation knows.
QString Translated(std::string_view words) {
  return words.empty() ? QString() : Words::tr(std::string(words).c_str());
}

}  // namespace

QString WordsOf(const FieldMeta& meta) { return Translated(meta.words); }

QString RecordText(const FieldId& id) {
  const QString words = Translated(id.section->words);
  return id.channel < 0 ? words : words + u' ' + QString::number(id.channel);
}

QString FieldName(const FieldId& id, const FieldMeta& meta) {
  QString text = WordsOf(meta);
  if (id.slot.place >= 0) text += u' ' + QString::number(id.slot.place);
  return id.slot.config < 0 ? text : Words::tr("alarm %1, %2").arg(id.slot.config).arg(text);
}

QString ValueText(const ConstField& field, bool isS100) {
  if (const auto* text = std::get_if<const std::string*>(&field.value)) {
    const bool isHidden = field.meta.isSecret && !(*text)->empty();
    return isHidden ? QStringLiteral("****") : ToQt(**text);
  }
  if (const auto* flag = std::get_if<const Bool16*>(&field.value))
    return bool(**flag) ? Words::tr("yes") : Words::tr("no");
  if (const CodeWords* code = CodeOf(field.value, field.meta)) return Translated(code->words);
  FieldMeta plain = field.meta;
  plain.unit = {};
  const auto* number = std::get_if<const float*>(&field.value);
  const QString value =
      ToQt(number ? DecText(**number) : ReadableValue(field.value, plain, isS100));
  return field.meta.unit.empty() ? value : value + u' ' + Translated(field.meta.unit);
}

QString Capitalised(QString text) {
  if (!text.isEmpty()) text[0] = text[0].toUpper();
  return text;
}

}  // namespace ostrel
