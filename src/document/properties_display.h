// What the properties pane can do for the document: one text a property. It is built when it is first shown;
// TCPropertiesPresenter tells it what to show from then on. User-interface thread only.
#pragma once

#include <array>
#include <string_view>

#include "resources/string_table.h"

namespace brevant {

enum class TCProperty {
  SongFileName,
  SongFilePath,
  PlaylistName,
  GroupName,
  BrvFileName,
  BrvFilePath,
  SongLatency,
  VolumeStep,
  SeekStep,
  FontSize,
  Artist,
  Album,
  Title,
  SongCreator,
  LyricLength,
  LyricWriter,
  Editor,
  Version,
  LyricDelay,
  ProgramPath,
  ProgramDataPath,
};

struct TCPropertyRow {
  TCProperty property;
  TCTextId category;
  TCTextId caption;
};

// All of them in their order on the screen; those of one category follow each other.
inline constexpr std::array kPropertyRows = {
    TCPropertyRow{TCProperty::SongFileName, TCTextId::PlaylistManagerInformation,
                  TCTextId::SongFileNameCaption},
    TCPropertyRow{TCProperty::SongFilePath, TCTextId::PlaylistManagerInformation,
                  TCTextId::SongFilePathCaption},
    TCPropertyRow{TCProperty::PlaylistName, TCTextId::PlaylistManagerInformation,
                  TCTextId::PlaylistNameCaption},
    TCPropertyRow{TCProperty::GroupName, TCTextId::PlaylistManagerInformation, TCTextId::GroupNameCaption},
    TCPropertyRow{TCProperty::BrvFileName, TCTextId::PlaylistManagerInformation,
                  TCTextId::BrvFileNameCaption},
    TCPropertyRow{TCProperty::BrvFilePath, TCTextId::PlaylistManagerInformation,
                  TCTextId::BrvFilePathCaption},
    TCPropertyRow{TCProperty::SongLatency, TCTextId::OptionsInformation, TCTextId::SongLatencyCaption},
    TCPropertyRow{TCProperty::VolumeStep, TCTextId::OptionsInformation, TCTextId::VolumeStepCaption},
    TCPropertyRow{TCProperty::SeekStep, TCTextId::OptionsInformation, TCTextId::SeekStepCaption},
    TCPropertyRow{TCProperty::FontSize, TCTextId::OptionsInformation, TCTextId::FontSizeCaption},
    TCPropertyRow{TCProperty::Artist, TCTextId::LyricsInformation, TCTextId::ArtistCaption},
    TCPropertyRow{TCProperty::Album, TCTextId::LyricsInformation, TCTextId::AlbumCaption},
    TCPropertyRow{TCProperty::Title, TCTextId::LyricsInformation, TCTextId::TitleCaption},
    TCPropertyRow{TCProperty::SongCreator, TCTextId::LyricsInformation, TCTextId::SongCreatorCaption},
    TCPropertyRow{TCProperty::LyricLength, TCTextId::LyricsInformation, TCTextId::LyricLengthCaption},
    TCPropertyRow{TCProperty::LyricWriter, TCTextId::LyricsInformation, TCTextId::LyricWriterCaption},
    TCPropertyRow{TCProperty::Editor, TCTextId::LyricsInformation, TCTextId::EditorCaption},
    TCPropertyRow{TCProperty::Version, TCTextId::LyricsInformation, TCTextId::VersionCaption},
    TCPropertyRow{TCProperty::LyricDelay, TCTextId::LyricsInformation, TCTextId::LyricDelayCaption},
    TCPropertyRow{TCProperty::ProgramPath, TCTextId::ProgramInformation, TCTextId::ProgramPathCaption},
    TCPropertyRow{TCProperty::ProgramDataPath, TCTextId::ProgramInformation,
                  TCTextId::ProgramDataPathCaption},
};

class TCPropertiesDisplay {
 public:
  virtual ~TCPropertiesDisplay() = default;

  // False until the pane was shown for the first time: there is nothing yet that could show a text.
  [[nodiscard]] virtual bool IsBuilt() const = 0;
  // Only when built. Replaces what stands there, what the user typed over it included.
  virtual void ShowProperty(TCProperty property, std::u16string_view text) = 0;
};

}  // namespace brevant
