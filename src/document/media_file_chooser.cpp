#include "document/media_file_chooser.h"

#include <utility>

#include "model/media_check.h"
#include "text/path_parts.h"
#include "text/quoted_words.h"

namespace brevant {

namespace {

// Of "*.mp3", which is what there is before the first choice, or of "mp3".
std::u16string TypeIn(std::u16string_view fileSpec) {
  const std::size_t dot = fileSpec.rfind(u'.');
  return std::u16string(dot == std::u16string_view::npos ? fileSpec : fileSpec.substr(dot + 1));
}

}  // namespace

TCMediaFileChooser::TCMediaFileChooser(TCAppRecord& appRecord, TCPrompts& userPrompts)
    : record(appRecord), prompts(userPrompts) {}

std::vector<std::u16string> TCMediaFileChooser::Choose(TCChooseFiles count) {
  TCSettings& settings = record.settings;
  std::optional<std::vector<std::u16string>> paths =
      prompts.ChooseMediaFiles({count, ValidMediaExtensions(record.setLists),
                                TypeIn(settings.lastMediaFileExtSpec), settings.lastMediaFileName});
  if (paths) return *std::move(paths);
  settings.lastMediaFileName.clear();
  return {};
}

std::u16string TCMediaFileChooser::ChooseSongs() {
  const std::vector<std::u16string> paths = Choose(TCChooseFiles::Several);
  if (paths.empty()) return {};
  std::u16string text;
  for (const std::u16string& path : paths) {
    if (!text.empty()) text += u' ';
    text += QuotedWord(path);
  }
  record.settings.lastMediaFileName = paths.front();
  record.settings.lastMediaFileExtSpec = ExtensionPart(paths.front());
  return text;
}

std::optional<std::u16string> TCMediaFileChooser::ChooseSong() {
  const std::vector<std::u16string> paths = Choose(TCChooseFiles::One);
  if (paths.empty()) return std::nullopt;
  record.settings.lastMediaFileExtSpec = ExtensionPart(paths.front());
  return paths.front();
}

}  // namespace brevant
