// The numbers of the program's commands. Menus, bars, keys, settings of customised bars and the panes all
// speak of a command by this number, so a value is never changed or given out again.
#pragma once

namespace brevant {

enum class TCCommandId : int {
  None = 0,  // no command; in a bar or menu a separator

  // Panes: the number names the pane and is the command that shows or hides it.
  PlayerPane = 4000,
  PlaylistManagerPane = 4002,
  MessagePane = 4003,
  PropertiesPane = 4004,

  // Transport.
  Play = 32772,
  Stop = 32773,
  PauseContinue = 32774,
  SeekForward = 32776,
  SeekBack = 32779,
  LoadSong = 32790,
  PriorPlaylist = 32831,
  NextPlaylist = 32832,
  NextSong = 32852,
  PriorSong = 32853,
  VolumeDown = 32912,
  VolumeUp = 32913,
  MediaVolumeDown = 32914,
  MediaVolumeUp = 32915,
  RepeatBeginField = 32933,  // a time field of the play bar, no command of the table
  RepeatEndField = 32934,    // the same
  SetRepeatBegin = 32935,
  SetRepeatEnd = 32936,

  // Editing.
  Cancel = 32793,
  CreateGroupList = 32796,
  CreatePlaylist = 32797,
  AddSongs = 32798,
  Remove = 32799,
  SongProperties = 32861,
  Duplicate = 32862,
  SelectAll = 32901,
  NewGroupFolder = 32904,
  NewPlaylistFolder = 32905,
  ShowTreeSelection = 32911,
  Rename = 32920,
  MoveSongUp = 32946,
  MoveSongDown = 32947,
  SelectSongToMove = 32949,
  Copy = 57634,
  Cut = 57635,
  Paste = 57637,
  Undo = 57643,

  // Times, fonts and the message display.
  RefreshSongTime = 32825,
  RefreshAllTimes = 32826,
  ClearInformation = 32827,
  RefreshPlaylistTimes = 32829,
  SongLatency = 32868,
  PlaylistFontSize = 32877,
  LyricsFontSize = 32960,
  LyricLines = 32961,
  Reset = 32921,

  // Options, most of them on or off.
  AutoSongAdvance = 32838,
  DynamicPlayColours = 32841,
  LoadLastFile = 32842,
  ConfirmFileRemove = 32843,
  ImmediatePlay = 32844,
  FoldersSaveFormat = 32845,
  LoadLastWindowState = 32846,
  WhiteOnBlack = 32847,
  PlaylistManagerImmediatePlay = 32851,
  AutoPlayPlayList = 32870,
  LiveViewMode = 32878,
  MediaFileTypes = 32880,
  SeekStep = 32906,
  VolumeStep = 32922,
  AutoRecycle = 32954,
  DisableEditing = 32959,

  // Focus. The last takes F4 away from the list and the tree and does nothing.
  FocusPlaylistManager = 32907,
  FocusPlaylist = 32908,
  SwallowF4 = 32909,

  // The frame's and the framework's own.
  Customize = 35001,
  FileNew = 57600,
  FileOpen = 57601,
  FileSave = 57603,
  FileSaveAs = 57604,
  RecentFile = 57616,
  About = 57664,
  Exit = 57665,
  HelpTopics = 57667,
  ContextHelp = 57669,
  Help = 57670,
  ToolbarVisible = 59392,
  StatusBarVisible = 59393,
};

}  // namespace brevant
