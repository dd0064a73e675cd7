#include "desktop/forms/AccessKeys.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>
#include <QWidget>

namespace ostrel {
namespace {

constexpr QChar kMark = u'&';

/// Whether a letter can be typed with Alt on any keyboard.
bool IsKey(QChar letter) { return letter.isLetterOrNumber() && letter.unicode() < 128; }

QString Marked(const QString& caption, qsizetype position) {
  return EscapedCaption(caption.left(position)) + kMark + EscapedCaption(caption.mid(position));
}

/// The tab that a widget stands on; null for none.
const QWidget* TabOf(const QWidget* widget, const QWidget& root) {
  for (const QWidget* above = widget->parentWidget(); above && above != &root;
       above = above->parentWidget())
    if (qobject_cast<const QStackedWidget*>(above->parentWidget())) return above;
  return nullptr;
}

/// Assigns keys to what stands on one tab, or on none.
void AssignOn(QWidget& root, const QWidget* tab, std::set<QChar>& taken) {
  // Buttons and boxes first: a field can also be reached by tabbing from its neighbour.
  for (auto* button : root.findChildren<QAbstractButton*>()) {
    const QString caption = WithoutAccessKey(button->text());
    if (TabOf(button, root) != tab || button->isHidden() || caption.isEmpty() ||
        button->property("noAccessKey").toBool())
      continue;
    button->setText(WithAccessKey(caption, taken));
  }
  for (auto* label : root.findChildren<QLabel*>()) {
    if (TabOf(label, root) != tab || !label->buddy() ||
        label->buddy()->focusPolicy() == Qt::NoFocus || label->isHidden())
      continue;
    label->setText(WithAccessKey(WithoutAccessKey(label->text()), taken));
  }
}

}  // namespace

QString EscapedCaption(const QString& caption) {
  QString text = caption;
  return text.replace(kMark, "&&");
}

QString WithoutAccessKey(const QString& text) {
  QString caption;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == kMark && i + 1 < text.size()) ++i;
    caption += text[i];
  }
  return caption;
}

QString WithAccessKey(const QString& caption, std::set<QChar>& taken) {
  for (const bool atWordStart : {true, false}) {
    for (qsizetype i = 0; i < caption.size() && caption[i] != u'('; ++i) {
      if (atWordStart && i > 0 && caption[i - 1].isLetterOrNumber()) continue;
      if (!IsKey(caption[i]) || !taken.insert(caption[i].toLower()).second) continue;
      return Marked(caption, i);
    }
  }
  return EscapedCaption(caption);
}

void AssignAccessKeys(QWidget& root) {
  std::set<QChar> common;
  AssignOn(root, nullptr, common);
  // Of several tabs one is seen at a time: each has what the rest of the form leaves.
  for (const auto* tabs : root.findChildren<QStackedWidget*>()) {
    for (int i = 0; i < tabs->count(); ++i) {
      std::set<QChar> taken = common;
      AssignOn(root, tabs->widget(i), taken);
    }
  }
}

void LetTabReachTools(QToolBar& bar) {
  for (QAction* action : bar.actions())
    if (auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(action)))
      button->setFocusPolicy(Qt::TabFocus);
}

}  // namespace ostrel
