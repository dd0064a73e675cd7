#include "desktop/window/HistoryDialog.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/forms/Words.h"
#include "shell/ledger/TestRunBook.h"

namespace ostrel {
namespace {

enum HistoryColumn { kNumber, kBegan, kWork, kResult, kLogger, kLine, kMatter, kHistoryColumns };

/// What is older is found by the command line.
constexpr std::size_t kEntriesShown = 2000;

QString WordIn(std::string_view word) { return Words::tr(std::string(word).c_str()); }

QString ResultOf(Ledger& books, const LedgerEntry& entry) {
  return books.IsCutOff(entry) ? Words::tr("cut off") : WordIn(WordOf(entry.state));
}

/// What failed. Of a test run the words ahead of a colon may be the ledger's, the rest was told.
QString FaultText(const LedgerEntry& entry) {
  if (entry.kind != LedgerKind::TestRun) return ToQt(entry.fault);
  const std::size_t verdict = std::min(entry.fault.find(':'), entry.fault.size());
  return WordIn(entry.fault.substr(0, verdict)) + ToQt(entry.fault.substr(verdict));
}

QString MatterOf(const LedgerEntry& entry) {
  QStringList parts{ToQt(entry.detail).section(u'\n', 0, 0), ToQt(entry.file), FaultText(entry)};
  parts.removeAll(QString());
  if (entry.steps > 0 && entry.kind == LedgerKind::Writing)
    parts << Words::tr("%1 statements").arg(entry.steps);
  if (entry.steps > 0 && entry.kind == LedgerKind::Reading)
    parts << Words::tr("%1 records").arg(entry.steps);
  return parts.join(", ");
}

QStringList TextsOf(Ledger& books, const LedgerEntry& entry) {
  QStringList texts(kHistoryColumns);
  texts[kNumber] = QString::number(entry.id);
  texts[kBegan] = ToQt(entry.began);
  texts[kWork] = WordIn(WordOf(entry.kind));
  texts[kResult] = ResultOf(books, entry);
  texts[kLogger] = ToQt(entry.model + " " + entry.serial).trimmed();
  texts[kLine] = ToQt(entry.port + " " + entry.phone).trimmed();
  texts[kMatter] = MatterOf(entry);
  return texts;
}

/// The lines of a detail below its first, which the table shows: what a test run has measured.
QString MeasuredIn(const LedgerEntry& entry) {
  QStringList lines = ToQt(entry.detail).section(u'\n', 1).split(u'\n', Qt::SkipEmptyParts);
  for (QString& line : lines) {
    if (line.startsWith(ToQt(kNewNumber))) line.replace(ToQt(kNewNumber), Words::tr("new number"));
    if (line.endsWith(ToQt(kOutOfBand))) line.replace(ToQt(kOutOfBand), Words::tr("FAILED"));
  }
  return lines.join(u'\n');
}

QTableWidget* MakeHistoryTable(Ledger& books, const std::vector<LedgerEntry>& entries,
                               QWidget* parent) {
  auto* table = new QTableWidget(static_cast<int>(entries.size()), kHistoryColumns, parent);
  table->setAccessibleName(Words::tr("History"));
  table->setHorizontalHeaderLabels({Words::tr("No."), Words::tr("Begun"), Words::tr("Work"),
                                    Words::tr("Result"), Words::tr("Logger"), Words::tr("Port"),
                                    Words::tr("What")});
  int row = 0;
  for (const LedgerEntry& entry : entries) {
    int column = 0;
    for (const QString& text : TextsOf(books, entry))
      table->setItem(row, column++, new QTableWidgetItem(text));
    ++row;
  }
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->setAlternatingRowColors(true);
  table->setTabKeyNavigation(false);
  table->verticalHeader()->hide();
  table->resizeColumnsToContents();
  table->horizontalHeader()->setSectionResizeMode(kMatter, QHeaderView::Stretch);
  return table;
}

}  // namespace

HistoryDialog::HistoryDialog(Ledger& books, QWidget* parent)
    : QDialog(parent),
      entries_(books.Find({.most = kEntriesShown})),
      table_(MakeHistoryTable(books, entries_, this)),
      details_(new QPlainTextEdit(this)) {
  setWindowTitle(Words::tr("History"));
  auto* column = new QVBoxLayout(this);
  auto* filter = new QLineEdit(this);
  filter->setObjectName("Filter");
  filter->setPlaceholderText(Words::tr("Serial number, date, work, file"));
  filter->setAccessibleName(Words::tr("Filter"));
  filter->setClearButtonEnabled(true);
  connect(filter, &QLineEdit::textChanged, this, [this](const QString& text) { Filter(text); });
  column->addWidget(filter);
  if (!books.Fault().empty())
    column->addWidget(
        new QLabel(Words::tr("The ledger cannot be read: %1").arg(ToQt(books.Fault())), this));
  column->addWidget(table_, 3);
  details_->setReadOnly(true);
  details_->setTabChangesFocus(true);
  details_->setObjectName("Details");
  details_->setAccessibleName(Words::tr("Measured values"));
  column->addWidget(details_, 2);
  auto* row = new QHBoxLayout;
  column->addLayout(row);
  row->addWidget(AddButton(Words::tr("&Open"), "Open", [this] {
    const LedgerEntry entry = *Chosen();
    accept();
    if (OnOpen) OnOpen(entry);
  }));
  row->addWidget(AddButton(Words::tr("Co&mpare"), "Compare", [this] {
    const LedgerEntry entry = *Chosen();
    accept();  // another window stands beside none that asks
    if (OnCompare) OnCompare(entry);
  }));
  row->addWidget(AddButton(Words::tr("&Save to a file"), "Save", [this] {
    if (OnSave) OnSave(*Chosen());
  }));
  row->addStretch(1);
  auto* close = new QPushButton(Words::tr("Close"), this);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  row->addWidget(close);
  connect(table_, &QTableWidget::itemSelectionChanged, this, [this] { ShowChoice(); });
  ShowChoice();
  filter->setFocus();
  resize(1080, 560);
}

QPushButton* HistoryDialog::AddButton(const QString& text, const char* name,
                                      std::function<void()> run) {
  auto* button = new QPushButton(text, this);
  button->setObjectName(name);
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [run = std::move(run)] { run(); });
  buttons_.push_back(button);
  return button;
}

void HistoryDialog::Filter(const QString& text) {
  const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
  for (int row = 0; row < table_->rowCount(); ++row) {
    QString line;
    for (int column = 0; column < kHistoryColumns; ++column)
      line += table_->item(row, column)->text() + u' ';
    const bool matches = std::all_of(words.begin(), words.end(), [&](const QString& word) {
      return line.contains(word, Qt::CaseInsensitive);
    });
    table_->setRowHidden(row, !matches);
  }
  ShowChoice();
}

const LedgerEntry* HistoryDialog::Current() const {
  const int row = table_->currentRow();
  if (row < 0 || table_->selectedItems().isEmpty()) return nullptr;  // none that is hidden
  return &entries_[static_cast<std::size_t>(row)];
}

const LedgerEntry* HistoryDialog::Chosen() const {
  const LedgerEntry* entry = Current();
  return entry && !entry->content.empty() ? entry : nullptr;
}

void HistoryDialog::ShowChoice() {
  const LedgerEntry* entry = Current();
  const QString measured = entry ? MeasuredIn(*entry) : QString();
  details_->setPlainText(measured);
  details_->setVisible(!measured.isEmpty());
  for (QPushButton* button : buttons_) button->setEnabled(Chosen() != nullptr);
}

}  // namespace ostrel
