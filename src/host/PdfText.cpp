#include "host/PdfText.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>
#include <algorithm>

namespace ostrel {
namespace {

constexpr int kResolution = 150;  ///< dots an inch, in which the text is set
constexpr qreal kMarginMm = 15;
constexpr qreal kFootHeight = 0.25 * kResolution;

void DrawPage(QPainter& painter, QTextDocument& text, const QSizeF& page, int number, int count) {
  painter.save();
  painter.translate(0, -page.height() * number);
  text.drawContents(&painter, QRectF(0, page.height() * number, page.width(), page.height()));
  painter.restore();
  const QRectF foot(0, page.height(), page.width(), kFootHeight);
  painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom,
                   QString("%1 / %2").arg(number + 1).arg(count));
}

}  // namespace

std::string PdfOf(const std::string& html) {
  QByteArray octets;
  QBuffer buffer(&octets);
  if (!buffer.open(QIODevice::WriteOnly)) return {};
  {
    QPdfWriter writer(&buffer);
    writer.setResolution(kResolution);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(kMarginMm, kMarginMm, kMarginMm, kMarginMm),
                          QPageLayout::Millimeter);
    QTextDocument text;
    text.documentLayout()->setPaintDevice(&writer);
    text.setDocumentMargin(0);
    text.setHtml(QString::fromStdString(html));
    const QSizeF page(writer.width(), writer.height() - kFootHeight);
    text.setPageSize(page);
    writer.setTitle(text.metaInformation(QTextDocument::DocumentTitle));
    QPainter painter;
    if (!painter.begin(&writer)) return {};
    const int count = std::max(1, text.pageCount());
    for (int number = 0; number < count; ++number) {
      if (number > 0) writer.newPage();
      DrawPage(painter, text, page, number, count);
    }
  }
  return octets.toStdString();
}

}  // namespace ostrel
