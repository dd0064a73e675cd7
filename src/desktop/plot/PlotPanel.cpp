#include "desktop/plot/PlotPanel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <sstream>

#include "base/Scope.h"
#include "desktop/forms/Words.h"
#include "tools/LiveRecording.h"

namespace ostrel {
namespace {

enum PlotColumn { kPlotName, kPlotValue };
constexpr int kPlotMargin = 8;
constexpr int kPlotListWidth = 250;
constexpr int kSwatch = 12;  // px
constexpr std::size_t kChosenAtFirst = 3;

QString TextOfSeries(const LiveSeries& series) {
  const QString tag = ToQt(LiveTag(series.id));
  return series.name.empty() ? tag : ToQt(series.name) + "  " + tag;
}

QString TextOfValue(const LiveSeries& series, std::optional<double> value) {
  if (!value) return {};
  if (IsState(series.id.kind)) return *value != 0 ? Words::tr("Active") : Words::tr("Inactive");
  const QString number = ToQt(LiveNumberText(series.id.kind, *value));
  return series.unit.empty() ? number : number + u' ' + ToQt(series.unit);
}

QVariant RowKey(LiveId id) { return ToQt(LiveTag(id)); }
std::optional<LiveId> IdOfRow(const QTreeWidgetItem& row) {
  return LiveIdOf(FromQt(row.data(kPlotName, Qt::UserRole).toString()));
}

QPixmap Swatch(const QColor& colour) {
  QPixmap swatch(kSwatch, kSwatch);
  swatch.fill(colour);
  return swatch;
}

}  // namespace

PlotPanel::PlotPanel(const LiveHistory& history, QWidget* parent)
    : QDockWidget(parent), history_(history), chart_(new PlotChart(history, this)) {
  setObjectName("Plot");
  auto* splitter = new QSplitter(this);
  splitter->setContentsMargins(kPlotMargin, 0, kPlotMargin, kPlotMargin);
  auto* side = new QWidget(splitter);
  MakeList(side);
  auto* sheet = new QWidget(splitter);
  auto* column = new QVBoxLayout(sheet);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(MakeTools(sheet));
  hint_ = new QLabel(sheet);
  hint_->setWordWrap(true);
  column->addWidget(hint_);
  column->addWidget(chart_, 1);
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({kPlotListWidth, 4 * kPlotListWidth});
  setWidget(splitter);
  chart_->OnMoved = [this] {
    follow_->setChecked(chart_->Follows());
    ShowValues();
  };
  Retranslate();
}

void PlotPanel::MakeList(QWidget* parent) {
  auto* column = new QVBoxLayout(parent);
  column->setContentsMargins(0, 0, 0, 0);
  filter_ = new QLineEdit(parent);
  filter_->setObjectName("PlotFilter");
  filter_->setClearButtonEnabled(true);
  list_ = new QTreeWidget(parent);
  list_->setObjectName("PlotList");
  list_->setColumnCount(2);
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->header()->setStretchLastSection(false);
  list_->header()->setSectionResizeMode(kPlotName, QHeaderView::Stretch);
  list_->header()->setSectionResizeMode(kPlotValue, QHeaderView::ResizeToContents);
  column->addWidget(filter_);
  column->addWidget(list_, 1);
  connect(filter_, &QLineEdit::textChanged, this, [this] { Filter(); });
  connect(list_, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* row, int at) {
    const auto id = IdOfRow(*row);
    if (!isSyncing_ && at == kPlotName && id)
      Toggle(*id, row->checkState(kPlotName) == Qt::Checked);
  });
}

QPushButton* PlotPanel::AddButton(const char* name, const std::function<void()>& press) {
  auto* button = new QPushButton(this);
  button->setObjectName(name);
  connect(button, &QPushButton::clicked, this, press);
  return button;
}

QWidget* PlotPanel::MakeTools(QWidget* parent) {
  auto* tools = new QWidget(parent);
  auto* row = new QHBoxLayout(tools);
  row->setContentsMargins(0, 0, 0, 0);
  constexpr double kZoomOfButton = 2;
  follow_ = new QCheckBox(tools);
  follow_->setObjectName("PlotFollow");
  follow_->setChecked(true);
  connect(follow_, &QCheckBox::clicked, chart_, &PlotChart::SetFollows);
  all_ = AddButton("PlotAll", [this] { chart_->ShowAll(); });
  in_ = AddButton("PlotIn", [this] { chart_->ZoomTime(1 / kZoomOfButton); });
  out_ = AddButton("PlotOut", [this] { chart_->ZoomTime(kZoomOfButton); });
  fit_ = AddButton("PlotFit", [this] { chart_->FitValues(); });
  picture_ = AddButton("PlotPicture", [this] {
    if (OnSavePicture) OnSavePicture();
  });
  values_ = AddButton("PlotValues", [this] {
    if (OnSaveValues) OnSaveValues();
  });
  row->addWidget(follow_);
  for (QPushButton* button : {all_, in_, out_, fit_}) row->addWidget(button);
  row->addStretch(1);
  for (QPushButton* button : {picture_, values_}) row->addWidget(button);
  return tools;
}

void PlotPanel::Retranslate() {
  setWindowTitle(Words::tr("Plot"));
  filter_->setPlaceholderText(Words::tr("Filter"));
  filter_->setAccessibleName(Words::tr("Filter the values"));
  list_->setHeaderLabels({Words::tr("Value"), Words::tr("Now")});
  list_->setAccessibleName(Words::tr("Values to plot"));
  hint_->setText(
      Words::tr("Nothing has been read yet. Values come while a session with a logger is open."));
  chart_->setAccessibleName(Words::tr("Plot of live values"));
  chart_->setToolTip(
      Words::tr("Drag or arrow keys: move. Wheel, + and -: zoom. With Shift: the values instead "
                "of time. Home: all. End: follow. 0 or double click: fit the values."));
  follow_->setText(Words::tr("&Follow now"));
  all_->setText(Words::tr("All"));
  in_->setText(Words::tr("Zoom in"));
  out_->setText(Words::tr("Zoom out"));
  fit_->setText(Words::tr("Fit values"));
  picture_->setText(Words::tr("Picture..."));
  values_->setText(Words::tr("Values..."));
  ShowValues();
}

void PlotPanel::Look() {
  hint_->setVisible(history_.Series().empty());
  SetMaySave(maySave_);
  SyncRows();
  ChooseAtFirst();
  chart_->Look();  // tells that it has moved, which shows the values
}

void PlotPanel::SetMaySave(bool may) {
  maySave_ = may;
  const bool hasRounds = history_.Span().has_value();
  picture_->setEnabled(may && hasRounds);
  values_->setEnabled(may && hasRounds && !chosen_.empty());
}

void PlotPanel::SyncRow(QTreeWidgetItem& row, const LiveSeries& series) {
  row.setText(kPlotName, TextOfSeries(series));
  row.setToolTip(kPlotValue, ToQt(series.unit));
  const bool isChosen = std::ranges::find(chosen_, series.id) != chosen_.end();
  row.setCheckState(kPlotName, isChosen ? Qt::Checked : Qt::Unchecked);
  row.setIcon(kPlotName, isChosen ? Swatch(chart_->ColourOf(series.id)) : QIcon());
}

/// Rows come and go with the model of the logger; most rounds leave them as they are.
void PlotPanel::SyncRows() {
  const auto& all = history_.Series();
  bool isSame = list_->topLevelItemCount() == static_cast<int>(all.size());
  for (std::size_t i = 0; isSame && i < all.size(); ++i) {
    const QTreeWidgetItem& row = *list_->topLevelItem(static_cast<int>(i));
    isSame =
        row.text(kPlotName) == TextOfSeries(all[i]) && row.toolTip(kPlotValue) == ToQt(all[i].unit);
  }
  if (isSame) return;
  const Lent syncing(isSyncing_, true);
  chart_->Choose(chosen_);
  list_->clear();
  for (const LiveSeries& series : all) {
    auto* row = new QTreeWidgetItem(list_);
    row->setData(kPlotName, Qt::UserRole, RowKey(series.id));
    row->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    row->setTextAlignment(kPlotValue, Qt::AlignRight | Qt::AlignVCenter);
    SyncRow(*row, series);
  }
  Filter();
}

/// A chart without curves tells nothing: the first numbers are drawn until the operator chooses.
void PlotPanel::ChooseAtFirst() {
  if (wasChosen_ || !chosen_.empty()) return;
  for (const LiveSeries& series : history_.Series())
    if (!IsState(series.id.kind) && chosen_.size() < kChosenAtFirst) chosen_.push_back(series.id);
  if (!chosen_.empty()) Chosen();
}

void PlotPanel::Toggle(LiveId id, bool on) {
  wasChosen_ = true;
  std::erase(chosen_, id);
  if (on) chosen_.push_back(id);
  Chosen();
  if (OnChosen) OnChosen();
}

void PlotPanel::Chosen() {
  chart_->Choose(chosen_);
  SetMaySave(maySave_);
  const Lent syncing(isSyncing_, true);
  for (int i = 0; i < list_->topLevelItemCount(); ++i) {
    QTreeWidgetItem& row = *list_->topLevelItem(i);
    if (const LiveSeries* series = history_.Find(*IdOfRow(row))) SyncRow(row, *series);
  }
}

std::string PlotPanel::ChosenTags() const {
  std::string tags;
  for (const LiveId id : chosen_) tags += (tags.empty() ? "" : " ") + LiveTag(id);
  return tags;
}

void PlotPanel::ChooseTags(const std::string& tags) {
  chosen_.clear();
  std::istringstream words(tags);
  for (std::string tag; words >> tag;)
    if (const auto id = LiveIdOf(tag)) chosen_.push_back(*id);
  Chosen();
}

void PlotPanel::Filter() {
  for (int i = 0; i < list_->topLevelItemCount(); ++i) {
    QTreeWidgetItem& row = *list_->topLevelItem(i);
    row.setHidden(!row.text(kPlotName).contains(filter_->text(), Qt::CaseInsensitive));
  }
}

/// At the pointer, or of the last round. The chart tells those that it draws in words, too.
void PlotPanel::ShowValues() {
  if (isHidden()) return;
  const auto kept = history_.Span();
  if (!kept) return;
  const Moment at = chart_->Pointed().value_or(kept->to);
  const Lent syncing(isSyncing_, true);
  list_->headerItem()->setText(
      kPlotValue, chart_->Pointed()
                      ? ToQt(DateTimeText(WallTime{at + history_.UtcOffset(), {}}.LocalSeconds()))
                            .section(u' ', 1)
                      : Words::tr("Now"));
  QStringList told;
  for (int i = 0; i < list_->topLevelItemCount(); ++i) {
    QTreeWidgetItem& row = *list_->topLevelItem(i);
    const LiveSeries* series = history_.Find(*IdOfRow(row));
    if (!series) continue;  // of the logger before
    const QString text = TextOfValue(*series, history_.ValueAt(series->id, at));
    if (row.text(kPlotValue) != text) row.setText(kPlotValue, text);
    if (row.checkState(kPlotName) == Qt::Checked) told << row.text(kPlotName) + ": " + text;
  }
  if (chart_->accessibleDescription() != told.join("; "))
    chart_->setAccessibleDescription(told.join("; "));
}

std::string PlotPanel::ValuesInView() const {
  auto stream = std::make_unique<std::ostringstream>();
  const std::ostringstream& text = *stream;
  LiveRecording recording(std::move(stream));
  history_.ForEachRound(chart_->View(), chosen_,
                        [&](const LiveRound& round) { recording.Add(round); });
  return text.str();
}

}  // namespace ostrel
