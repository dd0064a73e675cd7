#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>

#include "controls/Form.h"
#include "desktop/forms/Guard.h"

namespace ostrel {

/// A control's widget. `follow` brings the widget up to the control; what it sets does not come
/// back as an edit.
struct Bound {
  QWidget* widget = nullptr;  ///< null for a control that is not shown, a timer
  std::function<void()> follow;
};

/// What binding needs besides the control.
struct BindOptions {
  Guard guard;
  /// Text of a row of a drop-down list, where the plain one is not enough.
  std::function<QString(const ListRow&)> rowText;
  /// The columns of an open list that is shown as a table, where one row of text is not enough, and
  /// what a row has in them.
  QStringList columns{};
  std::function<QStringList(const ListRow&)> cells{};
  /// Makes the view of a picture.
  std::function<Bound(Picture&, QWidget* parent)> pictureView;
};

/// Makes the widget that shows a control, by its kind, and ties the two: the user's edits reach the
/// control and run its logic once. Changes from code reach the widget when `follow` is called.
Bound Bind(const ControlRef& control, const BindOptions& options, QWidget* parent);

}  // namespace ostrel
