#include "desktop/dialogs/TraceView.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"

namespace ostrel {

TraceView::TraceView(TraceLog& log, QWidget* parent)
    : QDockWidget(parent),
      log_(log),
      search_(new QLineEdit(this)),
      pause_(new QPushButton(this)),
      record_(new QPushButton(this)),
      save_(new QPushButton(this)),
      clear_(new QPushButton(this)),
      text_(new QPlainTextEdit(this)) {
  setObjectName("Trace");
  auto* content = new QWidget(this);
  auto* column = new QVBoxLayout(content);
  auto* row = new QHBoxLayout;
  for (std::size_t kind = 0; kind < kKinds; ++kind) {
    kinds_[kind] = new QCheckBox(this);
    kinds_[kind]->setObjectName("Kind" + QString::number(kind));
    kinds_[kind]->setChecked(true);
    connect(kinds_[kind], &QCheckBox::toggled, this, [this] { Refill(); });
    row->addWidget(kinds_[kind]);
  }
  search_->setObjectName("Search");
  search_->setClearButtonEnabled(true);
  pause_->setObjectName("Pause");
  pause_->setCheckable(true);
  record_->setObjectName("Record");
  record_->setCheckable(true);
  save_->setObjectName("Save");
  row->addWidget(search_, 1);
  for (QPushButton* button : {pause_, record_, save_, clear_}) row->addWidget(button);
  column->addLayout(row);
  text_->setReadOnly(true);
  text_->setMaximumBlockCount(static_cast<int>(TraceLog::kMost));
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  text_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  column->addWidget(text_, 1);
  setWidget(content);
  connect(search_, &QLineEdit::returnPressed, this, [this] { FindNext(); });
  connect(pause_, &QPushButton::toggled, this, [this] { Follow(); });
  connect(record_, &QPushButton::clicked, this, [this](bool on) {
    if (OnRecord) OnRecord(on);
  });
  connect(save_, &QPushButton::clicked, this, [this] {
    if (OnSave) OnSave();
  });
  connect(clear_, &QPushButton::clicked, this, [this] {
    log_.Clear();
    text_->clear();
  });
  log_.OnAdded = [this](const TraceEntry& entry) { Add(entry); };
  Retranslate();
}

void TraceView::Retranslate() {
  setWindowTitle(Words::tr("Trace"));
  text_->setAccessibleName(Words::tr("Trace"));
  kinds_[static_cast<std::size_t>(TraceKind::Sent)]->setText(Words::tr("Sent"));
  kinds_[static_cast<std::size_t>(TraceKind::Received)]->setText(Words::tr("Received"));
  kinds_[static_cast<std::size_t>(TraceKind::Modem)]->setText(Words::tr("Modem"));
  kinds_[static_cast<std::size_t>(TraceKind::Remark)]->setText(Words::tr("Remarks"));
  search_->setPlaceholderText(Words::tr("Search, Enter finds the next"));
  search_->setAccessibleName(Words::tr("Search in the trace"));
  pause_->setText(Words::tr("Pause"));
  record_->setText(Words::tr("Record..."));
  record_->setToolTip(Words::tr("Keep every octet of the line in a file"));
  save_->setText(Words::tr("Save..."));
  clear_->setText(Words::tr("Clear"));
}

void TraceView::SetMaySave(bool may) {
  save_->setEnabled(may);
  record_->setEnabled(may || record_->isChecked());
}

void TraceView::SetRecording(bool on) { record_->setChecked(on); }

bool TraceView::Shows(TraceKind kind) const {
  return kinds_[static_cast<std::size_t>(kind)]->isChecked();
}

void TraceView::Add(const TraceEntry& entry) {
  if (isHidden() || pause_->isChecked() || !Shows(entry.kind)) return;
  text_->appendPlainText(ToQt(entry.Line()));
}

std::string TraceView::Text() {
  std::string text;
  log_.ForEach([&](const TraceEntry& entry) {
    if (Shows(entry.kind)) text += entry.Line() + '\n';
  });
  return text;
}

/// While it is hidden nothing is drawn: what has come meanwhile is in the log.
void TraceView::Refill() {
  text_->setPlainText(ToQt(Text()).trimmed());
  text_->moveCursor(QTextCursor::End);
}

void TraceView::FindNext() {
  if (text_->find(search_->text())) return;
  text_->moveCursor(QTextCursor::Start);
  text_->find(search_->text());
}

void TraceView::Follow() {
  if (!pause_->isChecked()) Refill();
}

}  // namespace ostrel
