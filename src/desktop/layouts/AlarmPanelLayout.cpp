#include "desktop/layouts/AlarmPanelLayout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/LayoutParts.h"

namespace ostrel {
namespace {

void LayOutThreshold(FormView& view, const Card& card, const ThresholdWords& threshold) {
  QLabel* label = threshold.words.isEmpty()
                      ? view.LabelFor(threshold.control, "Label" + std::string(threshold.control))
                      : view.LabelFor(threshold.control, threshold.words);
  QWidget* box = Narrow(view.Show(threshold.control), 12);
  if (!threshold.beside.empty())
    box = Joined(view, {box, view.Show(threshold.beside)}, Qt::Horizontal, true);
  AddField(card, label, box);
}

Card CauseCard(FormView& view, const std::vector<ThresholdWords>& thresholds) {
  const Card card = MakeCard(view, Words::tr("Alarm"));
  card.grid->addWidget(view.Show("AlarmaHabil"), 0, 0, 1, 2);
  AddField(card, view.LabelFor("TextoAlarma", Words::tr("Text:")), view.Show("TextoAlarma"));
  for (const ThresholdWords& threshold : thresholds) LayOutThreshold(view, card, threshold);
  if (view.Has("FlagCombo")) {
    QLabel* label = view.LabelFor("FlagCombo", std::string_view("LabelFlag"));
    AddField(card, label,
             Joined(view, {Narrow(view.Show("FlagCombo"), 8), view.Show("LabelTrue")},
                    Qt::Horizontal, true));
  }
  card.grid->setColumnStretch(1, 1);
  card.grid->setRowStretch(card.grid->rowCount(), 1);
  return card;
}

Card NotificationCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Notification"));
  card.grid->addWidget(OptionBox(view, {"NotSMS", "NotVoz", "NotGPRS", "NotNone"}, 1), 0, 0);
  card.grid->addWidget(view.Show("RestHabil"), 1, 0);
  card.grid->addWidget(view.Show("ReenvHabil"), 2, 0);
  card.grid->setRowStretch(3, 1);
  return card;
}

Card ValidityCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Validity"));
  card.grid->addWidget(view.Show("HorarioHabil"), 0, 0, 1, 2);
  AddField(card, view.LabelFor("HoraInicio", std::string_view("LabelInicio")),
           Narrow(view.Show("HoraInicio"), 11));
  AddField(card, view.LabelFor("HoraFinal", std::string_view("LabelFinal")),
           Narrow(view.Show("HoraFinal"), 11));
  auto* days = new QWidget(&view);
  auto* grid = new QGridLayout(days);
  grid->setContentsMargins(0, 4, 0, 0);
  int day = 0;
  for (const auto* name :
       {"CheckLun", "CheckMar", "CheckMie", "CheckJue", "CheckVie", "CheckSab", "CheckDom"}) {
    grid->addWidget(view.Show(name), day / 4, day % 4);
    ++day;
  }
  grid->setHorizontalSpacing(14);
  grid->setColumnStretch(4, 1);
  card.grid->addWidget(days, 3, 0, 1, 2);
  card.grid->setColumnStretch(1, 1);
  card.grid->setRowStretch(4, 1);
  return card;
}

Card ActionCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Actions"));
  int column = 0;
  for (const auto* name : {"BotonAlto", "BotonNormal", "BotonBajo"})
    if (view.Has(name)) card.grid->addWidget(view.Show(name), 0, column++);
  card.grid->setColumnStretch(column, 1);
  return card;
}

}  // namespace

QWidget* LayOutAlarmPanel(FormView& view, const std::vector<ThresholdWords>& thresholds) {
  auto* panel = new QWidget(&view);
  auto* column = new QVBoxLayout(panel);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(OptionBox(view, {"Config0", "Config1", "Config2", "Config3"}, 4));
  auto* row = new QHBoxLayout;
  row->addWidget(CauseCard(view, thresholds).box, 5);
  row->addWidget(NotificationCard(view).box, 3);
  row->addWidget(ValidityCard(view).box, 4);
  column->addLayout(row);
  column->addWidget(ActionCard(view).box);
  return panel;
}

}  // namespace ostrel
