#include "desktop/forms/NoteMark.h"

#include <QEvent>
#include <QPainter>

namespace ostrel {
namespace {

constexpr const char* kMarkName = "NoteMark";
constexpr qreal kStrokeWidth = 2;  // width in pixels

}  // namespace

void NoteMark::Set(QWidget& target, const QColor& colour) {
  NoteMark* mark = nullptr;
  for (auto* child :
       target.parentWidget()->findChildren<QWidget*>(kMarkName, Qt::FindDirectChildrenOnly))
    if (auto* known = static_cast<NoteMark*>(child); &known->target_ == &target) mark = known;
  if (!colour.isValid()) {
    delete mark;
    return;
  }
  if (!mark) mark = new NoteMark(target);
  mark->colour_ = colour;
  mark->update();
}

NoteMark::NoteMark(QWidget& target) : QWidget(target.parentWidget()), target_(target) {
  setObjectName(kMarkName);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  target.installEventFilter(this);
  Follow();
}

void NoteMark::Follow() {
  if (parentWidget() != target_.parentWidget()) setParent(target_.parentWidget());
  setGeometry(target_.geometry());
  setVisible(!target_.isHidden());
  raise();
}

bool NoteMark::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ZOrderChange:
    case QEvent::ParentChange:
      Follow();
      break;
    default:
      break;
  }
  return QWidget::eventFilter(watched, event);
}

void NoteMark::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour_, kStrokeWidth));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
}

}  // namespace ostrel
