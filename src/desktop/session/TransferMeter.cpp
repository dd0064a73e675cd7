#include "desktop/session/TransferMeter.h"

#include <QHBoxLayout>

#include "desktop/forms/Words.h"
#include "shell/session/TransferWatch.h"

namespace ostrel {
namespace {

constexpr int kBarWidth = 200;

}  // namespace

TransferMeter::TransferMeter(QWidget* parent)
    : QWidget(parent), bar_(new QProgressBar(this)), left_(new QLabel(this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  setObjectName("TransferMeter");
  bar_->setObjectName("TransferBar");
  bar_->setFixedWidth(kBarWidth);
  bar_->setTextVisible(false);
  left_->setObjectName("TimeLeft");
  // What stands beside it is not to jump with each second.
  left_->setMinimumWidth(left_->fontMetrics().horizontalAdvance("quedan 00:00  "));
  row->addWidget(bar_);
  row->addWidget(left_, 1);
  Retranslate();
}

void TransferMeter::Retranslate() { bar_->setAccessibleName(Words::tr("Progress")); }

void TransferMeter::Show(const TransferWatch& transfer) {
  bar_->setMaximum(transfer.KnowsSteps() ? transfer.Steps() : 0);
  bar_->setValue(transfer.Done());
  const auto left = transfer.Left();
  left_->setText(left ? Words::tr("%1 left").arg(ToQt(DurationText(*left))) : QString());
}

}  // namespace ostrel
