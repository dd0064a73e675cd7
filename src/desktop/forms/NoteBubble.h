#pragma once

#include <QLabel>

namespace ostrel {

/// A few words just below a control. They lie above what stands there, and take no click.
class NoteBubble final : public QLabel {
 public:
  explicit NoteBubble(QWidget* sheet);

  /// Shows words at a control of the sheet; hides when there are none.
  void Tell(const QWidget& control, const QString& words);
};

}  // namespace ostrel
