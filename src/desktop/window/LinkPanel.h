#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QToolButton>
#include <QWidget>
#include <functional>

#include "desktop/window/LinkState.h"

namespace ostrel {

/// The link's part of the status bar: a lamp, the state in words, a way to break off a session that
/// is being opened, and how far a transfer is.
class LinkPanel final : public QWidget {
 public:
  explicit LinkPanel(QWidget* parent);

  /// Sets its own words anew; the others come with the next state.
  void Retranslate();
  void ShowState(const LinkState& state);
  /// Shows a transfer of `steps` steps at step `done`, and words on the time left.
  void ShowProgress(int done, int steps, const QString& left);
  void HideProgress();

  /// Runs when the operator breaks the opening of a session off. Set by the window.
  std::function<void()> OnBreakOff;

 private:
  QLabel* lamp_;
  QLabel* words_;
  QToolButton* breakOff_;
  QProgressBar* bar_;
  QLabel* left_;
};

}  // namespace ostrel
