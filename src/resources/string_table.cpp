#include "resources/string_table.h"

namespace brevant {

// A switch without a default: the compiler refuses an id without a text and a number that two ids share.
std::u16string_view TextOf(TCTextId id) {
  switch (id) {
    case TCTextId::BadFileType:
      return u"Bad file type, unable to load the play list file named:";
    case TCTextId::PlayListsMustBeText:
      return u"Play lists must be text files not binary data files";
    case TCTextId::Yes:
      return u"Yes";
    case TCTextId::UnableToLoadGroupList:
      return u"Unable to load play list lists file:";
    case TCTextId::UnableToLoadPlayList:
      return u"Unable to load play list file";
    case TCTextId::Pending:
      return u"Pending";
    case TCTextId::NotFound:
      return u"Not found";
    case TCTextId::Found:
      return u"Found";
    case TCTextId::DocumentTemplate:
      return u"Brevant\n\nBrevant\nBrevant Files (*.brv)\n.brv\nBrevant.Document\nBrevant.Document";
    case TCTextId::AddSongsHint:
      return u"or use the Find Songs button. Enclose each song in quotes there is a space in the name";
    case TCTextId::PlayListExtension:
      return u"brvpl";
    case TCTextId::GroupListExtension:
      return u"brvgl";
    case TCTextId::MessagePaneTitle:
      return u"Brevant Information & Lyrics";
    case TCTextId::DocumentExtension:
      return u"brv";
    case TCTextId::UnableToPlayMissingFile:
      return u"Unable to play song as unable to find file:";
    case TCTextId::KeyHelp:
      return u"Play=ENTER, P, F5| Stop=S, F6, 6 | Pause Cont.=Spacebar | Playlist Prior=<- | "
             u"Playlist Next=-> | Song Prior=^ | Song Next=v | Select=RETURN | Properties=Q | "
             u"Focus Manager=F2/2 | Focus Playlist=F3/3";
    case TCTextId::InvalidMediaType:
      return u"Invalid media file type (.xxx) for file:";
    case TCTextId::MediaTypesPrompt:
      return u"Set the list of valid media file types (.xxx) ";
    case TCTextId::MediaTypesExplanation:
      return u"This list is to prevent Brevant from processing non WMP recognised files";
    case TCTextId::CommandCanceled:
      return u"Command canceled";

    case TCTextId::Banner:
      return u"...Brevant...";
    case TCTextId::TotalPlaylistTime:
      return u"Total Playlist Time";
    case TCTextId::SongNumberColumn:
      return u"Song #";
    case TCTextId::PlayListColumn:
      return u"Play List";
    case TCTextId::SongTimeColumn:
      return u"Song Time";
    case TCTextId::StatusColumn:
      return u"Status";
    case TCTextId::LyricsMark:
      return u"\\Lyrics";
    case TCTextId::PictureColumn:
      return u" ";
    case TCTextId::No:
      return u"No";

    case TCTextId::CalculatingTimes:
      return u"Calculating times for song";
    case TCTextId::UnableToProcessFile:
      return u"Unable to process file named:";

    case TCTextId::NewGroupFolder:
      return u"New Group Folder";
    case TCTextId::NewPlaylistFolder:
      return u"New Playlist Folder";
    case TCTextId::DefaultMediaExtensions:
      return u"mid mp3 wav wma";

    case TCTextId::GroupNamePrompt:
      return u"Enter the name of the group of play lists";
    case TCTextId::GroupNameExample:
      return u"e.g. \"Mariner Sets\"";
    case TCTextId::PlayListNamePrompt:
      return u"Enter the name of the song play list";
    case TCTextId::PlayListNameExample:
      return u"e.g. \"Mariner Set 1\"";
    case TCTextId::AddSongsPrompt:
      return u"Enter the full name and path of the song (s) to be added";
    case TCTextId::RenamePrompt:
      return u"Enter the new folder name";
    case TCTextId::SongLatencyPrompt:
      return u"Enter the nominal time between songs in seconds";
    case TCTextId::SongLatencyExplanation:
      return u"Song latency is the nominal time between stoping and starting songs";
    case TCTextId::SeekStepPrompt:
      return u"Enter the Fast Foward/Fast Reverse time step";
    case TCTextId::SeekStepExplanation:
      return u"The time step is the time amount that the song moves on FF/FR";
    case TCTextId::VolumeStepPrompt:
      return u"Enter the value for the volume step size e.g. 5 (max= 100)";
    case TCTextId::VolumeStepExplanation:
      return u"The volume stepsize is unit amount by which the volume changes on each key press";
    case TCTextId::PlayListFontSizePrompt:
      return u"Enter the font size of the Playlist display e.g. 18";
    case TCTextId::LyricsFontSizePrompt:
      return u"Enter the font size of the Lyrics display e.g. 18";
    case TCTextId::LyricLinesPrompt:
      return u"Enter the number of Lyric lines to display e.g. 3";
    case TCTextId::RemoveQuestion:
      return u"Are you sure you want to remove file:";

    case TCTextId::CreateGroupTitle:
      return u"Create A Group Of Playlists ";
    case TCTextId::CreateSetListTitle:
      return u"Create A Set List";
    case TCTextId::SetSongLatencyTitle:
      return u"Set Song Latency";
    case TCTextId::EnterPropertyTitle:
      return u"Enter property";
    case TCTextId::OkButton:
      return u"OK";
    case TCTextId::CancelButton:
      return u"Cancel";
    case TCTextId::OkMnemonicButton:
      return u"&OK";
    case TCTextId::CancelMnemonicButton:
      return u"&Cancel";

    case TCTextId::CreateSetListsTitle:
      return u"Create Set Lists";
    case TCTextId::SetlistGroupNameLabel:
      return u"Setlist Group Name";
    case TCTextId::SetlistNameLabel:
      return u"Setlist Name";
    case TCTextId::SongFileNamesLabel:
      return u"Song File Names:";
    case TCTextId::FindSongsButton:
      return u"Find &Songs";
    case TCTextId::CreateGroupButton:
      return u"Create Group";
    case TCTextId::CreateSetButton:
      return u"Create Set";
    case TCTextId::CreateButton:
      return u"Create";
    case TCTextId::HelpButton:
      return u"&Help";

    case TCTextId::SongPropertiesTitle:
      return u"Song properties";
    case TCTextId::SongFilePathLabel:
      return u"Song File Path:";
    case TCTextId::SetDirButton:
      return u"Set Dir";
    case TCTextId::SongNameLabel:
      return u"Song Name:";
    case TCTextId::SongTimeLabel:
      return u"Song Time:";
    case TCTextId::PlaylistNameLabel:
      return u"Playlist Name:";
    case TCTextId::GrouplistNameLabel:
      return u"Grouplist Name:";
    case TCTextId::PathForAllBox:
      return u"Use this directory/file path to update all songs in this playlist";
    case TCTextId::ExtensionForAllBox:
      return u"Use this files's extention type for all songs in this playlist";
    case TCTextId::SetDirHint:
      return u"To change the song's (s) file path, use the \"Set Dir\" button";
    case TCTextId::SetDirHintContinued:
      return u"to navigate to the required directory folder and select any song";

    case TCTextId::MediaFiles:
      return u"Media Files";
    case TCTextId::MediaFilterPatternSeparator:
      return u") | ";
    case TCTextId::MediaFilterEnd:
      return u") || ";
    case TCTextId::DefaultMediaFilter:
      return u"Media Files  (*.mp3, *.wav, *.mid, *.wma) | *.mp3; *.wav; *.mid;*.wma||";

    case TCTextId::PlaylistManagerPaneTitle:
      return u"Play List Manager";
    case TCTextId::PlayerPaneTitle:
      return u"Windows Media Player";
    case TCTextId::PropertiesPaneTitle:
      return u"Properties";

    case TCTextId::PlaylistManagerInformation:
      return u"Playlist Manager Information";
    case TCTextId::SongFileNameCaption:
      return u"Song File Name";
    case TCTextId::SongFilePathCaption:
      return u"Song File Path";
    case TCTextId::PlaylistNameCaption:
      return u"Playlist Name";
    case TCTextId::GroupNameCaption:
      return u"Group Name";
    case TCTextId::BrvFileNameCaption:
      return u"BRV File Name";
    case TCTextId::BrvFilePathCaption:
      return u"BRV File Path";
    case TCTextId::OptionsInformation:
      return u"Options Information";
    case TCTextId::SongLatencyCaption:
      return u"Song play latency (secs)";
    case TCTextId::VolumeStepCaption:
      return u"Volume increment/decrement size";
    case TCTextId::SeekStepCaption:
      return u"Fast Foward/Fast Rewind time step";
    case TCTextId::FontSizeCaption:
      return u"Font size";
    case TCTextId::LyricsInformation:
      return u"Lyrics Information";
    case TCTextId::ArtistCaption:
      return u"Artist";
    case TCTextId::AlbumCaption:
      return u"Album";
    case TCTextId::TitleCaption:
      return u"Title";
    case TCTextId::SongCreatorCaption:
      return u"Song Creater";
    case TCTextId::LyricLengthCaption:
      return u"Lyric Length";
    case TCTextId::LyricWriterCaption:
      return u"Lyric Writer";
    case TCTextId::EditorCaption:
      return u"Editor";
    case TCTextId::VersionCaption:
      return u"Version";
    case TCTextId::LyricDelayCaption:
      return u"Lyric Delay (ms)";
    case TCTextId::ProgramInformation:
      return u"Program Information";
    case TCTextId::ProgramPathCaption:
      return u"Brevant program path";
    case TCTextId::ProgramDataPathCaption:
      return u"Brevant program data path";

    case TCTextId::MainToolbar:
      return u"Main toolbar";
    case TCTextId::StandardToolbar:
      return u"Standard toolbar";
    case TCTextId::PlayControlsToolbar:
      return u"Play controls";
    case TCTextId::CreateToolbar:
      return u"Create";
    case TCTextId::CommandsToolbar:
      return u"Commands";
    case TCTextId::OptionsToolbar:
      return u"Options";
  }
  return {};
}

std::u16string_view DocumentTemplateText(TCDocumentTemplateField field) {
  std::u16string_view rest = TextOf(TCTextId::DocumentTemplate);
  for (int skipped = 0; skipped < static_cast<int>(field); ++skipped) {
    rest.remove_prefix(rest.find(u'\n') + 1);
  }
  return rest.substr(0, rest.find(u'\n'));
}

}  // namespace brevant
