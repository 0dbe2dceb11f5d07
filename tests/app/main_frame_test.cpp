#include "app/main_frame.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QStatusTipEvent>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QToolButton>
#include <limits>

#include "app/look/picture_icon.h"
#include "resources/icons/icon_names.h"
#include "support/fake_player.h"
#include "views/row_colours.h"

namespace brevant {
namespace {

class MainFrame : public testing::Test {
 protected:
  TCSettings settings;
  TCFakePlayer player;
  TCMainFrame frame{settings, player, player};
};

TEST_F(MainFrame, SetsTheVolumeToFullAndShowsTheBannerBeforeItIsShown) {
  EXPECT_EQ(player.Calls(), std::vector<std::string>{"SetVolume 100"});
  EXPECT_TRUE(frame.MessageDisplay().Enabled());
  EXPECT_EQ(frame.MessageDisplay().toPlainText().trimmed(), QStringLiteral("...Brevant..."));
}

TEST_F(MainFrame, TheMessageDisplayHolds1024Lines) {
  const auto lines = [this] { return frame.MessageDisplay().toPlainText().count(QLatin1Char('\n')); };
  for (int line = 1; line < 1024; ++line) frame.MessageDisplay().Append(u"said");
  EXPECT_EQ(lines(), 1024) << "the banner is one of them";
  EXPECT_TRUE(frame.MessageDisplay().toPlainText().startsWith(QStringLiteral("...Brevant...")));
  frame.MessageDisplay().Append(u"said");
  EXPECT_EQ(lines(), 1024);
  EXPECT_TRUE(frame.MessageDisplay().toPlainText().startsWith(QStringLiteral("said")));
}

TEST_F(MainFrame, AClosedPaneStillTakesLines) {
  frame.OnCommand(TCCommandId::MessagePane);
  frame.MessageDisplay().Append(u"said behind the scene");
  frame.OnCommand(TCCommandId::MessagePane);
  EXPECT_TRUE(frame.MessageDisplay().toPlainText().contains(QStringLiteral("said behind the scene")));
}

TEST_F(MainFrame, ANewDocumentBearsTheProgramsName) {
  EXPECT_EQ(frame.windowTitle(), QStringLiteral("Brevant[*]"));
  EXPECT_FALSE(frame.isWindowModified());
}

TEST_F(MainFrame, TheTitleIsNameAndProgramWithTheModifiedMark) {
  frame.ShowTitle(u"show.brv", TCModifiedMark::Modified);
  EXPECT_EQ(frame.windowTitle(), QStringLiteral("show.brv[*] - Brevant"));
  EXPECT_TRUE(frame.isWindowModified());
  frame.ShowTitle(u"show.brv", TCModifiedMark::Clean);
  EXPECT_FALSE(frame.isWindowModified());
}

TEST_F(MainFrame, ANameThatLooksLikeTheMarkIsShownAsItIs) {
  // Doubled, the toolkit takes it for text.
  frame.ShowTitle(u"a[*].brv", TCModifiedMark::Clean);
  EXPECT_EQ(frame.windowTitle(), QStringLiteral("a[*][*].brv[*] - Brevant"));
}

TEST_F(MainFrame, ItsCommandsOpenAndClosePanesAndStatusBar) {
  frame.show();
  for (const TCCommandId command :
       {TCCommandId::PlaylistManagerPane, TCCommandId::PropertiesPane, TCCommandId::PlayerPane,
        TCCommandId::MessagePane, TCCommandId::StatusBarVisible}) {
    ASSERT_TRUE(TCMainFrame::Handles(command));
    EXPECT_TRUE(frame.IsChecked(command));
    EXPECT_TRUE(frame.OnCommand(command));
    EXPECT_FALSE(frame.IsChecked(command));
    EXPECT_TRUE(frame.OnCommand(command));
    EXPECT_TRUE(frame.IsChecked(command));
  }
}

TEST_F(MainFrame, ThePanesTitlesAreDrawnAsTheyStand) {
  QStringList titles;
  for (QDockWidget* pane : frame.findChildren<QDockWidget*>()) titles.append(pane->windowTitle());
  EXPECT_TRUE(titles.contains(QStringLiteral("Brevant Information & Lyrics")))
      << titles.join(u'|').toStdString();
}

TEST_F(MainFrame, WhatIsNotItsOwnItLeavesAlone) {
  EXPECT_FALSE(TCMainFrame::Handles(TCCommandId::Play));
  EXPECT_FALSE(frame.OnCommand(TCCommandId::Play));
}

TEST_F(MainFrame, LiveViewTurnsTheOptionOverAndLeavesMenuBarsAndStatusBarAlone) {
  frame.resize(1200, 800);
  frame.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
  const QSignalSpy marks(&frame, &TCMainFrame::marksChanged);
  EXPECT_TRUE(TCMainFrame::Handles(TCCommandId::LiveViewMode));
  EXPECT_FALSE(frame.IsChecked(TCCommandId::LiveViewMode));
  EXPECT_TRUE(frame.OnCommand(TCCommandId::LiveViewMode));
  EXPECT_TRUE(settings.liveViewMode);
  EXPECT_TRUE(frame.IsChecked(TCCommandId::LiveViewMode));
  EXPECT_GT(marks.count(), 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(frame.PlaylistView().size(), frame.centralWidget()->size());
  EXPECT_TRUE(frame.PlayControls().isVisible());
  EXPECT_TRUE(frame.StatusLine().isVisible());
  EXPECT_TRUE(frame.OnCommand(TCCommandId::LiveViewMode));
  EXPECT_FALSE(settings.liveViewMode);
  EXPECT_TRUE(frame.Tree().isVisible());
}

TEST_F(MainFrame, ThePlaylistGetsTheKeyboardOfAPaneThatIsClosed) {
  frame.show();
  frame.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&frame));
  for (const TCCommandId command : {TCCommandId::PlaylistManagerPane, TCCommandId::LiveViewMode}) {
    frame.Tree().setFocus();
    ASSERT_EQ(QApplication::focusWidget(), &frame.Tree());
    frame.OnCommand(command);
    EXPECT_EQ(QApplication::focusWidget(), &frame.PlaylistView());
    frame.OnCommand(command);
    EXPECT_EQ(QApplication::focusWidget(), &frame.PlaylistView()) << "an opened pane does not take it";
  }
}

TEST_F(MainFrame, APaneClosedByItsOwnButtonIsToldOf) {
  frame.show();
  QSignalSpy marks(&frame, &TCMainFrame::marksChanged);
  for (QDockWidget* pane : frame.findChildren<QDockWidget*>()) pane->close();
  EXPECT_GE(marks.count(), 2);
  EXPECT_FALSE(frame.IsChecked(TCCommandId::PlaylistManagerPane));
  EXPECT_FALSE(frame.IsChecked(TCCommandId::PlayerPane));
  EXPECT_FALSE(frame.IsChecked(TCCommandId::MessagePane));
}

TEST_F(MainFrame, LiveViewWithoutAnOpenPaneIsToldOfToo) {
  frame.show();
  for (QDockWidget* pane : frame.findChildren<QDockWidget*>()) pane->close();
  const QSignalSpy marks(&frame, &TCMainFrame::marksChanged);
  frame.OnCommand(TCCommandId::LiveViewMode);
  EXPECT_GT(marks.count(), 0);
}

TEST_F(MainFrame, ARightClickBesideTheBarsOpensNoMenuOfTheToolkit) {
  frame.show();
  for (QWidget* place : {static_cast<QWidget*>(&frame), static_cast<QWidget*>(&frame.StatusLine())}) {
    QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(4, 4), place->mapToGlobal(QPoint(4, 4)));
    QCoreApplication::sendEvent(place, &click);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << place->objectName().toStdString();
  }
}

TEST_F(MainFrame, ABarThatIsHiddenByItsOwnEntryIsToldOf) {
  frame.show();
  const QSignalSpy marks(&frame, &TCMainFrame::marksChanged);
  for (QAction* entry : frame.Bars().BarMenu().actions()) entry->trigger();
  EXPECT_GT(marks.count(), 0);
  EXPECT_FALSE(frame.IsChecked(TCCommandId::ToolbarVisible));
}

TEST_F(MainFrame, ThePanesLieSideBySideBelowThePlaylist) {
  frame.resize(1200, 800);
  frame.show();
  const auto place = [this](const QWidget& widget) {
    return QRect(widget.mapTo(&frame, QPoint(0, 0)), widget.size());
  };
  const QRect properties = place(frame.Properties());
  const QRect pane = place(frame.PlayerPane());
  const QRect messages = place(frame.MessageDisplay());
  const QRect list = place(frame.PlaylistView());
  EXPECT_LT(list.bottom(), pane.top());
  EXPECT_LT(properties.right(), pane.left());
  EXPECT_LT(pane.right(), messages.left());
  EXPECT_LT(list.bottom(), properties.top());
  EXPECT_LT(list.bottom(), messages.top());
  EXPECT_GT(list.height(), pane.height()) << "the playlist has the most room";
}

TEST_F(MainFrame, ThePlaylistManagerStandsBesideThePlaylist) {
  frame.resize(1200, 800);
  frame.show();
  const auto place = [this](const QWidget& widget) {
    return QRect(widget.mapTo(&frame, QPoint(0, 0)), widget.size());
  };
  const QRect tree = place(frame.Tree());
  const QRect list = place(frame.PlaylistView());
  EXPECT_LT(tree.right(), list.left());
  EXPECT_LT(tree.bottom(), place(frame.PlayerPane()).top());
  EXPECT_GT(list.width(), tree.width()) << "the playlist has the most room";
  auto* pane = frame.findChild<QDockWidget*>(QStringLiteral("Pane4002"));
  ASSERT_NE(pane, nullptr);
  EXPECT_EQ(pane->windowTitle(), QStringLiteral("Play List Manager"));
}

TEST_F(MainFrame, APlacingThatWaitsShowsInBothViewsAndStandsInTheStatusBar) {
  frame.show();
  frame.Tree().AddNodes(TCTreeNode::None, 0, {u"Gigs"});
  frame.ShowPlacing(TCPlacing::Waiting, u"Click a playlist");
  const QSignalSpy places(&frame.Tree(), &TCPlayListManagerTreeView::placeWanted);
  const auto busy = [](const QWidget& view) { return view.cursor().shape() == Qt::BitmapCursor; };
  EXPECT_TRUE(busy(*frame.PlaylistView().viewport()));
  EXPECT_TRUE(busy(*frame.Tree().viewport()));
  EXPECT_EQ(frame.StatusLine().ShownMessage(), QStringLiteral("Click a playlist"));
  QTest::mouseClick(frame.Tree().viewport(), Qt::LeftButton, {}, QPoint(40, 8));
  EXPECT_EQ(places.count(), 1);

  frame.ShowPlacing(TCPlacing::Nothing, u"Click a playlist");
  EXPECT_EQ(frame.StatusLine().ShownMessage(), QString());
  EXPECT_FALSE(busy(*frame.PlaylistView().viewport()));
  EXPECT_FALSE(busy(*frame.Tree().viewport()));
  QTest::mouseClick(frame.Tree().viewport(), Qt::LeftButton, {}, QPoint(40, 8));
  EXPECT_EQ(places.count(), 1);
}

// The mouse, with Ctrl and its button held down since it was pressed in the playlist.
void DragSongs(TCBrevantView& view, QEvent::Type type, QPoint global) {
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, view.viewport()->mapFromGlobal(global), global, button, held, Qt::ControlModifier);
  QCoreApplication::sendEvent(view.viewport(), &event);
}

TEST_F(MainFrame, SongsDraggedOverTheTreeFindTheirTargetThere) {
  frame.resize(1200, 800);
  frame.show();
  TCPlayListManagerTreeView& tree = frame.Tree();
  TCBrevantView& view = frame.PlaylistView();
  const std::vector<TCTreeNode> groups = tree.AddNodes(TCTreeNode::None, 0, {u"Gigs", u"More gigs"});
  view.ShowRows({TCPlaylistRow{{u"1", u"Found", u"00:00", u"A.mp3"}, {}}}, TCShowRows::Afresh);
  const QSignalSpy drops(&view, &TCBrevantView::ctrlDragReleased);
  const auto onNode = [&tree](int row) {
    const QRect place = tree.visualRect(tree.model()->index(row, 0));
    return tree.viewport()->mapToGlobal(place.topLeft() + QPoint(30, place.height() / 2));
  };
  const QPoint onRow = view.viewport()->mapToGlobal(view.visualRect(view.model()->index(0, 1)).center());
  DragSongs(view, QEvent::MouseButtonPress, onRow);
  DragSongs(view, QEvent::MouseMove, onNode(0));
  EXPECT_EQ(tree.SelectedNode(), groups[0]);
  DragSongs(view, QEvent::MouseMove, onNode(1));
  EXPECT_EQ(tree.SelectedNode(), groups[1]);
  tree.FollowNode(groups[0]);
  EXPECT_EQ(tree.SelectedNode(), groups[1]) << "the drag says where";
  DragSongs(view, QEvent::MouseButtonRelease, onNode(1));
  ASSERT_EQ(drops.count(), 1);
  EXPECT_EQ(drops.at(0).at(0).toPoint(), onNode(1));
  tree.FollowNode(groups[0]);
  EXPECT_EQ(tree.SelectedNode(), groups[0]);
}

TEST_F(MainFrame, FitsTheScreen) {
  EXPECT_LE(frame.width(), frame.screen()->availableSize().width());
  EXPECT_LE(frame.height(), frame.screen()->availableSize().height());
}

TEST_F(MainFrame, WhiteOnBlackColoursEverythingAtOnce) {
  frame.show();
  for (const bool whiteOnBlack : {false, true}) {
    settings.SetWhiteOnBlack(whiteOnBlack);
    frame.ShowOptions();
    const QColor background = ToQColor(settings.backgroundColour);
    QCoreApplication::processEvents();  // the toolkit tells widgets without colours of their own a turn later
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), background);
    EXPECT_EQ(frame.MessageDisplay().palette().color(QPalette::Base), background);
    EXPECT_EQ(frame.PlaylistView().palette().color(QPalette::Base), background);
    EXPECT_EQ(frame.Tree().palette().color(QPalette::Base), background);
    EXPECT_EQ(frame.Properties().palette().color(QPalette::Base), background);
    EXPECT_EQ(frame.Tree().palette().color(QPalette::Text), ToQColor(settings.textColour));
  }
}

// The colour that a picture is drawn in: that of its most solid pixel.
QColor InkOf(const QImage& picture) {
  QColor ink;
  ink.setAlpha(0);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixelColor(x, y).alpha() > ink.alpha()) ink = picture.pixelColor(x, y);
    }
  }
  return ink;
}

TEST_F(MainFrame, ThePlayersPicturesAreThoseOfItsCommandsInTheColourOfTheMoment) {
  frame.show();
  const QSize size(20, 20);
  const auto pictureOf = [&](const char* name) {
    for (const auto* button : frame.PlayerPane().findChildren<QToolButton*>()) {
      if (button->accessibleName() == QLatin1String(name)) return button->icon().pixmap(size).toImage();
    }
    return QImage();
  };
  const auto commandsPicture = [&](TCCommandId command) {
    return PictureIcon(IconName(command)).pixmap(size).toImage();
  };
  const auto volumeInk = [&] {
    for (const auto* label : frame.PlayerPane().findChildren<QLabel*>()) {
      if (!label->pixmap().isNull()) return InkOf(label->pixmap().toImage());
    }
    return QColor();
  };
  for (const bool whiteOnBlack : {true, false}) {
    settings.SetWhiteOnBlack(whiteOnBlack);
    frame.ShowOptions();
    QCoreApplication::processEvents();
    EXPECT_EQ(pictureOf("Play"), commandsPicture(TCCommandId::Play));
    EXPECT_EQ(pictureOf("Pause"), commandsPicture(TCCommandId::PauseContinue));
    EXPECT_EQ(pictureOf("Stop"), commandsPicture(TCCommandId::Stop));
    EXPECT_EQ(volumeInk(), InkOf(commandsPicture(TCCommandId::Stop)));
  }
}

TEST_F(MainFrame, TheSingersColoursGoByTheOption) {
  const auto colour = [this] {
    return frame.MessageDisplay()
        .document()
        ->find(QStringLiteral("he sings"))
        .charFormat()
        .foreground()
        .color();
  };
  frame.MessageDisplay().SetLineRole(TCLineRole::SingerM);
  frame.MessageDisplay().Append(u"he sings");
  EXPECT_EQ(colour(), QColor(0, 255, 0));
  settings.whiteOnBlack = false;
  settings.textColour = kWhite;
  settings.backgroundColour = kBlack;
  frame.ShowOptions();
  EXPECT_EQ(colour(), QColor(0, 0, 255));
}

// How often a window or a part of it was given other colours or another font.
class TCLookChanges : public QObject {
 public:
  explicit TCLookChanges(QObject& root) {
    root.installEventFilter(this);
    for (QObject* part : root.findChildren<QObject*>()) part->installEventFilter(this);
  }
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    switch (event->type()) {
      case QEvent::ApplicationPaletteChange:
      case QEvent::PaletteChange:
      case QEvent::FontChange:
      case QEvent::StyleChange:
        ++count;
        break;
      default:
        break;
    }
    return false;
  }
};

TEST_F(MainFrame, AnOptionThatChangesNoColourAndNoFontDrawsNothingAnew) {
  frame.show();
  QCoreApplication::processEvents();  // the first look comes in its own time
  TCLookChanges changes(frame);
  const QSignalSpy text(frame.MessageDisplay().document(), &QTextDocument::contentsChanged);
  const QSignalSpy marks(&frame, &TCMainFrame::marksChanged);
  settings.autoRecycle = !settings.autoRecycle;
  settings.volumeStep = 9;
  frame.ShowOptions();
  QCoreApplication::processEvents();
  EXPECT_EQ(changes.count, 0);
  EXPECT_EQ(text.count(), 0);
  EXPECT_EQ(marks.count(), 1) << "the check marks are shown all the same";

  settings.playListFontSize = 40;
  frame.ShowOptions();
  EXPECT_GT(changes.count, 0);
  EXPECT_EQ(text.count(), 0) << "the lyrics have a font of their own";
}

TEST_F(MainFrame, FontsFollowTheSettings) {
  settings.playListFontSize = 31;
  settings.lyricsFontSize = 27;
  frame.ShowOptions();
  EXPECT_EQ(frame.PlaylistView().font().pointSize(), 31);
  EXPECT_EQ(frame.MessageDisplay().font().pointSize(), 27);
}

TEST_F(MainFrame, AFontOfAnySizeLeavesTheDisplaysUsable) {
  frame.show();
  const int screenHeight = frame.screen()->availableGeometry().height();
  for (const std::int32_t points : {0, -5, 1, 100000, std::numeric_limits<std::int32_t>::min(),
                                    std::numeric_limits<std::int32_t>::max()}) {
    settings.playListFontSize = points;
    settings.lyricsFontSize = points;
    frame.ShowOptions();
    frame.MessageDisplay().Append(u"\tA line of lyrics");
    for (const QWidget* display :
         {static_cast<QWidget*>(&frame.PlaylistView()), static_cast<QWidget*>(&frame.MessageDisplay())}) {
      EXPECT_GE(display->font().pointSize(), 1) << points;
      EXPECT_LE(display->fontMetrics().lineSpacing(), screenHeight) << points;
    }
    EXPECT_EQ(settings.lyricsFontSize, points) << "the setting keeps what was entered";
  }
}

// What stands in a pane, from the first visible line on.
QStringList VisibleLines(const TCGeneralReportsTab& pane) {
  QStringList lines;
  QTextBlock block = pane.cursorForPosition(QPoint(0, 0)).block();
  // A line counts when it is seen whole.
  for (; block.isValid(); block = block.next()) {
    const QRect place = pane.cursorRect(QTextCursor(block));
    if (place.top() >= 0 && place.bottom() <= pane.viewport()->height()) lines.append(block.text());
  }
  return lines;
}

// The current one and the next, as many as there are until the user wants more.
TEST_F(MainFrame, TwoLyricLinesOfTheUsualSizeAreSeenAtOnce) {
  frame.resize(1600, 1000);
  frame.show();
  frame.MessageDisplay().Clear();
  for (const std::u16string_view line : {u"First line,", u"and the second."}) {
    frame.MessageDisplay().Append(u"\r\n");
    frame.MessageDisplay().Append(std::u16string(u"\t").append(line));
  }
  const QStringList seen = VisibleLines(frame.MessageDisplay());
  for (const char* line : {"\tFirst line,", "\tand the second."}) {
    EXPECT_TRUE(seen.contains(QLatin1String(line))) << line;
  }
}

TEST_F(MainFrame, TheBottomPanesAreTwoHundredPixelsHighWithAllTheyHold) {
  frame.resize(1600, 1000);
  frame.show();
  for (QWidget* content :
       {static_cast<QWidget*>(&frame.PlayerPane()), static_cast<QWidget*>(&frame.MessageDisplay()),
        static_cast<QWidget*>(&frame.Properties())}) {
    EXPECT_EQ(content->parentWidget()->height(), 200);
    EXPECT_GE(content->height(), content->minimumSizeHint().height());
  }
}

TEST_F(MainFrame, ThePlayControlsStandAtTheTop) {
  EXPECT_EQ(frame.toolBarArea(&frame.PlayControls()), Qt::TopToolBarArea);
}

TEST_F(MainFrame, APointedAtMenuEntryIsExplainedInTheStatusBar) {
  frame.ShowStatus(u"A message");
  QStatusTipEvent over(QStringLiteral("What it does"));
  QCoreApplication::sendEvent(&frame, &over);
  EXPECT_EQ(frame.StatusLine().ShownMessage(), QStringLiteral("What it does"));
  QStatusTipEvent away((QString()));
  QCoreApplication::sendEvent(&frame, &away);
  EXPECT_EQ(frame.StatusLine().ShownMessage(), QStringLiteral("A message"));
}

TEST_F(MainFrame, WidthsThatTheUserDraggedComeBack) {
  const QTemporaryDir folder;
  ASSERT_TRUE(folder.isValid());
  const QString path = folder.filePath(QStringLiteral("Layout.ini"));
  frame.show();
  frame.PlaylistView().setColumnWidth(1, 123);
  {
    QSettings layout(path, QSettings::IniFormat);
    frame.SaveLayout(layout);
  }
  TCMainFrame next(settings, player, player);
  next.RestoreLayout(QSettings(path, QSettings::IniFormat));
  next.show();
  EXPECT_EQ(next.PlaylistView().columnWidth(1), 123);
}

}  // namespace
}  // namespace brevant
