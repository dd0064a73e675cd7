#include "desktop/window/NodeDelegate.h"

#include <QPainter>
#include <QPainterPath>

#include "desktop/forms/Icons.h"

namespace ostrel {
namespace {

constexpr int kSign = 12;  // side in pixels
constexpr int kGap = 4;

void DrawBell(QPainter& painter) {
  QPainterPath bell;
  bell.moveTo(1, 9.5);
  bell.cubicTo(3, 8, 2, 2, 6, 2);
  bell.cubicTo(10, 2, 9, 8, 11, 9.5);
  bell.closeSubpath();
  painter.drawPath(bell);
  painter.drawLine(QPointF(5, 11.2), QPointF(7, 11.2));
}

void DrawMark(QPainter& painter, const QRect& where, int mark, const QColor& ink) {
  painter.setPen(QPen(ink, 1.2));
  painter.setBrush(Qt::NoBrush);
  if (mark == kMarkAlarm) return DrawBell(painter);
  if (mark == kMarkWarning) return DrawWarningSign(painter, where.adjusted(-2, -2, 2, 2));
  painter.setPen(Qt::NoPen);
  painter.setBrush(mark == kMarkError ? QColor("#dc2626") : ink);
  const QRectF box(where);
  if (mark == kMarkError) {
    painter.drawEllipse(box);
    painter.setPen(QPen(Qt::white, 1.8));
    painter.drawLine(box.center() + QPointF(0, -3.5), box.center() + QPointF(0, 1));
    painter.drawPoint(box.center() + QPointF(0, 3.5));
  } else {
    painter.drawEllipse(box.center(), 3.0, 3.0);
  }
}

}  // namespace

void NodeDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  const int marks = index.data(kNodeMarks).toInt();
  const QString name = index.data(kNodeName).toString();
  if (marks == 0 && name.isEmpty()) return;
  const bool isSelected = option.state.testFlag(QStyle::State_Selected);
  const QPalette& palette = option.palette;
  const QColor ink = palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  int right = option.rect.right() - kGap;
  for (const int mark : {kMarkError, kMarkWarning, kMarkChanged, kMarkAlarm}) {
    if ((marks & mark) == 0) continue;
    const QRect place(right - kSign, option.rect.center().y() - kSign / 2, kSign, kSign);
    painter->save();
    painter->translate(place.topLeft());
    DrawMark(*painter, QRect(0, 0, kSign, kSign), mark, ink);
    painter->restore();
    right -= kSign + kGap;
  }
  const int left =
      option.rect.left() + 3 * kGap + option.fontMetrics.horizontalAdvance(index.data().toString());
  QColor soft = ink;
  constexpr qreal kSoft = 0.68;
  soft.setAlphaF(static_cast<float>(kSoft));
  painter->setPen(soft);
  const QRect place(left, option.rect.top(), right - left, option.rect.height());
  if (place.width() > 0)
    painter->drawText(place, Qt::AlignVCenter,
                      option.fontMetrics.elidedText(name, Qt::ElideRight, place.width()));
  painter->restore();
}

}  // namespace ostrel
