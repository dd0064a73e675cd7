#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QRadioButton>
#include <QStringList>

#include "platform/Time.h"

namespace ostrel {

/// What is asked before a configuration is written.
struct WriteQuestion {
  QString logger;        ///< "Ostrel VR200, serial number Q1234567"
  QStringList doubts{};  ///< sentences on what speaks against it
  Duration guarded{};    ///< time of the safety copy, the writing and the reading back
  Duration plain{};      ///< time of the writing alone
};

/// Asks, before a configuration is written, in which way: guarded unless the operator chooses
/// otherwise. With doubts the way back is the default.
class WriteDialog final : public QDialog {
 public:
  WriteDialog(const WriteQuestion& question, QWidget* parent);

  bool IsGuarded() const { return guarded_->isChecked(); }
  /// Whether the changes are to be shown before anything is sent.
  bool ShowsChanges() const { return showChanges_->isChecked(); }

 private:
  QRadioButton *guarded_, *plain_;
  QCheckBox* showChanges_;
};

}  // namespace ostrel
