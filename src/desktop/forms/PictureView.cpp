#include "desktop/forms/PictureView.h"

#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <array>
#include <span>

#include "desktop/forms/Icons.h"
#include "desktop/forms/Words.h"

namespace ostrel {
namespace {

/// The jumpers of a board as pairs of pins, three columns of them, and which of the pairs each
/// picture bridges: one bit a pair, the upper row first.
constexpr int kPicturesAcross = 3;
constexpr std::array<unsigned, 6> kBridged{0b000000, 0b000111, 0b001110,
                                           0b110001, 0b011100, 0b101010};

class JumperView final : public QWidget {
 public:
  JumperView(const Picture& picture, QWidget* parent) : QWidget(parent), picture_(picture) {
    setFixedSize(sizeHint());
    setAccessibleName(Words::tr("Jumpers"));
  }
  QSize sizeHint() const override { return {132, 76}; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isEnabled() ? QColor("#1f6b4a") : QColor("#7c8a83"));
    painter.drawRoundedRect(rect(), 6, 6);
    const auto image = static_cast<std::size_t>(picture_.Image());
    const unsigned bridged = image < kBridged.size() ? kBridged[image] : 0;
    for (int pair = 0; pair < 2 * kPicturesAcross; ++pair)
      DrawPair(painter, pair, bridged >> pair & 1U);
  }

 private:
  static void DrawPair(QPainter& painter, int pair, bool isBridged) {
    const QPointF at(14 + pair % kPicturesAcross * 40, 14 + pair / kPicturesAcross * 32);
    if (isBridged) {
      painter.setBrush(QColor("#2b3f8c"));
      painter.drawRoundedRect(QRectF(at.x() - 5, at.y() - 5, 36, 26), 4, 4);
    }
    for (const qreal x : {0.0, 18.0}) {
      painter.setBrush(QColor("#d9b84a"));
      painter.drawRect(QRectF(at.x() + x, at.y() + 4, 8, 8));
    }
  }

  const Picture& picture_;
};

class WarningView final : public QWidget {
 public:
  explicit WarningView(QWidget* parent) : QWidget(parent) {
    setFixedSize(22, 22);
    setAccessibleName(Words::tr("Warning"));
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    DrawWarningSign(painter, rect());
  }
};

/// Shows a picture that stands in a file, as large as a page has room for.
class FileView final : public QLabel {
 public:
  using QLabel::QLabel;
  void ShowFile(const QString& path) {
    if (path == path_) return;
    path_ = path;
    constexpr QSize kRoom{240, 120};
    const QPixmap picture(path);
    setPixmap(picture.isNull()
                  ? picture
                  : picture.scaled(kRoom, Qt::KeepAspectRatio, Qt::SmoothTransformation));
  }

 private:
  QString path_;
};

}  // namespace

Bound MakePictureView(Picture& picture, QWidget* parent) {
  if (picture.face.Name() == "Warning") return {new WarningView(parent), {}};
  if (picture.face.Name() == "Picture1") {
    auto* view = new FileView(parent);
    return {view, [view, &picture] { view->ShowFile(ToQt(picture.File())); }};
  }
  auto* view = new JumperView(picture, parent);
  return {view, [view] { view->update(); }};
}

}  // namespace ostrel
