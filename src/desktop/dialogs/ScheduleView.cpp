#include "desktop/dialogs/ScheduleView.h"

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

}  // namespace

ScheduleView::ScheduleView(QWidget* parent)
    : QWidget(parent),
      heading_(new QLabel(this)),
      summary_(new QLabel(this)),
      table_(new QTableWidget(0, kColumns, this)) {
  auto* column = new QVBoxLayout(this);
  heading_->setObjectName("Heading");
  heading_->hide();
  column->addWidget(heading_);
  summary_->setObjectName("Summary");
  summary_->setWordWrap(true);
  column->addWidget(summary_);
  column->addWidget(table_, 1);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setAlternatingRowColors(true);
  table_->setTabKeyNavigation(false);
  table_->setWordWrap(true);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  connect(table_, &QTableWidget::cellActivated, this, [this](int row, int) {
    if (row >= std::ssize(timers_) || !OnTimer) return;
    const auto& [section, timer] = timers_[static_cast<std::size_t>(row)];
    OnTimer(*section, timer);
  });
}

void ScheduleView::StandAsPage(const QString& title) {
  layout()->setContentsMargins(16, 12, 16, 16);
  heading_->setText(title);
  heading_->show();
}

void ScheduleView::AddRow(const QStringList& texts) {
  const int row = table_->rowCount();
  table_->insertRow(row);
  for (int column = 0; column < kColumns; ++column) {
    auto* item = new QTableWidgetItem(texts[column]);
    item->setTextAlignment(Qt::AlignLeft | Qt::AlignTop);
    table_->setItem(row, column, item);
  }
}

void ScheduleView::ShowSchedule(const Schedule& schedule, const TargetProfile& profile,
                                const Names& translate) {
  summary_->setText(
      schedule.timers.empty()
          ? Words::tr("No timer is enabled.")
          : Words::tr(
                "The next %1 times within %2 days from %3. Cyclic and long timers are told as "
                "if they began to count then, and conditions as if they held.")
                .arg(kFiringsTold)
                .arg(kScheduleDays)
                .arg(ToQt(DateTimeText(schedule.from))));
  table_->setAccessibleName(Words::tr("Schedule"));
  table_->setHorizontalHeaderLabels({Words::tr("Timer"), Words::tr("When"), Words::tr("If"),
                                     Words::tr("Runs"), Words::tr("Next times")});
  table_->setRowCount(0);
  timers_.clear();
  for (const ScheduledTimer& timer : schedule.timers) {
    timers_.emplace_back(timer.section, timer.number);
    AddRow({ToQt(TimerText(*timer.section, timer.number, InWindowWords)),
            ToQt(RuleText(timer, InWindowWords)),
            timer.Flag() > 0 ? QString("F%1").arg(timer.Flag() - 1) : QString(),
            Lines(ActionTexts(timer, profile, translate)),
            Firings(MomentLines(timer.firings, InWindowWords))});
  }
  for (const ScheduledMacro& macro : schedule.macros) {
    std::vector<DateTime> times;
    for (const auto& start : macro.starts) times.push_back(start.time);
    AddRow({Words::tr("macro %1").arg(macro.number), StartedBy(macro), QString(), QString(),
            Firings(MomentLines(times, InWindowWords))});
  }
  table_->resizeColumnsToContents();
  table_->horizontalHeader()->setSectionResizeMode(kNext, QHeaderView::Stretch);
  constexpr int kWidestRule = 260;
  if (table_->columnWidth(kRule) > kWidestRule) table_->setColumnWidth(kRule, kWidestRule);
}

ScheduleDialog::ScheduleDialog(const Schedule& schedule, const TargetProfile& profile,
                               const ScheduleView::Names& translate, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(Words::tr("What happens when"));
  auto* column = new QVBoxLayout(this);
  auto* view = new ScheduleView(this);
  view->layout()->setContentsMargins(0, 0, 0, 0);
  view->ShowSchedule(schedule, profile, translate);
  column->addWidget(view, 1);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(Words::tr("Close"), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  resize(1080, 560);
}

}  // namespace ostrel
