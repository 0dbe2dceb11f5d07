#include "app/panes/pane_set.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <cstddef>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace brevant {
namespace {

using Id = TCCommandId;

constexpr std::array kAll = {Id::PlaylistManagerPane, Id::PropertiesPane, Id::PlayerPane, Id::MessagePane};

// A window with nothing but the panes.
class TCPaneWindow {
 public:
  explicit TCPaneWindow(QSize size = QSize(1600, 1000)) {
    window.resize(size);
    window.setCentralWidget(&panes);
    panes.Fill({playlist, manager, properties, player, messages}, size);
  }

  [[nodiscard]] QDockWidget& Pane(Id id) {
    auto* pane = panes.findChild<QDockWidget*>(QStringLiteral("Pane%1").arg(static_cast<int>(id)));
    if (pane == nullptr) throw std::runtime_error("no such pane");
    return *pane;
  }

  void Show() {
    window.show();
    QCoreApplication::processEvents();
  }

  // Where everything is, a line each: the panes of the window in the window, floating ones on the screen.
  [[nodiscard]] std::string Places() {
    QCoreApplication::processEvents();
    QString places = Place(QStringLiteral("playlist"), playlist.geometry());
    for (const Id id : kAll) {
      const QDockWidget& pane = Pane(id);
      if (pane.isHidden()) {
        places += pane.objectName() + QStringLiteral(" closed\n");
      } else if (pane.geometry().right() < 0) {
        places += pane.objectName() + QStringLiteral(" behind another\n");
      } else {
        places += Place(pane.objectName(), pane.geometry());
      }
    }
    return places.toStdString();
  }

  // Nothing as it is at the first start.
  void ArrangeByHand() {
    Pane(Id::PlayerPane).setFloating(true);
    Pane(Id::PlayerPane).setGeometry(150, 120, 333, 222);
    panes.tabifyDockWidget(&Pane(Id::PropertiesPane), &Pane(Id::MessagePane));
    panes.addDockWidget(Qt::RightDockWidgetArea, &Pane(Id::PlaylistManagerPane));
    panes.resizeDocks({&Pane(Id::PlaylistManagerPane)}, {311}, Qt::Horizontal);
    panes.resizeDocks({&Pane(Id::MessagePane)}, {257}, Qt::Vertical);
    QCoreApplication::processEvents();
  }

  [[nodiscard]] static QString Place(const QString& name, const QRect& place) {
    return QStringLiteral("%1 %2,%3 %4x%5\n")
        .arg(name)
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height());
  }

  QMainWindow window;
  TCPaneSet& panes = *new TCPaneSet(&window);
  QLabel& playlist = *new QLabel;
  QPlainTextEdit& manager = *new QPlainTextEdit;
  QLabel& properties = *new QLabel;
  QLabel& player = *new QLabel;
  QLabel& messages = *new QLabel;
};

class PaneSet : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(folder.isValid()); }

  [[nodiscard]] QString LayoutFile() const { return folder.filePath(QStringLiteral("Layout.ini")); }

  void Save(const TCPaneSet& panes) {
    QSettings layout(LayoutFile(), QSettings::IniFormat);
    panes.SaveLayout(layout);
  }

  [[nodiscard]] QByteArray Saved() {
    return QSettings(LayoutFile(), QSettings::IniFormat).value(QStringLiteral("NormalLayout")).toByteArray();
  }

  void Put(const QVariant& value) {
    QSettings(LayoutFile(), QSettings::IniFormat).setValue(QStringLiteral("NormalLayout"), value);
  }

  void Restore(TCPaneSet& panes) { panes.RestoreLayout(QSettings(LayoutFile(), QSettings::IniFormat)); }

  QTemporaryDir folder;
  TCPaneWindow own;
};

TEST_F(PaneSet, AFirstStartHasTheManagerAtTheLeftAndThreePanesBelow) {
  own.Show();
  EXPECT_EQ(own.Pane(Id::PlaylistManagerPane).width(), 400);
  const auto place = [this](Id id) { return own.Pane(id).geometry(); };
  EXPECT_EQ(place(Id::PlaylistManagerPane).left(), 0);
  EXPECT_LT(place(Id::PlaylistManagerPane).right(), own.playlist.geometry().left());
  EXPECT_EQ(place(Id::PropertiesPane).left(), 0);
  EXPECT_LT(place(Id::PropertiesPane).right(), place(Id::PlayerPane).left());
  EXPECT_LT(place(Id::PlayerPane).right(), place(Id::MessagePane).left());
  for (const Id id : {Id::PropertiesPane, Id::PlayerPane, Id::MessagePane}) {
    EXPECT_GE(place(id).width(), 400);
    EXPECT_EQ(place(id).height(), 200);
    EXPECT_GT(place(id).top(), own.playlist.geometry().bottom());
    EXPECT_EQ(place(id).bottom(), own.panes.height() - 1);
  }
}

TEST_F(PaneSet, InANarrowWindowThePlaylistKeepsTheMostOfTheWidth) {
  TCPaneWindow narrow(QSize(900, 700));
  narrow.Show();
  EXPECT_EQ(narrow.Pane(Id::PlaylistManagerPane).width(), 300);
  EXPECT_GT(narrow.playlist.width(), 500);
}

TEST_F(PaneSet, EachPaneBearsItsNumberAndItsTitle) {
  const std::map<Id, QString> titles{{Id::PlaylistManagerPane, QStringLiteral("Play List Manager")},
                                     {Id::PlayerPane, QStringLiteral("Windows Media Player")},
                                     {Id::MessagePane, QStringLiteral("Brevant Information & Lyrics")},
                                     {Id::PropertiesPane, QStringLiteral("Properties")}};
  for (const auto& [id, title] : titles) EXPECT_EQ(own.Pane(id).windowTitle(), title);
  EXPECT_FALSE(TCPaneSet::IsPane(static_cast<Id>(4001)));
  EXPECT_FALSE(TCPaneSet::IsPane(Id::Play));
}

TEST_F(PaneSet, ACommandClosesAnOpenPaneAndOpensAClosedOne) {
  own.Show();
  for (const Id id : kAll) {
    const QSignalSpy changes(&own.panes, &TCPaneSet::panesChanged);
    EXPECT_TRUE(own.panes.IsOpen(id));
    own.panes.Toggle(id);
    EXPECT_FALSE(own.panes.IsOpen(id));
    EXPECT_FALSE(own.Pane(id).isVisible());
    EXPECT_EQ(changes.count(), 1);
    own.panes.Toggle(id);
    EXPECT_TRUE(own.panes.IsOpen(id));
    EXPECT_TRUE(own.Pane(id).isVisible());
  }
}

TEST_F(PaneSet, APaneThatWasClosedAndOpenedLeavesTheOthersAsTheyWere) {
  own.Show();
  const auto before = own.Places();
  for (int time = 0; time < 20; ++time) {
    for (const Id id : kAll) {
      own.panes.Toggle(id);
      QCoreApplication::processEvents();
      own.panes.Toggle(id);
      QCoreApplication::processEvents();
    }
  }
  EXPECT_EQ(own.Places(), before);
}

TEST_F(PaneSet, APaneBehindAnotherTabIsOpen) {
  own.Show();
  own.panes.tabifyDockWidget(&own.Pane(Id::PlayerPane), &own.Pane(Id::MessagePane));
  own.Pane(Id::MessagePane).raise();
  QCoreApplication::processEvents();
  EXPECT_TRUE(own.player.visibleRegion().isEmpty());
  EXPECT_TRUE(own.panes.IsOpen(Id::PlayerPane));
  own.panes.Toggle(Id::PlayerPane);
  EXPECT_FALSE(own.panes.IsOpen(Id::PlayerPane));
  own.panes.Toggle(Id::PlayerPane);
  QCoreApplication::processEvents();
  EXPECT_TRUE(own.panes.IsOpen(Id::PlayerPane));
  EXPECT_FALSE(own.player.visibleRegion().isEmpty()) << "an opened pane is seen";
  EXPECT_TRUE(own.messages.visibleRegion().isEmpty());
  EXPECT_TRUE(own.panes.IsOpen(Id::MessagePane));
}

TEST_F(PaneSet, ATabHasTheWholeTitleOfItsPaneAndNoKey) {
  own.Show();
  for (const Id id : {Id::PropertiesPane, Id::PlayerPane}) {
    own.panes.tabifyDockWidget(&own.Pane(Id::MessagePane), &own.Pane(id));
    QCoreApplication::processEvents();
    QStringList texts;
    for (const auto* bar : own.panes.findChildren<QTabBar*>()) {
      for (int tab = 0; tab < bar->count(); ++tab) texts.append(bar->tabText(tab));
    }
    EXPECT_TRUE(texts.contains(QStringLiteral("Brevant Information && Lyrics")))
        << texts.join(u'|').toStdString();
    EXPECT_TRUE(texts.contains(own.Pane(id).windowTitle()));
  }
}

TEST_F(PaneSet, LiveViewLeavesThePlaylistAlone) {
  own.Show();
  own.ArrangeByHand();
  own.panes.EnterLiveView();
  QCoreApplication::processEvents();
  for (const Id id : kAll) EXPECT_FALSE(own.panes.IsOpen(id));
  EXPECT_EQ(own.playlist.geometry(), own.panes.rect());
  own.panes.LeaveLiveView();
  for (const Id id : kAll) EXPECT_TRUE(own.panes.IsOpen(id));
}

// Notes in which order panes are closed and opened.
class TCPaneOrder : public QObject {
 public:
  explicit TCPaneOrder(TCPaneWindow& shown) {
    for (const Id id : kAll) {
      connect(shown.Pane(id).toggleViewAction(), &QAction::toggled, this,
              [this, id] { order.push_back(id); });
    }
  }
  std::vector<Id> order;
};

TEST_F(PaneSet, LiveViewClosesAndOpensThePanesInTheirOrder) {
  own.Show();
  TCPaneOrder log(own);
  own.panes.EnterLiveView();
  EXPECT_EQ(log.order, std::vector<Id>(kAll.begin(), kAll.end()));
  for (const Id id : kAll) own.Pane(id).hide();
  log.order.clear();
  own.panes.LeaveLiveView();
  own.panes.LeaveLiveView();  // with nothing kept
  EXPECT_EQ(log.order.size(), kAll.size());
}

TEST_F(PaneSet, LiveViewComesAndGoesAHundredTimesWithoutMovingAPixel) {
  own.Show();
  for (const bool byHand : {false, true}) {
    if (byHand) own.ArrangeByHand();
    const auto before = own.Places();
    for (int time = 0; time < 100; ++time) {
      own.panes.EnterLiveView();
      QCoreApplication::processEvents();
      own.panes.LeaveLiveView();
      ASSERT_EQ(own.Places(), before) << "by hand " << byHand << ", time " << time;
    }
    EXPECT_EQ(own.panes.tabifiedDockWidgets(&own.Pane(Id::MessagePane)).size(), byHand ? 1 : 0);
    EXPECT_EQ(own.Pane(Id::PlayerPane).isFloating(), byHand);
  }
}

TEST_F(PaneSet, LeavingLiveViewOpensAPaneThatWasClosedBeforeToo) {
  own.Show();
  own.panes.Toggle(Id::PlayerPane);
  own.panes.EnterLiveView();
  own.panes.EnterLiveView();
  QCoreApplication::processEvents();
  own.panes.LeaveLiveView();
  QCoreApplication::processEvents();
  for (const Id id : kAll) EXPECT_FALSE(own.Pane(id).visibleRegion().isEmpty());
  EXPECT_EQ(own.Pane(Id::PlaylistManagerPane).width(), 400);
  EXPECT_EQ(own.Pane(Id::PropertiesPane).width(), own.Pane(Id::MessagePane).width());
}

TEST_F(PaneSet, APaneOpenedInLiveViewIsThereAndLeavingItIsExactAllTheSame) {
  own.Show();
  own.ArrangeByHand();
  const auto before = own.Places();
  own.panes.EnterLiveView();
  QCoreApplication::processEvents();
  own.panes.Toggle(Id::PlaylistManagerPane);
  QCoreApplication::processEvents();
  EXPECT_TRUE(own.manager.isVisible());
  own.panes.LeaveLiveView();
  EXPECT_EQ(own.Places(), before);
}

TEST_F(PaneSet, AnArrangementComesBackWithLiveViewAndAll) {
  own.Show();
  own.ArrangeByHand();
  const auto normal = own.Places();
  own.panes.EnterLiveView();
  own.panes.Toggle(Id::PlayerPane);
  const auto live = own.Places();
  const TCPaneSet::TCArrangement kept = own.panes.Arrangement();
  own.panes.LeaveLiveView();
  EXPECT_EQ(own.Places(), normal);
  own.panes.Arrange(kept);
  EXPECT_EQ(own.Places(), live);
  own.panes.LeaveLiveView();
  EXPECT_EQ(own.Places(), normal);
}

TEST_F(PaneSet, TheKeyboardIsGivenUpOnlyByAPaneThatHadIt) {
  own.Show();
  own.window.activateWindow();
  own.manager.setFocus();
  ASSERT_EQ(QApplication::focusWidget(), &own.manager);
  const QSignalSpy freed(&own.panes, &TCPaneSet::keyboardFreed);
  own.panes.Toggle(Id::PlayerPane);
  EXPECT_EQ(freed.count(), 0);
  own.Pane(Id::PlaylistManagerPane).close();
  EXPECT_EQ(freed.count(), 1);
}

TEST_F(PaneSet, ALayoutComesBackAtTheNextStart) {
  own.Show();
  own.ArrangeByHand();
  own.panes.Toggle(Id::PropertiesPane);
  const auto before = own.Places();
  Save(own.panes);
  TCPaneWindow next;
  Restore(next.panes);
  next.Show();
  EXPECT_EQ(next.Places(), before);
  EXPECT_FALSE(next.panes.IsOpen(Id::PropertiesPane));
  next.panes.Toggle(Id::PropertiesPane);
  EXPECT_EQ(next.panes.tabifiedDockWidgets(&next.Pane(Id::MessagePane)).size(), 1);
}

TEST_F(PaneSet, WhatIsSavedInLiveViewIsTheFullLayout) {
  own.Show();
  own.ArrangeByHand();
  const auto before = own.Places();
  own.panes.EnterLiveView();
  Save(own.panes);
  TCPaneWindow next;
  Restore(next.panes);
  next.Show();
  EXPECT_EQ(next.Places(), before);
}

TEST_F(PaneSet, AWindowThatIsMaximisedOnItsWayToTheScreenGetsTheLayoutOfItsFinalSize) {
  own.Show();
  own.panes.resizeDocks({&own.Pane(Id::PlaylistManagerPane)}, {900}, Qt::Horizontal);
  own.panes.resizeDocks({&own.Pane(Id::PlayerPane)}, {600}, Qt::Vertical);
  const auto before = own.Places();
  Save(own.panes);
  for (const bool live : {false, true}) {
    TCPaneWindow next(QSize(700, 500));
    Restore(next.panes);
    next.Show();
    if (live) next.panes.EnterLiveView();
    QCoreApplication::processEvents();
    next.window.resize(1600, 1000);
    if (live) next.panes.LeaveLiveView();
    EXPECT_EQ(next.Places(), before) << live;
  }
}

TEST_F(PaneSet, AWindowThatIsMaximisedInLiveViewShowsNoPane) {
  own.Show();
  Save(own.panes);
  TCPaneWindow next(QSize(700, 500));
  Restore(next.panes);
  next.Show();
  next.panes.EnterLiveView();
  next.window.resize(1600, 1000);
  QCoreApplication::processEvents();
  for (const Id id : kAll) EXPECT_FALSE(next.Pane(id).isVisible());
}

TEST_F(PaneSet, ThePanesLieAsTheUserSaysAsSoonAsOneIsTouched) {
  own.Show();
  Save(own.panes);
  TCPaneWindow next;
  Restore(next.panes);
  next.Show();
  next.panes.Toggle(Id::PlayerPane);
  next.window.resize(1500, 900);
  QCoreApplication::processEvents();
  EXPECT_FALSE(next.panes.IsOpen(Id::PlayerPane));
  Save(next.panes);
  TCPaneWindow third;
  Restore(third.panes);
  EXPECT_FALSE(third.panes.IsOpen(Id::PlayerPane));
}

TEST_F(PaneSet, ALayoutThatIsNoneLeavesEverythingWhereItIs) {
  own.Show();
  const std::string before = own.Places();
  own.ArrangeByHand();
  Save(own.panes);
  const QByteArray whole = Saved();
  ASSERT_GT(whole.size(), 40);
  std::vector<QVariant> values{QVariant(), QVariant(QStringLiteral("Yes")), QVariant(whole.left(8)),
                               QVariant(whole.left(100)), QVariant(QByteArray(whole).replace('\0', '\x7f'))};
  for (const QVariant& value : values) {
    Put(value);
    TCPaneWindow next;
    Restore(next.panes);
    next.Show();
    EXPECT_EQ(next.Places(), before) << value.toByteArray().size();
  }
}

TEST_F(PaneSet, ALayoutThatLacksAPaneLosesNone) {
  own.Show();
  own.Pane(Id::MessagePane).setObjectName(QStringLiteral("Pane4001"));
  Save(own.panes);
  TCPaneWindow next;
  Restore(next.panes);
  next.Show();
  for (const Id id : kAll) EXPECT_FALSE(next.Pane(id).visibleRegion().isEmpty());
}

}  // namespace
}  // namespace brevant
