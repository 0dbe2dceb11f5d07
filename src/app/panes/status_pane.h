// A label that takes the room it is given and shortens what it shows, never what it says: its text, and what
// a screen reader reads, stay whole. Used by the status bar's panes.
#pragma once

#include <QLabel>

namespace brevant {

class TCStatusPane : public QLabel {
 public:
  // Where a text may be cut: anywhere, or only between the entries of a list that `separator` divides.
  explicit TCStatusPane(QWidget* parent, QString entrySeparator = QString());

  // What fits into `width` pixels of the label's font.
  [[nodiscard]] QString ShownText(int width) const;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  // The tool tip says what is cut.
  bool event(QEvent* event) override;

 private:
  QString separator;
};

}  // namespace brevant
