// What a page of the guide looks like, beyond what its Markdown says. Used by TCGuideBrowser.
#pragma once

#include <QPalette>
#include <QString>
#include <QTextDocument>

namespace brevant {

// The anchor of a heading as the pages' links write it: lower case, blanks as hyphens, no other punctuation.
// "Volume, to and fro" is "volume-to-and-fro".
[[nodiscard]] QString HeadingAnchor(const QString& heading);

// Gives every heading its anchor, tables their lines, code a ground and pictures a width that fits, all in
// the palette's colours. Done again it changes the colours alone.
void DressGuidePage(QTextDocument& page, const QPalette& palette);

}  // namespace brevant
