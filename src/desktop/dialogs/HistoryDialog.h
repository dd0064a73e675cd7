#pragma once

#include <QDialog>
#include <QString>
#include <functional>
#include <vector>

#include "platform/Ledger.h"

class QPlainTextEdit;
class QPushButton;
class QTableWidget;

namespace ostrel {

/// Shows what was done with loggers, the newest first, with a box that leaves the matching lines.
class HistoryDialog final : public QDialog {
 public:
  HistoryDialog(Ledger& books, QWidget* parent);

  using Act = std::function<void(const LedgerEntry&)>;
  // What is done with the configuration of an entry. Set by the window.
  Act OnOpen;  ///< the dialog closes ahead of it
  Act OnCompare, OnSave;

 private:
  QPushButton* AddButton(const QString& text, const char* name, std::function<void()> run);
  void Filter(const QString& text);
  /// The entry of the line that is chosen; null for none.
  const LedgerEntry* Current() const;
  /// The same if it has a configuration; else null.
  const LedgerEntry* Chosen() const;
  void ShowChoice();
  /// All that is known of an entry, and how it was read back.
  QString DetailsOf(const LedgerEntry& entry) const;

  Ledger& books_;
  std::vector<LedgerEntry> entries_;
  QTableWidget* table_;
  QPlainTextEdit* details_;            ///< what the chosen entry tells beside its line
  std::vector<QPushButton*> buttons_;  ///< those that want an entry
};

}  // namespace ostrel
