#include "desktop/window/FaultDetails.h"

#include <QVBoxLayout>

#include "desktop/forms/Words.h"

namespace ostrel {

FaultDetails::FaultDetails(QWidget* parent)
    : QWidget(parent), toggle_(new QToolButton(this)), text_(new QLabel(this)) {
  setObjectName("FaultDetails");
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  toggle_->setText(Words::tr("What went wrong"));
  toggle_->setCheckable(true);
  toggle_->setAutoRaise(true);
  toggle_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  toggle_->setProperty("noAccessKey", true);
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  column->addWidget(toggle_, 0, Qt::AlignLeft);
  column->addWidget(text_);
  connect(toggle_, &QToolButton::toggled, this, [this](bool open) { Open(open); });
  Open(false);
  hide();
}

void FaultDetails::SetText(const QString& text) {
  if (text == text_->text()) return;
  text_->setText(text);
  setVisible(!text.isEmpty());
  if (text.isEmpty()) toggle_->setChecked(false);
}

void FaultDetails::Open(bool open) {
  toggle_->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
  text_->setVisible(open);
}

}  // namespace ostrel
