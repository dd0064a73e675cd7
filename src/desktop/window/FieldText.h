#pragma once

#include <QString>
#include <QStringList>

#include "blocks/Configuration.h"

namespace ostrel {

// Fields and their values in the window's language.

/// The name of a field: "minimum".
QString WordsOf(const FieldMeta& meta);
/// The record that a field stands in: "digital input 3".
QString RecordText(const FieldId& id);
/// The field within its record: "alarm 1, minimum".
QString FieldName(const FieldId& id, const FieldMeta& meta);
/// A value: texts as they are, numbers with their unit, codes in words, yes and no.
QString ValueText(const FieldView& value, const FieldMeta& meta, bool isS100);
/// A telephone in words, from its row: number, priority, privilege, the alarms that reach it.
QStringList PhoneCells(const QString& row);
/// With a capital letter at its head.
QString Capitalised(QString text);

}  // namespace ostrel
