#include <QLabel>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/AlarmPanelLayout.h"
#include "desktop/layouts/LayoutParts.h"
#include "desktop/layouts/Layouts.h"

namespace ostrel {

void LayOutMath(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  const Card channel = MakeCard(view, Words::tr("Channel"));
  AddField(channel, view.LabelFor("Nombre", Words::tr("Name:")), view.Show("Nombre"));
  AddField(channel, view.LabelFor("Unidad", Words::tr("Unit:")), Narrow(view.Show("Unidad"), 12));
  AddField(channel, new QLabel(Words::tr("State:"), &view),
           OptionBox(view, {"Int_Habil", "Int_NoHabil"}, 2));
  channel.grid->setColumnStretch(1, 1);
  const Card equation = MakeCard(view, std::string_view("FrameEcuacion"));
  equation.grid->addWidget(view.ShowNamed("Ecuacion", Words::tr("Equation")), 0, 0);
  equation.grid->setRowStretch(1, 1);
  auto* top = new QHBoxLayout;
  top->addWidget(channel.box, 1);
  top->addWidget(equation.box, 1);
  page->addLayout(top);
  page->addWidget(LayOutAlarmPanel(view, LevelThresholdWords()));
  page->addStretch(1);
}

}  // namespace ostrel
