#include <QLabel>
#include <QVBoxLayout>

#include "desktop/layouts/LayoutParts.h"
#include "desktop/layouts/Layouts.h"

namespace ostrel {

void LayOutActEdit(FormView& view) {
  auto* dialog = new QVBoxLayout(&view);
  auto* lists = new QGridLayout;
  lists->addWidget(view.LabelFor("RefList", std::string_view("LabelRef")), 0, 0);
  lists->addWidget(view.Show("RefList"), 1, 0);
  auto* moves = new QVBoxLayout;
  moves->addStretch(1);
  moves->addWidget(view.Show("AddButton"));
  moves->addWidget(view.Show("DelButton"));
  moves->addStretch(1);
  lists->addLayout(moves, 1, 1);
  lists->addWidget(view.LabelFor("DeviceList", std::string_view("LabelDevice")), 0, 2);
  lists->addWidget(view.Show("DeviceList"), 1, 2);
  lists->setColumnStretch(0, 1);
  lists->setColumnStretch(2, 1);
  for (const auto* list : {"RefList", "DeviceList"}) view.Show(list)->setMinimumSize(280, 320);
  dialog->addLayout(lists, 1);
  dialog->addLayout(EndButtons(view.Show("OKButton"), view.Show("CancelButton")));
}

}  // namespace ostrel
