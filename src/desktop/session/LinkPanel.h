#pragma once

#include <QLabel>
#include <QWidget>

#include "desktop/forms/ElidedLabel.h"
#include "desktop/session/LinkState.h"
#include "desktop/session/TransferMeter.h"

namespace ostrel {

/// The link's part of the session bar: who the logger is, a lamp, the state in words, and how far a
/// transfer is.
class LinkPanel final : public QWidget {
 public:
  explicit LinkPanel(QWidget* parent);

  /// It asks for little, so that a narrow bar shortens it instead of leaving it out.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  /// Sets its own words anew; the others come with the next state.
  void Retranslate() { meter_->Retranslate(); }
  /// `who` names the model and, in a session, the logger.
  void ShowState(const LinkState& state, const QString& who);
  /// Shows a transfer; null for none.
  void ShowProgress(const TransferWatch* transfer);

 private:
  ElidedLabel* who_;
  QLabel* lamp_;
  ElidedLabel* words_;
  TransferMeter* meter_;
};

}  // namespace ostrel
