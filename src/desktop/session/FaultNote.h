#pragma once

#include <QLabel>
#include <QString>
#include <QWidget>

namespace ostrel {

/// Tells what went wrong, with what helps and what the logger holds now, where the error stands.
/// Hidden while there is nothing to tell.
class FaultNote final : public QWidget {
 public:
  FaultNote(const char* name, QWidget* parent);

  /// Sets the words; empty ones hide the note.
  void SetText(const QString& text);
  QString Text() const { return text_->text(); }

 private:
  QLabel* text_;
};

}  // namespace ostrel
