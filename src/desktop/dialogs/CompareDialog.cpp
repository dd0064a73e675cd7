#include "desktop/dialogs/CompareDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"

namespace ostrel {

QString DifferencesText(std::size_t differences) {
  return differences == 0
             ? Words::tr("Both hold the same.")
             : Words::tr("%n field(s) differ.", nullptr, static_cast<int>(differences));
}

CompareDialog::CompareDialog(const ComparisonWords& words,
                             const std::vector<Difference>& differences,
                             const TargetProfile& profile, const ComparisonTree::Names& translate,
                             QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(words.title);
  resize(760, 480);
  auto* column = new QVBoxLayout(this);
  auto* summary = new QLabel(DifferencesText(differences.size()), this);
  summary->setObjectName("Summary");
  column->addWidget(summary);
  auto* tree = new ComparisonTree(this);
  tree->SetSides(words.before, words.after);
  tree->ShowDifferences(differences, profile, translate);
  column->addWidget(tree, 1);
  auto* buttons = new QDialogButtonBox(this);
  if (!words.accept.isEmpty()) buttons->addButton(words.accept, QDialogButtonBox::AcceptRole);
  buttons->addButton(words.accept.isEmpty() ? Words::tr("Close") : Words::tr("&Cancel"),
                     QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
}

}  // namespace ostrel
