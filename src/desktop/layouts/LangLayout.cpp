#include <QLabel>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"

namespace ostrel {

void LayOutLang(FormView& view) {
  auto* dialog = new QVBoxLayout(&view);
  dialog->addWidget(view.LabelFor("ComboLang", Words::tr("Language:")));
  view.Show("ComboLang")->setMinimumWidth(260);
  dialog->addWidget(view.Show("ComboLang"));
  dialog->addStretch(1);
  dialog->addLayout(EndButtons(view.ShowWithWords("CommandOk", Words::tr("OK")),
                               view.ShowWithWords("CommandCancel", Words::tr("Cancel"))));
}

}  // namespace ostrel
