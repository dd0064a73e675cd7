#include "desktop/window/FindingsPanel.h"

#include <QHeaderView>
#include <QPainter>
#include <QTreeWidget>

#include "desktop/forms/Icons.h"
#include "desktop/forms/Words.h"
#include "desktop/session/FaultText.h"

namespace ostrel {
namespace {

QString SeverityWord(Severity severity) {
  return severity == Severity::Error ? Words::tr("Error") : Words::tr("Warning");
}

}  // namespace

FindingsPanel::FindingsPanel(QWidget* parent) : QDockWidget(parent), list_(new QTreeWidget(this)) {
  setObjectName("Findings");
  list_->setObjectName("FindingList");
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setColumnCount(4);
  list_->setAllColumnsShowFocus(true);
  setWidget(list_);
  // Double click, and Enter where the platform has it so.
  connect(list_, &QTreeWidget::itemActivated, this,
          [this](QTreeWidgetItem* item) { Choose(list_->indexOfTopLevelItem(item)); });
  Retranslate();
}

void FindingsPanel::Retranslate() {
  setWindowTitle(Words::tr("Findings"));
  list_->setAccessibleName(Words::tr("Findings"));
  list_->setHeaderLabels(
      {Words::tr("Kind"), Words::tr("Where"), Words::tr("Field"), Words::tr("What to know")});
}

void FindingsPanel::ShowFindings(const std::vector<PlacedFinding>& findings) {
  findings_ = findings;
  list_->clear();
  for (const PlacedFinding& found : findings_) {
    const QString sentence = SentenceOf(found.finding.sentence);
    auto* item = new QTreeWidgetItem(
        list_, {SeverityWord(found.severity), found.where, found.what, sentence});
    item->setToolTip(3, sentence);
  }
  for (int column = 0; column < 3; ++column) list_->resizeColumnToContents(column);
  setWindowTitle(findings_.empty()
                     ? Words::tr("Findings")
                     : Words::tr("Findings") + QString(" (%1)").arg(findings_.size()));
}

void FindingsPanel::Choose(int row) {
  if (row < 0 || row >= static_cast<int>(findings_.size())) return;
  const PlacedFinding& found = findings_[static_cast<std::size_t>(row)];
  if (found.page && found.field && OnFinding) OnFinding(*found.page, *found.field);
}

}  // namespace ostrel
