#include "desktop/LinkPanel.h"

#include <QHBoxLayout>

#include "desktop/Words.h"

namespace ostrel {
namespace {

const char* ColourOf(const LinkState& state) {
  if (state.silentSeconds > 0) return "#f59f00";
  switch (state.kind) {
    case LinkState::Kind::Idle:
      return "#868e96";
    case LinkState::Kind::Detecting:
      return "#1c7ed6";
    case LinkState::Kind::Open:
      return "#2f9e44";
    case LinkState::Kind::Reading:
    case LinkState::Kind::Writing:
      return "#1c7ed6";
  }
  return "";
}

}  // namespace

LinkPanel::LinkPanel(QWidget* parent)
    : QWidget(parent),
      lamp_(new QLabel(this)),
      words_(new QLabel(this)),
      bar_(new QProgressBar(this)),
      left_(new QLabel(this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(8, 0, 8, 0);
  lamp_->setFixedSize(12, 12);
  words_->setObjectName("LinkState");
  bar_->setFixedWidth(200);
  QSizePolicy policy = bar_->sizePolicy();
  policy.setRetainSizeWhenHidden(true);  // the page above is not to jump
  bar_->setSizePolicy(policy);
  bar_->setTextVisible(false);
  row->addWidget(lamp_);
  row->addWidget(words_);
  row->addSpacing(12);
  row->addWidget(bar_);
  row->addWidget(left_);
  row->addStretch(1);
  HideProgress();
  ShowState({});
}

void LinkPanel::Retranslate() { bar_->setAccessibleName(Words::tr("Progress")); }

void LinkPanel::ShowState(const LinkState& state) {
  const QString words = LinkStateWords(state);
  if (words == words_->text()) return;
  words_->setText(words);
  lamp_->setStyleSheet(QString("background: %1; border-radius: 6px;").arg(ColourOf(state)));
}

void LinkPanel::ShowProgress(int done, int steps, const QString& left) {
  bar_->setMaximum(steps);
  bar_->setValue(done);
  bar_->setVisible(true);
  left_->setVisible(true);
  left_->setText(left);
}

void LinkPanel::HideProgress() {
  bar_->hide();
  left_->hide();
}

}  // namespace ostrel
