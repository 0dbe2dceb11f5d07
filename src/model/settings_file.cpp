#include "model/settings_file.h"

#include <array>
#include <optional>
#include <utility>

#include "text/case_folding.h"
#include "text/ini_text.h"
#include "text/numbers.h"

namespace brevant {

namespace {

constexpr std::u16string_view kSection = u"Brevant";
constexpr std::u16string_view kLastLoadedFileKey = u"LastLoadedFileName";
constexpr std::size_t kMaxFileBytes = std::size_t{1} << 20;
constexpr std::size_t kMaxValueUnits = 4091;  // longer values are cut off when read

// How a value is read.
enum class Rule {
  UnlessNo,        // a bool: true unless the value begins with n; missing reads as true
  OnlyYes,         // a bool: true when the value begins with y; missing leaves it as it is
  OnlyYesElseNo,   // the same, but missing reads as false
  Text,            // an empty value leaves it as it is
  Number,          // missing or empty leaves it as it is
  LyricsFontSize,  // a number; missing or empty takes the playlist's font size
  LastLoadedFile,  // written from the open document; read by LastLoadedFileName alone
};

// An option of a record, to be set and to be looked at.
template <typename Value>
struct Field {
  Value& (*in)(TCAppRecord&) = nullptr;
  const Value& (*of)(const TCAppRecord&) = nullptr;
};

// One key of the file and the option that it holds.
struct Row {
  std::u16string_view key;
  Rule rule = Rule::Text;
  Field<bool> boolean;
  Field<std::u16string> text;
  Field<std::int32_t> number;
  std::u16string_view missingText;  // what a missing text key reads as
};

template <typename Get>
constexpr Row Bool(std::u16string_view key, Rule rule, Get field) {
  return {key, rule, {field, field}, {}, {}, {}};
}
template <typename Get>
constexpr Row Text(std::u16string_view key, Get field, std::u16string_view missing = {}) {
  return {key, Rule::Text, {}, {field, field}, {}, missing};
}
template <typename Get>
constexpr Row Number(std::u16string_view key, Get field, Rule rule = Rule::Number) {
  return {key, rule, {}, {}, {field, field}, {}};
}

// NOLINTBEGIN(bugprone-macro-parentheses): a member's name after a point takes no parentheses
#define BREVANT_FIELD(member) [](auto& record) -> decltype((record.member)) { return record.member; }
// NOLINTEND(bugprone-macro-parentheses)

// In the order of writing. Reading in this order too gives "LyricsFontSize" the playlist font size just read.
constexpr std::array kRows = {
    Bool(u"LoadLastWindowState", Rule::UnlessNo, BREVANT_FIELD(settings.loadLastWindowState)),
    Bool(u"LoadLastFileOnProgramRun", Rule::UnlessNo, BREVANT_FIELD(settings.loadLastFileOnProgramRun)),
    Row{kLastLoadedFileKey, Rule::LastLoadedFile, {}, {}, {}, {}},
    Bool(u"WhiteOnBlack", Rule::UnlessNo, BREVANT_FIELD(settings.whiteOnBlack)),
    Bool(u"DynamicPlayColours", Rule::UnlessNo, BREVANT_FIELD(settings.dynamicPlayColours)),
    Bool(u"ConfirmFileRemove", Rule::UnlessNo, BREVANT_FIELD(settings.confirmFileRemove)),
    Bool(u"FoldersSaveFormat", Rule::UnlessNo, BREVANT_FIELD(settings.foldersSaveFormat)),
    Bool(u"ImmediatePlay", Rule::UnlessNo, BREVANT_FIELD(settings.immediatePlay)),
    Bool(u"PlaylistManagerImmediatePlay", Rule::OnlyYesElseNo,
         BREVANT_FIELD(settings.playlistManagerImmediatePlay)),
    Bool(u"AutoSongAdvance", Rule::UnlessNo, BREVANT_FIELD(settings.autoSongAdvance)),
    Bool(u"AutoRecycle", Rule::UnlessNo, BREVANT_FIELD(settings.autoRecycle)),
    Bool(u"AutoPlayPlayList", Rule::OnlyYes, BREVANT_FIELD(settings.autoPlayPlayList)),
    Bool(u"LiveViewMode", Rule::OnlyYes, BREVANT_FIELD(settings.liveViewMode)),
    Text(u"ValidMediaFileExtensions", BREVANT_FIELD(setLists.validMediaExtensions)),
    Text(u"LastMediaFileName", BREVANT_FIELD(settings.lastMediaFileName)),
    Text(u"LastMediaFileExtSpec", BREVANT_FIELD(settings.lastMediaFileExtSpec), u"*.mp3"),
    Text(u"LastGroupListName", BREVANT_FIELD(setLists.lastGroupListName)),
    Text(u"LastPlayListName", BREVANT_FIELD(setLists.lastPlayListName)),
    Text(u"LastSongName", BREVANT_FIELD(setLists.lastSongName)),
    Text(u"PlayListFontTypeName", BREVANT_FIELD(settings.playListFontTypeName), kDefaultFontFace),
    Text(u"LyricsFontTypeName", BREVANT_FIELD(settings.lyricsFontTypeName), kDefaultFontFace),
    Number(u"SongLatencySeconds", BREVANT_FIELD(setLists.songLatencySeconds)),
    Number(u"FastFowardFastReverseTimeStep", BREVANT_FIELD(settings.seekStepSeconds)),
    Number(u"VolumeStep", BREVANT_FIELD(settings.volumeStep)),
    Number(u"Disable Editing", BREVANT_FIELD(settings.disableEditing)),
    Number(u"PlayListFontSize", BREVANT_FIELD(settings.playListFontSize)),
    Number(u"LyricsFontSize", BREVANT_FIELD(settings.lyricsFontSize), Rule::LyricsFontSize),
    Number(u"NumberLyricLines", BREVANT_FIELD(settings.numberLyricLines)),
};

#undef BREVANT_FIELD

std::u16string ReadText(const TCIniText& ini, std::u16string_view key, std::u16string_view fallback) {
  std::u16string value = ini.GetString(kSection, key, fallback);
  if (value.size() > kMaxValueUnits) value.resize(kMaxValueUnits);
  return value;
}

void ReadBool(const TCIniText& ini, const Row& row, bool& field) {
  const std::u16string_view missing = row.rule == Rule::UnlessNo        ? u"Yes"
                                      : row.rule == Rule::OnlyYesElseNo ? u"No"
                                                                        : u"";
  const std::u16string value = ToLower(ReadText(ini, row.key, missing));
  if (value.empty()) return;
  field = row.rule == Rule::UnlessNo ? value.front() != u'n' : value.front() == u'y';
}

void ReadRow(const TCIniText& ini, const Row& row, TCAppRecord& record) {
  switch (row.rule) {
    case Rule::UnlessNo:
    case Rule::OnlyYes:
    case Rule::OnlyYesElseNo:
      ReadBool(ini, row, row.boolean.in(record));
      break;
    case Rule::Text:
      if (std::u16string value = ReadText(ini, row.key, row.missingText); !value.empty()) {
        row.text.in(record) = std::move(value);
      }
      break;
    case Rule::Number:
      row.number.in(record) = ini.GetInt(kSection, row.key, row.number.in(record));
      break;
    case Rule::LyricsFontSize:
      row.number.in(record) = ini.GetInt(kSection, row.key, record.settings.playListFontSize);
      break;
    case Rule::LastLoadedFile:
      break;
  }
}

// A text is protected because a name out of a damaged document may hold a line break, and what stood behind
// it would be read as keys and headings.
std::u16string WrittenValue(const Row& row, const TCAppRecord& record) {
  switch (row.rule) {
    case Rule::UnlessNo:
    case Rule::OnlyYes:
    case Rule::OnlyYesElseNo:
      return row.boolean.of(record) ? u"Yes" : u"No";
    case Rule::Text:
      return TCIniText::Protected(row.text.of(record));
    case Rule::Number:
    case Rule::LyricsFontSize:
      return FormatDecimal(row.number.of(record));
    case Rule::LastLoadedFile:
      break;
  }
  return TCIniText::Protected(record.setLists.DocumentPath());
}

}  // namespace

TCSettingsFile::TCSettingsFile(TCFileSystem& fileSystem, std::u16string_view settingsFolder)
    : files(fileSystem), folder(settingsFolder), path(folder + u"Brevant.ini") {}

bool TCSettingsFile::LoadSettings(TCAppRecord& record) const {
  const std::optional<std::string> bytes = files.ReadFile(path, kMaxFileBytes);
  record.settings.settingsFileFound = bytes.has_value();
  if (!bytes) return false;
  const TCIniText ini = TCIniText::Parse(*bytes);
  for (const Row& row : kRows) ReadRow(ini, row, record);
  record.settings.SetWhiteOnBlack(record.settings.whiteOnBlack);
  return true;
}

bool TCSettingsFile::SaveSettings(const TCAppRecord& record) const {
  if (record.settings.resetPending) {
    files.DeleteFile(path);
    return false;
  }
  const std::optional<std::string> bytes = files.ReadFile(path, kMaxFileBytes);
  if (!bytes && files.FileExists(path)) return true;  // what else stands in it could not be kept
  TCIniText ini = TCIniText::Parse(bytes.value_or(std::string()));
  for (const Row& row : kRows) ini.SetString(kSection, row.key, WrittenValue(row, record));
  if (files.MakeFolder(folder)) (void)files.ReplaceFile(path, ini.Serialize());
  return true;
}

std::u16string TCSettingsFile::LastLoadedFileName() const {
  const std::optional<std::string> bytes = files.ReadFile(path, kMaxFileBytes);
  return bytes ? ReadText(TCIniText::Parse(*bytes), kLastLoadedFileKey, {}) : std::u16string();
}

}  // namespace brevant
