#pragma once

#include <QLabel>
#include <QString>
#include <QWidget>
#include <functional>
#include <initializer_list>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Form.h"
#include "desktop/forms/Binder.h"
#include "desktop/forms/Guard.h"

namespace ostrel {

class NoteBubble;

/// Draws one form: makes the widget of each control that a layout asks for, and keeps them up to
/// their controls. It holds no state of its own, so that it can be thrown away and made anew at any
/// time, as a change of language does it.
class FormView final : public QWidget {
 public:
  FormView(Form& form, Guard guard, QWidget* parent = nullptr);
  ~FormView() override;

  Form& GetForm() const { return form_; }

  // For layouts.
  /// The widget of a control, made at the first asking: the order of asking is that of tabbing.
  QWidget* Show(std::string_view control);
  template <class Widget>
  Widget* Show(std::string_view control) {
    return static_cast<Widget*>(Show(control));
  }
  bool Has(std::string_view control) const { return form_.Contains(control); }
  /// A label of the window's own words for a control; it is enabled and shown as the control is.
  QLabel* LabelFor(std::string_view control, const QString& text);
  /// The label that the form itself has for a control.
  QLabel* LabelFor(std::string_view control, std::string_view label);
  /// Puts words on a control that has no caption of its own: a button, a box.
  QWidget* ShowWithWords(std::string_view control, const QString& text);
  /// A name for those who cannot see the control, where no label stands beside it.
  QWidget* ShowNamed(std::string_view control, const QString& accessibleName);
  /// Takes a widget that belongs to the window and not to a control.
  template <class Widget>
  Widget* Own(Widget* widget) {
    own_.insert(widget);
    return widget;
  }
  /// Runs something now, and whenever what a control shows has changed.
  void Whenever(std::initializer_list<std::string_view> controls, std::function<void()> run);
  /// How the rows of a drop-down list read. Ahead of the first asking for it.
  void SetRowText(std::string_view control, std::function<QString(const ListRow&)> rowText);
  /// Shows an open list as a table. Ahead of the first asking for it.
  void SetColumns(std::string_view control, const QStringList& columns,
                  std::function<QStringList(const ListRow&)> cells);
  /// A heading with the form's title above the rest, with a place for more at its right.
  QWidget* Heading(const QString& untitled);
  /// Called by a layout when all stands: access keys, and the present state of the form.
  void Finish();

  // For the window.
  /// The widget of a control; null when no layout has asked for it.
  QWidget* WidgetOf(std::string_view control) const;
  /// Widgets of the window's own among the controls.
  const std::set<const QWidget*>& OwnWidgets() const { return own_; }
  /// Brings one widget up to its control.
  void Follow(std::string_view control);
  /// What is to be told of controls, by their names, in the place of what was told before: each
  /// gets a mark, and says it while it has the focus.
  void SetNotes(std::map<std::string, QString, std::less<>> notes);
  /// What is told of the controls in view, with their names.
  QStringList Notes() const;
  /// Lets go of the controls, ahead of being replaced.
  void Detach();

  /// Runs after title, visibility, enabled state, pointer or focus of the form changed.
  std::function<void()> OnFormChanged;
  /// Runs after anything that a control shows has changed.
  std::function<void()> OnControlChanged;
  /// Runs after something else is told of a control.
  std::function<void()> OnNotesChanged;

 protected:
  /// Keeps a turn of the wheel over a box that has not the focus from changing it unseen, and shows
  /// what is told of the control that gets the focus.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FollowForm();
  /// Marks a control of which something is to be told, and tells it where it has the focus.
  void ShowNote(std::string_view control);
  QString NoteOf(std::string_view control) const;

  Form& form_;
  Guard guard_;
  std::map<std::string, Bound, std::less<>> bound_;
  /// The window's own labels of a control.
  std::map<std::string, std::vector<QLabel*>, std::less<>> companions_;
  /// The form's label of a control.
  std::map<std::string, std::string, std::less<>> labels_;
  std::map<std::string, std::function<QString(const ListRow&)>, std::less<>> rowTexts_;
  struct Columns {
    QStringList names;
    std::function<QStringList(const ListRow&)> cells;
  };
  std::map<std::string, Columns, std::less<>> columns_;
  std::multimap<std::string, std::function<void()>, std::less<>> whenever_;
  std::set<const QWidget*> own_;
  std::map<std::string, QString, std::less<>> notes_;
  NoteBubble* bubble_;
  QLabel* heading_ = nullptr;
  QString untitled_;
  /// What the form showed of itself when it was last looked at.
  struct Seen {
    std::string title, focus;
    bool visible, enabled;
    Pointer pointer;
    bool operator==(const Seen&) const = default;
  };
  Seen Look() const;
  Seen seen_;
  bool finished_ = false;
  bool detached_ = false;
};

}  // namespace ostrel
