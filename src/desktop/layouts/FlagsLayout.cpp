#include <QVBoxLayout>

#include "desktop/layouts/AlarmPanelLayout.h"
#include "desktop/layouts/LayoutParts.h"
#include "desktop/layouts/Layouts.h"

namespace ostrel {

void LayOutFlags(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  page->addWidget(LayOutAlarmPanel(view, {}));
  page->addStretch(1);
}

}  // namespace ostrel
