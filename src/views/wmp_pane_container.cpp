#include "views/wmp_pane_container.h"

#include <QResizeEvent>

namespace brevant {

TCWMPPaneContainer::TCWMPPaneContainer(TCPlayer* player, const TCPlayerMonitor* monitor, QWidget* parent)
    : QWidget(parent), host(player, monitor, this) {
  setAccessibleName(QStringLiteral("Player"));
  connect(&host, &CWMPHost::playWanted, this, &TCWMPPaneContainer::playWanted);
  connect(&host, &CWMPHost::pauseWanted, this, &TCWMPPaneContainer::pauseWanted);
  connect(&host, &CWMPHost::stopWanted, this, &TCWMPPaneContainer::stopWanted);
}

QSize TCWMPPaneContainer::sizeHint() const {
  return host.sizeHint();
}

QSize TCWMPPaneContainer::minimumSizeHint() const {
  return host.minimumSizeHint();
}

void TCWMPPaneContainer::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  host.setGeometry(rect());
}

}  // namespace brevant
