#include "desktop/session/LinkPanel.h"

#include <QHBoxLayout>

namespace ostrel {
namespace {

constexpr const char* kUnknown = "#868e96";
constexpr const char* kGood = "#2f9e44";
constexpr const char* kDoubtful = "#f59f00";
constexpr const char* kBad = "#e03131";
constexpr const char* kBusy = "#1c7ed6";

const char* ColourOf(const LinkState& state) {
  if (state.life.health == LinkHealth::Lost) return kBad;
  if (state.life.health == LinkHealth::Silent || state.silentSeconds > 0) return kDoubtful;
  switch (state.phase) {
    case SessionPhase::Closed:
      return kUnknown;
    case SessionPhase::Open:
      return state.list == ListWork::None ? kGood : kBusy;
    case SessionPhase::Opening:
    case SessionPhase::Reading:
    case SessionPhase::Writing:
    case SessionPhase::Updating:
    case SessionPhase::Closing:
      return kBusy;
  }
  return "";
}

/// A lamp that only burns while the logger is heard; a ring stands for a state that is not known.
QString LampStyle(const LinkState& state) {
  const bool isRing = state.phase == SessionPhase::Open && state.life.health == LinkHealth::Resting;
  return QString(isRing ? "border: 2px solid %1; border-radius: 6px;"
                        : "background: %1; border-radius: 6px;")
      .arg(ColourOf(state));
}

}  // namespace

LinkPanel::LinkPanel(QWidget* parent)
    : QWidget(parent),
      who_(new ElidedLabel(this)),
      lamp_(new QLabel(this)),
      words_(new ElidedLabel(this)),
      meter_(new TransferMeter(this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(8, 0, 8, 0);
  QFont strong = font();
  strong.setBold(true);
  who_->setFont(strong);
  who_->setObjectName("Logger");
  lamp_->setFixedSize(12, 12);
  lamp_->setObjectName("Lamp");
  words_->setObjectName("LinkState");
  row->addWidget(who_);
  row->addSpacing(12);
  row->addWidget(lamp_);
  row->addWidget(words_);
  row->addStretch(1);
  row->addWidget(meter_);
  meter_->hide();
  ShowState({}, {});
}

QSize LinkPanel::sizeHint() const {
  constexpr int kLeast = 120;
  return {kLeast, QWidget::sizeHint().height()};
}

void LinkPanel::ShowState(const LinkState& state, const QString& who) {
  who_->SetWords(who);
  words_->SetWords(LinkStateWords(state));
  if (const QString style = LampStyle(state); style != lamp_->styleSheet())
    lamp_->setStyleSheet(style);
}

void LinkPanel::ShowProgress(const TransferWatch* transfer) {
  if (transfer) meter_->Show(*transfer);
  meter_->setVisible(transfer != nullptr);
}

}  // namespace ostrel
