#include "desktop/acceptance/AcceptancePanel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "desktop/forms/DarkPalette.h"
#include "desktop/forms/Words.h"
#include "desktop/window/FieldText.h"

namespace ostrel {
namespace {

enum PointColumn {
  kPointInput,
  kPointNow,
  kPointVerdict,
  kPointNote,
  kPointValue,
  kPointTime,
  kPointColumns
};

QString InWords(std::string_view words) { return Words::tr(std::string(words).c_str()); }

QString InputText(const AcceptancePoint& point) {
  const QString input = Capitalised(InWords(point.kind)) + u' ' + QString::number(point.number);
  return point.name.empty() ? input : input + ": " + ToQt(point.name);
}

/// Beside the word, which says the same.
QBrush ColourOfVerdict(Verdict verdict, const QPalette& palette) {
  const bool isDark = IsDark(palette);
  if (verdict == Verdict::Passed) return QColor(isDark ? "#69db7c" : "#2b8a3e");
  if (verdict == Verdict::Failed) return QColor(isDark ? "#ff8787" : "#c92a2a");
  return palette.text();
}

}  // namespace

AcceptancePanel::AcceptancePanel(AcceptanceWork& work, QWidget* parent)
    : QDockWidget(parent), work_(work) {
  setObjectName("Acceptance");
  auto* content = new QWidget(this);
  auto* column = new QVBoxLayout(content);
  summary_ = new QLabel(content);
  summary_->setObjectName("AcceptanceSummary");
  summary_->setTextFormat(Qt::PlainText);
  failure_ = new QLabel(content);
  failure_->setObjectName("Failure");
  failure_->setTextFormat(Qt::PlainText);
  failure_->setWordWrap(true);
  list_ = new QTreeWidget(content);
  list_->setObjectName("AcceptanceList");
  list_->setColumnCount(kPointColumns);
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAllColumnsShowFocus(true);
  list_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  list_->header()->setSectionResizeMode(kPointNote, QHeaderView::Stretch);
  column->addWidget(summary_);
  column->addWidget(failure_);
  column->addWidget(list_, 1);
  column->addWidget(MakeTools(content));
  setWidget(content);
  connect(list_, &QTreeWidget::currentItemChanged, this, [this] { ShowChosen(); });
  connect(list_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* row) {
    const auto place = static_cast<std::size_t>(list_->indexOfTopLevelItem(row));
    if (OnInput) OnInput(work_.Present().points.at(place).node);
  });
  connect(note_, &QLineEdit::textEdited, this, [this](const QString& text) {
    if (Chosen() < 0) return;
    work_.Note(static_cast<std::size_t>(Chosen()), FromQt(text));
    ShowRow(Chosen());
    ShowSummary();
  });
  connect(note_, &QLineEdit::returnPressed, this, [this] { list_->setFocus(); });
  Retranslate();
}

QPushButton* AcceptancePanel::AddButton(const char* name, const std::function<void()>& press) {
  auto* button = new QPushButton(this);
  button->setObjectName(name);
  connect(button, &QPushButton::clicked, this, press);
  return button;
}

QWidget* AcceptancePanel::MakeTools(QWidget* parent) {
  auto* tools = new QWidget(parent);
  auto* row = new QHBoxLayout(tools);
  row->setContentsMargins(0, 0, 0, 0);
  pass_ = AddButton("AcceptancePass", [this] { Judge(Verdict::Passed); });
  fail_ = AddButton("AcceptanceFail", [this] { Judge(Verdict::Failed); });
  open_ = AddButton("AcceptanceOpen", [this] { Judge(Verdict::Open); });
  export_ = AddButton("AcceptanceExport", [this] {
    if (OnExport) OnExport();
  });
  noteLabel_ = new QLabel(tools);
  note_ = new QLineEdit(tools);
  note_->setObjectName("AcceptanceNote");
  noteLabel_->setBuddy(note_);
  for (QPushButton* button : {pass_, fail_, open_}) row->addWidget(button);
  row->addWidget(noteLabel_);
  row->addWidget(note_, 1);
  row->addWidget(export_);
  return tools;
}

void AcceptancePanel::Retranslate() {
  setWindowTitle(Words::tr("Acceptance"));
  list_->setAccessibleName(Words::tr("Inputs to try"));
  list_->setHeaderLabels({Words::tr("Input"), Words::tr("Now"), Words::tr("Verdict"),
                          Words::tr("Note"), Words::tr("Value"), Words::tr("Time")});
  pass_->setText(Words::tr("&Pass"));
  fail_->setText(Words::tr("F&ail"));
  open_->setText(Words::tr("Take &back"));
  noteLabel_->setText(Words::tr("&Note:"));
  export_->setText(Words::tr("Export..."));
  Look();
}

int AcceptancePanel::Chosen() const { return list_->indexOfTopLevelItem(list_->currentItem()); }

/// The row of an input after the list has changed: noted under another name it may stand there
/// twice. The first row where it is there no more.
int AcceptancePanel::RowOf(const QString& node, const QString& text) const {
  int found = -1;
  for (int row = 0; row < list_->topLevelItemCount(); ++row) {
    const QTreeWidgetItem& item = *list_->topLevelItem(row);
    if (item.data(kPointInput, Qt::UserRole).toString() != node) continue;
    if (found < 0 || item.text(kPointInput) == text) found = row;
  }
  return std::max(found, 0);
}

void AcceptancePanel::Look() {
  const auto count = static_cast<int>(work_.Present().points.size());
  {
    const QTreeWidgetItem* chosen = list_->currentItem();
    const QString node = chosen ? chosen->data(kPointInput, Qt::UserRole).toString() : QString();
    const QString text = chosen ? chosen->text(kPointInput) : QString();
    const QSignalBlocker quiet(list_);
    list_->clear();
    for (int row = 0; row < count; ++row) {
      new QTreeWidgetItem(list_);
      ShowRow(row);
    }
    list_->setCurrentItem(list_->topLevelItem(RowOf(node, text)));
  }
  ShowSummary();
  ShowChosen();
}

void AcceptancePanel::ShowRow(int row) {
  const AcceptancePoint& point = work_.Present().points.at(static_cast<std::size_t>(row));
  QTreeWidgetItem& item = *list_->topLevelItem(row);
  item.setText(kPointInput, InputText(point));
  item.setData(kPointInput, Qt::UserRole, ToQt(point.node));
  item.setText(kPointNow, round_ ? ToQt(InputValue(point, *round_)) : QString());
  item.setText(kPointVerdict, InWords(VerdictWord(point.verdict)));
  item.setForeground(kPointVerdict, ColourOfVerdict(point.verdict, palette()));
  item.setText(kPointNote, ToQt(point.note));
  item.setText(kPointValue, ToQt(point.value));
  item.setText(kPointTime, point.time ? ToQt(DateTimeText(*point.time)) : QString());
}

void AcceptancePanel::ShowRound(const std::optional<LiveRound>& round) {
  round_ = round;
  for (int row = 0; row < list_->topLevelItemCount(); ++row) {
    const auto& point = work_.Present().points.at(static_cast<std::size_t>(row));
    const QString now = round_ ? ToQt(InputValue(point, *round_)) : QString();
    QTreeWidgetItem& item = *list_->topLevelItem(row);
    if (item.text(kPointNow) != now) item.setText(kPointNow, now);
  }
}

void AcceptancePanel::ShowSummary() {
  const Acceptance& present = work_.Present();
  const auto [passed, failed, open] = CountOf(present.points);
  const QString counts =
      Words::tr("%1 passed, %2 failed, %3 open").arg(passed).arg(failed).arg(open);
  if (present.points.empty())
    summary_->setText(Words::tr("No input is configured."));
  else if (present.serialNumber.empty())
    summary_->setText(Words::tr("Open a session to begin: results are kept by serial number."));
  else if (present.configuration.empty())
    summary_->setText(Words::tr("Logger %1: %2").arg(ToQt(present.serialNumber), counts));
  else
    summary_->setText(Words::tr("Logger %1, %2: %3")
                          .arg(ToQt(present.serialNumber), ToQt(present.configuration), counts));
  failure_->setVisible(!work_.Error().empty());
  if (work_.Error().empty()) return;
  const QString why = InWords(work_.Error());
  failure_->setText(work_.MayNote()
                        ? Words::tr("The last change could not be kept: %1").arg(why)
                        : Words::tr("What was noted before cannot be read: %1").arg(why));
}

void AcceptancePanel::ShowChosen() {
  const int row = Chosen();
  const bool mayNote = row >= 0 && work_.MayNote();
  for (QPushButton* button : {pass_, fail_, open_}) button->setEnabled(mayNote);
  note_->setEnabled(mayNote);
  SetMaySave(maySave_);
  const QString note =
      row < 0 ? QString() : ToQt(work_.Present().points.at(static_cast<std::size_t>(row)).note);
  if (note_->text() != note) note_->setText(note);
}

void AcceptancePanel::SetMaySave(bool may) {
  maySave_ = may;
  export_->setEnabled(may && !work_.Present().points.empty());
}

void AcceptancePanel::Judge(Verdict verdict) {
  const int row = Chosen();
  if (row < 0) return;
  const auto place = static_cast<std::size_t>(row);
  work_.Judge(place, verdict,
              round_ ? InputValue(work_.Present().points.at(place), *round_) : std::string());
  ShowRow(row);
  ShowSummary();
  if (verdict == Verdict::Passed) GoOn();
}

/// To the next input that is open. After a failure the operator stays, to note what it was.
void AcceptancePanel::GoOn() {
  const auto& points = work_.Present().points;
  for (int row = Chosen() + 1; row < list_->topLevelItemCount(); ++row)
    if (points.at(static_cast<std::size_t>(row)).verdict == Verdict::Open)
      return list_->setCurrentItem(list_->topLevelItem(row));
}

std::string AcceptancePanel::Table() const {
  return AcceptanceTable(work_.Present(),
                         [](std::string_view words) { return FromQt(InWords(words)); });
}

}  // namespace ostrel
