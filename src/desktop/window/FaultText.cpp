#include "desktop/window/FaultText.h"

#include "desktop/forms/Words.h"
#include "shell/FaultWords.h"

namespace ostrel {
namespace {

/// A phrase as a sentence of its own; empty for none.
QString SentenceOf(const Phrase& phrase) {
  if (phrase.text.empty()) return {};
  QString sentence = Words::tr(phrase.text.c_str());
  sentence[0] = sentence[0].toUpper();
  return ToQt(Filled(FromQt(sentence), phrase.arguments)) + u'.';
}

}  // namespace

QString FaultText(const SessionFault& fault, const QString& device) {
  const FaultWords words = WordsOf(fault, FromQt(device));
  QStringList sentences{SentenceOf(words.what), SentenceOf(words.remedy),
                        SentenceOf(words.outcome)};
  sentences.removeAll(QString());
  return sentences.join(u' ');
}

}  // namespace ostrel
