#include "desktop/window/ScheduleDialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "shell/schedule/ScheduleWords.h"

namespace ostrel {
namespace {

enum Column { kWhat, kRule, kCondition, kRuns, kNext, kColumns };

std::string InWindowWords(const Phrase& phrase) {
  return Filled(FromQt(Words::tr(phrase.text.c_str())), phrase.arguments);
}

QString Lines(const std::vector<std::string>& lines) {
  QStringList texts;
  for (const std::string& line : lines) texts << ToQt(line);
  return texts.join(u'\n');
}

QString Firings(const std::vector<std::string>& lines) {
  return lines.empty() ? Words::tr("Not within %1 days").arg(kScheduleDays) : Lines(lines);
}

/// The timers by which a macro is started, each once.
QString StartedBy(const ScheduledMacro& macro) {
  QStringList timers;
  for (const auto& start : macro.starts)
    timers << ToQt(TimerText(*start.section, start.timer, InWindowWords));
  timers.removeDuplicates();
  return timers.join(", ");
}

void AddRow(QTableWidget& table, const QStringList& texts) {
  const int row = table.rowCount();
  table.insertRow(row);
  for (int column = 0; column < kColumns; ++column) {
    auto* item = new QTableWidgetItem(texts[column]);
    item->setTextAlignment(Qt::AlignLeft | Qt::AlignTop);
    table.setItem(row, column, item);
  }
}

QTableWidget* MakeScheduleTable(const Schedule& schedule, const TargetProfile& profile,
                                const std::function<std::string(std::string_view)>& translate,
                                QWidget* parent) {
  auto* table = new QTableWidget(0, kColumns, parent);
  table->setAccessibleName(Words::tr("Schedule"));
  table->setHorizontalHeaderLabels({Words::tr("Timer"), Words::tr("When"), Words::tr("If"),
                                    Words::tr("Runs"), Words::tr("Next times")});
  for (const ScheduledTimer& timer : schedule.timers)
    AddRow(*table, {ToQt(TimerText(*timer.section, timer.number, InWindowWords)),
                    ToQt(RuleText(timer, InWindowWords)),
                    timer.Flag() > 0 ? QString("F%1").arg(timer.Flag() - 1) : QString(),
                    Lines(ActionTexts(timer, profile, translate)),
                    Firings(MomentLines(timer.firings, InWindowWords))});
  for (const ScheduledMacro& macro : schedule.macros) {
    std::vector<DateTime> times;
    for (const auto& start : macro.starts) times.push_back(start.time);
    AddRow(*table, {Words::tr("macro %1").arg(macro.number), StartedBy(macro), QString(), QString(),
                    Firings(MomentLines(times, InWindowWords))});
  }
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setAlternatingRowColors(true);
  table->setTabKeyNavigation(false);
  table->setWordWrap(true);
  table->verticalHeader()->hide();
  table->resizeColumnsToContents();
  table->horizontalHeader()->setSectionResizeMode(kNext, QHeaderView::Stretch);
  constexpr int kWidestRule = 260;
  if (table->columnWidth(kRule) > kWidestRule) table->setColumnWidth(kRule, kWidestRule);
  table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  return table;
}

}  // namespace

ScheduleDialog::ScheduleDialog(const Schedule& schedule, const TargetProfile& profile,
                               const std::function<std::string(std::string_view)>& translate,
                               QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(Words::tr("What happens when"));
  auto* column = new QVBoxLayout(this);
  auto* summary = new QLabel(
      schedule.timers.empty()
          ? Words::tr("No timer is enabled.")
          : Words::tr(
                "The next %1 times within %2 days from %3. Cyclic and long timers are told as "
                "if they began to count then, and conditions as if they held.")
                .arg(kFiringsTold)
                .arg(kScheduleDays)
                .arg(ToQt(DateTimeText(schedule.from))),
      this);
  summary->setObjectName("Summary");
  summary->setWordWrap(true);
  column->addWidget(summary);
  column->addWidget(MakeScheduleTable(schedule, profile, translate, this), 1);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(Words::tr("Close"), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  resize(1080, 560);
}

}  // namespace ostrel
