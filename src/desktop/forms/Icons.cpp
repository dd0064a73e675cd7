#include "desktop/forms/Icons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace ostrel {
namespace {

constexpr int kBoxPicture = 44;  // side in pixels
constexpr qreal kGrid = 24;      // signs are drawn on a square of this side

/// An arrow between a logger's tray and the program; `up` away from the tray.
void DrawArrow(QPainter& p, bool up) {
  p.drawPolyline(QPolygonF({{4, 15}, {4, 20}, {20, 20}, {20, 15}}));
  p.drawLine(QPointF(12, 4), QPointF(12, 15));
  const qreal tip = up ? 4 : 15, side = up ? 8.5 : 10.5;
  p.drawPolyline(QPolygonF({{7.5, side}, {12, tip}, {16.5, side}}));
}

void DrawCancel(QPainter& p) {
  p.drawEllipse(QPointF(12, 12), 8.5, 8.5);
  p.drawLine(QPointF(8.8, 8.8), QPointF(15.2, 15.2));
  p.drawLine(QPointF(15.2, 8.8), QPointF(8.8, 15.2));
}

void DrawOpen(QPainter& p) {
  QPainterPath back;
  back.moveTo(3, 18);
  back.lineTo(3, 6);
  back.lineTo(9, 6);
  back.lineTo(11, 8.5);
  back.lineTo(19, 8.5);
  back.lineTo(19, 11);
  p.drawPath(back);
  p.drawPolygon(QPolygonF({{3, 18.5}, {6.2, 11}, {22, 11}, {18.8, 18.5}}));
}

void DrawSave(QPainter& p) {
  p.drawPolygon(QPolygonF({{4, 4}, {16.5, 4}, {20, 7.5}, {20, 20}, {4, 20}}));
  p.drawRect(QRectF(8, 4, 7, 5));
  p.drawRect(QRectF(7, 13, 10, 7));
}

void DrawSaveAs(QPainter& p) {
  p.drawPolyline(QPolygonF({{12, 20}, {4, 20}, {4, 4}, {16.5, 4}, {20, 7.5}, {20, 11}}));
  p.drawRect(QRectF(8, 4, 7, 5));
  p.drawPolygon(QPolygonF({{14, 18}, {20, 12}, {22, 14}, {16, 20}, {13.4, 20.6}}));
}

/// An arrow that turns back, or forth again.
void DrawTurn(QPainter& p, bool forth) {
  p.save();
  if (forth) {
    p.translate(kGrid, 0);
    p.scale(-1, 1);
  }
  QPainterPath turn;
  turn.moveTo(4.5, 9);
  turn.lineTo(14, 9);
  turn.arcTo(QRectF(8.5, 9, 11, 10), 90, -180);
  turn.lineTo(9, 19);
  p.drawPath(turn);
  p.drawPolyline(QPolygonF({{8.5, 5}, {4.5, 9}, {8.5, 13}}));
  p.restore();
}

/// A sheet with lines and a signature.
void DrawReport(QPainter& p) {
  p.drawPolygon(QPolygonF({{5, 3}, {15, 3}, {19, 7}, {19, 21}, {5, 21}}));
  for (const qreal y : {8.0, 11.5}) p.drawLine(QPointF(8, y), QPointF(16, y));
  p.drawPolyline(QPolygonF({{8, 17.5}, {10, 15}, {11.5, 17.5}, {13.5, 15.5}, {16, 17}}));
}

/// The beat of a pulse.
void DrawDoctor(QPainter& p) {
  p.drawPolyline(
      QPolygonF({{2.5, 13}, {7, 13}, {9, 8}, {12, 18}, {14.5, 5}, {17, 13}, {21.5, 13}}));
}

void DrawRecent(QPainter& p) {
  p.drawEllipse(QPointF(12, 12), 8.5, 8.5);
  p.drawPolyline(QPolygonF({{12, 7}, {12, 12.2}, {15.5, 14.5}}));
}

void DrawCopies(QPainter& p) {
  QPainterPath shield;
  shield.moveTo(12, 3);
  shield.lineTo(19.5, 6);
  shield.cubicTo(19.5, 13, 18, 18, 12, 21.3);
  shield.cubicTo(6, 18, 4.5, 13, 4.5, 6);
  shield.closeSubpath();
  p.drawPath(shield);
  p.drawPolyline(QPolygonF({{8.5, 11.8}, {11.2, 14.5}, {15.8, 9.3}}));
}

void DrawCompare(QPainter& p) {
  p.drawRect(QRectF(3.5, 4, 7, 16));
  p.drawRect(QRectF(13.5, 4, 7, 16));
  for (const qreal y : {8.0, 12.0, 16.0}) p.drawLine(QPointF(5.5, y), QPointF(8.5, y));
  for (const qreal y : {8.0, 16.0}) p.drawLine(QPointF(15.5, y), QPointF(18.5, y));
}

/// A sheet upon a sheet.
void DrawChannels(QPainter& p) {
  p.drawPolyline(QPolygonF({{8, 16}, {4, 16}, {4, 4}, {14, 4}, {14, 7}}));
  p.drawRect(QRectF(8, 8, 12, 12));
  for (const qreal y : {12.0, 16.0}) p.drawLine(QPointF(11, y), QPointF(17, y));
}

void DrawTrace(QPainter& p) {
  p.drawRoundedRect(QRectF(3, 4.5, 18, 15), 2, 2);
  p.drawPolyline(QPolygonF({{6.5, 9}, {9.5, 12}, {6.5, 15}}));
  p.drawLine(QPointF(11.5, 15), QPointF(16.5, 15));
}

/// A sheet of a calendar.
void DrawSchedule(QPainter& p) {
  p.drawRoundedRect(QRectF(4, 5, 16, 15.5), 2, 2);
  p.drawLine(QPointF(4, 10), QPointF(20, 10));
  for (const qreal x : {8.5, 15.5}) p.drawLine(QPointF(x, 3), QPointF(x, 7));
  for (const qreal x : {8.5, 12.0, 15.5}) p.drawPoint(QPointF(x, 14));
  for (const qreal x : {8.5, 12.0}) p.drawPoint(QPointF(x, 17));
}

/// A curve on its axes.
void DrawLive(QPainter& p) {
  p.drawPolyline(QPolygonF({{4, 4}, {4, 20}, {20.5, 20}}));
  p.drawPolyline(QPolygonF({{7, 15}, {10.5, 10.5}, {13.5, 13}, {19.5, 6.5}}));
}

/// An open book.
void DrawHistory(QPainter& p) {
  p.drawPolyline(QPolygonF({{12, 7}, {8, 5}, {3.5, 5}, {3.5, 18}, {8, 18}, {12, 20}}));
  p.drawPolyline(QPolygonF({{12, 7}, {16, 5}, {20.5, 5}, {20.5, 18}, {16, 18}, {12, 20}}));
  p.drawLine(QPointF(12, 7), QPointF(12, 20));
}

void DrawLanguage(QPainter& p) {
  p.drawEllipse(QPointF(12, 12), 8.5, 8.5);
  p.drawEllipse(QPointF(12, 12), 3.8, 8.5);
  p.drawLine(QPointF(3.5, 12), QPointF(20.5, 12));
}

/// Three dots in a row.
void DrawMore(QPainter& p) {
  p.setBrush(p.pen().color());
  for (const qreal x : {5.0, 12.0, 19.0}) p.drawEllipse(QPointF(x, 12), 1.2, 1.2);
}

void DrawFindings(QPainter& p) {
  p.drawPolygon(QPolygonF({{12, 3.5}, {21.5, 20}, {2.5, 20}}));
  p.drawLine(QPointF(12, 9.5), QPointF(12, 14));
  p.drawPoint(QPointF(12, 17));
}

void Draw(QPainter& painter, Sign sign) {
  switch (sign) {
    case Sign::Read:
      return DrawArrow(painter, true);
    case Sign::Write:
      return DrawArrow(painter, false);
    case Sign::Cancel:
      return DrawCancel(painter);
    case Sign::Open:
      return DrawOpen(painter);
    case Sign::Save:
      return DrawSave(painter);
    case Sign::SaveAs:
      return DrawSaveAs(painter);
    case Sign::Recent:
      return DrawRecent(painter);
    case Sign::Copies:
      return DrawCopies(painter);
    case Sign::Undo:
      return DrawTurn(painter, false);
    case Sign::Redo:
      return DrawTurn(painter, true);
    case Sign::Report:
      return DrawReport(painter);
    case Sign::Doctor:
      return DrawDoctor(painter);
    case Sign::Compare:
      return DrawCompare(painter);
    case Sign::Channels:
      return DrawChannels(painter);
    case Sign::Schedule:
      return DrawSchedule(painter);
    case Sign::Live:
      return DrawLive(painter);
    case Sign::History:
      return DrawHistory(painter);
    case Sign::Trace:
      return DrawTrace(painter);
    case Sign::Findings:
      return DrawFindings(painter);
    case Sign::More:
      return DrawMore(painter);
    case Sign::Language:
      return DrawLanguage(painter);
  }
}

void DrawProgram(QPainter& p) {
  p.setPen(Qt::NoPen);
  p.setBrush(QColor("#0b7285"));
  p.drawRoundedRect(QRectF(1, 1, 22, 22), 5, 5);
  p.setBrush(QColor("#f1f3f5"));
  p.drawRoundedRect(QRectF(6, 11, 12, 8), 1.5, 1.5);
  p.setBrush(QColor("#0b7285"));
  for (const qreal x : {8.0, 11.0, 14.0}) p.drawRect(QRectF(x, 14, 2, 2.4));
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor("#f1f3f5"), 1.5, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(12, 11), QPointF(12, 7.5));
  p.drawArc(QRectF(9, 4.5, 6, 6), 30 * 16, 120 * 16);
  p.drawArc(QRectF(6.7, 2.3, 10.6, 10.6), 30 * 16, 120 * 16);
}

/// Draws an icon anew at each size that is asked for.
class DrawnEngine final : public QIconEngine {
 public:
  using Drawing = std::function<void(QPainter&, QIcon::Mode)>;
  explicit DrawnEngine(Drawing drawing) : drawing_(std::move(drawing)) {}

  void paint(QPainter* painter, const QRect& where, QIcon::Mode mode, QIcon::State) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(where.topLeft());
    painter->scale(where.width() / kGrid, where.height() / kGrid);
    drawing_(*painter, mode);
    painter->restore();
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }
  QIconEngine* clone() const override { return new DrawnEngine(drawing_); }

 private:
  Drawing drawing_;
};

}  // namespace

QIcon MakeIcon(Sign sign, const QPalette& palette) {
  return QIcon(new DrawnEngine([sign, palette](QPainter& painter, QIcon::Mode mode) {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    painter.setPen(QPen(palette.color(group, QPalette::WindowText), 1.6, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    Draw(painter, sign);
  }));
}

QIcon ProgramIcon() {
  return QIcon(new DrawnEngine([](QPainter& painter, QIcon::Mode) { DrawProgram(painter); }));
}

QPixmap BoxPicture(BoxIcon icon) {
  if (icon == BoxIcon::None) return {};
  const QIcon drawn(new DrawnEngine([icon](QPainter& painter, QIcon::Mode) {
    if (icon == BoxIcon::Exclamation) return DrawWarningSign(painter, QRect(0, 0, 24, 24));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor("#0b7285"));
    painter.drawEllipse(QPointF(12, 12), 11, 11);
    QFont font = painter.font();
    font.setPixelSize(15);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(0, 0, 24, 24), Qt::AlignCenter, icon == BoxIcon::Question ? "?" : "i");
  }));
  return drawn.pixmap(kBoxPicture);
}

void DrawWarningSign(QPainter& painter, const QRect& where) {
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF box = QRectF(where).adjusted(2, 2, -2, -2);
  QPainterPath triangle;
  triangle.moveTo(box.center().x(), box.top());
  triangle.lineTo(box.bottomRight());
  triangle.lineTo(box.bottomLeft());
  triangle.closeSubpath();
  painter.setPen(QPen(QColor("#b45309"), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(QColor("#f59e0b"));
  painter.drawPath(triangle);
  painter.setPen(QPen(QColor("#1c1917"), 2, Qt::SolidLine, Qt::RoundCap));
  const qreal x = box.center().x();
  painter.drawLine(QPointF(x, box.top() + box.height() * 0.40),
                   QPointF(x, box.top() + box.height() * 0.66));
  painter.drawPoint(QPointF(x, box.top() + box.height() * 0.85));
}

}  // namespace ostrel
