// The window of the user guide: a page, buttons that lead back, forward and to the contents, and a field to
// find a word on the page. It stands by itself, beside the main window or a dialog, keeps nobody from going
// on and the program from nothing, and deletes itself when it is closed. Made by TCHelp.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

#include "app/help/guide_browser.h"

namespace brevant {

class TCHelpWindow final : public QWidget {
 public:
  TCHelpWindow();

  // Opens the page and comes to the front. `page` as TCGuideBrowser has it.
  void ShowPage(const QString& page);

  [[nodiscard]] TCGuideBrowser& Page() { return *browser; }

 private:
  QToolButton* AddButton(const QString& name, const QString& tip, const QKeySequence& key);
  void LayOut();
  void ConnectButtons();
  void BindKeys();
  void Find(TCGuideBrowser::TCDirection direction, TCGuideBrowser::TCFrom from);

  TCGuideBrowser* browser;
  QToolButton* back;
  QToolButton* forward;
  QToolButton* contents;
  QLineEdit* findField;
  QLabel* notFound;
};

}  // namespace brevant
