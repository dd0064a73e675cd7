#include "desktop/layouts/parts/LayoutParts.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QFontMetrics>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>

#include "desktop/forms/Words.h"
#include "desktop/session/TransferMeter.h"

namespace ostrel {
namespace {

constexpr int kFieldFrame = 26;  // what a field needs beside its characters, in pixels

QGridLayout* MakeGrid(QWidget* box) {
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(12, 8, 12, 12);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(6);
  return grid;
}

/// The button that opens the help page.
QWidget* HelpButton(FormView& view) {
  auto* button = static_cast<QAbstractButton*>(view.ShowWithWords("Help", Words::tr("Help")));
  button->setShortcut(QKeySequence::HelpContents);
  button->setProperty("noAccessKey", true);
  return button;
}

}  // namespace

Card MakeCard(FormView& view, const QString& title) {
  auto* box = new QGroupBox(title, &view);
  return {box, MakeGrid(box)};
}

Card MakeCard(FormView& view, std::string_view frame) {
  auto* box = view.Show<QGroupBox>(frame);
  return {box, MakeGrid(box)};
}

void AddField(const Card& card, QWidget* label, QWidget* field, int columns) {
  const int row = card.grid->rowCount();
  const bool isNarrow = field->minimumWidth() == field->maximumWidth();
  card.grid->addWidget(label, row, 0);
  card.grid->addWidget(field, row, 1, 1, columns, isNarrow ? Qt::AlignLeft : Qt::Alignment());
}

QWidget* OptionBox(FormView& view, std::initializer_list<std::string_view> options, int columns,
                   const ControlNames& names) {
  auto* box = new QWidget(&view);
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(14);
  grid->setVerticalSpacing(4);
  int place = 0;
  for (const std::string_view option : options) {
    grid->addWidget(view.Show(names(option)), place / columns, place % columns);
    ++place;
  }
  grid->setColumnStretch(columns, 1);
  return box;
}

QWidget* Joined(FormView& view, std::initializer_list<QWidget*> widgets,
                Qt::Orientation orientation, bool stretchEnd) {
  auto* box = new QWidget(&view);
  auto* layout = new QBoxLayout(
      orientation == Qt::Horizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, box);
  layout->setContentsMargins(0, 0, 0, 0);
  for (QWidget* widget : widgets) layout->addWidget(widget);
  if (stretchEnd) layout->addStretch(1);
  return box;
}

QVBoxLayout* MakeSheet(FormView& view, const QString& untitled) {
  auto* page = new QVBoxLayout(&view);
  page->setContentsMargins(16, 12, 16, 16);
  QWidget* heading = view.Heading(untitled);
  page->addWidget(heading);
  if (view.Has("Help")) heading->layout()->addWidget(HelpButton(view));
  return page;
}

QWidget* ProgressPlace(FormView& view) {
  auto* place = new QStackedWidget(&view);
  place->setObjectName("ProgressPlace");
  auto* former = new QWidget(place);
  auto* row = new QHBoxLayout(former);
  row->setContentsMargins(0, 0, 0, 0);
  view.ShowNamed("PBar", Words::tr("Progress"));
  view.Show<QProgressBar>("PBar")->setTextVisible(false);
  row->addWidget(view.Show("PBar"));
  place->addWidget(former);
  place->addWidget(view.Own(new TransferMeter(place)));
  place->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  place->setMinimumWidth(kNarrowBar);
  return place;
}

QHBoxLayout* EndButtons(QWidget* accept, QWidget* leave) {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  row->addWidget(accept);
  row->addWidget(leave);
  static_cast<QPushButton*>(accept)->setDefault(true);
  return row;
}

QLabel* UnitBeside(FormView& view, const std::string& control, const std::string& unitBox) {
  auto* label = new QLabel(&view);
  label->setObjectName("Unit of " + ToQt(control));
  label->setTextFormat(Qt::PlainText);
  view.Whenever({control}, [label, face = &FaceOf(view.GetForm()[control])] {
    label->setEnabled(face->Enabled());
  });
  const std::string unit(FaceOf(view.GetForm()[control]).Field().unit);
  if (!unit.empty()) {
    label->setText(Words::tr(unit.c_str()));
  } else if (view.Has(unitBox)) {
    view.Whenever({unitBox}, [label, box = &view.GetForm().Get<TextBox>(unitBox)] {
      label->setText(ToQt(box->Text()));
    });
  }
  return label;
}

QWidget* Narrow(QWidget* field, int characters) {
  field->setFixedWidth(field->fontMetrics().horizontalAdvance(QString(characters, u'0')) +
                       kFieldFrame);
  return field;
}

}  // namespace ostrel
