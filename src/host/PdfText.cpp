#include "host/PdfText.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <cmath>
#include <vector>

namespace ostrel {
namespace {

constexpr int kResolution = 150;  ///< dots an inch, in which the text is set
constexpr qreal kMarginMm = 15;
constexpr int kHeadingsTogether = 3;  ///< that follow each other without text
constexpr qreal kFootHeight = 0.25 * kResolution;

bool IsHeading(const QTextBlock& block) { return block.blockFormat().headingLevel() != 0; }

std::vector<QTextBlock> HeadingsOf(const QTextDocument& text) {
  std::vector<QTextBlock> headings;
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
    if (IsHeading(block)) headings.push_back(block);
  return headings;
}

/// Where two lines of a heading's text end, be it that of a heading below it.
qreal EndOfStart(const QAbstractTextDocumentLayout& layout, const QTextBlock& heading) {
  QTextBlock first = heading.next();
  for (int below = 0; below < kHeadingsTogether && IsHeading(first); ++below) first = first.next();
  const QRectF line = layout.blockBoundingRect(first);
  return line.bottom() + line.height();
}

/// Moves each heading to the next page where its text would begin there, and the last one, whose
/// text is to be signed, where the text would end there. It is moved by its margin, and all is laid
/// out anew behind it: the layout loses a page break ahead of a table, and headings when it mends
/// itself.
void KeepHeadingsWithTheirText(QTextDocument& text, const QSizeF& page) {
  const QAbstractTextDocumentLayout& layout = *text.documentLayout();
  const std::vector<QTextBlock> headings = HeadingsOf(text);
  for (const QTextBlock& heading : headings) {
    const qreal end = heading == headings.back() ? layout.documentSize().height() - 1
                                                 : EndOfStart(layout, heading);
    const qreal top = layout.blockBoundingRect(heading).top();
    const qreal pageEnd = (std::floor(top / page.height()) + 1) * page.height();
    if (end < pageEnd) continue;
    QTextBlockFormat moved = heading.blockFormat();
    moved.setTopMargin(moved.topMargin() + pageEnd - top);
    QTextCursor(heading).setBlockFormat(moved);
    text.setPageSize({});
    text.setPageSize(page);
  }
}

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
    KeepHeadingsWithTheirText(text, page);
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
