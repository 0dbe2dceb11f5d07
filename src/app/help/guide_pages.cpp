#include "app/help/guide_pages.h"

#include <algorithm>
#include <iterator>

#include "resources/command_table.h"

namespace brevant {
namespace {

using Id = TCCommandId;

constexpr TCGuidePlace kPlaces[] = {
    {"playlistView", "performing.md"},
    {"playListManagerTree", "arranging.md"},
    {"properties", "panes.md#the-properties"},
    {"Pane4002", "arranging.md"},
    {"Pane4004", "panes.md#the-properties"},
    {"Pane4000", "panes.md#the-player"},
    {"Pane4003", "lyrics.md"},
    {"Play controls", "bars.md#the-play-controls"},
    {"Standard toolbar", "bars.md"},
    {"Create", "bars.md"},
    {"Commands", "bars.md"},
    {"Options", "bars.md"},
    {"Help", "README.md#this-guide-in-the-program"},
    {"AboutBox", "start.md"},
    {"EnterText", "options.md#numbers-and-texts"},
    {"CreateSetLists", "arranging.md#making-a-set-list-from-nothing"},
    {"SongProperties", "arranging.md#when-songs-have-moved"},
    {"ConfirmRemove", "arranging.md#changing-it"},
    {"SaveChanges", "documents.md#saving"},
    {"OpenDocument", "documents.md#opening"},
    {"SaveDocument", "documents.md#saving"},
    {"FindSongs", "arranging.md#making-a-set-list-from-nothing"},
    {"Customize", "bars.md#making-bars-and-keys-your-own"},
};

std::string_view PageOfMenu(TCMenuPlace menu) {
  switch (menu) {
    case TCMenuPlace::File:
      return "documents.md";
    case TCMenuPlace::Edit:
      return "arranging.md";
    case TCMenuPlace::Play:
      return "performing.md#playing";
    case TCMenuPlace::Commands:
      return "performing.md";
    case TCMenuPlace::Options:
      return "options.md";
    case TCMenuPlace::View:
      return "panes.md";
    case TCMenuPlace::ViewToolbars:
      return "bars.md";
    case TCMenuPlace::Help:
    case TCMenuPlace::None:
      break;
  }
  return kContentsPage;
}

std::string_view PageOfCommand(TCCommandId id) {
  switch (id) {
    case Id::RefreshPlaylistTimes:
    case Id::RefreshAllTimes:
    case Id::RefreshSongTime:
      return "performing.md#song-times";
    case Id::SetRepeatBegin:
    case Id::SetRepeatEnd:
      return "performing.md#repeating-a-passage";
    case Id::NextSong:
    case Id::PriorSong:
    case Id::NextPlaylist:
    case Id::PriorPlaylist:
      return "performing.md#stepping";
    case Id::AutoSongAdvance:
    case Id::AutoPlayPlayList:
    case Id::AutoRecycle:
      return "performing.md#when-a-song-ends";
    case Id::LyricsFontSize:
    case Id::LyricLines:
      return "lyrics.md#on-the-screen";
    case Id::ClearInformation:
      return "panes.md#the-message-display";
    case Id::Reset:
      return "options.md#starting-afresh";
    case Id::SongProperties:
      return "arranging.md#when-songs-have-moved";
    case Id::Customize:
      return "bars.md#making-bars-and-keys-your-own";
    case Id::Copy:
    case Id::Paste:
      return "arranging.md#copy-and-paste";
    default:
      break;
  }
  const TCCommand* command = CommandById(id);
  return PageOfMenu(command != nullptr ? command->menu : TCMenuPlace::None);
}

QString Text(std::string_view page) {
  return QString::fromLatin1(page.data(), static_cast<qsizetype>(page.size()));
}

}  // namespace

std::span<const TCGuidePlace> GuidePlaces() {
  return kPlaces;
}

QString GuidePageOf(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    const std::string name = widget->objectName().toStdString();
    const auto* const place = std::ranges::find(kPlaces, std::string_view(name), &TCGuidePlace::objectName);
    if (place != std::end(kPlaces)) return Text(place->page);
    // What a dialog is about is not what it stands in front of.
    if (widget->isWindow() && widget->windowType() == Qt::Dialog) break;
  }
  return Text(kContentsPage);
}

QString GuidePageOf(TCCommandId command) {
  return Text(PageOfCommand(command));
}

}  // namespace brevant
