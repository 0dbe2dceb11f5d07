// The string table: the texts that the program has always had, looked up by number. Misspellings, doubled
// blanks and blanks at an end are the system's own: users search for these texts as they stand. What came
// later stands where it is said; menu, key and status texts live in the command table.
#pragma once

#include <string_view>

namespace brevant {

// Numbers of the texts. The ones below 1000 are fixed; the rest only need to stay unique.
enum class TCTextId : int {
  BadFileType = 102,              // "Bad file type, unable to load the play list file named:"
  PlayListsMustBeText = 103,      // "Play lists must be text files not binary data files"
  Yes = 108,                      // "Yes"
  UnableToLoadGroupList = 112,    // "Unable to load play list lists file:"
  UnableToLoadPlayList = 113,     // "Unable to load play list file"
  Pending = 117,                  // "Pending"
  NotFound = 119,                 // "Not found"
  Found = 124,                    // "Found"
  DocumentTemplate = 128,         // seven fields, see TCDocumentTemplateField
  AddSongsHint = 136,             // second line of the Create Set Lists prompt
  PlayListExtension = 139,        // "brvpl"
  GroupListExtension = 140,       // "brvgl"
  MessagePaneTitle = 150,         // "Brevant Information & Lyrics"
  DocumentExtension = 151,        // "brv"
  UnableToPlayMissingFile = 171,  // "Unable to play song as unable to find file:"
  KeyHelp = 182,                  // the status bar's second pane
  InvalidMediaType = 195,         // "Invalid media file type (.xxx) for file:"
  MediaTypesPrompt = 196,         // "Set the list of valid media file types (.xxx) "
  MediaTypesExplanation = 197,    // second line of the media types prompt
  CommandCanceled = 209,          // "Command canceled"

  Banner = 1000,      // "...Brevant..."
  TotalPlaylistTime,  // "Total Playlist Time"
  SongNumberColumn,   // "Song #"
  PlayListColumn,     // "Play List"
  SongTimeColumn,     // "Song Time"
  StatusColumn,       // "Status"
  LyricsMark,         // "\Lyrics", behind the status of a song that has lyric lines
  PictureColumn,      // " ", the header above the row pictures
  No,                 // "No"

  // Lines of the message display.
  CalculatingTimes,     // "Calculating times for song"
  UnableToProcessFile,  // "Unable to process file named:"

  // Names and lists that a user may change later.
  NewGroupFolder,          // name of a group made without a prompt
  NewPlaylistFolder,       // name of a playlist made without a prompt
  DefaultMediaExtensions,  // "mid mp3 wav wma"

  // Prompts: a Prompt is the first line, an Example or Explanation the second.
  GroupNamePrompt,
  GroupNameExample,
  PlayListNamePrompt,
  PlayListNameExample,
  AddSongsPrompt,  // its second line is AddSongsHint
  RenamePrompt,
  SongLatencyPrompt,
  SongLatencyExplanation,
  SeekStepPrompt,
  SeekStepExplanation,
  VolumeStepPrompt,
  VolumeStepExplanation,
  PlayListFontSizePrompt,
  LyricsFontSizePrompt,
  LyricLinesPrompt,
  RemoveQuestion,  // followed by a blank and the name of what would go

  // The text prompt's titles, and the buttons of all dialogs.
  CreateGroupTitle,
  CreateSetListTitle,
  SetSongLatencyTitle,
  EnterPropertyTitle,
  OkButton,          // "OK"
  CancelButton,      // "Cancel"
  OkMnemonicButton,  // "&OK", the text prompt's
  CancelMnemonicButton,

  // Create Set Lists.
  CreateSetListsTitle,
  SetlistGroupNameLabel,
  SetlistNameLabel,
  SongFileNamesLabel,
  FindSongsButton,
  CreateGroupButton,
  CreateSetButton,
  CreateButton,
  HelpButton,

  // Song properties.
  SongPropertiesTitle,
  SongFilePathLabel,
  SetDirButton,
  SongNameLabel,
  SongTimeLabel,
  PlaylistNameLabel,
  GrouplistNameLabel,
  PathForAllBox,
  ExtensionForAllBox,
  SetDirHint,
  SetDirHintContinued,

  // The media file chooser: the label before the patterns, the two separators that the filter text is put
  // together with, and the whole text as it stands for the default extensions.
  MediaFiles,
  MediaFilterPatternSeparator,
  MediaFilterEnd,
  DefaultMediaFilter,

  // Panes; the message pane's title is MessagePaneTitle.
  PlaylistManagerPaneTitle,
  PlayerPaneTitle,
  PropertiesPaneTitle,

  // Captions of the properties pane, each category before its items.
  PlaylistManagerInformation,
  SongFileNameCaption,
  SongFilePathCaption,
  PlaylistNameCaption,
  GroupNameCaption,
  BrvFileNameCaption,
  BrvFilePathCaption,
  OptionsInformation,
  SongLatencyCaption,
  VolumeStepCaption,
  SeekStepCaption,
  FontSizeCaption,
  LyricsInformation,
  ArtistCaption,
  AlbumCaption,
  TitleCaption,
  SongCreatorCaption,
  LyricLengthCaption,
  LyricWriterCaption,
  EditorCaption,
  VersionCaption,
  LyricDelayCaption,
  ProgramInformation,
  ProgramPathCaption,
  ProgramDataPathCaption,

  // The command bars. A bar's saved place and its accessible name are both this text.
  MainToolbar,
  StandardToolbar,
  PlayControlsToolbar,
  CreateToolbar,
  CommandsToolbar,
  OptionsToolbar,  // the last text: tests walk up to here
};

// The fields of DocumentTemplate, in their order.
enum class TCDocumentTemplateField {
  WindowTitle,
  DocumentName,  // empty: a new document shows the window title alone
  NewFileName,
  FilterName,
  FilterExtension,  // with its dot
  FileTypeId,
  FileTypeName,
};

// Never empty: every TCTextId has a text. A number that is none gives an empty text.
[[nodiscard]] std::u16string_view TextOf(TCTextId id);

[[nodiscard]] std::u16string_view DocumentTemplateText(TCDocumentTemplateField field);

}  // namespace brevant
