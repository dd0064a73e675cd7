#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"

namespace ostrel {

void LayOutTargetSelect(FormView& view) {
  QVBoxLayout* page = MakeSheet(view, Words::tr("Model"));
  const Card card = MakeCard(view, QString());
  auto* notice = view.Show<QLabel>("LabelNotice");
  notice->setWordWrap(true);
  card.grid->addWidget(notice, 0, 0, 1, 3);
  card.grid->addWidget(view.LabelFor("ComboTarget", Words::tr("Model:")), 1, 0);
  view.Show("ComboTarget")->setMinimumWidth(240);
  card.grid->addWidget(view.Show("ComboTarget"), 1, 1);
  view.Show("CommandChange")->setProperty("primary", true);
  card.grid->addWidget(view.Show("CommandChange"), 1, 2, Qt::AlignLeft);
  auto* warning = view.Show<QLabel>("LabelWarning");
  warning->setObjectName("Failure");
  warning->setWordWrap(true);
  card.grid->addWidget(warning, 2, 0, 1, 3);
  card.grid->setColumnStretch(2, 1);
  card.box->setMaximumWidth(680);
  page->addWidget(card.box);
  page->addStretch(1);
}

}  // namespace ostrel
