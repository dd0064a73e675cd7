#include "desktop/forms/NoteBubble.h"

#include <algorithm>

namespace ostrel {
namespace {

constexpr int kWidest = 380;
constexpr int kBubbleGap = 3;

}  // namespace

NoteBubble::NoteBubble(QWidget* sheet) : QLabel(sheet) {
  setObjectName("NoteBubble");
  setTextFormat(Qt::PlainText);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  hide();
}

void NoteBubble::Tell(const QWidget& control, const QString& words) {
  if (words.isEmpty()) return hide();
  setText(words);
  setWordWrap(false);
  ensurePolished();
  const bool isLong = sizeHint().width() > kWidest;
  setWordWrap(isLong);
  const int width = isLong ? kWidest : sizeHint().width();
  const QSize size(width, isLong ? heightForWidth(width) : sizeHint().height());
  const QWidget& sheet = *parentWidget();
  const QPoint corner = control.mapTo(&sheet, QPoint(0, 0));
  const int below = corner.y() + control.height() + kBubbleGap;
  const bool fits = below + size.height() <= sheet.height();
  setGeometry(QRect(QPoint(std::clamp(corner.x(), 0, std::max(0, sheet.width() - size.width())),
                           fits ? below : corner.y() - kBubbleGap - size.height()),
                    size));
  raise();
  show();
}

}  // namespace ostrel
