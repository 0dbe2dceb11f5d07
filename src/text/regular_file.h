// Opens a song, document or lyric file for reading: by the name as it is written, or by one that differs in
// upper and lower case. TCDiskFiles and the player's back end open by these, so that what is "found" is what
// will sound. Any thread; each call blocks as long as the disk does.
#pragma once

#include <cstdint>
#include <string>

#include "text/file_handle.h"
#include "text/other_case.h"

namespace brevant {

struct TCRegularFile {
  std::string native;      // the name that was tried last; the file's own when it is open
  TCFileHandle file;       // open only for a regular file, or a link to one
  std::uint64_t size = 0;  // what an open file says of itself, in bytes
  int failure = 0;         // why it is not open (errno); 0: something stands there that is no file

  // Worth a search for other case; any other failure is the file's own.
  [[nodiscard]] bool NothingThere() const;
};

// `native` is relative to `folder`, which can be AT_FDCWD. A folder, FIFO or device is closed at once and
// holds nobody up.
[[nodiscard]] TCRegularFile OpenRegularFile(int folder, std::string native);

// The same for what the folder's listing says to be a regular file, which is believed. `size` stays 0.
[[nodiscard]] TCRegularFile OpenListedFile(int folder, std::string native);

// `native` itself; only where nothing stands under it, the nearest of its likes in other case that opens.
[[nodiscard]] TCRegularFile FindRegularFile(std::string native, TCOtherCase& otherCase);

}  // namespace brevant
