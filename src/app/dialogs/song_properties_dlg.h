// "Song properties": where a song's file is and what else is known of the song, and whether the whole
// playlist takes the folder or the file type. Opened by TCQtPrompts over the form that does all this.
#pragma once

#include "app/dialogs/form_dialog.h"
#include "document/song_properties.h"

class QCheckBox;
class QLineEdit;

namespace brevant {

class TCSongProperties final : public TCFormDialog {
 public:
  // `songForm` outlives the dialog.
  TCSongProperties(TCSongPropertiesForm& songForm, QWidget* parent);

 private:
  void ShowForm() override;
  // What is typed goes to `text` of the form.
  [[nodiscard]] QLineEdit* MakeField(const QString& name, TCTextId label, std::u16string& text);
  // Read and copied, never typed into.
  [[nodiscard]] QLineEdit* MakeReadOnlyField(const QString& name, TCTextId label);
  [[nodiscard]] QCheckBox* MakeBox(const QString& name, TCTextId text, bool& isChecked);
  void LayOut();

  TCSongPropertiesForm& form;
  QLineEdit* songPath;
  QPushButton* setDir;
  QLineEdit* songName;
  QLineEdit* songTime;
  QLineEdit* playlistName;
  QLineEdit* groupName;
  QCheckBox* pathForAll;
  QCheckBox* extensionForAll;
  QPushButton* ok;
  QPushButton* cancel;
};

}  // namespace brevant
