#include "desktop/session/FaultText.h"

#include "desktop/forms/Words.h"

namespace ostrel {
QString SentenceOf(const Phrase& phrase) {
  if (phrase.text.empty()) return {};
  QString sentence =
      ToQt(Filled(phrase, [](const std::string& text) { return FromQt(Words::tr(text.c_str())); }));
  if (!phrase.text.starts_with('%')) sentence[0] = sentence[0].toUpper();
  return sentence + u'.';
}

QString FaultText(const SessionFault& fault, const QString& device) {
  const FaultWords words = WordsOf(fault, FromQt(device));
  QStringList sentences{SentenceOf(words.what), SentenceOf(words.remedy), SentenceOf(words.outcome),
                        SentenceOf(words.pages)};
  sentences.removeAll(QString());
  return sentences.join(u' ');
}

}  // namespace ostrel
