#include "app/panes/accessible_pane.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWidget>

namespace brevant {
namespace {

class TCAccessiblePane final : public QAccessibleWidget {
 public:
  explicit TCAccessiblePane(QWidget* pane) : QAccessibleWidget(pane, QAccessible::Window) {}

  [[nodiscard]] QString text(QAccessible::Text which) const override {
    return which == QAccessible::Name ? widget()->windowTitle() : QAccessibleWidget::text(which);
  }
};

QAccessibleInterface* MakeAccessible(const QString& className, QObject* object) {
  if (className != QLatin1String("QDockWidget")) return nullptr;
  return new TCAccessiblePane(static_cast<QWidget*>(object));
}

}  // namespace

void CallPanesByTheirTitles() {
  QAccessible::installFactory(MakeAccessible);
}

}  // namespace brevant
