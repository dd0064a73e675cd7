#include "desktop/layouts/AlarmPanelLayout.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/LayoutParts.h"

namespace ostrel {
namespace {

QLabel* ThresholdLabel(FormView& view, const ThresholdWords& threshold, const ControlNames& names) {
  const std::string control = names(threshold.control);
  if (!threshold.words.isEmpty()) return view.LabelFor(control, threshold.words);
  const std::string label = threshold.label.empty() ? "Label" + std::string(threshold.control)
                                                    : std::string(threshold.label);
  return view.LabelFor(control, std::string_view(names(label)));
}

void LayOutThreshold(FormView& view, const Card& card, const ThresholdWords& threshold,
                     const ControlNames& names) {
  QLabel* label = ThresholdLabel(view, threshold, names);
  QWidget* box = Narrow(view.Show(names(threshold.control)), 12);
  QWidget* unit = UnitBeside(view, names(threshold.control), names("Unidad"));
  if (threshold.beside.empty())
    box = Joined(view, {box, unit}, Qt::Horizontal, true);
  else
    box = Joined(view, {box, view.Show(threshold.beside), unit}, Qt::Horizontal, true);
  AddField(card, label, box);
}

Card CauseCard(FormView& view, const std::vector<ThresholdWords>& thresholds,
               const ControlNames& names) {
  const Card card = MakeCard(view, Words::tr("Alarm"));
  card.grid->addWidget(view.Show(names("AlarmaHabil")), 0, 0, 1, 2);
  AddField(card, view.LabelFor(names("TextoAlarma"), Words::tr("Text:")),
           view.Show(names("TextoAlarma")));
  for (const ThresholdWords& threshold : thresholds) LayOutThreshold(view, card, threshold, names);
  if (view.Has(names("FlagCombo"))) {
    QLabel* label = view.LabelFor(names("FlagCombo"), std::string_view(names("LabelFlag")));
    AddField(card, label,
             Joined(view, {Narrow(view.Show(names("FlagCombo")), 8), view.Show(names("LabelTrue"))},
                    Qt::Horizontal, true));
  }
  card.grid->setColumnStretch(1, 1);
  card.grid->setRowStretch(card.grid->rowCount(), 1);
  return card;
}

Card NotificationCard(FormView& view, const ControlNames& names) {
  const Card card = MakeCard(view, Words::tr("Notification"));
  card.grid->addWidget(OptionBox(view, {"NotSMS", "NotVoz", "NotGPRS", "NotNone"}, 1, names), 0, 0);
  card.grid->addWidget(view.Show(names("RestHabil")), 1, 0);
  card.grid->addWidget(view.Show(names("ReenvHabil")), 2, 0);
  card.grid->setRowStretch(3, 1);
  return card;
}

Card ValidityCard(FormView& view, const ControlNames& names) {
  const Card card = MakeCard(view, Words::tr("Validity"));
  card.grid->addWidget(view.Show(names("HorarioHabil")), 0, 0, 1, 2);
  AddField(card, view.LabelFor(names("HoraInicio"), std::string_view(names("LabelInicio"))),
           Narrow(view.Show(names("HoraInicio")), 11));
  AddField(card, view.LabelFor(names("HoraFinal"), std::string_view(names("LabelFinal"))),
           Narrow(view.Show(names("HoraFinal")), 11));
  auto* days = new QWidget(&view);
  auto* grid = new QGridLayout(days);
  grid->setContentsMargins(0, 4, 0, 0);
  int day = 0;
  for (const auto* name :
       {"CheckLun", "CheckMar", "CheckMie", "CheckJue", "CheckVie", "CheckSab", "CheckDom"}) {
    grid->addWidget(view.Show(names(name)), day / 4, day % 4);
    ++day;
  }
  grid->setHorizontalSpacing(14);
  grid->setColumnStretch(4, 1);
  card.grid->addWidget(days, 3, 0, 1, 2);
  card.grid->setColumnStretch(1, 1);
  card.grid->setRowStretch(4, 1);
  return card;
}

Card ActionCard(FormView& view, const ControlNames& names) {
  const Card card = MakeCard(view, Words::tr("Actions"));
  int column = 0;
  for (const auto* name : {"BotonAlto", "BotonNormal", "BotonBajo"})
    if (view.Has(names(name))) card.grid->addWidget(view.Show(names(name)), 0, column++);
  card.grid->setColumnStretch(column, 1);
  return card;
}

}  // namespace

std::vector<ThresholdWords> LevelThresholdWords(std::string_view beside) {
  return {{"Minimo", Words::tr("Minimum:")},
          {"Maximo", Words::tr("Maximum:")},
          {"Histeresis", Words::tr("Hysteresis:")},
          {"Persist", Words::tr("Persistence:"), beside}};
}

QLabel* LayOutNotice(FormView& view, std::string_view control) {
  auto* notice = view.Show<QLabel>(control);
  notice->setWordWrap(true);
  return notice;
}

QWidget* LayOutAlarmPanel(FormView& view, const std::vector<ThresholdWords>& thresholds,
                          const ControlNames& names) {
  auto* panel = new QWidget(&view);
  auto* column = new QVBoxLayout(panel);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(OptionBox(view, {"Config0", "Config1", "Config2", "Config3"}, 4, names));
  auto* row = new QHBoxLayout;
  row->addWidget(CauseCard(view, thresholds, names).box, 5);
  row->addWidget(NotificationCard(view, names).box, 3);
  row->addWidget(ValidityCard(view, names).box, 4);
  column->addLayout(row);
  column->addWidget(ActionCard(view, names).box);
  return panel;
}

}  // namespace ostrel
