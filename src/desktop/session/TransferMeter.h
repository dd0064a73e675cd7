#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QWidget>

namespace ostrel {

class TransferWatch;

/// How far a transfer is: a bar, and beside it the time that is left. Both come of the same counts,
/// so that they agree; where it is not known how many steps there will be, the bar says so too.
class TransferMeter final : public QWidget {
 public:
  explicit TransferMeter(QWidget* parent);

  void Show(const TransferWatch& transfer);
  /// Sets its own words anew.
  void Retranslate();

 private:
  QProgressBar* bar_;
  QLabel* left_;
};

}  // namespace ostrel
