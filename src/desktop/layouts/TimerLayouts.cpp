#include <QVBoxLayout>
#include <string>

#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"

// The pages of the timers: four cards, one for each timer that they show.

namespace ostrel {
namespace {

constexpr int kSlots = 4;
constexpr int kLastRow = 3;     ///< of a card, where a period stands
constexpr int kTimeWidth = 11;  // characters of a time of day, with the arrows
constexpr int kMonthColumns = 8;

/// The controls of one timer.
struct TimerSlot {
  FormView& view;
  ControlNames names;

  QWidget* Show(std::string_view control) const { return view.Show(names(control)); }
  QLabel* LabelFor(std::string_view control, std::string_view label) const {
    return view.LabelFor(names(control), std::string_view(names(label)));
  }
  QWidget* Time(std::string_view control) const { return Narrow(Show(control), kTimeWidth); }
};

/// Boxes in rows of so many, without margins.
QWidget* InRows(const TimerSlot& slot, const std::vector<std::string>& controls, int columns) {
  auto* box = new QWidget(&slot.view);
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(2);
  int place = 0;
  for (const std::string& control : controls) {
    grid->addWidget(slot.Show(control), place / columns, place % columns);
    ++place;
  }
  grid->setColumnStretch(columns, 1);
  return box;
}

QWidget* WeekRow(const TimerSlot& slot) {
  return InRows(
      slot, {"CheckLun", "CheckMar", "CheckMie", "CheckJue", "CheckVie", "CheckSab", "CheckDom"},
      7);
}

/// A frame of the form with a single row of widgets.
QWidget* FramedRow(const TimerSlot& slot, std::string_view frame,
                   std::initializer_list<QWidget*> widgets) {
  const Card card = MakeCard(slot.view, slot.names(frame));
  card.grid->addWidget(Joined(slot.view, widgets, Qt::Horizontal, true), 0, 0);
  return card.box;
}

/// What stands in a card between the check of the timer and its actions.
using Middle = void (*)(const TimerSlot& slot, QGridLayout& grid);

void CyclicMiddle(const TimerSlot& slot, QGridLayout& grid) {
  QWidget* period = FramedRow(
      slot, "FramePeriodo", {Narrow(slot.Show("Period"), 10), slot.LabelFor("Period", "LabelSeg")});
  const Card range = MakeCard(slot.view, slot.names("FrameHorario"));
  range.grid->addWidget(Joined(slot.view,
                               {slot.Show("HorarioHabil"), slot.LabelFor("HoraInicio", "Label5"),
                                slot.Time("HoraInicio"), slot.LabelFor("HoraFinal", "Label6"),
                                slot.Time("HoraFinal")},
                               Qt::Horizontal, true),
                        0, 0);
  range.grid->addWidget(WeekRow(slot), 1, 0);
  QWidget* flag = Joined(slot.view,
                         {slot.LabelFor("FlagCombo", "LabelFlag"),
                          Narrow(slot.Show("FlagCombo"), 8), slot.Show("LabelTrue")},
                         Qt::Horizontal, true);
  grid.addWidget(range.box, 1, 0, 1, 2);
  grid.addWidget(flag, 2, 0, 1, 2);
  grid.addWidget(period, kLastRow, 0);
}

void LongMiddle(const TimerSlot& slot, QGridLayout& grid) {
  QLabel* label = slot.LabelFor("Period", "LabelCada");
  QWidget* period = Narrow(slot.Show("Period"), 8);
  grid.addWidget(FramedRow(slot, "FrameHorario", {label, period, slot.Show("LabelDias")}), kLastRow,
                 0);
}

void WeeklyMiddle(const TimerSlot& slot, QGridLayout& grid) {
  const Card card = MakeCard(slot.view, slot.names("FrameHorario"));
  QLabel* label = slot.LabelFor("HoraInicio", "Label5");
  card.grid->addWidget(Joined(slot.view, {label, slot.Time("HoraInicio")}, Qt::Horizontal, true), 0,
                       0);
  card.grid->addWidget(WeekRow(slot), 1, 0);
  grid.addWidget(card.box, 1, 0, 1, 2);
}

void MonthlyMiddle(const TimerSlot& slot, QGridLayout& grid) {
  constexpr int kLongestMonth = 31;
  const Card card = MakeCard(slot.view, slot.names("FrameHorario"));
  QLabel* label = slot.LabelFor("HoraInicio", "Label5");
  QWidget* time = slot.Time("HoraInicio");
  std::vector<std::string> days;
  for (int day = 1; day <= kLongestMonth; ++day) days.push_back("Check" + std::to_string(day));
  QWidget* month = InRows(slot, days, kMonthColumns);
  card.grid->addWidget(Joined(slot.view, {label, time, slot.Show("Check32")}, Qt::Horizontal, true),
                       0, 0);
  card.grid->addWidget(month, 1, 0);
  grid.addWidget(card.box, 1, 0, 1, 2);
}

Card TimerCard(const TimerSlot& slot, Middle middle) {
  const Card card = MakeCard(slot.view, slot.names("FrameTimer"));
  card.grid->addWidget(slot.Show("TimerHabil"), 0, 0);
  middle(slot, *card.grid);
  // Beside the period where there is one, else beside the check: so it fits on a small screen.
  const int row = card.grid->itemAtPosition(kLastRow, 0) ? kLastRow : 0;
  card.grid->addWidget(FramedRow(slot, "FrameAcciones", {slot.Show("BotonEditar")}), row, 1);
  card.grid->setColumnStretch(0, 1);
  card.grid->setColumnStretch(1, 1);
  card.grid->setRowStretch(card.grid->rowCount(), 1);
  return card;
}

void LayOutTimers(FormView& view, Middle middle) {
  QVBoxLayout* page = MakeSheet(view);
  auto* cards = new QGridLayout;
  for (int slot = 0; slot < kSlots; ++slot)
    cards->addWidget(TimerCard({view, {.suffix = "(" + std::to_string(slot) + ")"}}, middle).box,
                     slot / 2, slot % 2);
  page->addLayout(cards);
  page->addStretch(1);
}

}  // namespace

void LayOutCyclicTimers(FormView& view) { LayOutTimers(view, CyclicMiddle); }
void LayOutLongTimers(FormView& view) { LayOutTimers(view, LongMiddle); }
void LayOutWeeklyTimers(FormView& view) { LayOutTimers(view, WeeklyMiddle); }
void LayOutMonthlyTimers(FormView& view) { LayOutTimers(view, MonthlyMiddle); }

}  // namespace ostrel
