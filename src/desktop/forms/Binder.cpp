#include "desktop/forms/Binder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QStyle>
#include <QTabBar>
#include <QTableWidget>
#include <QTextCursor>
#include <QTimeEdit>
#include <algorithm>

#include "base/Values.h"
#include "controls/NumberBox.h"
#include "desktop/forms/AccessKeys.h"
#include "desktop/forms/DarkPalette.h"
#include "desktop/forms/ReadoutViews.h"
#include "desktop/forms/Words.h"

namespace ostrel {
namespace {

constexpr int kUnlimited = 32767;  // what a line edit takes by itself
constexpr int kSecondsOfDay = 86'400;

/// What every kind shows of a face besides its value.
void FollowFace(QWidget& widget, const Face& face) {
  widget.setEnabled(face.Enabled());
  widget.setVisible(face.Visible());
}

/// Sets a caption, unless it is shown already, an access key in it or not.
template <class Widget>
void FollowCaption(Widget& widget, const QString& caption) {
  if (WithoutAccessKey(widget.text()) == caption) return;
  widget.setText(EscapedCaption(caption));
  widget.setAccessibleName(caption);
}

template <class Widget>
void FollowCaption(Widget& widget, const Face& face) {
  FollowCaption(widget, ToQt(face.Caption()));
}

Bound BindKind(Label& label, const BindOptions&, QWidget* parent) {
  auto* widget = new QLabel(parent);
  return {widget, [widget, &label] {
            FollowFace(*widget, label.face);
            // A label is as grey as the control that it stands beside.
            if (const QWidget* buddy = widget->buddy();
                buddy && buddy->testAttribute(Qt::WA_ForceDisabled))
              widget->setEnabled(false);
            const QString caption = ToQt(label.face.Caption());
            if (WithoutAccessKey(widget->text()) == caption) return;
            widget->setTextFormat(Qt::PlainText);
            widget->setText(widget->buddy() ? EscapedCaption(caption) : caption);
          }};
}

Bound BindKind(Frame& frame, const BindOptions&, QWidget* parent) {
  auto* widget = new QGroupBox(parent);
  return {widget, [widget, &frame] {
            FollowFace(*widget, frame.face);
            widget->setTitle(EscapedCaption(ToQt(frame.face.Caption())));
          }};
}

Bound BindKind(Button& button, const BindOptions& options, QWidget* parent) {
  auto* widget = new QPushButton(parent);
  widget->setAutoDefault(false);
  QObject::connect(widget, &QPushButton::clicked, widget,
                   [&button, guard = options.guard] { guard([&] { button.Click(); }); });
  return {widget, [widget, &button] {
            FollowFace(*widget, button.face);
            QString caption = ToQt(button.face.Caption());
            if (button.Count() >= 0) caption += QString(" (%1)").arg(button.Count());
            if (!button.face.Caption().empty()) FollowCaption(*widget, caption);
          }};
}

Bound BindKind(CheckBox& box, const BindOptions& options, QWidget* parent) {
  auto* widget = new QCheckBox(parent);
  QObject::connect(widget, &QCheckBox::toggled, widget,
                   [&box, guard = options.guard](bool on) { guard([&] { box.SetChecked(on); }); });
  return {widget, [widget, &box] {
            FollowFace(*widget, box.face);
            if (!box.face.Caption().empty()) FollowCaption(*widget, box.face);
            const QSignalBlocker blocker(widget);
            widget->setChecked(box.Checked());
          }};
}

Bound BindKind(OptionButton& option, const BindOptions& options, QWidget* parent) {
  auto* widget = new QRadioButton(parent);
  QObject::connect(widget, &QRadioButton::toggled, widget,
                   [&option, guard = options.guard](bool on) {
                     if (on) guard([&] { option.SetSelected(true); });
                   });
  return {widget, [widget, &option] {
            FollowFace(*widget, option.face);
            FollowCaption(*widget, option.face);
            const QSignalBlocker blocker(widget);
            // A group may have none selected, which an exclusive button refuses.
            widget->setAutoExclusive(false);
            widget->setChecked(option.Selected());
            widget->setAutoExclusive(true);
          }};
}

/// Paints a box of a bad number.
void FollowColour(QLineEdit& edit, const TextBox& box) {
  const bool isBad = box.face.Colour() == BackColour::Red;
  if (edit.property("bad").toBool() == isBad) return;
  edit.setProperty("bad", isBad);
  QPalette palette;  // of the program
  if (isBad) {
    palette.setColor(QPalette::Base, QColor(IsDark(palette) ? "#4d1f22" : "#ffe3e3"));
  }
  edit.setPalette(palette);
}

Bound BindKind(TextBox& box, const BindOptions& options, QWidget* parent) {
  auto* widget = new QLineEdit(parent);
  QObject::connect(widget, &QLineEdit::textEdited, widget,
                   [&box, guard = options.guard](const QString& text) {
                     guard([&] {
                       box.Type(FromQt(text));
                       TestNumberBox(box);
                     });
                   });
  if (box.OnArrow)
    for (const auto& [key, arrow] : {std::pair{Qt::Key_Up, -1}, std::pair{Qt::Key_Down, 1}}) {
      auto* shortcut = new QShortcut(QKeySequence(key), widget);
      shortcut->setContext(Qt::WidgetShortcut);
      QObject::connect(
          shortcut, &QShortcut::activated, widget,
          [&box, guard = options.guard, way = arrow] { guard([&] { box.OnArrow(way); }); });
    }
  // A decimal comma is put right when the box is left: in the middle of typing it may be another.
  QObject::connect(widget, &QLineEdit::editingFinished, widget, [&box, guard = options.guard] {
    if (!box.NumberKind().empty()) guard([&] { CheckNumberBox(box, box.NumberKind()); });
  });
  return {widget, [widget, &box] {
            FollowFace(*widget, box.face);
            FollowColour(*widget, box);
            widget->setEchoMode(box.Hidden() ? QLineEdit::Password : QLineEdit::Normal);
            const QString text = ToQt(box.Text());
            // The limit is one on typing: a longer text from a file or a logger is shown whole.
            const int limit = box.MaxLength() == 0 ? kUnlimited : box.MaxLength();
            const int length = std::max(limit, static_cast<int>(text.size()));
            // Setting it again would send the cursor to the end and forget what can be undone.
            if (widget->maxLength() != length) widget->setMaxLength(length);
            if (widget->text() == text) return;
            const int cursor = widget->cursorPosition();
            widget->setText(text);
            // Its beginning is seen, or the place at which it is being edited.
            widget->setCursorPosition(widget->hasFocus() ? cursor : 0);
          }};
}

/// Adds what is new of a text that grows, so that its length costs nothing.
class GrowingText {
 public:
  explicit GrowingText(QPlainTextEdit& edit) : edit_(edit) {}

  void Follow(const TextView& view) {
    if (clearings_ != view.Clearings()) {
      clearings_ = view.Clearings();
      edit_.clear();
      shown_ = 0;
    }
    if (shown_ == view.Text().size()) return;
    std::string_view piece = std::string_view(view.Text()).substr(shown_);
    // Both ends of a line in two pieces are one.
    if (shown_ > 0 && view.Text()[shown_ - 1] == '\r' && piece.starts_with('\n'))
      piece.remove_prefix(1);
    shown_ = view.Text().size();
    QTextCursor cursor(edit_.document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(QString::fromUtf8(piece.data(), static_cast<qsizetype>(piece.size())));
    edit_.verticalScrollBar()->setValue(edit_.verticalScrollBar()->maximum());
  }

 private:
  QPlainTextEdit& edit_;
  int clearings_ = 0;
  std::size_t shown_ = 0;  ///< octets of the text
};

Bound BindKind(TextView& view, const BindOptions&, QWidget* parent) {
  auto* widget = new QPlainTextEdit(parent);
  widget->setReadOnly(true);
  widget->setUndoRedoEnabled(false);
  widget->setLineWrapMode(QPlainTextEdit::NoWrap);
  widget->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  return {widget, [widget, &view, text = std::make_shared<GrowingText>(*widget)] {
            FollowFace(*widget, view.face);
            text->Follow(view);
          }};
}

QString RowText(const BindOptions& options, const ListRow& row) {
  return options.rowText ? options.rowText(row) : ToQt(row.text);
}

Bound BindKind(ComboBox& box, const BindOptions& options, QWidget* parent) {
  auto* widget = new QComboBox(parent);
  QObject::connect(
      widget, &QComboBox::currentIndexChanged, widget,
      [&box, guard = options.guard](int row) { guard([&] { box.SetPosition(row); }); });
  return {widget, [widget, &box, options] {
            FollowFace(*widget, box.face);
            const QSignalBlocker blocker(widget);
            const auto& rows = box.Rows();
            while (widget->count() > static_cast<int>(rows.size()))
              widget->removeItem(widget->count() - 1);
            for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
              const QString text = RowText(options, rows[static_cast<std::size_t>(i)]);
              if (i == widget->count()) widget->addItem(text);
              if (widget->itemText(i) != text) widget->setItemText(i, text);
            }
            if (widget->currentIndex() != box.Position()) widget->setCurrentIndex(box.Position());
            widget->setToolTip(options.rowText ? widget->currentText() : QString());
          }};
}

/// Brings the rows of a list widget up to those of a control, touching only what differs.
void FollowRows(QListWidget& widget, const std::vector<ListRow>& rows) {
  while (widget.count() > static_cast<int>(rows.size())) delete widget.takeItem(widget.count() - 1);
  for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
    const QString text = ToQt(rows[static_cast<std::size_t>(i)].text);
    if (i == widget.count()) widget.addItem(text);
    if (widget.item(i)->text() != text) widget.item(i)->setText(text);
  }
}

/// Runs something when Enter is pressed in a list.
template <class Run>
void OnEnter(QWidget& widget, const Run& run) {
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* shortcut = new QShortcut(QKeySequence(key), &widget);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &widget, run);
  }
}

/// An open list of several columns.
Bound BindTable(ListBox& box, const BindOptions& options, QWidget* parent) {
  auto* widget = new QTableWidget(parent);
  const auto doubleClick = [widget, &box, guard = options.guard] {
    guard([&] { box.DoubleClick(widget->currentRow()); });
  };
  widget->setColumnCount(static_cast<int>(options.columns.size()));
  widget->setHorizontalHeaderLabels(options.columns);
  widget->setEditTriggers(QAbstractItemView::NoEditTriggers);
  widget->setSelectionBehavior(QAbstractItemView::SelectRows);
  widget->setSelectionMode(QAbstractItemView::SingleSelection);
  widget->setTabKeyNavigation(false);
  widget->verticalHeader()->hide();
  widget->verticalHeader()->setDefaultSectionSize(24);
  widget->horizontalHeader()->setStretchLastSection(true);
  QObject::connect(
      widget, &QTableWidget::currentCellChanged, widget,
      [&box, guard = options.guard](int row) { guard([&] { box.SetPosition(row); }); });
  QObject::connect(widget, &QTableWidget::cellDoubleClicked, widget, doubleClick);
  OnEnter(*widget, doubleClick);
  return {widget, [widget, &box, cells = options.cells] {
            FollowFace(*widget, box.face);
            const QSignalBlocker blocker(widget);
            const auto& rows = box.Rows();
            widget->setRowCount(static_cast<int>(rows.size()));
            for (int row = 0; row < widget->rowCount(); ++row) {
              const QStringList texts = cells(rows[static_cast<std::size_t>(row)]);
              for (int column = 0; column < widget->columnCount(); ++column) {
                const QTableWidgetItem* item = widget->item(row, column);
                if (!item || item->text() != texts.value(column))
                  widget->setItem(row, column, new QTableWidgetItem(texts.value(column)));
              }
            }
            if (widget->currentRow() != box.Position())
              widget->setCurrentCell(box.Position(), box.Position() < 0 ? -1 : 0);
            for (int column = 0; column + 1 < widget->columnCount(); ++column)
              widget->resizeColumnToContents(column);
          }};
}

/// Lets the operator move the rows of a list, by drag and by Alt with the arrow keys.
void LetMove(QListWidget& widget, ListBox& box, const Guard& guard) {
  widget.setDragDropMode(QAbstractItemView::InternalMove);
  QObject::connect(widget.model(), &QAbstractItemModel::rowsMoved, &widget,
                   [&box, guard](const QModelIndex&, int row, int, const QModelIndex&, int before) {
                     guard([&] { box.Move(row, before > row ? before - 1 : before); });
                   });
  for (const auto& [key, step] : {std::pair{Qt::Key_Up, -1}, std::pair{Qt::Key_Down, 1}}) {
    auto* shortcut = new QShortcut(QKeySequence(Qt::AltModifier | key), &widget);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &widget, [&box, guard, way = step] {
      guard([&] { box.Move(box.Position(), box.Position() + way); });
    });
  }
}

Bound BindKind(ListBox& box, const BindOptions& options, QWidget* parent) {
  if (options.cells) return BindTable(box, options, parent);
  auto* widget = new QListWidget(parent);
  const auto doubleClick = [widget, &box, guard = options.guard] {
    guard([&] { box.DoubleClick(widget->currentRow()); });
  };
  QObject::connect(
      widget, &QListWidget::currentRowChanged, widget,
      [&box, guard = options.guard](int row) { guard([&] { box.SetPosition(row); }); });
  QObject::connect(widget, &QListWidget::itemDoubleClicked, widget, doubleClick);
  OnEnter(*widget, doubleClick);
  if (box.isOrdered) LetMove(*widget, box, options.guard);
  return {widget, [widget, &box] {
            FollowFace(*widget, box.face);
            const QSignalBlocker blocker(widget);
            FollowRows(*widget, box.Rows());
            if (widget->currentRow() != box.Position()) widget->setCurrentRow(box.Position());
          }};
}

Bound BindKind(MultiListBox& box, const BindOptions& options, QWidget* parent) {
  auto* widget = new QListWidget(parent);
  QObject::connect(
      widget, &QListWidget::itemChanged, widget,
      [widget, &box, guard = options.guard](QListWidgetItem* item) {
        guard([&] { box.SetSelected(widget->row(item), item->checkState() == Qt::Checked); });
      });
  return {widget, [widget, &box] {
            FollowFace(*widget, box.face);
            const QSignalBlocker blocker(widget);
            FollowRows(*widget, box.Rows());
            for (int i = 0; i < widget->count(); ++i)
              widget->item(i)->setCheckState(box.Selected(i) ? Qt::Checked : Qt::Unchecked);
          }};
}

Bound BindKind(TimePicker& picker, const BindOptions& options, QWidget* parent) {
  auto* widget = new QTimeEdit(parent);
  widget->setDisplayFormat("HH:mm:ss");
  QObject::connect(widget, &QTimeEdit::timeChanged, widget,
                   [&picker, guard = options.guard](QTime time) {
                     guard([&] { picker.SetValue({time.msecsSinceStartOfDay() / 1000}); });
                   });
  return {widget, [widget, &picker] {
            FollowFace(*widget, picker.face);
            const QSignalBlocker blocker(widget);
            const int seconds = std::clamp(picker.Value().seconds, 0, kSecondsOfDay - 1);
            widget->setTime(QTime::fromMSecsSinceStartOfDay(seconds * 1000));
          }};
}

Bound BindKind(ProgressBar& bar, const BindOptions&, QWidget* parent) {
  auto* widget = new QProgressBar(parent);
  return {widget, [widget, &bar] {
            FollowFace(*widget, bar.face);
            // A maximum of 0 would turn the bar into a busy sign.
            widget->setMaximum(std::max(bar.Maximum(), 1));
            widget->setValue(std::clamp(bar.Value(), 0, widget->maximum()));
          }};
}

Bound BindKind(Picture& picture, const BindOptions& options, QWidget* parent) {
  Bound bound = options.pictureView(picture, parent);
  return {bound.widget, [bound, &picture] {
            FollowFace(*bound.widget, picture.face);
            if (bound.follow) bound.follow();
          }};
}

Bound BindKind(TabStrip& tabs, const BindOptions&, QWidget* parent) {
  auto* widget = new QStackedWidget(parent);
  return {widget, [widget, &tabs] {
            FollowFace(*widget, tabs.face);
            widget->setCurrentIndex(tabs.Tab());
          }};
}

Bound BindKind(DigitBox& box, const BindOptions&, QWidget* parent) {
  return BindReadout(box, parent);
}

Bound BindKind(ReadoutLine& line, const BindOptions&, QWidget* parent) {
  return BindReadout(line, parent);
}

Bound BindKind(LedMedio& lamp, const BindOptions&, QWidget* parent) {
  return BindReadout(lamp, parent);
}

Bound BindKind(LimitBar& bar, const BindOptions&, QWidget* parent) {
  return BindReadout(bar, parent);
}

Bound BindKind(TabRow& row, const BindOptions& options, QWidget* parent) {
  auto* widget = new QTabBar(parent);
  widget->setExpanding(false);
  widget->setDrawBase(false);
  QObject::connect(widget, &QTabBar::currentChanged, widget,
                   [&row, guard = options.guard](int tab) { guard([&] { row.Choose(tab); }); });
  return {widget, [widget, &row] {
            FollowFace(*widget, row.face);
            const QSignalBlocker blocker(widget);
            const auto& tabs = row.Tabs();
            while (widget->count() > static_cast<int>(tabs.size())) widget->removeTab(0);
            for (int i = 0; i < static_cast<int>(tabs.size()); ++i) {
              const TabRow::Tab& tab = tabs[static_cast<std::size_t>(i)];
              if (i == widget->count()) widget->addTab(QString());
              widget->setTabText(i, EscapedCaption(ToQt(tab.caption)));
              widget->setTabVisible(i, tab.visible);
            }
            widget->setCurrentIndex(row.Chosen());
          }};
}

Bound BindKind(Timer&, const BindOptions&, QWidget*) { return {}; }

}  // namespace

Bound Bind(const ControlRef& control, const BindOptions& options, QWidget* parent) {
  Bound bound = std::visit([&](auto* typed) { return BindKind(*typed, options, parent); }, control);
  if (!bound.widget) return bound;
  bound.widget->setObjectName(ToQt(FaceOf(control).Name()));
  bound.follow();
  return bound;
}

}  // namespace ostrel
