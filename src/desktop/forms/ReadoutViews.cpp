#include "desktop/forms/ReadoutViews.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QFontDatabase>
#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>

#include "base/Numbers.h"
#include "desktop/forms/DarkPalette.h"
#include "desktop/forms/ElidedLabel.h"
#include "desktop/forms/Words.h"

namespace ostrel {
namespace {

/// What assistive technology reads of a readout.
class ReadoutInterface final : public QAccessibleWidget {
 public:
  explicit ReadoutInterface(Readout* readout)
      : QAccessibleWidget(readout, QAccessible::Indicator), readout_(*readout) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? readout_.ValueText() : QAccessibleWidget::text(kind);
  }

 private:
  const Readout& readout_;
};

QAccessibleInterface* MakeReadoutInterface(const QString&, QObject* object) {
  auto* readout = dynamic_cast<Readout*>(object);
  return readout ? new ReadoutInterface(readout) : nullptr;
}

/// The colours of what is well, doubtful and not well, on light and on dark.
QColor GoodColour(const QWidget& widget) {
  return IsDark(widget.palette()) ? "#51cf66" : "#2b8a3e";
}
QColor DoubtColour(const QWidget& widget) {
  return IsDark(widget.palette()) ? "#fcc419" : "#e8a100";
}
QColor BadColour(const QWidget& widget) { return IsDark(widget.palette()) ? "#ff8787" : "#c92a2a"; }
QColor DimColour(const QWidget& widget) {
  return widget.palette().color(QPalette::PlaceholderText);
}

QColor Faint(QColor colour) {
  colour.setAlphaF(0.35F);
  return colour;
}

QString StaleWords(const Staleness& stale) {
  return stale.since.empty() ? Words::tr("not read")
                             : Words::tr("last read at %1").arg(ToQt(stale.since));
}

QString WithAge(QString value, const Staleness& stale) {
  return stale.isStale ? value + (value.isEmpty() ? "" : ", ") + StaleWords(stale) : value;
}

class DigitView final : public Readout {
 public:
  DigitView(const DigitBox& box, QWidget* parent) : Readout(parent), box_(box) {
    QFont digits = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    digits.setPointSizeF(font().pointSizeF() * 1.2);
    digits.setWeight(QFont::DemiBold);
    setFont(digits);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  }
  QSize sizeHint() const override {
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance("-1234567.8") + AgeWidth() + 16, metrics.height() + 4};
  }
  QSize minimumSizeHint() const override { return sizeHint(); }
  QString ValueText() const override { return WithAge(ToQt(box_.Text()).trimmed(), box_.Stale()); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isStale = box_.Stale().isStale;
    painter.setPen(QPen(palette().color(QPalette::Mid), 1, isStale ? Qt::DashLine : Qt::SolidLine));
    painter.setBrush(palette().color(isStale ? QPalette::Window : QPalette::Base));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    QRect inner = rect().adjusted(6, 0, -6, 0);
    painter.setPen(isStale ? DimColour(*this) : palette().color(QPalette::Text));
    if (isStale) {
      painter.setFont(AgeFont());
      painter.drawText(inner, Qt::AlignLeft | Qt::AlignVCenter, ToQt(box_.Stale().since));
      inner.setLeft(inner.left() + AgeWidth() + 4);
    }
    DrawDigits(painter, inner);
  }

 private:
  /// Smaller where they have not the room, and shortened visibly at last: without its first digits
  /// a number would be another one.
  void DrawDigits(QPainter& painter, const QRect& room) {
    constexpr double kLeastScale = 0.6;
    const QString digits = ToQt(box_.Text()).trimmed();
    QFont fitting = font();
    const double needed = QFontMetricsF(fitting).horizontalAdvance(digits);
    if (needed > room.width())
      fitting.setPointSizeF(fitting.pointSizeF() * std::max(room.width() / needed, kLeastScale));
    painter.setFont(fitting);
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter,
                     QFontMetrics(fitting).elidedText(digits, Qt::ElideRight, room.width()));
  }
  QFont AgeFont() const {
    QFont small = font();
    small.setPointSizeF(font().pointSizeF() * 0.65);
    small.setWeight(QFont::Normal);
    return small;
  }
  int AgeWidth() const { return QFontMetrics(AgeFont()).horizontalAdvance("00:00:00"); }

  const DigitBox& box_;
};

class LampView final : public Readout {
 public:
  LampView(const LedMedio& lamp, QWidget* parent) : Readout(parent), lamp_(lamp) {
    setFixedSize(18, 18);
  }
  QString ValueText() const override {
    return WithAge(IsLit() ? Words::tr("on") : Words::tr("off"), lamp_.Stale());
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isStale = lamp_.Stale().isStale;
    const QColor colour = isStale || !IsLit() ? DimColour(*this) : GoodColour(*this);
    painter.setPen(QPen(colour, 1.6, isStale ? Qt::DotLine : Qt::SolidLine));
    painter.setBrush(IsLit() ? (isStale ? Faint(colour) : colour) : QColor(Qt::transparent));
    painter.drawEllipse(QRectF(rect()).adjusted(3, 3, -3, -3));
  }

 private:
  bool IsLit() const { return lamp_.Value() == LedMedio::kLit; }

  const LedMedio& lamp_;
};

QString PlaceWords(BandPlace place) {
  switch (place) {
    case BandPlace::Inside:
      return Words::tr("inside");
    case BandPlace::NearMinimum:
    case BandPlace::NearMaximum:
      return Words::tr("within the hysteresis");
    case BandPlace::Below:
      return Words::tr("below the minimum");
    default:
      return Words::tr("above the maximum");
  }
}

bool IsOutside(BandPlace place) { return place == BandPlace::Below || place == BandPlace::Above; }

QString NumberWords(double number) { return ToQt(NumText(static_cast<float>(number))).trimmed(); }

/// A strip for each band: where alarms are, where they linger, where all is well; the value is a
/// line across them, and a sign behind them tells how it stands.
class LimitView final : public Readout {
 public:
  LimitView(const LimitBar& bar, QWidget* parent) : Readout(parent), bar_(bar) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  }
  QSize sizeHint() const override { return {110, std::max(18, 6 * Strips() + 6)}; }
  QSize minimumSizeHint() const override { return {64, sizeHint().height()}; }
  QString ValueText() const override {
    QStringList lines;
    for (const AlarmBand& band : bar_.Bands()) {
      QString line = Words::tr("%1 to %2, hysteresis %3")
                         .arg(NumberWords(band.minimum), NumberWords(band.maximum),
                              NumberWords(band.hysteresis));
      if (bar_.Value()) line += ": " + PlaceWords(PlaceIn(band, *bar_.Value()));
      lines << line;
    }
    return lines.join(u'\n');
  }
  void Follow() {
    setAccessibleName(Words::tr("Alarm limits of %1").arg(ToQt(bar_.face.Caption())));
    updateGeometry();
    Readout::Follow();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    FindScale();
    const double height = (QRectF(rect()).height() - 4) / std::max(Strips(), 1);
    double top = 2;
    for (const AlarmBand& band : bar_.Bands()) {
      DrawStrip(painter, band, top + 1, height - 2);
      top += height;
    }
    if (!bar_.Value()) return;
    const double x = PlaceOf(*bar_.Value());
    painter.setPen(QPen(palette().color(QPalette::Text), 2));
    painter.drawLine(QPointF(x, 0), QPointF(x, QRectF(rect()).height()));
    DrawSign(painter);
  }

 private:
  static constexpr double kSignWidth = 16;
  static constexpr double kMargin = 0.25;  // beside the bands, as a part of their width

  int Strips() const { return static_cast<int>(bar_.Bands().size()); }

  void FindScale() {
    const auto& bands = bar_.Bands();
    const auto lowest = std::ranges::min_element(bands, {}, &AlarmBand::minimum);
    const auto highest = std::ranges::max_element(bands, {}, &AlarmBand::maximum);
    if (bands.empty()) return;
    // Never so small beside the limits themselves that a margin would be lost in them.
    constexpr double kLeastShare = 1e-9;
    const double most = std::max(std::abs(highest->maximum), std::abs(lowest->minimum));
    const double span = std::max({highest->maximum - lowest->minimum, most * kLeastShare, 1e-6});
    first_ = lowest->minimum - kMargin * span;
    last_ = highest->maximum + kMargin * span;
  }
  double PlaceOf(double value) const {
    const double share = std::clamp((value - first_) / (last_ - first_), 0.0, 1.0);
    return 1 + share * (width() - kSignWidth - 2);
  }
  void DrawStrip(QPainter& painter, const AlarmBand& band, double top, double height) {
    const auto fill = [&](double from, double to, const QColor& colour) {
      if (to > from)
        painter.fillRect(QRectF(PlaceOf(from), top, PlaceOf(to) - PlaceOf(from), height), colour);
    };
    const double low = std::min(band.minimum + band.hysteresis, band.maximum);
    const double high = std::max(band.maximum - band.hysteresis, low);
    fill(first_, band.minimum, Faint(BadColour(*this)));
    fill(band.minimum, low, Faint(DoubtColour(*this)));
    fill(low, high, Faint(GoodColour(*this)));
    fill(high, band.maximum, Faint(DoubtColour(*this)));
    fill(band.maximum, last_, Faint(BadColour(*this)));
  }
  /// A point for inside, a ring for the hysteresis, an arrow for outside.
  void DrawSign(QPainter& painter) {
    BandPlace worst = BandPlace::Inside;
    for (const AlarmBand& band : bar_.Bands()) {
      const BandPlace place = PlaceIn(band, *bar_.Value());
      if (IsOutside(place) || worst == BandPlace::Inside) worst = place;
    }
    const QPointF at(width() - kSignWidth / 2, height() / 2.0);
    if (IsOutside(worst)) {
      const double way = worst == BandPlace::Above ? -1 : 1;
      painter.setPen(Qt::NoPen);
      painter.setBrush(BadColour(*this));
      const std::array arrow{at + QPointF(0, 6 * way), at + QPointF(-6, -5 * way),
                             at + QPointF(6, -5 * way)};
      painter.drawPolygon(arrow.data(), static_cast<int>(arrow.size()));
      return;
    }
    const bool isInside = worst == BandPlace::Inside;
    const QColor colour = isInside ? GoodColour(*this) : DoubtColour(*this);
    painter.setPen(QPen(colour, 2));
    painter.setBrush(isInside ? colour : QColor(Qt::transparent));
    painter.drawEllipse(at, 3.5, 3.5);
  }

  const LimitBar& bar_;
  double first_ = 0, last_ = 1;
};

template <class View, class Control>
Bound MakeReadout(Control& control, QWidget* parent) {
  static const bool isInstalled = [] {
    QAccessible::installFactory(MakeReadoutInterface);
    return true;
  }();
  Q_UNUSED(isInstalled);
  auto* view = new View(control, parent);
  return {view, [view, &control] {
            view->setEnabled(control.face.Enabled());
            view->setVisible(control.face.Visible());
            view->Follow();
          }};
}

}  // namespace

void Readout::Follow() {
  setToolTip(ValueText());
  update();
  if (!QAccessible::isActive()) return;
  QAccessibleValueChangeEvent event(this, ValueText());
  QAccessible::updateAccessibility(&event);
}

Bound BindReadout(DigitBox& box, QWidget* parent) { return MakeReadout<DigitView>(box, parent); }

/// Behind a text that is stale stands when it came last.
Bound BindReadout(ReadoutLine& line, QWidget* parent) {
  auto* widget = new ElidedLabel(parent);
  widget->setTextFormat(Qt::PlainText);
  return {
      widget, [widget, &line] {
        const Staleness& stale = line.Stale();
        const QString text = ToQt(line.face.Caption());
        const bool hasAge = !text.isEmpty() && !stale.since.empty();
        widget->setEnabled(line.face.Enabled());
        widget->setVisible(line.face.Visible());
        widget->setForegroundRole(stale.isStale ? QPalette::PlaceholderText : QPalette::WindowText);
        widget->SetWords(hasAge ? text + " (" + ToQt(stale.since) + ')' : text);
        widget->setToolTip(text.isEmpty() ? text : WithAge(text, stale));
        widget->setAccessibleName(widget->toolTip());
      }};
}

Bound BindReadout(LedMedio& lamp, QWidget* parent) { return MakeReadout<LampView>(lamp, parent); }

Bound BindReadout(LimitBar& bar, QWidget* parent) { return MakeReadout<LimitView>(bar, parent); }

}  // namespace ostrel
