#pragma once

#include <QDockWidget>
#include <functional>
#include <optional>
#include <string>

#include "model/LiveRound.h"
#include "shell/acceptance/AcceptanceWork.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace ostrel {

/// The acceptance of the installation, point by point: the configured inputs with their present
/// values, and below them what was found of the one that is chosen.
class AcceptancePanel final : public QDockWidget {
 public:
  AcceptancePanel(AcceptanceWork& work, QWidget* parent);

  /// The window's own words anew.
  void Retranslate();
  /// Shows the work anew: other points, or another logger.
  void Look();
  /// Shows the values of a round; nothing while no values come.
  void ShowRound(const std::optional<LiveRound>& round);
  /// Whether what it offers may ask a question now.
  void SetMaySave(bool may);
  /// The table for other programs, in the language of the window.
  std::string Table() const;

  // Set by the window.
  std::function<void()> OnExport;
  std::function<void(const std::string& node)> OnInput;  ///< asks for the page of an input

 private:
  QPushButton* AddButton(const char* name, const std::function<void()>& press);
  QWidget* MakeTools(QWidget* parent);
  void Judge(Verdict verdict);
  void ShowSummary();
  void ShowRow(int row);
  void ShowChosen();
  void GoOn();
  int Chosen() const;
  int RowOf(const QString& node, const QString& text) const;

  AcceptanceWork& work_;
  std::optional<LiveRound> round_;
  bool maySave_ = true;
  QLabel *summary_, *failure_;
  QTreeWidget* list_;
  QLabel* noteLabel_;
  QLineEdit* note_;
  QPushButton *pass_, *fail_, *open_, *export_;
};

}  // namespace ostrel
