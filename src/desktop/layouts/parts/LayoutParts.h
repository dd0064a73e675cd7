#pragma once

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QString>
#include <QVBoxLayout>
#include <initializer_list>
#include <string_view>

#include "desktop/forms/FormView.h"
#include "pages/parts/ControlNames.h"

namespace ostrel {

/// A titled box that holds a grid.
struct Card {
  QGroupBox* box;
  QGridLayout* grid;
};
Card MakeCard(FormView& view, const QString& title);

/// The same for a frame that is a control.
Card MakeCard(FormView& view, std::string_view frame);

/// Adds a row at the end of a grid: a label and the field beside it, over `columns` columns.
void AddField(const Card& card, QWidget* label, QWidget* field, int columns = 1);

/// Options of one group in rows of `columns` each, in a box of their own so that the arrow keys
/// move among them.
QWidget* OptionBox(FormView& view, std::initializer_list<std::string_view> options, int columns,
                   const ControlNames& names = {});

/// Widgets side by side, or one below the other, without margins.
QWidget* Joined(FormView& view, std::initializer_list<QWidget*> widgets,
                Qt::Orientation orientation = Qt::Horizontal, bool stretchEnd = false);

/// The sheet of a page: its heading with the help button, and a column for the rest. `untitled` is
/// the heading of a form without a title.
QVBoxLayout* MakeSheet(FormView& view, const QString& untitled = {});

/// The place of a form's bar, which tells less than the window knows of a transfer: while one runs,
/// the meter of that one stands there.
QWidget* ProgressPlace(FormView& view);
/// Least width of a bar, in pixels.
inline constexpr int kNarrowBar = 60;

/// The row that ends a dialog: the button that Return presses, and the one that leaves.
QHBoxLayout* EndButtons(QWidget* accept, QWidget* leave);

/// A label with the unit of a number: that of its field, else the one that stands in the box of the
/// channel's unit, if the form has such a box.
QLabel* UnitBeside(FormView& view, const std::string& control, const std::string& unitBox = {});

/// Makes a box for numbers as narrow as numbers are.
QWidget* Narrow(QWidget* field, int characters);

}  // namespace ostrel
