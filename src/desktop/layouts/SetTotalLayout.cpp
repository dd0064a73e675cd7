#include <QLabel>
#include <QVBoxLayout>

#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"

namespace ostrel {

void LayOutSetTotal(FormView& view) {
  auto* dialog = new QVBoxLayout(&view);
  view.Show("Titulo")->setObjectName("Heading");
  dialog->addWidget(view.Show("Titulo"));
  auto* grid = new QGridLayout;
  grid->addWidget(view.Show("LabelActual"), 0, 0);
  grid->addWidget(view.Show("LabelPreValue"), 0, 1);
  grid->addWidget(view.LabelFor("TextNew", std::string_view("LabelNuevo")), 1, 0);
  grid->addWidget(view.Show("TextNew"), 1, 1);
  view.Show("TextNew")->setMinimumWidth(200);
  grid->setColumnStretch(1, 1);
  dialog->addLayout(grid);
  view.Show("LabelEstado")->setObjectName("Status");
  dialog->addWidget(view.Show("LabelEstado"));
  dialog->addStretch(1);
  dialog->addLayout(EndButtons(view.Show("OKButton"), view.Show("CancelButton")));
}

}  // namespace ostrel
