#pragma once

#include <QCoreApplication>
#include <QString>
#include <string>
#include <string_view>

namespace ostrel {

/// The window's own words, those that no page gives. English in the code, translated by Qt's means:
/// `Words::tr("Read")`.
class Words {
  Q_DECLARE_TR_FUNCTIONS(Words)
};

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) { return text.toStdString(); }

}  // namespace ostrel
