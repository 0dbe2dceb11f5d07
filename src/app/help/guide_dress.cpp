#include "app/help/guide_dress.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextTable>

namespace brevant {
namespace {

constexpr qreal kMargin = 18;
constexpr qreal kCellPadding = 5;
constexpr qreal kLinePercent = 118;
constexpr qreal kAboveHeading = 18;
constexpr qreal kBelowTable = 10;
constexpr qreal kPictureWidth = 680;

void DressHeading(QTextCursor& cursor, const QString& text) {
  QTextCharFormat format;
  format.setAnchor(true);
  format.setAnchorNames({HeadingAnchor(text)});
  cursor.mergeCharFormat(format);
}

void DressSpan(QTextCursor& cursor, const QTextCharFormat& found, const QPalette& palette) {
  QTextCharFormat format;
  if (!found.anchorHref().isEmpty()) {
    format.setForeground(palette.link());
  } else if (found.isImageFormat()) {
    format = found;
    format.setProperty(QTextFormat::ImageWidth, kPictureWidth);
  } else if (found.fontFixedPitch()) {
    format.setBackground(palette.alternateBase());
  } else {
    return;
  }
  cursor.mergeCharFormat(format);
}

void DressBlock(const QTextBlock& block, const QPalette& palette) {
  QTextCursor cursor(block);
  QTextBlockFormat format;
  format.setLineHeight(kLinePercent, QTextBlockFormat::ProportionalHeight);
  if (block.blockFormat().headingLevel() > 1) format.setTopMargin(kAboveHeading);
  if (block.blockFormat().hasProperty(QTextFormat::BlockCodeFence))
    format.setBackground(palette.alternateBase());
  cursor.mergeBlockFormat(format);

  if (block.blockFormat().headingLevel() > 0) {
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    DressHeading(cursor, block.text());
    return;
  }
  // The spans are gone through before they are changed: a change may join or part them.
  struct TCSpan {
    int begin;
    int end;
    QTextCharFormat format;
  };
  QList<TCSpan> spans;
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    const QTextFragment fragment = part.fragment();
    spans.append({fragment.position(), fragment.position() + fragment.length(), fragment.charFormat()});
  }
  for (const TCSpan& span : spans) {
    cursor.setPosition(span.begin);
    cursor.setPosition(span.end, QTextCursor::KeepAnchor);
    DressSpan(cursor, span.format, palette);
  }
}

void DressTables(const QTextFrame& frame, const QPalette& palette) {
  for (QTextFrame* child : frame.childFrames()) {
    if (auto* table = qobject_cast<QTextTable*>(child)) {
      QTextTableFormat format = table->format();
      format.setBorder(1);
      format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
      format.setBorderBrush(palette.mid());
      format.setBorderCollapse(true);
      format.setCellSpacing(0);
      format.setCellPadding(kCellPadding);
      format.setBottomMargin(kBelowTable);
      table->setFormat(format);
    }
    DressTables(*child, palette);
  }
}

}  // namespace

QString HeadingAnchor(const QString& heading) {
  QString anchor;
  for (const QChar character : heading.toLower()) {
    if (character.isLetterOrNumber() || character == u'-' || character == u'_') anchor += character;
    if (character == u' ') anchor += u'-';
  }
  return anchor;
}

QImage GuidePicture(const QImage& whole, qreal devicePixelRatio) {
  QImage picture = whole.scaledToWidth(qRound(kPictureWidth * devicePixelRatio), Qt::SmoothTransformation);
  picture.setDevicePixelRatio(devicePixelRatio);
  return picture;
}

void DressGuidePage(QTextDocument& page, const QPalette& palette) {
  page.setDocumentMargin(kMargin);
  QTextCursor whole(&page);
  whole.beginEditBlock();
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) DressBlock(block, palette);
  DressTables(*page.rootFrame(), palette);
  whole.endEditBlock();
}

}  // namespace brevant
