#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QWidget>
#include <optional>

#include "desktop/LinkState.h"
#include "platform/Time.h"

namespace ostrel {

/// The link's part of the status bar: a lamp, the state in words, and how far a transfer is.
class LinkPanel final : public QWidget {
 public:
  explicit LinkPanel(QWidget* parent);

  void ShowState(const LinkState& state);
  /// Shows a transfer of `steps` steps at step `done`, with what is left where that is known.
  void ShowProgress(int done, int steps, std::optional<Duration> left);
  void HideProgress();
  QString StateWords() const { return words_->text(); }

 private:
  QLabel* lamp_;
  QLabel* words_;
  QProgressBar* bar_;
  QLabel* left_;
};

/// A length of time as "1:05", rounded up to whole seconds.
QString DurationWords(Duration duration);

}  // namespace ostrel
