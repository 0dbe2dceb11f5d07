// The user guide as the program has it, for tests.
#pragma once

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>

#include "app/help/guide_dress.h"

namespace brevant {

inline QStringList GuideFiles() {
  return QDir(QStringLiteral(":/guide/user")).entryList({QStringLiteral("*.md")});
}

inline QString GuideText(const QString& file) {
  QFile page(QStringLiteral(":/guide/user/") + file);
  return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

// Where "panes.md#the-player" leads: a page of the guide, and to a heading of it if one is named.
inline bool LeadsSomewhere(const QString& target) {
  const QString file = target.section(u'#', 0, 0);
  const QString anchor = target.section(u'#', 1);
  if (!GuideFiles().contains(file)) return false;
  if (anchor.isEmpty()) return true;
  QTextDocument page;
  page.setMarkdown(GuideText(file));
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() > 0 && HeadingAnchor(block.text()) == anchor) return true;
  }
  return false;
}

}  // namespace brevant
