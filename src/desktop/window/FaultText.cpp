#include "desktop/window/FaultText.h"

#include "desktop/forms/Words.h"

namespace ostrel {
QString SentenceOf(const Phrase& phrase) {
  if (phrase.text.empty()) return {};
  QString sentence = Words::tr(phrase.text.c_str());
  sentence[0] = sentence[0].toUpper();
  return ToQt(Filled(FromQt(sentence), phrase.arguments)) + u'.';
}

QString FaultText(const SessionFault& fault, const QString& device) {
  const FaultWords words = WordsOf(fault, FromQt(device));
  QStringList sentences{SentenceOf(words.what), SentenceOf(words.remedy), SentenceOf(words.outcome),
                        SentenceOf(words.pages)};
  sentences.removeAll(QString());
  return sentences.join(u' ');
}

}  // namespace ostrel
