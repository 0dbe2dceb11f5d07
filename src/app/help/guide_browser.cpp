#include "app/help/guide_browser.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>

#include "app/help/guide_dress.h"

namespace brevant {
namespace {

const QString kGuideFolder = QStringLiteral("qrc:/guide/user/");

}  // namespace

TCGuideBrowser::TCGuideBrowser(QWidget* parent) : QTextBrowser(parent) {
  setObjectName(QStringLiteral("GuidePage"));
  setAccessibleName(QStringLiteral("Guide page"));
  setFrameShape(NoFrame);
  // Told of every page, of one that was gone back to as well, before its place is found again.
  connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& url) {
    DressPage();
    if (pageComesIn) QTextCursor(document()).endEditBlock();
    pageComesIn = false;
    if (url.hasFragment()) scrollToAnchor(url.fragment());
  });
}

void TCGuideBrowser::Open(const QString& page) {
  setSource(QUrl(kGuideFolder + page), QTextDocument::MarkdownResource);
}

QString TCGuideBrowser::Title() const {
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() > 0) return block.text();
  }
  return {};
}

bool TCGuideBrowser::Find(const QString& text, TCDirection direction, TCFrom from) {
  const bool backward = direction == TCDirection::Backward;
  const QTextDocument::FindFlags flags =
      backward ? QTextDocument::FindFlags(QTextDocument::FindBackward) : QTextDocument::FindFlags();
  QTextCursor start = textCursor();
  if (from == TCFrom::SelectionStart) start.setPosition(start.selectionStart());
  QTextCursor found = document()->find(text, start, flags);
  if (found.isNull()) {
    start.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
    found = document()->find(text, start, flags);
  }
  if (found.isNull()) {
    start = textCursor();
    start.clearSelection();
    setTextCursor(start);
    return false;
  }
  setTextCursor(found);  // scrolls there
  return true;
}

// The toolkit puts a page into the document that is on the screen bit by bit, and would lay out what is there
// of it after each: a page of tables would keep the stage waiting for half a second.
QVariant TCGuideBrowser::loadResource(int type, const QUrl& name) {
  if (type == QTextDocument::MarkdownResource && !pageComesIn) {
    pageComesIn = true;
    QTextCursor(document()).beginEditBlock();
  }
  const QVariant found = QTextBrowser::loadResource(type, name);
  if (type != QTextDocument::ImageResource) return found;
  const QImage whole = QImage::fromData(found.toByteArray());
  return whole.isNull() ? found : QVariant(GuidePicture(whole, devicePixelRatioF()));
}

void TCGuideBrowser::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) DressPage();
}

void TCGuideBrowser::doSetSource(const QUrl& url, QTextDocument::ResourceType /*type*/) {
  // Links come without a type, and the toolkit would look it up in the desktop's table of file types.
  if (url.scheme() == QLatin1String("qrc")) QTextBrowser::doSetSource(url, QTextDocument::MarkdownResource);
}

void TCGuideBrowser::DressPage() {
  const int place = verticalScrollBar()->value();
  DressGuidePage(*document(), palette());
  verticalScrollBar()->setValue(place);
}

}  // namespace brevant
