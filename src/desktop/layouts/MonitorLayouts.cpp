#include <QLabel>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"
#include "tools/live/MonitorParts.h"

namespace ostrel {
namespace {

constexpr int kBetweenMeasures = 14;  // pixels from one column of values to the next
constexpr int kNameWidth = 70;        // pixels that a name has at the least

/// A text that takes what room there is.
QWidget* Elastic(FormView& view, const std::string& text) {
  QWidget* shown = view.Show(text);
  shown->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  shown->setMinimumWidth(kNameWidth);
  return shown;
}

/// A label that does so; the whole of a long one is told at it.
QWidget* ElasticLabel(FormView& view, const std::string& label) {
  auto* shown = static_cast<QLabel*>(Elastic(view, label));
  view.Whenever({label}, [shown] { shown->setToolTip(shown->text()); });
  return shown;
}

/// Names a readout after the label beside it, with words of the window where the logger has none.
void NameAfter(FormView& view, const std::string& readout, const std::string& label,
               const QString& otherwise) {
  QWidget* widget = view.Show(readout);
  const Face& face = FaceOf(view.GetForm()[label]);
  view.Whenever({label}, [widget, &face, otherwise] {
    widget->setAccessibleName(face.Caption().empty() ? otherwise : ToQt(face.Caption()));
  });
}

/// The number of a row, which is shown as long as its value is.
QLabel* RowNumber(FormView& view, const std::string& readout, int index) {
  auto* number = new QLabel(QString::number(index), &view);
  number->setForegroundRole(QPalette::PlaceholderText);
  const Face& face = FaceOf(view.GetForm()[readout]);
  view.Whenever({readout}, [number, &face] { number->setVisible(face.Visible()); });
  return number;
}

/// A measured value in the columns of a grid from `column` on; gives the column behind it.
int AddMeasure(FormView& view, QGridLayout& grid, int row, int column, std::string_view family,
               int index) {
  const std::string name = ControlName("Label_", family, "_Name", index);
  const std::string digit = ControlName("Digit_", family, "", index);
  QLabel* number = RowNumber(view, digit, index);
  if (column > 0) number->setIndent(kBetweenMeasures);
  grid.addWidget(number, row, column++);
  grid.addWidget(ElasticLabel(view, name), row, column);
  grid.setColumnStretch(column++, 3);
  NameAfter(view, digit, name, QString("%1 %2").arg(ToQt(family)).arg(index));
  grid.addWidget(view.Show(digit), row, column++);
  if (const std::string unit = ControlName("Label_", family, "_Unit", index); view.Has(unit))
    grid.addWidget(view.Show(unit), row, column++);
  if (const std::string bar = ControlName("Bar_", family, "", index); view.Has(bar)) {
    grid.addWidget(view.Show(bar), row, column);
    grid.setColumnStretch(column++, 2);
  }
  return column;
}

Card MeasureCard(FormView& view, std::string_view frame, std::string_view family, int count,
                 int columns = 1) {
  const Card card = MakeCard(view, frame);
  const int rows = (count + columns - 1) / columns;
  int column = 0;
  for (int first = 0; first < count; first += rows) {
    int next = column;
    for (int i = first; i < std::min(first + rows, count); ++i)
      next = AddMeasure(view, *card.grid, i - first, column, family, i);
    column = next;
  }
  card.grid->setVerticalSpacing(2);
  return card;
}

/// Lamps with their labels behind them, in rows of `columns`.
QWidget* LampGrid(FormView& view, std::string_view lamp, std::string_view label, int columns) {
  auto* box = new QWidget(&view);
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(3);
  for (int i = 0; view.Has(ControlName(lamp, i)); ++i) {
    NameAfter(view, ControlName(lamp, i), ControlName(label, i), {});
    auto* pair = Joined(view, {view.Show(ControlName(lamp, i)), view.Show(ControlName(label, i))});
    pair->layout()->setSpacing(3);
    grid->addWidget(pair, i / columns, i % columns, Qt::AlignLeft);
  }
  return box;
}

/// The outputs: lamp, label, and the box that asks for a change.
void AddOutputs(FormView& view, QVBoxLayout& column) {
  auto* line = view.Show<QLabel>("Line1");
  line->setFrameShape(QFrame::HLine);
  column.addWidget(line);
  column.addWidget(view.Show("Label3"));
  auto* grid = new QGridLayout;
  for (int i = 0; view.Has(ControlName("Led_O", i)); ++i) {
    NameAfter(view, ControlName("Led_O", i), ControlName("Label2", i), {});
    view.ShowNamed(ControlName("CheckCambiarEstado", i), Words::tr("Switch output %1 over").arg(i));
    auto* output =
        Joined(view, {view.Show(ControlName("Led_O", i)), view.Show(ControlName("Label2", i)),
                      view.Show(ControlName("CheckCambiarEstado", i))});
    output->layout()->setSpacing(3);
    grid->addWidget(output, i / 3, i % 3, Qt::AlignLeft);
  }
  column.addLayout(grid);
}

Card DigitalCard(FormView& view) {
  constexpr int kBesideTitle = 36;
  const Card card = MakeCard(view, std::string_view("Frame2"));
  // Few inputs are narrower than the title.
  view.Whenever({"Frame2"}, [box = card.box] {
    box->setMinimumWidth(box->fontMetrics().horizontalAdvance(box->title()) + kBesideTitle);
  });
  auto* column = new QVBoxLayout;
  column->setSpacing(8);
  column->addWidget(LampGrid(view, "Led_D", "Label1", 5));
  if (view.Has("Led_O(0)")) AddOutputs(view, *column);
  column->addStretch(1);
  card.grid->addLayout(column, 0, 0);
  return card;
}

Card FlagCard(FormView& view) {
  const Card card = MakeCard(view, std::string_view("Frame4"));
  card.grid->addWidget(LampGrid(view, "Led_F", "Label4", 4), 0, 0, Qt::AlignTop);
  return card;
}

Card PulseCard(FormView& view) {
  const Card card = MakeCard(view, std::string_view("Frame3"));
  card.grid->setVerticalSpacing(2);
  for (int i = 0; i < kPulseRows; ++i) {
    const int flow = AddMeasure(view, *card.grid, i, 0, "CNT", i);
    AddMeasure(view, *card.grid, i, flow, "FL", i);
  }
  return card;
}

/// The expansion inputs, each a line of text with its bar, in columns.
QWidget* ModuleList(FormView& view) {
  constexpr int kColumns = 4;
  constexpr int kRows = kModuleLines / kColumns;
  auto* box = new QWidget(&view);
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(2);
  for (int i = 0; i < kModuleLines; ++i) {
    const int row = i % kRows;
    const int column = i / kRows * 3;
    grid->addWidget(RowNumber(view, ControlName("LabelModulo", i), i), row, column);
    grid->addWidget(Elastic(view, ControlName("LabelModulo", i)), row, column + 1);
    grid->addWidget(view.Show(ControlName("Bar_EX", i)), row, column + 2);
    grid->setColumnStretch(column + 1, 2);
    grid->setColumnStretch(column + 2, 1);
  }
  return box;
}

QWidget* Scrolled(QWidget* content) {
  auto* scroll = new QScrollArea;
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setWidget(content);
  scroll->setFocusPolicy(Qt::NoFocus);
  return scroll;
}

QWidget* MathSheet(FormView& view) {
  return Joined(view,
                {MeasureCard(view, "FrameCMat", "MAT", kMathRows).box,
                 MeasureCard(view, "FrameRMat", "RMAT", kMathRegisters, 2).box},
                Qt::Vertical, true);
}

QWidget* BusSheet(FormView& view) {
  const Card card = MeasureCard(view, "Frame5", "MB", kModbusRows, 2);
  card.grid->addWidget(ModuleList(view), kModbusRows, 0, 1, -1);
  return Scrolled(Joined(view, {card.box}, Qt::Vertical, true));
}

/// The logger's clock, when it was read last, and the recording.
QHBoxLayout* Status(FormView& view) {
  auto* row = new QHBoxLayout;
  view.Show("RTCText")->setObjectName("Status");
  row->addWidget(view.Show("RTCText"));
  row->addSpacing(16);
  row->addWidget(view.Show("LabelLectura"));
  row->addStretch(1);
  row->addWidget(view.Show("LabelGrabar"));
  row->addWidget(view.Show("BotonGrabar"));
  return row;
}

}  // namespace

void LayOutMonitor(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  page->addLayout(Status(view));
  page->addWidget(view.Show("SSTab1"));
  auto* top = new QHBoxLayout;
  top->addWidget(MeasureCard(view, "Frame1", "AN", kAnalogRows).box, 1);
  top->addWidget(DigitalCard(view).box);
  top->addWidget(FlagCard(view).box);
  auto* general = new QWidget(&view);
  auto* column = new QVBoxLayout(general);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(top);
  column->addWidget(PulseCard(view).box);
  column->addStretch(1);
  auto* tabs = new QStackedWidget(&view);
  for (QWidget* sheet : {general, BusSheet(view), MathSheet(view)}) tabs->addWidget(sheet);
  view.Whenever({"SSTab1"}, [tabs, row = &view.GetForm().Get<TabRow>("SSTab1")] {
    tabs->setCurrentIndex(row->Chosen());
  });
  page->addWidget(tabs, 1);
}

void LayOutCathodicMonitor(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  page->addLayout(Status(view));
  const Card inputs = MeasureCard(view, "Frame1", "AN", kAnalogRows);
  for (int i = 0; i < kAnalogRows; ++i)
    AddMeasure(view, *inputs.grid, kAnalogRows + i, 0, "AUX", i);
  auto* top = new QHBoxLayout;
  top->addWidget(inputs.box, 1);
  top->addWidget(Joined(view, {DigitalCard(view).box, FlagCard(view).box}, Qt::Vertical, true));
  page->addLayout(top);
  page->addWidget(MathSheet(view));
  page->addStretch(1);
}

}  // namespace ostrel
