#include <QVBoxLayout>

#include "desktop/layouts/AlarmPanelLayout.h"
#include "desktop/layouts/LayoutParts.h"
#include "desktop/layouts/Layouts.h"

namespace ostrel {

void LayOutFlags(FormView& view) {
  auto* page = new QVBoxLayout(&view);
  page->setContentsMargins(16, 12, 16, 16);
  QWidget* heading = view.Heading({});
  page->addWidget(heading);
  page->addWidget(LayOutAlarmPanel(view, {}));
  page->addStretch(1);
  heading->layout()->addWidget(HelpButton(view));
}

}  // namespace ostrel
