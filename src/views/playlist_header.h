// The playlist's column headers, drawn in the rows' font and colours. The last one holds the playlist's name
// and total and is cut in its middle where the window ends, so that the total stays in sight.
#pragma once

#include <QHeaderView>

namespace brevant {

class TCPlaylistHeader final : public QHeaderView {
  Q_OBJECT

 public:
  explicit TCPlaylistHeader(QWidget* parent = nullptr);

  // Pixels beside a header's text, both sides together.
  [[nodiscard]] int TextMargins() const;

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
};

}  // namespace brevant
