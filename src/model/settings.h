// The options of the program with their built-in defaults. Changed by commands while the program runs; read
// from the settings file once at the start and written once at the end. The gap between songs and the media
// types are options too, but stand with the set lists that they are for (TCSetListStore). User-interface
// thread only.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace brevant {

// 24 bits, 0xRRGGBB.
using TCRgb = std::uint32_t;
inline constexpr TCRgb kBlack = 0x000000;
inline constexpr TCRgb kWhite = 0xFFFFFF;

// Of the playlist and of the lyrics.
inline constexpr std::u16string_view kDefaultFontFace = u"Times New Roman";

struct TCSettings {
  bool loadLastWindowState = true;
  bool loadLastFileOnProgramRun = true;
  bool whiteOnBlack = true;
  bool dynamicPlayColours = true;
  bool confirmFileRemove = true;
  bool foldersSaveFormat = true;  // kept and shown, without effect on saving
  bool immediatePlay = true;
  bool playlistManagerImmediatePlay = false;
  bool autoSongAdvance = true;
  bool autoRecycle = false;
  bool autoPlayPlayList = false;
  bool liveViewMode = false;

  // What the media file chooser begins with: a path, and the type in any form that ends with it ("*.mp3",
  // "mp3").
  std::u16string lastMediaFileName;
  std::u16string lastMediaFileExtSpec;

  std::u16string playListFontTypeName{kDefaultFontFace};
  std::u16string lyricsFontTypeName{kDefaultFontFace};

  std::int32_t seekStepSeconds = 2;
  std::int32_t volumeStep = 5;         // on the scale 0 to 100
  std::int32_t disableEditing = 0;     // on unless 0; a number in the settings file
  std::int32_t playListFontSize = 14;  // points; any value is kept, whatever shows it keeps it usable
  std::int32_t lyricsFontSize = 18;    // points
  std::int32_t numberLyricLines = 2;

  // Follow `whiteOnBlack`; SetWhiteOnBlack keeps the three together.
  TCRgb backgroundColour = kBlack;
  TCRgb textColour = kWhite;

  bool settingsFileFound = false;  // the settings file could be opened at the start
  bool resetPending = false;       // the settings file is deleted at the end instead of written

  void SetWhiteOnBlack(bool on);
  void ToggleReset() { resetPending = !resetPending; }
};

}  // namespace brevant
