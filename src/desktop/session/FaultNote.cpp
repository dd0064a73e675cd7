#include "desktop/session/FaultNote.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPixmap>

#include "desktop/forms/Icons.h"

namespace ostrel {
namespace {

QPixmap WarningPicture() {
  constexpr int kSide = 20;
  QPixmap sign(kSide, kSide);
  sign.fill(Qt::transparent);
  QPainter painter(&sign);
  DrawWarningSign(painter, sign.rect());
  return sign;
}

}  // namespace

FaultNote::FaultNote(const char* name, QWidget* parent) : QWidget(parent), text_(new QLabel(this)) {
  setObjectName(name);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 2, 0, 2);
  auto* sign = new QLabel(this);
  sign->setPixmap(WarningPicture());
  row->addWidget(sign, 0, Qt::AlignTop);
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  row->addWidget(text_, 1);
  hide();
}

void FaultNote::SetText(const QString& text) {
  if (text != text_->text()) text_->setText(text);
  setVisible(!text.isEmpty());
}

}  // namespace ostrel
