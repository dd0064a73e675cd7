#pragma once

#include <QDockWidget>
#include <functional>
#include <string>
#include <vector>

#include "desktop/plot/PlotChart.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace ostrel {

/// The plot of live values: a list to choose them from, which tells their values, too, and the
/// chart.
class PlotPanel final : public QDockWidget {
 public:
  PlotPanel(const LiveHistory& history, QWidget* parent);

  /// The window's own words anew.
  void Retranslate();
  /// Brings list and chart up to the history.
  void Look();
  /// The values that are chosen, as tags: "AI0 FL3". They may be chosen ahead of the first round.
  std::string ChosenTags() const;
  void ChooseTags(const std::string& tags);
  PlotChart& Chart() { return *chart_; }
  /// Whether what it offers may ask a question now.
  void SetMaySave(bool may);
  /// The rounds in view, with the chosen values of each, as a recording of them would be.
  std::string ValuesInView() const;

  // Set by the window.
  std::function<void()> OnSavePicture, OnSaveValues;
  std::function<void()> OnChosen;

 private:
  QPushButton* AddButton(const char* name, const std::function<void()>& press);
  void MakeList(QWidget* parent);
  QWidget* MakeTools(QWidget* parent);
  void SyncRows();
  void SyncRow(QTreeWidgetItem& row, const LiveSeries& series);
  void ShowValues();
  void Filter();
  void Chosen();
  void Toggle(LiveId id, bool on);
  void ChooseAtFirst();

  const LiveHistory& history_;
  std::vector<LiveId> chosen_;  ///< in the order of choosing
  bool wasChosen_ = false;      ///< by the operator
  bool isSyncing_ = false;
  bool maySave_ = true;
  QLineEdit* filter_;
  QTreeWidget* list_;
  QLabel* hint_;
  PlotChart* chart_;
  QCheckBox* follow_;
  QPushButton *all_, *in_, *out_, *fit_, *picture_, *values_;
};

}  // namespace ostrel
