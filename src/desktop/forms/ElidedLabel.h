#pragma once

#include <QLabel>

namespace ostrel {

/// A line of words that is shortened where it has not the room, and is then told whole by its tip.
class ElidedLabel final : public QLabel {
 public:
  using QLabel::QLabel;

  QSize minimumSizeHint() const override { return {1, QLabel::minimumSizeHint().height()}; }
  void SetWords(const QString& words);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace ostrel
