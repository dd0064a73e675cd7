#include "desktop/window/PageArea.h"

#include <QLabel>
#include <QScrollArea>

namespace ostrel {

PageArea::PageArea(std::function<LayoutContext()> context, QWidget* parent)
    : QStackedWidget(parent), context_(std::move(context)), empty_(new QWidget(this)) {
  empty_->setObjectName("EmptyPage");
  addWidget(empty_);
}

PageArea::Sheet& PageArea::SheetOf(Form& form) {
  if (const auto found = sheets_.find(&form); found != sheets_.end()) return found->second;
  auto* scroll = new QScrollArea(this);
  auto* view = MakeView(form, context_());
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setWidget(view);
  scroll->setFocusPolicy(Qt::NoFocus);
  view->OnFormChanged = [this] {
    if (OnChanged) OnChanged();
  };
  view->OnControlChanged = [this] {
    if (OnControlChanged) OnControlChanged();
  };
  view->OnNotesChanged = [this, view] {
    if (OnNotesChanged && view == front_) OnNotesChanged();
  };
  addWidget(scroll);
  return sheets_.emplace(&form, Sheet{scroll, view}).first->second;
}

void PageArea::ShowForm(Form& form) {
  const Sheet& sheet = SheetOf(form);
  front_ = sheet.view;
  setCurrentWidget(sheet.scroll);
  LayCovers();
  if (OnChanged) OnChanged();
}

void PageArea::ShowEmpty() {
  front_ = nullptr;
  setCurrentWidget(empty_);
  LayCovers();
  if (OnChanged) OnChanged();
}

void PageArea::Cover(const QString& words) {
  if (words == coverWords_) return;
  coverWords_ = words;
  LayCovers();
}

void PageArea::LayCovers() {
  for (const auto& cover : covers_) delete cover.data();
  covers_.clear();
  if (coverWords_.isEmpty()) return;
  QList<QWidget*> parts;
  for (QWidget* part : currentWidget()->findChildren<QWidget*>())
    if (part->property(kCoveredInReading).toBool()) parts << part;
  if (parts.isEmpty()) parts << currentWidget();
  for (QWidget* part : parts) {
    auto* cover = new QLabel(coverWords_, part);
    cover->setObjectName("Cover");
    cover->setAlignment(Qt::AlignCenter);
    cover->setWordWrap(true);
    cover->setAutoFillBackground(true);
    cover->setGeometry(part->rect());
    cover->show();
    covers_ << cover;
  }
}

void PageArea::resizeEvent(QResizeEvent* event) {
  QStackedWidget::resizeEvent(event);
  LayCovers();
}

void PageArea::Redraw() {
  Form* front = front_ ? &front_->GetForm() : nullptr;
  for (const auto& [form, sheet] : sheets_) {
    sheet.view->Detach();
    removeWidget(sheet.scroll);
    sheet.scroll->deleteLater();
  }
  sheets_.clear();
  front_ = nullptr;
  if (front) ShowForm(*front);
}

}  // namespace ostrel
