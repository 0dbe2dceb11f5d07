// A line of plain text that is cut with an ellipsis where its place ends; the tool tip then holds all of it.
#pragma once

#include <QLabel>
#include <QString>

namespace brevant {

class TCElidedLabel final : public QLabel {
  Q_OBJECT

 public:
  explicit TCElidedLabel(QWidget* parent = nullptr);

  // `detail` stands below the text in the tool tip; it is never shown as markup.
  void ShowText(const QString& shownText, const QString& shownDetail = {});

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void UpdateToolTip();

  QString detail;
};

}  // namespace brevant
