// The playlist's column headers, drawn in the rows' font and colours. The last one holds the playlist's name
// and total and is cut where the window ends, before the total, which stays whole.
#pragma once

#include <QHeaderView>

namespace brevant {

class TCPlaylistHeader final : public QHeaderView {
  Q_OBJECT

 public:
  explicit TCPlaylistHeader(QWidget* parent = nullptr);

  // Pixels that are left free beside a text, both sides together; and what looks good between two texts.
  [[nodiscard]] int TextMargins() const;
  [[nodiscard]] int GapBetweenTexts() const;

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] int SideMargin() const;
  void DrawSection(QPainter& painter, const QRect& rect, int section) const;
};

}  // namespace brevant
