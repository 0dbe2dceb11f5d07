// The main window: the playlist in the middle, the playlist manager in a pane beside it, properties, player
// and message display in panes below, the menu bar, the tool bars and the status bar around them. It
// shows and decides nothing about songs; commands come and go through TCCommandRouter. User-interface thread
// only.
#pragma once

#include <QMainWindow>
#include <QSettings>
#include <cstdint>
#include <optional>
#include <string>

#include "app/bars/bar_set.h"
#include "app/bars/play_controls_bar.h"
#include "app/panes/general_reports_tab.h"
#include "app/panes/pane_set.h"
#include "app/panes/properties_pane.h"
#include "app/panes/status_line.h"
#include "document/frame_display.h"
#include "model/settings.h"
#include "playback/player.h"
#include "playback/player_monitor.h"
#include "resources/command_id.h"
#include "views/brevant_view.h"
#include "views/play_list_manager_tree_view.h"
#include "views/wmp_pane_container.h"

namespace brevant {

class TCMainFrame : public QMainWindow, public TCFrameDisplay {
  Q_OBJECT

 public:
  // Builds everything the window holds. Sets the player's volume to 100. Of the options the frame changes
  // live view alone.
  TCMainFrame(TCSettings& programSettings, TCPlayer& player, const TCPlayerMonitor& monitor);

  ~TCMainFrame() override;

  [[nodiscard]] TCBrevantView& PlaylistView() { return *view; }
  [[nodiscard]] TCPlayListManagerTreeView& Tree() { return *tree; }
  [[nodiscard]] TCGeneralReportsTab& MessageDisplay() { return *messageDisplay; }
  [[nodiscard]] TCWMPPaneContainer& PlayerPane() { return *playerPane; }
  [[nodiscard]] TCPropertiesPane& Properties() { return *properties; }
  [[nodiscard]] TCPlayControlsBar& PlayControls() { return *playControls; }
  [[nodiscard]] TCBarSet& Bars() { return bars; }
  [[nodiscard]] TCStatusLine& StatusLine() { return *statusLine; }
  [[nodiscard]] TCPaneSet& Panes() { return *panes; }

  // The frame's own commands: its panes and bars, the customise sheet, live view, the status bar and Exit.
  [[nodiscard]] static bool Handles(TCCommandId command);
  bool OnCommand(TCCommandId command);
  // The pane or bar that the command stands for is open; the option is on.
  [[nodiscard]] bool IsChecked(TCCommandId command) const;

  // Closes the panes, or brings them back; the option is the caller's.
  void EnterLiveView() { panes->EnterLiveView(); }
  void LeaveLiveView() { panes->LeaveLiveView(); }

  // What the user arranged by hand, for the next start. Restored once the bars are filled.
  void SaveLayout(QSettings& layout) const;
  void RestoreLayout(const QSettings& layout);
  void SavePlacement(QSettings& layout) const;
  // A placement that is none changes nothing. Before the window is shown: where it will stand. Afterwards:
  // maximised as well, if it was.
  void RestorePlacement(const QSettings& layout);

  // TCFrameDisplay
  void ShowTitle(std::u16string_view name, TCModifiedMark mark) override;
  void ShowOptions() override;
  void ShowStatus(std::u16string_view text) override;
  void ShowPlacing(TCPlacing placing, std::u16string_view hint) override;

 Q_SIGNALS:
  // An option or a pane changed: check marks are to be shown anew.
  void marksChanged();

 protected:
  bool event(QEvent* event) override;

 private:
  void OnCreate(TCPlayer& player);
  void ConnectViews();
  void DressViews();
  void PlaceOnScreen();
  void ToggleLiveView();

  // The options that colours and fonts come from, as they are shown.
  struct TCShownLook {
    TCRgb text = 0;
    TCRgb background = 0;
    bool whiteOnBlack = false;
    friend bool operator==(const TCShownLook&, const TCShownLook&) = default;
  };
  struct TCShownType {
    std::u16string face;
    std::int32_t points = 0;
    friend bool operator==(const TCShownType&, const TCShownType&) = default;
  };

  TCSettings& settings;
  std::optional<TCShownLook> shownLook;
  std::optional<TCShownType> shownPlaylistType;
  std::optional<TCShownType> shownLyricType;

  // The toolkit owns every child.
  TCPaneSet* panes = nullptr;
  TCBrevantView* view = nullptr;
  TCPlayListManagerTreeView* tree = nullptr;
  TCPropertiesPane* properties = nullptr;
  TCWMPPaneContainer* playerPane = nullptr;
  TCGeneralReportsTab* messageDisplay = nullptr;
  TCPlayControlsBar* playControls = nullptr;
  TCBarSet bars;
  TCStatusLine* statusLine = nullptr;
};

}  // namespace brevant
