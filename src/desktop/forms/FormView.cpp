#include "desktop/forms/FormView.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QStyle>
#include <QTimeEdit>
#include <utility>

#include "base/Values.h"
#include "controls/NumberBox.h"
#include "desktop/forms/AccessKeys.h"
#include "desktop/forms/NoteBubble.h"
#include "desktop/forms/NoteMark.h"
#include "desktop/forms/PictureView.h"
#include "desktop/forms/Words.h"

namespace ostrel {

FormView::FormView(Form& form, Guard guard, QWidget* parent)
    : QWidget(parent),
      form_(form),
      guard_(std::move(guard)),
      bubble_(new NoteBubble(this)),
      seen_(Look()) {
  setObjectName(ToQt(form.Name()));
  form_.OnChanged = [this] { FollowForm(); };
}

FormView::~FormView() { Detach(); }

void FormView::Detach() {
  if (std::exchange(detached_, true)) return;
  for (const auto& [name, bound] : bound_) FaceOf(form_[name]).OnChanged = nullptr;
  bound_.clear();
  form_.OnChanged = nullptr;
}

QWidget* FormView::Show(std::string_view control) {
  if (QWidget* widget = WidgetOf(control)) return widget;
  const auto rowText = rowTexts_.find(control);
  BindOptions options{.guard = guard_,
                      .rowText = rowText == rowTexts_.end() ? nullptr : rowText->second,
                      .pictureView = MakePictureView};
  if (const auto columns = columns_.find(control); columns != columns_.end()) {
    options.columns = columns->second.names;
    options.cells = columns->second.cells;
  }
  const ControlRef ref = form_[control];
  const Bound bound = Bind(ref, options, this);
  bound_.emplace(control, bound);
  FaceOf(ref).OnChanged = [this, name = std::string(control)] {
    Follow(name);
    if (OnControlChanged) OnControlChanged();
  };
  if (!bound.widget) return nullptr;
  if (qobject_cast<QComboBox*>(bound.widget) || qobject_cast<QTimeEdit*>(bound.widget))
    bound.widget->setFocusPolicy(Qt::StrongFocus);
  if (bound.widget->focusPolicy() != Qt::NoFocus) bound.widget->installEventFilter(this);
  ShowNote(control);
  return bound.widget;
}

QWidget* FormView::WidgetOf(std::string_view control) const {
  const auto found = bound_.find(control);
  return found == bound_.end() ? nullptr : found->second.widget;
}

QLabel* FormView::LabelFor(std::string_view control, const QString& text) {
  auto* label = new QLabel(text, this);
  QWidget* widget = Show(control);
  label->setBuddy(widget);
  QString name = text;
  widget->setAccessibleName(name.remove(u':'));
  companions_[std::string(control)].push_back(label);
  Follow(control);
  return label;
}

QLabel* FormView::LabelFor(std::string_view control, std::string_view label) {
  auto* shown = Show<QLabel>(label);
  QWidget* widget = Show(control);
  shown->setBuddy(widget);
  QString name = ToQt(FaceOf(form_[label]).Caption());
  widget->setAccessibleName(name.remove(u':'));
  labels_.emplace(control, label);
  Follow(label);
  return shown;
}

QWidget* FormView::ShowWithWords(std::string_view control, const QString& text) {
  auto* button = Show<QAbstractButton>(control);
  button->setText(EscapedCaption(text));
  button->setAccessibleName(text);
  return button;
}

QWidget* FormView::ShowNamed(std::string_view control, const QString& accessibleName) {
  QWidget* widget = Show(control);
  widget->setAccessibleName(accessibleName);
  return widget;
}

void FormView::Whenever(std::initializer_list<std::string_view> controls,
                        std::function<void()> run) {
  for (const std::string_view control : controls) {
    Show(control);
    whenever_.emplace(control, run);
  }
  run();
}

void FormView::SetRowText(std::string_view control,
                          std::function<QString(const ListRow&)> rowText) {
  rowTexts_.emplace(control, std::move(rowText));
}

void FormView::SetColumns(std::string_view control, const QStringList& columns,
                          std::function<QStringList(const ListRow&)> cells) {
  columns_.emplace(control, Columns{columns, std::move(cells)});
}

QWidget* FormView::Heading(const QString& untitled) {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  heading_ = new QLabel(bar);
  heading_->setObjectName("Heading");
  heading_->setTextFormat(Qt::PlainText);
  untitled_ = untitled;
  row->addWidget(heading_, 1);
  return bar;
}

void FormView::Finish() {
  finished_ = true;
  AssignAccessKeys(*this);
  if (heading_) heading_->setText(form_.Title().empty() ? untitled_ : ToQt(form_.Title()));
  setEnabled(form_.Enabled());
}

void FormView::Follow(std::string_view control) {
  const auto found = bound_.find(control);
  if (found == bound_.end() || !found->second.follow) return;
  QWidget* widget = found->second.widget;
  const QString before = widget->accessibleName();
  found->second.follow();
  ShowNote(control);
  if (const auto labels = companions_.find(control); labels != companions_.end()) {
    const Face& face = FaceOf(form_[control]);
    for (QLabel* label : labels->second) {
      label->setEnabled(face.Enabled());
      label->setVisible(face.Visible());
    }
  }
  if (const auto label = labels_.find(control); label != labels_.end()) Follow(label->second);
  const auto [first, last] = whenever_.equal_range(control);
  for (auto run = first; run != last; ++run) run->second();
  if (finished_ && widget->accessibleName() != before) AssignAccessKeys(*this);
}

void FormView::FollowForm() {
  if (heading_) heading_->setText(form_.Title().empty() ? untitled_ : ToQt(form_.Title()));
  setEnabled(form_.Enabled());
  const Seen before = std::exchange(seen_, Look());
  // A form that tells of a change and shows none was asked to give the same control the focus.
  if (seen_.focus != before.focus || seen_ == before) {
    if (QWidget* widget = WidgetOf(seen_.focus)) widget->setFocus();
  }
  if (OnFormChanged) OnFormChanged();
}

FormView::Seen FormView::Look() const {
  return {form_.Title(), form_.Focus(), form_.Visible(), form_.Enabled(), form_.MousePointer()};
}

void FormView::SetNotes(std::map<std::string, QString, std::less<>> notes) {
  if (notes == notes_) return;
  const auto former = std::exchange(notes_, std::move(notes));
  for (const auto& [control, note] : former) ShowNote(control);
  for (const auto& [control, note] : notes_) ShowNote(control);
}

namespace {

/// What is told of a box whose text is not what it takes, or is kept as something else.
QString NoteOnNumber(const TextBox& box) {
  const bool isRed = box.face.Colour() == BackColour::Red;
  if (isRed && box.NumberKind() == kAddressKind)
    return Words::tr(
        "This is not an address: write four numbers from 0 to 255 with points between them, or 0 "
        "for none.");
  const TextBox::KeptNumber kept = box.Kept ? box.Kept() : TextBox::KeptNumber{};
  if (!isRed && !kept.isOther) return {};
  QString note = isRed ? Words::tr("This is not a number of the kind expected here.")
                       : Words::tr("This number does not fit here.");
  if (box.Kept) note += ' ' + Words::tr("%1 is kept.").arg(ToQt(kept.text).trimmed());
  return note;
}

}  // namespace

QString FormView::NoteOf(std::string_view control) const {
  QStringList notes;
  const ControlRef ref = form_[control];
  if (auto* const* box = std::get_if<TextBox*>(&ref))
    if (const QString note = NoteOnNumber(**box); !note.isEmpty()) notes << note;
  if (const auto note = notes_.find(control); note != notes_.end()) notes << note->second;
  return notes.join(u' ');
}

void FormView::ShowNote(std::string_view control) {
  QWidget* widget = WidgetOf(control);
  if (!widget) return;
  const QString note = NoteOf(control);
  const bool isNoted = !note.isEmpty();
  const QString wasNoted = widget->property("noted").toBool() ? widget->toolTip() : QString();
  if (isNoted || widget->property("noted").toBool()) {
    widget->setToolTip(note);
    widget->setAccessibleDescription(note);
  }
  // Words of boxes to check are coloured by the sheet; all else gets an outline.
  const bool hasOutline = !qobject_cast<QCheckBox*>(widget) && !qobject_cast<QRadioButton*>(widget);
  const bool wasMarked = widget->property("noted").toBool();
  widget->setProperty("noted", isNoted);
  if (hasOutline && (isNoted || wasMarked)) {
    const QColor colour(widget->property("bad").toBool() ? "#e03131" : "#d97706");
    NoteMark::Set(*widget, isNoted ? colour : QColor());
  } else if (wasMarked != isNoted) {
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
  }
  if (widget->hasFocus()) bubble_->Tell(*widget, note);
  if (OnNotesChanged && wasNoted != note) OnNotesChanged();
}

QStringList FormView::Notes() const {
  QStringList notes;
  for (const auto& [control, bound] : bound_) {
    const QString note =
        bound.widget && bound.widget->isVisibleTo(this) ? NoteOf(control) : QString();
    if (note.isEmpty()) continue;
    const QString name = bound.widget->accessibleName();
    notes << (name.isEmpty() ? note : name + ": " + note);
  }
  return notes;
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
  const auto* widget = qobject_cast<QWidget*>(watched);
  if (widget && event->type() == QEvent::FocusIn)
    bubble_->Tell(*widget, NoteOf(FromQt(widget->objectName())));
  if (event->type() == QEvent::FocusOut) bubble_->hide();
  const bool isBox =
      qobject_cast<const QComboBox*>(widget) || qobject_cast<const QTimeEdit*>(widget);
  if (event->type() != QEvent::Wheel || !isBox) return QWidget::eventFilter(watched, event);
  if (widget->hasFocus()) return false;
  event->ignore();
  return true;
}

}  // namespace ostrel
