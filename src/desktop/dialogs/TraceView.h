#pragma once

#include <QDockWidget>
#include <array>
#include <functional>

#include "shell/session/TraceLog.h"

class QCheckBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace ostrel {

/// Shows the trace at the foot of the window: all of it or some kinds, as it comes or stopped.
class TraceView final : public QDockWidget {
 public:
  TraceView(TraceLog& log, QWidget* parent);

  /// The window's own words anew.
  void Retranslate();
  /// The lines of the kinds that are shown, one a line.
  std::string Text();
  /// Brings what is shown up to the log, unless it is paused.
  void Follow();
  /// Whether what it offers may ask a question now.
  void SetMaySave(bool may);

  /// Begins or ends a recording of the line. Set by the window.
  std::function<void(bool on)> OnRecord;
  /// Shows whether a recording runs.
  void SetRecording(bool on);
  /// Saves what is shown. Set by the window.
  std::function<void()> OnSave;

 private:
  static constexpr std::size_t kKinds = 4;

  bool Shows(TraceKind kind) const;
  void Add(const TraceEntry& entry);
  void Refill();
  void FindNext();

  TraceLog& log_;
  std::array<QCheckBox*, kKinds> kinds_{};
  QLineEdit* search_;
  QPushButton *pause_, *record_, *save_, *clear_;
  QPlainTextEdit* text_;
};

}  // namespace ostrel
