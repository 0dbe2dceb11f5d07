// "Create Set Lists": a group and a playlist are chosen or created, and song files added to them, several
// batches if need be. Opened by TCQtPrompts over the form that does all this.
#pragma once

#include "app/dialogs/form_dialog.h"
#include "document/add_play_items.h"

class QComboBox;

namespace brevant {

class TCSongFilesField;

class TCAddPlayItemsDlg final : public TCFormDialog {
 public:
  // `setListForm` outlives the dialog.
  TCAddPlayItemsDlg(TCAddPlayItems& setListForm, QWidget* parent);

 private:
  void ShowForm() override;
  // A list to choose from, in the document's order; what is chosen goes to `choose`.
  [[nodiscard]] QComboBox* MakeList(const QString& name, TCTextId label,
                                    void (TCAddPlayItems::*choose)(std::int32_t));
  [[nodiscard]] TCSongFilesField* MakeSongFiles();
  void LayOut();

  TCAddPlayItems& form;
  QComboBox* groupList;
  QPushButton* createGroup;
  QComboBox* playlistList;
  QPushButton* createSet;
  QPushButton* findSongs;
  TCSongFilesField* songFiles;
  QPushButton* create;
  QPushButton* ok;
  QPushButton* cancel;
  QPushButton* help;
};

}  // namespace brevant
