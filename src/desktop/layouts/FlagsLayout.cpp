#include <QVBoxLayout>

#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/AlarmPanelLayout.h"
#include "desktop/layouts/parts/LayoutParts.h"

namespace ostrel {

void LayOutFlags(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  page->addWidget(LayOutAlarmPanel(view, {}));
  page->addStretch(1);
}

}  // namespace ostrel
