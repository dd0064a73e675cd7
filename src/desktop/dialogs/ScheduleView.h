#pragma once

#include <QDialog>
#include <QWidget>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "model/TargetProfile.h"
#include "shell/schedule/Schedule.h"

class QLabel;
class QTableWidget;

namespace ostrel {

/// Shows what happens when: all enabled timers in one table, and the macros that they start.
class ScheduleView final : public QWidget {
 public:
  using Names = std::function<std::string(std::string_view)>;

  explicit ScheduleView(QWidget* parent);

  /// `translate` names the actions.
  void ShowSchedule(const Schedule& schedule, const TargetProfile& profile, const Names& translate);

  /// Gives the view the margins and the title of a page.
  void StandAsPage(const QString& title);

  /// Runs when the operator opens a timer. Set by the owner.
  std::function<void(const SectionMeta& section, int timer)> OnTimer;

 private:
  void AddRow(const QStringList& texts);

  QLabel *heading_, *summary_;
  QTableWidget* table_;
  std::vector<std::pair<const SectionMeta*, int>> timers_;  ///< of the first rows
};

/// The same in a dialog of its own.
class ScheduleDialog final : public QDialog {
 public:
  ScheduleDialog(const Schedule& schedule, const TargetProfile& profile,
                 const ScheduleView::Names& translate, QWidget* parent);
};

}  // namespace ostrel
