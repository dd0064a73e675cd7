#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/Layouts.h"

namespace ostrel {

void LayOutPWForm(FormView& view) {
  auto* dialog = new QVBoxLayout(&view);
  dialog->addWidget(view.LabelFor("PWText", std::string_view("LabelPrompt")));
  view.Show<QLineEdit>("PWText")->setEchoMode(QLineEdit::Password);
  view.Show("PWText")->setMinimumWidth(280);
  dialog->addWidget(view.Show("PWText"));
  dialog->addStretch(1);
  auto* ends = new QHBoxLayout;
  ends->addStretch(1);
  ends->addWidget(view.Show("Aceptar"));
  ends->addWidget(view.Show("Cancelar"));
  view.Show<QPushButton>("Aceptar")->setDefault(true);
  dialog->addLayout(ends);
}

}  // namespace ostrel
