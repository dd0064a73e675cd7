#pragma once

#include <QDockWidget>
#include <string>

class QPlainTextEdit;
class QPushButton;

namespace ostrel {

/// What goes over the line, as text at the foot of the window.
class TraceView final : public QDockWidget {
 public:
  explicit TraceView(QWidget* parent);

  void Add(const std::string& line);
  /// The window's own words anew.
  void Retranslate();

 private:
  QPlainTextEdit* text_;
  QPushButton* clear_;
};

}  // namespace ostrel
