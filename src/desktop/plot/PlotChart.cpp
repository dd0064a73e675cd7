#include "desktop/plot/PlotChart.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include "desktop/forms/DarkPalette.h"
#include "desktop/forms/Words.h"

namespace ostrel {
namespace {

constexpr double kFirstView = 600;  // s
constexpr double kLeastView = 2;    // s
constexpr double kMostView = 32 * 86'400.0;
constexpr double kPanStep = 0.1;  // part of the view that a key moves by
constexpr double kZoomStep = 1.25;
constexpr double kAxisRoom = 0.06;  // free part of an axis above and below the values
constexpr double kLaneFill = 0.7;
constexpr int kLaneHeight = 17;
constexpr int kLegendColumns = 4;
constexpr const char* kPointerLayer = "pointer";

// Told apart with any common kind of colour vision.
constexpr std::array<const char*, 8> kCurvesOnLight{"#0072b2", "#d55e00", "#009e73", "#b8479a",
                                                    "#7a5c00", "#3c3c8c", "#c2185b", "#4d7a1f"};
constexpr std::array<const char*, 8> kCurvesOnDark{"#56b4e9", "#f0954a", "#2fd6a5", "#e58fc8",
                                                   "#f0e442", "#a9a9ff", "#ff7fa8", "#b4dc78"};
constexpr std::array kCurveStrokes{Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine};

QString SeriesName(const LiveSeries& series) { return ToQt(LiveName(series.id, series.name)); }

}  // namespace

PlotChart::PlotChart(const LiveHistory& history, QWidget* parent)
    : QCustomPlot(parent),
      history_(history),
      margins_(new QCPMarginGroup(this)),
      clock_(new QCPAxisTickerDateTime) {
  setObjectName("PlotChart");
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setMinimumSize(260, 140);
  setLocale(QLocale::c());
  setAutoAddPlottableToLegend(false);
  setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
  setPlottingHints(QCP::phFastPolylines | QCP::phCacheLabels);
  clock_->setDateTimeSpec(Qt::UTC);  // keys are in local time already
  clock_->setDateTimeFormat("hh:mm:ss\nyyyy-MM-dd");
  addLayer(kPointerLayer);
  layer(kPointerLayer)->setMode(QCPLayer::lmBuffered);
  connect(this, &QCustomPlot::beforeReplot, this, [this] { Refill(); });
  view_ = QCPRange(0, kFirstView);
  Rebuild();
}

double PlotChart::KeyOf(Moment at) const {
  return static_cast<double>((at + history_.UtcOffset()).count()) / 1000;
}

Moment PlotChart::MomentOf(double key) const {
  return Moment(std::llround(key * 1000)) - history_.UtcOffset();
}

TimeSpan PlotChart::View() const { return {MomentOf(view_.lower), MomentOf(view_.upper)}; }

QColor PlotChart::Colour(std::size_t place) const {
  return QColor(
      (IsDark(palette()) ? kCurvesOnDark : kCurvesOnLight)[place % kCurvesOnLight.size()]);
}

QPen PlotChart::PenOf(std::size_t place, bool isState) const {
  return {Colour(place), isState ? 2.0 : 1.0,
          kCurveStrokes[place / kCurvesOnLight.size() % kCurveStrokes.size()]};
}

QColor PlotChart::ColourOf(LiveId id) const {
  const auto curve = std::ranges::find(curves_, id, &Curve::id);
  return curve == curves_.end() ? QColor() : curve->graph->pen().color();
}

void PlotChart::Choose(const std::vector<LiveId>& ids) {
  chosen_ = ids;
  Rebuild();
}

void PlotChart::Rebuild() {
  clearPlottables();
  clearItems();
  plotLayout()->clear();
  curves_.clear();
  rects_.clear();
  pointers_.clear();
  setBackground(palette().base());
  std::vector<LiveId> numbers, states;
  for (const LiveId id : chosen_)
    if (history_.Find(id)) (IsState(id.kind) ? states : numbers).push_back(id);
  int row = 0;
  if (!numbers.empty() || states.empty()) {
    auto* key = new QCPLegend;
    plotLayout()->addElement(row, 0, key);
    plotLayout()->setRowStretchFactor(row++, 0.001);
    AddNumbers(numbers, *key, row++);
  }
  if (!states.empty()) AddStates(states, row);
  for (QCPAxisRect* rect : rects_) {
    QCPAxis* time = rect->axis(QCPAxis::atBottom);
    time->setTickLabels(rect == rects_.back());
    auto* line = pointers_.emplace_back(new QCPItemStraightLine(this));
    for (QCPItemPosition* position : {line->point1, line->point2})
      position->setAxes(time, rect->axis(QCPAxis::atLeft));
    line->setClipAxisRect(rect);
    line->setPen(QPen(palette().color(QPalette::Text), 0, Qt::DotLine));
    line->setLayer(kPointerLayer);
  }
  SetView(view_);
  Point(pointed_);
}

QCPAxisRect* PlotChart::AddRect(int row) {
  auto* rect = new QCPAxisRect(this);
  plotLayout()->addElement(row, 0, rect);
  plotLayout()->setRowStretchFactor(row, 1);
  rect->setMarginGroup(QCP::msLeft | QCP::msRight, margins_);
  QCPAxis* time = rect->axis(QCPAxis::atBottom);
  time->setTicker(clock_);
  connect(time, qOverload<const QCPRange&>(&QCPAxis::rangeChanged), this,
          [this](const QCPRange& view) { Viewed(view); });
  rects_.push_back(rect);
  return rect;
}

namespace {

/// Draws an axis in the colours of a palette.
void PaintAxis(QCPAxis& axis, const QPalette& palette) {
  const QColor text = palette.color(QPalette::Text), line = palette.color(QPalette::Mid);
  axis.setLayer("axes");
  axis.grid()->setLayer("grid");
  axis.setTickLabelColor(text);
  axis.setLabelColor(text);
  for (const auto set : {&QCPAxis::setBasePen, &QCPAxis::setTickPen, &QCPAxis::setSubTickPen})
    (axis.*set)(QPen(line, 1));
  QColor faint = line;
  faint.setAlpha(90);
  axis.grid()->setPen(QPen(faint, 0));
  axis.grid()->setZeroLinePen(QPen(line, 0));
}

}  // namespace

void PlotChart::AddCurve(LiveId id, QCPAxis& values, int lane) {
  const std::size_t place = curves_.size();
  QCPGraph* graph = addGraph(values.axisRect()->axis(QCPAxis::atBottom), &values);
  graph->setPen(PenOf(place, lane >= 0));
  graph->setAdaptiveSampling(false);  // the history thins
  graph->setLineStyle(lane < 0 ? QCPGraph::lsLine : QCPGraph::lsStepLeft);
  curves_.push_back({id, graph, lane});
}

void PlotChart::AddNumbers(const std::vector<LiveId>& ids, QCPLegend& key, int row) {
  QCPAxisRect* rect = AddRect(row);
  std::map<std::string, QCPAxis*> axisOfUnit;
  for (const LiveId id : ids) {
    const LiveSeries& series = *history_.Find(id);
    QCPAxis*& axis = axisOfUnit[series.unit];
    if (!axis) {
      const bool isLeft = axisOfUnit.size() % 2 == 1;
      axis = axisOfUnit.size() == 1 ? rect->axis(QCPAxis::atLeft)
                                    : rect->addAxis(isLeft ? QCPAxis::atLeft : QCPAxis::atRight);
      axis->setLabel(ToQt(series.unit));
      axis->grid()->setVisible(axisOfUnit.size() == 1);
    }
    AddCurve(id, *axis, -1);
    const QString unit = series.unit.empty() ? QString() : " [" + ToQt(series.unit) + "]";
    curves_.back().graph->setName(SeriesName(series) + unit);
    curves_.back().graph->addToLegend(&key);
  }
  for (QCPAxis* axis : rect->axes()) PaintAxis(*axis, palette());
  key.setLayer("legend");
  key.setFillOrder(QCPLegend::foColumnsFirst);
  key.setWrap(kLegendColumns);
  key.setBrush(Qt::NoBrush);
  key.setBorderPen(Qt::NoPen);
  key.setTextColor(palette().color(QPalette::Text));
  key.setFont(font());
  key.setVisible(!ids.empty());
  rect->setRangeDragAxes({rect->axis(QCPAxis::atBottom)},
                         rect->axes(QCPAxis::atLeft | QCPAxis::atRight));
  rect->setRangeZoomAxes({rect->axis(QCPAxis::atBottom)},
                         rect->axes(QCPAxis::atLeft | QCPAxis::atRight));
}

void PlotChart::AddStates(const std::vector<LiveId>& ids, int row) {
  QCPAxisRect* rect = AddRect(row);
  QCPAxis* lanes = rect->axis(QCPAxis::atLeft);
  QSharedPointer<QCPAxisTickerText> names(new QCPAxisTickerText);
  int lane = 0;
  for (const LiveId id : ids) {
    AddCurve(id, *lanes, lane);
    names->addTick(lane + kLaneFill / 2, SeriesName(*history_.Find(id)));
    ++lane;
  }
  lanes->setTicker(names);
  lanes->setRange(kLaneFill - 1, lane);
  for (QCPAxis* axis : rect->axes()) PaintAxis(*axis, palette());
  lanes->grid()->setVisible(false);
  if (rects_.size() > 1) {  // what room there is goes to the numbers
    rect->setMinimumSize(0, lane * kLaneHeight);
    rect->setMaximumSize(QWIDGETSIZE_MAX, lane * kLaneHeight);
    plotLayout()->setRowStretchFactor(row, 0.001);
  }
  rect->setRangeDragAxes({rect->axis(QCPAxis::atBottom)}, {});
  rect->setRangeZoomAxes({rect->axis(QCPAxis::atBottom)}, {});
}

/// Done ahead of each drawing, so that no more is thinned than is drawn.
void PlotChart::Refill(int leastColumns) {
  const TimeSpan view = View();
  std::size_t place = 0;
  for (const auto& [id, graph, lane] : curves_) {
    const int width = std::max(graph->keyAxis()->axisRect()->width(), leastColumns);
    const std::vector<CurvePoint> points = history_.Curve(id, view, width);
    QVector<QCPGraphData> drawn;
    drawn.reserve(static_cast<qsizetype>(points.size()));
    for (const auto& [at, value] : points)
      drawn.push_back({KeyOf(at), lane < 0 ? value : lane + value * kLaneFill});
    // Where lines are so dense that nobody could tell, smooth, wide or dashed ones cost too much.
    const bool isSparse = drawn.size() < width / 2;
    graph->setAntialiased(lane < 0 && isSparse);
    graph->setPen(isSparse ? PenOf(place, lane >= 0) : QPen(Colour(place), 1));
    ++place;
    graph->data()->set(drawn, true);
  }
  if (fits_) FitAxes();
}

void PlotChart::FitAxes() {
  std::map<QCPAxis*, QCPRange> ranges;
  for (const Curve& curve : curves_) {
    if (curve.lane >= 0) continue;
    bool isFound = false;
    const QCPRange range = curve.graph->getValueRange(isFound, QCP::sdBoth, view_);
    if (!isFound) continue;
    const auto [place, isNew] = ranges.emplace(curve.graph->valueAxis(), range);
    if (!isNew) place->second.expand(range);
  }
  for (const auto& [axis, range] : ranges) {
    const double room = range.size() > 0 ? range.size() * kAxisRoom
                                         : std::max(std::abs(range.center()) * kAxisRoom, 0.5);
    axis->setRange(range.lower - room, range.upper + room);
  }
}

void PlotChart::SetView(QCPRange view) {
  const double size = std::clamp(view.size(), kLeastView, kMostView);
  const auto kept = history_.Span();
  const double end = follows_ && kept ? KeyOf(kept->to) : view.center() + size / 2;
  view_ = QCPRange(end - size, end);
  isMoving_ = true;
  for (QCPAxisRect* rect : rects_) rect->axis(QCPAxis::atBottom)->setRange(view_);
  isMoving_ = false;
  replot(QCustomPlot::rpQueuedReplot);
  if (OnMoved) OnMoved();
}

/// What the mouse has made of an axis: who pans away from the last round does not follow it.
void PlotChart::Viewed(const QCPRange& view) {
  if (isMoving_) return;
  const bool isPanned = std::abs(view.size() - view_.size()) < 1e-6 * view.size();
  if (isPanned) follows_ = false;
  SetView(view);
}

void PlotChart::Look() {
  if (follows_) return SetView(view_);
  replot(QCustomPlot::rpQueuedReplot);
}

void PlotChart::SetFollows(bool follows) {
  follows_ = follows;
  SetView(view_);
}

void PlotChart::ShowAll() {
  const auto kept = history_.Span();
  if (!kept) return;
  const double length = KeyOf(kept->to) - KeyOf(kept->from);
  SetView(QCPRange(KeyOf(kept->from), KeyOf(kept->from) + std::max(length, kLeastView)));
}

void PlotChart::ZoomTime(double factor) {
  const double half = view_.size() * factor / 2;
  SetView(QCPRange(view_.center() - half, view_.center() + half));
}

void PlotChart::PanTime(double part) {
  follows_ = false;
  SetView(QCPRange(view_.lower + view_.size() * part, view_.upper + view_.size() * part));
}

std::vector<QCPAxis*> PlotChart::ValueAxes() const {
  std::vector<QCPAxis*> axes;
  for (const Curve& curve : curves_)
    if (curve.lane < 0 && std::ranges::find(axes, curve.graph->valueAxis()) == axes.end())
      axes.push_back(curve.graph->valueAxis());
  return axes;
}

void PlotChart::ZoomValues(double factor) {
  fits_ = false;
  for (QCPAxis* axis : ValueAxes()) axis->scaleRange(factor);
  replot(QCustomPlot::rpQueuedReplot);
}

void PlotChart::PanValues(double part) {
  fits_ = false;
  for (QCPAxis* axis : ValueAxes()) axis->moveRange(axis->range().size() * part);
  replot(QCustomPlot::rpQueuedReplot);
}

void PlotChart::FitValues() {
  fits_ = true;
  replot(QCustomPlot::rpQueuedReplot);
}

QPixmap PlotChart::Picture() {
  constexpr int kWidth = 1200, kHeight = 675;
  constexpr double kSharpness = 2;
  Point({});
  Refill(kWidth);
  return toPixmap(kWidth, kHeight, kSharpness);
}

void PlotChart::Point(std::optional<Moment> at) {
  pointed_ = at;
  for (QCPItemStraightLine* line : pointers_) {
    line->setVisible(at.has_value());
    if (!at) continue;
    line->point1->setCoords(KeyOf(*at), 0);
    line->point2->setCoords(KeyOf(*at), 1);
  }
  layer(kPointerLayer)->replot();
  if (OnMoved) OnMoved();
}

/// With Shift it is the values that are moved.
void PlotChart::UseOrientation(Qt::KeyboardModifiers keys) {
  const bool isValues = keys.testFlag(Qt::ShiftModifier);
  if (isValues) fits_ = false;
  for (QCPAxisRect* rect : rects_) {
    rect->setRangeDrag(isValues ? Qt::Vertical : Qt::Horizontal);
    rect->setRangeZoom(isValues ? Qt::Vertical : Qt::Horizontal);
  }
}

void PlotChart::wheelEvent(QWheelEvent* event) {
  UseOrientation(event->modifiers());
  QCustomPlot::wheelEvent(event);
}

void PlotChart::mousePressEvent(QMouseEvent* event) {
  UseOrientation(event->modifiers());
  QCustomPlot::mousePressEvent(event);
}

void PlotChart::mouseMoveEvent(QMouseEvent* event) {
  QCustomPlot::mouseMoveEvent(event);
  const QCPAxisRect* rect = axisRectAt(event->position());
  if (rect)
    Point(MomentOf(rect->axis(QCPAxis::atBottom)->pixelToCoord(event->position().x())));
  else if (pointed_)
    Point({});
}

void PlotChart::mouseDoubleClickEvent(QMouseEvent*) { FitValues(); }

void PlotChart::leaveEvent(QEvent* event) {
  QCustomPlot::leaveEvent(event);
  Point({});
}

void PlotChart::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return PanTime(-kPanStep);
    case Qt::Key_Right:
      return PanTime(kPanStep);
    case Qt::Key_Up:
      return PanValues(kPanStep);
    case Qt::Key_Down:
      return PanValues(-kPanStep);
    case Qt::Key_Plus:
      return ZoomTime(1 / kZoomStep);
    case Qt::Key_Minus:
      return ZoomTime(kZoomStep);
    case Qt::Key_PageUp:
      return ZoomValues(1 / kZoomStep);
    case Qt::Key_PageDown:
      return ZoomValues(kZoomStep);
    case Qt::Key_Home:
      return ShowAll();
    case Qt::Key_End:
      return SetFollows(true);
    case Qt::Key_0:
      return FitValues();
    default:
      QCustomPlot::keyPressEvent(event);
  }
}

void PlotChart::changeEvent(QEvent* event) {
  QCustomPlot::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) Rebuild();
}

}  // namespace ostrel
