#pragma once

#include <QDialog>
#include <functional>

#include "shell/doctor/LinkDoctor.h"

class QLabel;
class QPushButton;
class QTableWidget;

namespace ostrel {

/// Shows what the link doctor finds, as it finds it, and at the end what to try next.
class DoctorDialog final : public QDialog {
 public:
  DoctorDialog(const QString& port, QWidget* parent);

  void Add(const Symptom& symptom);
  void Finish(const Diagnosis& diagnosis);
  bool IsFinished() const { return finished_; }

  /// Runs when the operator closes it before the end. Set by the window.
  std::function<void()> OnBreakOff;

  void reject() override;

 private:
  QTableWidget* table_;
  QLabel* advice_;
  QPushButton* close_;
  bool finished_ = false;
};

}  // namespace ostrel
