// The message display: the read-only text box that shows the most recent information, error and lyric lines
// and keeps the newest message, or the lyric line that is sung, in view. Whoever has something to say reaches
// it as TCMessageDisplay. User-interface thread only.
#pragma once

#include <QColor>
#include <QPlainTextEdit>
#include <QString>
#include <cstdint>
#include <deque>
#include <string_view>

#include "app/panes/singer_colours.h"
#include "model/message_display.h"
#include "model/report_lines.h"

namespace brevant {

class TCGeneralReportsTab final : public QPlainTextEdit, public TCMessageDisplay {
  Q_OBJECT

 public:
  explicit TCGeneralReportsTab(QWidget* parent = nullptr);

  // Holds the last `capacity` lines from now on. Before this every append and clear does nothing.
  void Enable(std::int32_t capacity);
  [[nodiscard]] bool Enabled() const { return ring.Enabled(); }

  // `points` may be any value. What stands there is recoloured too.
  void SetDisplayFont(const QString& face, int points, const QColor& text, const QColor& background);
  // Which of its two colours each singer has, also where lines stand already.
  void SetLook(TCPaneLook newLook);

  void Clear() override;
  void Append(std::u16string_view text) override;
  void SetLineRole(TCLineRole newRole) override;
  void KeepFirstInView() override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void Rebuild();
  void AddToBox(std::u16string_view text, TCLineRole lineRole);
  void DropOldestFromBox();
  [[nodiscard]] int FirstTextLine() const;
  void ScrollIntoView();

  TCReportLines ring;
  TCLineRole role = TCLineRole::Normal;
  TCPaneLook look = TCPaneLook::WhiteOnBlack;
  TCRgb normalText = kWhite;
  bool firstInView = false;
  std::deque<int> blocksOfLine;  // how many lines of the box each line of the ring takes, oldest first
};

}  // namespace brevant
