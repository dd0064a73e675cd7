#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTableWidget>

#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"

// The page of a test run. Its operator stands at the fixture, two metres away.

namespace ostrel {
namespace {

constexpr int kStepHeight = 150;  // of two lines of the step, in pixels
constexpr int kTableRow = 32;
constexpr const char* kGoodMark = "\u2714 ";
constexpr const char* kBadMark = "\u2718 ";

enum ValueColumn { kValueName, kValueRead, kValueBand, kValueResult };

/// Shows the values that failed on red.
class ValueDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (!index.siblingAtColumn(kValueResult).data().toString().startsWith(kBadMark)) return;
    constexpr const char* kRed = "#c92a2a";
    option->backgroundBrush = QColor(kRed);
    option->palette.setColor(QPalette::Highlight, QColor(kRed));
    for (const QPalette::ColorRole text : {QPalette::Text, QPalette::HighlightedText})
      option->palette.setColor(text, Qt::white);
  }
};

/// Shows a widget in the large letters that the style sheet has for a part of this page.
QWidget* Large(QWidget* widget, const char* part) {
  widget->setProperty("testPart", part);
  return widget;
}

/// What the run does, and at its end the verdict on its colour.
QWidget* StepBox(FormView& view) {
  auto* step = view.Show<QLabel>("LabelTest");
  Large(step, "step");
  step->setWordWrap(true);
  step->setAlignment(Qt::AlignCenter);
  step->setFixedHeight(kStepHeight);
  step->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  view.Whenever({"LabelTest"}, [step, face = &FaceOf(view.GetForm()["LabelTest"])] {
    const QString verdict = face->Colour() == BackColour::Green ? "passed"
                            : face->Colour() == BackColour::Red ? "failed"
                                                                : "none";
    if (step->property("verdict").toString() == verdict) return;
    step->setProperty("verdict", verdict);
    step->style()->unpolish(step);
    step->style()->polish(step);
  });
  return step;
}

QLayout* ButtonRow(FormView& view) {
  auto* row = new QHBoxLayout;
  view.Show("Command1")->setProperty("primary", true);
  for (const auto* name : {"Command1", "CommandStop", "Command2", "Check1"})
    if (view.Has(name)) row->addWidget(Large(view.Show(name), "button"));
  row->addStretch(1);
  return row;
}

/// What the session knows of the board.
QWidget* Digits(FormView& view) {
  const Card card = MakeCard(view, QString());
  int column = 0;
  for (const auto& [label, digit] :
       {std::pair{"LabelVin", "DigitVin"}, std::pair{"LabelSerial", "DigitSerial"}}) {
    card.grid->addWidget(Large(view.Show(label), "button"), 0, column++);
    card.grid->addWidget(Large(view.Show(digit), "digits"), 0, column++);
    card.grid->setColumnStretch(column - 1, 1);
  }
  card.grid->addWidget(Large(view.LabelFor("ProgressBar1", std::string_view("LabelGsm")), "button"),
                       0, column++);
  card.grid->addWidget(view.Show("ProgressBar1"), 0, column);
  card.grid->setColumnStretch(column, 1);
  return card.box;
}

QWidget* Hints(FormView& view) {
  auto* box = new QWidget(&view);
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(view.LabelFor("TextOperator", std::string_view("LabelOperator")));
  row->addWidget(view.Show("TextOperator"), 1);
  row->addWidget(view.LabelFor("TextStation", std::string_view("LabelStation")));
  row->addWidget(view.Show("TextStation"), 1);
  for (const auto* name : {"Label1", "Label2", "Picture1"})
    if (view.Has(name)) row->addWidget(Large(view.Show(name), "button"));
  return box;
}

QWidget* ValueTable(FormView& view) {
  view.SetColumns(
      "Values", {Words::tr("Value"), Words::tr("Measured"), Words::tr("Band"), Words::tr("Result")},
      [](const ListRow& row) {
        QStringList cells = ToQt(row.text).split(u'\t');
        cells[kValueBand] = Words::tr(cells[kValueBand].toUtf8());  // one of them has a word
        return cells << (row.value != 0 ? kGoodMark + Words::tr("good")
                                        : kBadMark + Words::tr("FAILED"));
      });
  auto* table = static_cast<QTableWidget*>(view.ShowNamed("Values", Words::tr("Measured values")));
  Large(table, "table");
  table->setItemDelegate(new ValueDelegate(table));
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  table->verticalHeader()->setDefaultSectionSize(kTableRow);
  table->setMinimumHeight(5 * kTableRow);
  return table;
}

}  // namespace

void LayOutTest(FormView& view) {
  auto* page = new QVBoxLayout(&view);
  page->setContentsMargins(16, 12, 16, 16);
  view.Show("Titulo")->setObjectName("Heading");
  page->addWidget(view.Show("Titulo"));
  page->addWidget(StepBox(view));
  page->addLayout(ButtonRow(view));
  page->addWidget(Digits(view));
  page->addWidget(ValueTable(view), 1);
  page->addWidget(Hints(view));
}

}  // namespace ostrel
