#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>

namespace ostrel {

/// Events as a user makes them, delivered at once.
inline void SendMouse(QWidget* widget, QEvent::Type type, QPoint at,
                      Qt::KeyboardModifiers keys = Qt::NoModifier) {
  QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::LeftButton,
                    type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, keys);
  QApplication::sendEvent(widget, &event);
}

/// Clicks near the left edge, where boxes and options have their sign.
inline void Click(QWidget* widget, QPoint at = {-1, -1}) {
  if (at.x() < 0) at = {8, widget->height() / 2};
  SendMouse(widget, QEvent::MouseButtonPress, at);
  SendMouse(widget, QEvent::MouseButtonRelease, at);
}

inline void DoubleClick(QWidget* widget, QPoint at) {
  Click(widget, at);
  SendMouse(widget, QEvent::MouseButtonDblClick, at);
  SendMouse(widget, QEvent::MouseButtonRelease, at);
}

inline void Press(QWidget* widget, Qt::Key key, const QString& text = {},
                  Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, modifiers, text);
    QApplication::sendEvent(widget, &event);
  }
}

/// Types over what a field holds.
inline void Type(QWidget* widget, const QString& text) {
  widget->setFocus();
  Press(widget, Qt::Key_A, {}, Qt::ControlModifier);
  if (text.isEmpty()) Press(widget, Qt::Key_Delete);
  for (const QChar letter : text) Press(widget, Qt::Key_unknown, QString(letter));
}

/// Answers modal windows in the order in which they come up.
class ModalScript {
 public:
  ModalScript() {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
  }
  void Expect(std::function<void(QWidget*)> answer) {
    answers_.push_back(std::move(answer));
    timer_.start(0);
  }
  std::size_t Left() const { return answers_.size(); }

 private:
  void Look() {
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal || modal == answered_) return;
    if (answers_.empty()) return timer_.stop();
    const auto answer = std::move(answers_.front());
    answers_.pop_front();
    answered_ = modal;
    QObject::connect(modal, &QObject::destroyed, &timer_, [this] { answered_ = nullptr; });
    answer(modal);
  }

  QTimer timer_;
  std::deque<std::function<void(QWidget*)>> answers_;
  QWidget* answered_ = nullptr;
};

/// Answers the question that comes before a writing: plainly, or with its guards.
inline void AgreeToWrite(QWidget* modal, bool guarded) {
  auto* way = modal->findChild<QAbstractButton*>(guarded ? "Guarded" : "Plain");
  if (way) way->setChecked(true);
  if (auto* dialog = qobject_cast<QDialog*>(modal)) dialog->accept();
}

}  // namespace ostrel
