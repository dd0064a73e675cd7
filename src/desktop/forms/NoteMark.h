#pragma once

#include <QColor>
#include <QWidget>

namespace ostrel {

/// An outline around a widget of which something is to be told. It lies above the widget, takes no
/// room and no click.
class NoteMark final : public QWidget {
 public:
  /// Marks a widget; an invalid colour takes the mark away.
  static void Set(QWidget& target, const QColor& colour);

 protected:
  void paintEvent(QPaintEvent* event) override;
  /// Follows its widget.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  explicit NoteMark(QWidget& target);
  void Follow();

  QWidget& target_;
  QColor colour_;
};

}  // namespace ostrel
