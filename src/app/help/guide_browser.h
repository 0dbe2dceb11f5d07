// Shows a page of the user guide: Markdown out of the program's resources, dressed in the colours of the
// stage, with a place to go to at every heading. It keeps the way back and forward, and follows links within
// the guide only. User-interface thread.
#pragma once

#include <QString>
#include <QTextBrowser>
#include <QVariant>

namespace brevant {

class TCGuideBrowser final : public QTextBrowser {
 public:
  explicit TCGuideBrowser(QWidget* parent = nullptr);

  // `page` is a file of the guide, with a heading's anchor behind it if wanted: "panes.md#the-player".
  void Open(const QString& page);

  // The first heading of the page that is shown.
  [[nodiscard]] QString Title() const;

  enum class TCDirection { Forward, Backward };
  enum class TCFrom {
    Selection,       // the next one
    SelectionStart,  // the one that is selected, while more of the word is typed
  };
  // Selects the next place that holds `text`, whatever its case, and goes on at the other end of the page.
  // False when the page does not hold it; nothing is selected then.
  bool Find(const QString& text, TCDirection direction, TCFrom from);

 protected:
  [[nodiscard]] QVariant loadResource(int type, const QUrl& name) override;
  void changeEvent(QEvent* event) override;
  void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;

 private:
  void DressPage();

  bool pageComesIn = false;  // one edit of the document, from the reading of a page to its dress
};

}  // namespace brevant
