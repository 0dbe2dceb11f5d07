// What a page of the guide looks like, beyond what its Markdown says. Used by TCGuideBrowser.
#pragma once

#include <QImage>
#include <QPalette>
#include <QString>
#include <QTextDocument>

namespace brevant {

// The anchor of a heading as the pages' links write it: lower case, blanks as hyphens, no other punctuation.
// "Volume, to and fro" is "volume-to-and-fro".
[[nodiscard]] QString HeadingAnchor(const QString& heading);

// A picture as large as a page shows it, for a screen with so many pixels to one of the page's. The toolkit
// itself would leave pixels out, and letters in the picture would not be read any more.
[[nodiscard]] QImage GuidePicture(const QImage& whole, qreal devicePixelRatio);

// Gives every heading its anchor, tables their lines, code a ground and pictures a width that fits, all in
// the palette's colours. Done again it changes the colours alone.
void DressGuidePage(QTextDocument& page, const QPalette& palette);

}  // namespace brevant
