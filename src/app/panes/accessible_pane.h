// What screen readers hear of a pane. Installed by TCPaneSet.
#pragma once

namespace brevant {

// From now on every pane of the program is called by its whole title. By itself the toolkit takes the "&" of
// a title for the mark of a letter and drops it, whatever accessible name the pane was given.
void CallPanesByTheirTitles();

}  // namespace brevant
