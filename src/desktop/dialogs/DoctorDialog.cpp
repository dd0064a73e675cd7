#include "desktop/dialogs/DoctorDialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <utility>

#include "desktop/forms/Words.h"
#include "desktop/session/FaultText.h"
#include "desktop/window/FieldText.h"

namespace ostrel {
namespace {

QString HealthText(Health health) {
  switch (health) {
    case Health::Good:
      return Words::tr("in order");
    case Health::Bad:
      return Words::tr("not in order");
    case Health::Open:
      break;
  }
  return Words::tr("to note");
}

/// A phrase in the window's language, without the full stop of a sentence.
QString Plain(const Phrase& phrase) {
  const QString text = Words::tr(phrase.text.c_str());
  return Capitalised(ToQt(Filled(FromQt(text), phrase.arguments)));
}

}  // namespace

DoctorDialog::DoctorDialog(const QString& port, QWidget* parent)
    : QDialog(parent), table_(new QTableWidget(0, 3, this)), advice_(new QLabel(this)) {
  setWindowTitle(Words::tr("Link doctor: %1").arg(port));
  setModal(true);
  table_->setAccessibleName(Words::tr("What was found"));
  table_->setHorizontalHeaderLabels(
      {Words::tr("Looked at"), Words::tr("State"), Words::tr("Found")});
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setAlternatingRowColors(true);
  table_->setTabKeyNavigation(false);
  table_->verticalHeader()->hide();
  table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table_->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
  advice_->setObjectName("Advice");
  advice_->setWordWrap(true);
  advice_->setText(Words::tr("Looking..."));
  auto* buttons = new QDialogButtonBox(this);
  close_ = buttons->addButton(Words::tr("&Cancel"), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &DoctorDialog::reject);
  auto* column = new QVBoxLayout(this);
  column->addWidget(table_, 1);
  column->addWidget(advice_);
  column->addWidget(buttons);
  resize(760, 460);
}

void DoctorDialog::Add(const Symptom& symptom) {
  const int row = table_->rowCount();
  table_->insertRow(row);
  int column = 0;
  for (const QString& text :
       {Plain(symptom.what), HealthText(symptom.health), Plain(symptom.found)}) {
    auto* item = new QTableWidgetItem(text);
    QFont font = item->font();
    font.setBold(symptom.health == Health::Bad);
    item->setFont(font);
    table_->setItem(row, column++, item);
  }
  table_->scrollToBottom();
}

void DoctorDialog::Finish(const Diagnosis& diagnosis) {
  finished_ = true;
  advice_->setText(Words::tr("What to try next: %1").arg(SentenceOf(diagnosis.advice)));
  close_->setText(Words::tr("Close"));
}

void DoctorDialog::reject() {
  if (!finished_ && OnBreakOff) std::exchange(OnBreakOff, nullptr)();
  QDialog::reject();
}

}  // namespace ostrel
