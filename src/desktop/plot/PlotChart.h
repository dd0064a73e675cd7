#pragma once

#include <qcustomplot.h>

#include <functional>
#include <optional>
#include <vector>

#include "shell/plot/LiveHistory.h"

namespace ostrel {

/// Curves of live values over time: numbers with an axis for each unit, states as steps, each in a
/// lane of its own below. Time is panned by dragging or left and right, and zoomed by the wheel or
/// plus and minus; values by dragging with Shift or up and down, and by the wheel with Shift or the
/// page keys. It draws what the pixels can show, however much time is in view.
class PlotChart final : public QCustomPlot {
 public:
  PlotChart(const LiveHistory& history, QWidget* parent);

  /// Chooses the values that are drawn.
  void Choose(const std::vector<LiveId>& ids);
  /// Draws anew with names and colours as they are now.
  void Rebuild();
  /// Follows the history, which has grown.
  void Look();

  /// Whether the last round stays at the right end.
  bool Follows() const { return follows_; }
  void SetFollows(bool follows);
  /// Brings all that is kept into view.
  void ShowAll();
  /// Shows more time for a factor above 1, less for one below.
  void ZoomTime(double factor);
  /// Moves by a part of what is in view, to later for a positive one.
  void PanTime(double part);
  void ZoomValues(double factor);
  void PanValues(double part);
  /// Fits the axes to the values in view, from here on.
  void FitValues();

  TimeSpan View() const;
  /// Where the pointer is; nothing while it is elsewhere.
  std::optional<Moment> Pointed() const { return pointed_; }
  /// The colour that a value is drawn in; none for one that is not drawn.
  QColor ColourOf(LiveId id) const;
  /// What is drawn, larger and sharp enough for print.
  QPixmap Picture();

  /// Runs when the view or the pointer has moved. Set by its owner.
  std::function<void()> OnMoved;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// One value that is drawn.
  struct Curve {
    LiveId id;
    QCPGraph* graph;
    int lane;  ///< of a state, from 0; -1 for a number
  };

  double KeyOf(Moment at) const;
  Moment MomentOf(double key) const;
  /// Shows a stretch of time, in seconds of local time.
  void SetView(QCPRange view);
  void Viewed(const QCPRange& view);
  QCPAxisRect* AddRect(int row);
  void AddNumbers(const std::vector<LiveId>& ids, QCPLegend& key, int row);
  void AddStates(const std::vector<LiveId>& ids, int row);
  void AddCurve(LiveId id, QCPAxis& values, int lane);
  void Refill(int leastColumns = 1);
  void FitAxes();
  void Point(std::optional<Moment> at);
  QColor Colour(std::size_t place) const;
  QPen PenOf(std::size_t place, bool isState) const;
  std::vector<QCPAxis*> ValueAxes() const;
  void UseOrientation(Qt::KeyboardModifiers keys);

  const LiveHistory& history_;
  std::vector<LiveId> chosen_;
  std::vector<Curve> curves_;
  std::vector<QCPAxisRect*> rects_;
  std::vector<QCPItemStraightLine*> pointers_;
  QCPMarginGroup* margins_;
  QSharedPointer<QCPAxisTickerDateTime> clock_;
  QCPRange view_;
  bool follows_ = true;
  bool fits_ = true;       ///< the axes fit the values in view
  bool isMoving_ = false;  ///< the time axes are being set
  std::optional<Moment> pointed_;
};

}  // namespace ostrel
