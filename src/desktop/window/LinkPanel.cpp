#include "desktop/window/LinkPanel.h"

#include <QHBoxLayout>

#include "desktop/forms/Words.h"

namespace ostrel {
namespace {

const char* ColourOf(const LinkState& state) {
  if (state.silentSeconds > 0) return "#f59f00";
  switch (state.phase) {
    case SessionPhase::Closed:
      return "#868e96";
    case SessionPhase::Open:
      return "#2f9e44";
    case SessionPhase::Opening:
    case SessionPhase::Reading:
    case SessionPhase::Writing:
    case SessionPhase::Closing:
      return "#1c7ed6";
  }
  return "";
}

}  // namespace

LinkPanel::LinkPanel(QWidget* parent)
    : QWidget(parent),
      lamp_(new QLabel(this)),
      words_(new QLabel(this)),
      breakOff_(new QToolButton(this)),
      bar_(new QProgressBar(this)),
      left_(new QLabel(this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(8, 0, 8, 0);
  lamp_->setFixedSize(12, 12);
  words_->setObjectName("LinkState");
  breakOff_->setObjectName("BreakOff");
  breakOff_->setAutoRaise(true);
  connect(breakOff_, &QToolButton::clicked, this, [this] {
    if (OnBreakOff) OnBreakOff();
  });
  bar_->setFixedWidth(200);
  for (QWidget* comesAndGoes : {static_cast<QWidget*>(bar_), static_cast<QWidget*>(breakOff_)}) {
    QSizePolicy policy = comesAndGoes->sizePolicy();
    policy.setRetainSizeWhenHidden(true);  // the page above is not to jump
    comesAndGoes->setSizePolicy(policy);
  }
  bar_->setTextVisible(false);
  row->addWidget(lamp_);
  row->addWidget(words_);
  row->addSpacing(12);
  row->addWidget(breakOff_);
  row->addWidget(bar_);
  row->addWidget(left_);
  row->addStretch(1);
  HideProgress();
  ShowState({});
}

void LinkPanel::Retranslate() {
  bar_->setAccessibleName(Words::tr("Progress"));
  breakOff_->setText(Words::tr("Break off"));
  breakOff_->setToolTip(Words::tr("Give up opening the session"));
}

void LinkPanel::ShowState(const LinkState& state) {
  breakOff_->setVisible(state.phase == SessionPhase::Opening);
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
