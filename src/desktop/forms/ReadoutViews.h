#pragma once

#include <QWidget>

#include "controls/Readouts.h"
#include "desktop/forms/Binder.h"

namespace ostrel {

/// A widget on which a value is read. Its value is told to those who cannot see it, too.
class Readout : public QWidget {
 public:
  using QWidget::QWidget;
  virtual QString ValueText() const = 0;

  /// Draws anew, and tells what is shown now.
  void Follow();
};

Bound BindReadout(DigitBox& box, QWidget* parent);
Bound BindReadout(ReadoutLine& line, QWidget* parent);
Bound BindReadout(LedMedio& lamp, QWidget* parent);
Bound BindReadout(LimitBar& bar, QWidget* parent);

}  // namespace ostrel
