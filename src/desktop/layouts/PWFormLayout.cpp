#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"

namespace ostrel {

void LayOutPWForm(FormView& view) {
  auto* dialog = new QVBoxLayout(&view);
  dialog->addWidget(view.LabelFor("PWText", std::string_view("LabelPrompt")));
  view.Show<QLineEdit>("PWText")->setEchoMode(QLineEdit::Password);
  view.Show("PWText")->setMinimumWidth(280);
  dialog->addWidget(view.Show("PWText"));
  dialog->addStretch(1);
  dialog->addLayout(EndButtons(view.Show("Aceptar"), view.Show("Cancelar")));
}

}  // namespace ostrel
