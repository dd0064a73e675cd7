#include "desktop/window/TraceView.h"

#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"

namespace ostrel {
namespace {

constexpr int kMostLines = 5000;

}  // namespace

TraceView::TraceView(QWidget* parent)
    : QDockWidget(parent), text_(new QPlainTextEdit(this)), clear_(new QPushButton(this)) {
  setObjectName("Trace");
  auto* content = new QWidget(this);
  auto* column = new QVBoxLayout(content);
  text_->setReadOnly(true);
  text_->setMaximumBlockCount(kMostLines);
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  text_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  column->addWidget(text_);
  column->addWidget(clear_, 0, Qt::AlignRight);
  setWidget(content);
  connect(clear_, &QPushButton::clicked, text_, &QPlainTextEdit::clear);
  Retranslate();
}

void TraceView::Add(const std::string& line) {
  text_->appendPlainText(QString::fromStdString(line));
}

void TraceView::Retranslate() {
  setWindowTitle(Words::tr("Trace"));
  text_->setAccessibleName(Words::tr("Trace"));
  clear_->setText(Words::tr("Clear"));
}

}  // namespace ostrel
