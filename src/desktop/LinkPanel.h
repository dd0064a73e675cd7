#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QWidget>

#include "desktop/LinkState.h"

namespace ostrel {

/// The link's part of the status bar: a lamp, the state in words, and how far a transfer is.
class LinkPanel final : public QWidget {
 public:
  explicit LinkPanel(QWidget* parent);

  /// Sets its own words anew; the others come with the next state.
  void Retranslate();
  void ShowState(const LinkState& state);
  /// Shows a transfer of `steps` steps at step `done`, and words on the time left.
  void ShowProgress(int done, int steps, const QString& left);
  void HideProgress();

 private:
  QLabel* lamp_;
  QLabel* words_;
  QProgressBar* bar_;
  QLabel* left_;
};

}  // namespace ostrel
