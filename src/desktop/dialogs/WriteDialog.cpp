#include "desktop/dialogs/WriteDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "shell/session/RemainingTime.h"

namespace ostrel {
namespace {

constexpr int kWidth = 520;

QLabel* AddText(QVBoxLayout* column, const QString& text, const char* name) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  label->setWordWrap(true);
  column->addWidget(label);
  return label;
}

}  // namespace

WriteDialog::WriteDialog(const WriteQuestion& question, QWidget* parent)
    : QDialog(parent),
      guarded_(new QRadioButton(Words::tr("&Keep a safety copy, write, and read back (about %1)")
                                    .arg(ToQt(DurationText(question.guarded))))),
      plain_(new QRadioButton(
          Words::tr("Write &only (about %1)").arg(ToQt(DurationText(question.plain))))),
      showChanges_(new QCheckBox(Words::tr("&Show what will change before anything is sent"))) {
  setWindowTitle(Words::tr("Write the configuration"));
  guarded_->setObjectName("Guarded");
  plain_->setObjectName("Plain");
  showChanges_->setObjectName("ShowChanges");
  auto* column = new QVBoxLayout(this);
  QFont strong = font();
  strong.setBold(true);
  AddText(column, question.logger, "Logger")->setFont(strong);
  for (const QString& doubt : question.doubts) AddText(column, "\u26A0 " + doubt, "Doubt");
  column->addSpacing(8);
  column->addWidget(guarded_);
  column->addWidget(showChanges_);
  column->addWidget(plain_);
  QLabel* unseen = AddText(column,
                           Words::tr("Nothing is read ahead of it: what others have changed in the "
                                     "logger is written over unseen."),
                           "Unseen");
  column->addSpacing(8);
  guarded_->setChecked(true);
  unseen->setEnabled(false);
  connect(guarded_, &QRadioButton::toggled, showChanges_, &QWidget::setEnabled);
  connect(plain_, &QRadioButton::toggled, unseen, &QWidget::setEnabled);

  auto* buttons = new QDialogButtonBox(this);
  auto* write = buttons->addButton(
      question.doubts.isEmpty() ? Words::tr("&Write") : Words::tr("&Write all the same"),
      QDialogButtonBox::AcceptRole);
  auto* cancel = buttons->addButton(Words::tr("&Cancel"), QDialogButtonBox::RejectRole);
  (question.doubts.isEmpty() ? write : cancel)->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  setMinimumWidth(kWidth);
}

}  // namespace ostrel
