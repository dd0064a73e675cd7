#include "desktop/dialogs/ApplyDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/window/FieldText.h"

namespace ostrel {

ApplyDialog::ApplyDialog(const ApplyQuestion& question, QWidget* parent)
    : QDialog(parent),
      source_(new QComboBox(this)),
      what_(new QComboBox(this)),
      targets_(new QListWidget(this)),
      buttons_(new QDialogButtonBox(this)) {
  setWindowTitle(Words::tr("Apply to several channels"));
  source_->setObjectName("Source");
  what_->setObjectName("What");
  targets_->setObjectName("Targets");
  what_->addItem(Words::tr("all but the name"), -1);
  for (int config = 0; config < question.configs; ++config)
    what_->addItem(Words::tr("alarm %1 alone").arg(config), config);
  what_->setCurrentIndex(what_->findData(question.configs > 0 ? question.config : -1));
  for (const ChannelName& channel : question.channels) {
    const QString number = Capitalised(question.kind) + u' ' + QString::number(channel.channel);
    const QString text = channel.name.empty() ? number : number + "  " + ToQt(channel.name);
    source_->addItem(text, channel.channel);
    auto* item = new QListWidgetItem(text, targets_);
    item->setData(Qt::UserRole, channel.channel);
    item->setCheckState(Qt::Unchecked);
  }
  source_->setCurrentIndex(source_->findData(question.channel));

  auto* form = new QFormLayout;
  form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  form->addRow(Words::tr("&Copy:"), source_);
  form->addRow(Words::tr("&What:"), what_);
  auto* into = new QLabel(Words::tr("&Into:"), this);
  into->setBuddy(targets_);
  auto* all = new QPushButton(Words::tr("&All"), this);
  auto* no = new QPushButton(Words::tr("&None of them"), this);
  auto* marks = new QHBoxLayout;
  marks->addWidget(into, 1);
  marks->addWidget(all);
  marks->addWidget(no);
  auto* column = new QVBoxLayout(this);
  column->addLayout(form);
  column->addLayout(marks);
  column->addWidget(targets_, 1);
  buttons_->addButton(Words::tr("A&pply"), QDialogButtonBox::AcceptRole)->setObjectName("Apply");
  buttons_->addButton(Words::tr("&Cancel"), QDialogButtonBox::RejectRole);
  column->addWidget(buttons_);
  all->setObjectName("All");
  no->setObjectName("None");
  connect(all, &QPushButton::clicked, this, [this] { CheckAll(true); });
  connect(no, &QPushButton::clicked, this, [this] { CheckAll(false); });
  connect(targets_, &QListWidget::itemChanged, this, [this] { Follow(); });
  connect(source_, &QComboBox::currentIndexChanged, this, [this] { Follow(); });
  connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
  Follow();
  resize(420, 480);
}

void ApplyDialog::CheckAll(bool checked) {
  for (int row = 0; row < targets_->count(); ++row)
    targets_->item(row)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

void ApplyDialog::Follow() {
  for (int row = 0; row < targets_->count(); ++row)
    targets_->item(row)->setHidden(ChannelOf(row) == Source());
  buttons_->findChild<QPushButton*>("Apply")->setEnabled(!Targets().empty());
}

int ApplyDialog::ChannelOf(int row) const {
  return targets_->item(row)->data(Qt::UserRole).toInt();
}

int ApplyDialog::Source() const { return source_->currentData().toInt(); }

std::optional<int> ApplyDialog::Config() const {
  const int config = what_->currentData().toInt();
  return config < 0 ? std::nullopt : std::optional(config);
}

std::vector<int> ApplyDialog::Targets() const {
  std::vector<int> targets;
  for (int row = 0; row < targets_->count(); ++row) {
    const QListWidgetItem* item = targets_->item(row);
    if (item->checkState() == Qt::Checked && !item->isHidden()) targets.push_back(ChannelOf(row));
  }
  return targets;
}

}  // namespace ostrel
