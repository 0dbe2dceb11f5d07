// The customise sheet's page of commands, shown, for tests that choose, press and drag as a user does.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>
#include <vector>

#include "app/bars/commands_page.h"
#include "app/bars/drag_list.h"
#include "app/bars/open_customize_sheet.h"

namespace brevant {

class TCOpenCommandsPage : public TCOpenSheet {
 protected:
  void SetUp() override {
    TCOpenSheet::SetUp();
    ShowPage(2);
    QCoreApplication::processEvents();
  }

  void ChooseCategory(const QString& name) {
    auto& list = Find<QComboBox>("BarCategory");
    ASSERT_GE(list.findText(name), 0) << name.toStdString();
    list.setCurrentIndex(list.findText(name));
  }
  void ChooseTarget(const QString& name) {
    auto& list = Find<QComboBox>("BarTarget");
    ASSERT_GE(list.findText(name), 0) << name.toStdString();
    list.setCurrentIndex(list.findText(name));
  }
  void Choose(const char* list, const QString& name) {
    auto& entries = Find<TCDragList>(list);
    const QList<QListWidgetItem*> found = entries.findItems(name, Qt::MatchExactly);
    ASSERT_FALSE(found.isEmpty()) << name.toStdString();
    entries.setCurrentItem(found.first());
  }
  [[nodiscard]] QString Entries(const char* list) const {
    const auto& entries = Find<TCDragList>(list);
    QStringList names;
    for (int row = 0; row < entries.count(); ++row) names.append(entries.item(row)->text());
    return names.join(u'|');
  }

  // With the mouse, from the middle of an entry to somewhere on the screen.
  void Drag(const char* from, const QString& name, QPoint to) {
    Choose(from, name);
    auto& list = Find<TCDragList>(from);
    QWidget* viewport = list.viewport();
    const QPoint start = list.visualItemRect(list.currentItem()).center();
    const QPoint end = viewport->mapFromGlobal(to);
    QTest::mousePress(viewport, Qt::LeftButton, {}, start);
    for (const QPoint& place : {start + QPoint(3, 3), (start + end) / 2, end}) {
      MoveTo(list, viewport->mapToGlobal(place));
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, end);
  }
  // With the left button held, which was pressed in `list`.
  static void MoveTo(TCDragList& list, QPoint globalPosition) {
    QMouseEvent move(QEvent::MouseMove, list.viewport()->mapFromGlobal(globalPosition), globalPosition,
                     Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(list.viewport(), &move);
  }
  // The line in the gap that a dragged entry would go into.
  [[nodiscard]] static QWidget* Line(const QWidget& widget) {
    return widget.findChild<QWidget*>(QStringLiteral("DropMark"), Qt::FindDirectChildrenOnly);
  }
  [[nodiscard]] const QLabel& LabelOf(const char* control) const {
    for (const QLabel* label : sheet->findChildren<QLabel*>()) {
      if (label->buddy() != nullptr && label->buddy()->objectName() == QLatin1String(control)) return *label;
    }
    ADD_FAILURE() << control;
    return *sheet->findChild<QLabel*>();
  }
  [[nodiscard]] QPoint OnButton(TCTextId bar, TCCommandId command) {
    const QWidget* button = bars.BarOf(bar)->widgetForAction(actions->ActionOf(command));
    return button->mapToGlobal(QPoint(2, button->height() / 2));
  }

  [[nodiscard]] std::vector<TCCommandId> On(TCTextId bar) const {
    std::vector<TCCommandId> commands;
    for (const TCBarItem& item : bars.Customised().ItemsOf(bar)) commands.push_back(item.command);
    return commands;
  }
};

}  // namespace brevant
