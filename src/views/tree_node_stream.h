// Qt looks for these for whatever a signal carries, and its own for enums do not know every integer type.
#pragma once

#include <QDataStream>

#include "model/set_list.h"

namespace brevant {

inline QDataStream& operator<<(QDataStream& stream, TCTreeNode node) {
  return stream << static_cast<quint64>(node);
}

inline QDataStream& operator>>(QDataStream& stream, TCTreeNode& node) {
  quint64 number = 0;
  stream >> number;
  node = static_cast<TCTreeNode>(number);
  return stream;
}

}  // namespace brevant
