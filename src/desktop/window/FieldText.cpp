#include "desktop/window/FieldText.h"

#include <string>

#include "desktop/forms/Words.h"
#include "shell/words/FieldWords.h"

namespace ostrel {
namespace {

/// Words of the model's description, which the window's own translation knows.
QString Translated(std::string_view words) {
  return words.empty() ? QString() : Words::tr(std::string(words).c_str());
}

QString PrivilegeText(const QString& level) {
  if (level == "PRV3") return "Kestrel";
  if (level == "PRV2") return Words::tr("Administrator");
  if (level == "PRV1") return Words::tr("Advanced user");
  return level == "PRV0" ? Words::tr("User") : level;
}

QString MaskText(const QString& mode, const QString& channels) {
  if (mode == "MASKMODE1") return channels.isEmpty() ? Words::tr("No alarms") : channels;
  if (mode == "MASKMODE2" && !channels.isEmpty()) return Words::tr("All but %1").arg(channels);
  return Words::tr("All alarms");
}

/// The words of a list of days, as the model tells them: "Mo Tu Sa".
QString DaysText(const QString& days) {
  QStringList words;
  for (const QString& day : days.split(u' ')) words << Translated(FromQt(day));
  return words.join(u' ');
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

QString ValueText(const FieldView& value, const FieldMeta& meta, bool isS100) {
  if (const auto* text = std::get_if<const std::string*>(&value)) {
    const bool isHidden = meta.isSecret && !(*text)->empty();
    return isHidden ? QStringLiteral("****") : ToQt(**text);
  }
  if (const auto* flag = std::get_if<const Bool16*>(&value))
    return bool(**flag) ? Words::tr("yes") : Words::tr("no");
  if (const CodeWords* code = CodeOf(value, meta)) return Translated(code->words);
  FieldMeta plain = meta;
  plain.unit = {};
  const QString readable = ToQt(ReadableValue(value, plain, isS100));
  if (const auto* phone = std::get_if<const ConfPhone*>(&value))
    return (*phone)->TLF.empty() ? Words::tr("free") : PhoneCells(readable).join(", ");
  if (meta.sense == FieldSense::Week)
    return readable == "no day" ? Words::tr("no day") : DaysText(readable);
  const auto* number = std::get_if<const float*>(&value);
  const QString shown = number ? ToQt(DecText(**number)) : readable;
  return meta.unit.empty() ? shown : shown + u' ' + Translated(meta.unit);
}

/// The row reads "600111222,Prio=2,PRV1,MASKMODE1,DI0,AI1".
QStringList PhoneCells(const QString& row) {
  const QStringList parts = row.split(u',');
  const QString priority = parts.value(1).section(u'=', 1);
  return {parts.value(0), priority == "0" ? Words::tr("None") : priority,
          PrivilegeText(parts.value(2)), MaskText(parts.value(3), parts.mid(4).join(", "))};
}

QString Capitalised(QString text) {
  if (!text.isEmpty()) text[0] = text[0].toUpper();
  return text;
}

}  // namespace ostrel
