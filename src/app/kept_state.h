// How the toolkit describes the places of its panes and bars, kept in the layout file with a check sum beside
// it: the toolkit takes such a state on trust, and one that was damaged can end the program at every start.
#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>

namespace brevant {

void KeepState(QSettings& layout, const QString& name, const QByteArray& state);

// Empty when there is none, or when it is not what was kept.
[[nodiscard]] QByteArray KeptState(const QSettings& layout, const QString& name);

}  // namespace brevant
