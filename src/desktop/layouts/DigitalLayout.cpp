#include <QLabel>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/AlarmPanelLayout.h"
#include "desktop/layouts/parts/LayoutParts.h"

namespace ostrel {

void LayOutDigital(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  const Card input = MakeCard(view, Words::tr("Input"));
  AddField(input, view.LabelFor("Nombre", Words::tr("Name:")), view.Show("Nombre"));
  view.Show("Nombre")->setMaximumWidth(360);
  AddField(input, new QLabel(Words::tr("Contact at rest:"), &view),
           OptionBox(view, {"Int_NA", "Int_NC"}, 2));
  input.grid->setColumnStretch(1, 1);
  page->addWidget(input.box);
  page->addWidget(LayOutAlarmPanel(view, {{"Persist", {}}, {"Rearm", {}}}));
  page->addStretch(1);
}

}  // namespace ostrel
