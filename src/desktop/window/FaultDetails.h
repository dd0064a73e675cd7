#pragma once

#include <QLabel>
#include <QString>
#include <QToolButton>
#include <QWidget>

namespace ostrel {

/// A line beside a failure that can be opened to tell what went wrong. Hidden while there is
/// nothing to tell.
class FaultDetails final : public QWidget {
 public:
  explicit FaultDetails(QWidget* parent);

  /// Sets the words; empty ones hide the line.
  void SetText(const QString& text);
  QString Text() const { return text_->text(); }

 private:
  void Open(bool open);

  QToolButton* toggle_;
  QLabel* text_;
};

}  // namespace ostrel
