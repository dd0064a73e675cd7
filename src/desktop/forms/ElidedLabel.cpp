#include "desktop/forms/ElidedLabel.h"

#include <QPainter>
#include <QStyle>

namespace ostrel {

void ElidedLabel::SetWords(const QString& words) {
  if (words == text()) return;
  setText(words);
  setToolTip(words);
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                        isEnabled(), fontMetrics().elidedText(text(), Qt::ElideRight, width()),
                        foregroundRole());
}

}  // namespace ostrel
