#pragma once

#include <QList>
#include <QPointer>
#include <QStackedWidget>
#include <QString>
#include <functional>
#include <map>

#include "desktop/layouts/Layouts.h"

class QLabel;

namespace ostrel {

/// The place for one page at a time. Pages are drawn when they are first shown.
class PageArea final : public QStackedWidget {
 public:
  PageArea(std::function<LayoutContext()> context, QWidget* parent);

  /// Shows a form.
  void ShowForm(Form& form);
  /// Shows an empty page.
  void ShowEmpty();
  /// Draws all anew, in the language in use.
  void Redraw();
  /// Covers what a reading empties until it has all: the whole page, or the parts of it that it
  /// names so. No words take the cover away.
  void Cover(const QString& words);
  /// The view of the form in front; null when the page is empty.
  FormView* Front() const { return front_; }

  /// Runs after the form in front, or what it shows of itself, has changed. Set by the window.
  std::function<void()> OnChanged;
  /// Runs after a control of any form has changed. Set by the window.
  std::function<void()> OnControlChanged;
  /// Runs after something else is told of a control of the form in front. Set by the window.
  std::function<void()> OnNotesChanged;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Sheet {
    QWidget* scroll;
    FormView* view;
  };
  Sheet& SheetOf(Form& form);
  void LayCovers();

  std::function<LayoutContext()> context_;
  QWidget* empty_;
  std::map<Form*, Sheet> sheets_;
  FormView* front_ = nullptr;
  QString coverWords_;
  QList<QPointer<QLabel>> covers_;
};

}  // namespace ostrel
