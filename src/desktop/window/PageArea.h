#pragma once

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
  /// Shows an empty page with a few words.
  void ShowEmpty(const QString& words);
  /// Draws all anew, in the language in use.
  void Redraw();
  /// The view of the form in front; null when the page is empty.
  FormView* Front() const { return front_; }

  /// Runs after the form in front, or what it shows of itself, has changed. Set by the window.
  std::function<void()> OnChanged;
  /// Runs after a control of any form has changed. Set by the window.
  std::function<void()> OnControlChanged;

 private:
  struct Sheet {
    QWidget* scroll;
    FormView* view;
  };
  Sheet& SheetOf(Form& form);

  std::function<LayoutContext()> context_;
  QLabel* empty_;
  std::map<Form*, Sheet> sheets_;
  FormView* front_ = nullptr;
};

}  // namespace ostrel
