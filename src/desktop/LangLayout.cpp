#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/Layouts.h"
#include "desktop/Words.h"

namespace ostrel {

void LayOutLang(FormView& view) {
  auto* dialog = new QVBoxLayout(&view);
  dialog->addWidget(view.LabelFor("ComboLang", Words::tr("Language:")));
  view.Show("ComboLang")->setMinimumWidth(260);
  dialog->addWidget(view.Show("ComboLang"));
  dialog->addStretch(1);
  auto* ends = new QHBoxLayout;
  ends->addStretch(1);
  ends->addWidget(view.ShowWithWords("CommandOk", Words::tr("OK")));
  ends->addWidget(view.ShowWithWords("CommandCancel", Words::tr("Cancel")));
  view.Show<QPushButton>("CommandOk")->setDefault(true);
  dialog->addLayout(ends);
}

}  // namespace ostrel
