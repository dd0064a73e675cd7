#include "desktop/forms/Binder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QStyle>
#include <QTimeEdit>
#include <algorithm>

#include "base/Values.h"
#include "desktop/forms/AccessKeys.h"
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
void FollowCaption(Widget& widget, const Face& face) {
  const QString caption = ToQt(face.Caption());
  if (WithoutAccessKey(widget.text()) == caption) return;
  widget.setText(EscapedCaption(caption));
  widget.setAccessibleName(caption);
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
            if (!button.face.Caption().empty()) FollowCaption(*widget, button.face);
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

/// Paints a box of a bad number and says what the number counts as.
void FollowColour(QLineEdit& edit, const TextBox& box) {
  const bool isBad = box.face.Colour() == BackColour::Red;
  const QString reason =
      box.Takes() == TextBox::Kind::Address
          ? Words::tr(
                "This is not an address: write four numbers from 0 to 255 with points between "
                "them, or 0 for none.")
          : Words::tr("This is not a number of the kind expected here. It counts as %1.")
                .arg(ToQt(NumText(NumVal(box.Text()))).trimmed());
  edit.setToolTip(isBad ? reason : QString());
  if (edit.property("bad").toBool() == isBad) return;
  edit.setProperty("bad", isBad);
  edit.style()->unpolish(&edit);
  edit.style()->polish(&edit);
}

Bound BindKind(TextBox& box, const BindOptions& options, QWidget* parent) {
  auto* widget = new QLineEdit(parent);
  QObject::connect(widget, &QLineEdit::textEdited, widget,
                   [&box, guard = options.guard](const QString& text) {
                     guard([&] { box.Type(FromQt(text)); });
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
            widget->setText(text);
            if (!widget->hasFocus()) widget->setCursorPosition(0);  // its beginning is seen
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

Bound BindKind(ListBox& box, const BindOptions& options, QWidget* parent) {
  auto* widget = new QListWidget(parent);
  const auto doubleClick = [widget, &box, guard = options.guard] {
    guard([&] { box.DoubleClick(widget->currentRow()); });
  };
  QObject::connect(
      widget, &QListWidget::currentRowChanged, widget,
      [&box, guard = options.guard](int row) { guard([&] { box.SetPosition(row); }); });
  QObject::connect(widget, &QListWidget::itemDoubleClicked, widget, doubleClick);
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* shortcut = new QShortcut(QKeySequence(key), widget);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, widget, doubleClick);
  }
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
