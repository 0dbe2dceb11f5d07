// The document's questions as dialogs over the main window. One at a time: whoever asks while another
// question is open, by a key pressed twice or through a screen reader, gets the answer of a user who cancels.
// Only a button of one of the two larger dialogs may ask something itself, over that dialog. Songs play on
// and the document's tick goes on behind a question.
#pragma once

#include <QFileInfo>
#include <QString>
#include <QStringList>

#include "app/main_frame.h"
#include "document/prompts.h"
#include "model/set_list_store.h"
#include "text/file_system.h"
#include "text/native_path.h"

class QDialog;
class QFileDialog;

namespace brevant {

class TCQtPrompts final : public TCPrompts {
 public:
  // The choosers start in the folder of the document that the set lists were opened from or saved to last,
  // and in the home folder when that is not there or its disk does not answer.
  TCQtPrompts(TCMainFrame& mainFrame, const TCSetListStore& setListStore, TCFileSystem& fileSystem,
              TCNativePaths nativePaths);

  [[nodiscard]] std::optional<std::u16string> EnterText(const TCTextPrompt& prompt) override;
  [[nodiscard]] TCSaveAnswer AskSaveChanges(std::u16string_view name) override;
  [[nodiscard]] std::optional<std::u16string> ChooseDocumentToOpen() override;
  [[nodiscard]] std::optional<std::u16string> ChooseDocumentToSave(
      std::u16string_view suggestedPath) override;
  // Begins where the last song file was, else where the chooser was left, else as the other choosers do. A
  // name that the model cannot hold is left out and told in the status bar.
  [[nodiscard]] std::optional<std::vector<std::u16string>> ChooseMediaFiles(
      const TCMediaFileQuestion& question) override;
  [[nodiscard]] bool ConfirmRemove(std::u16string_view question) override;
  [[nodiscard]] bool EditSetLists(TCAddPlayItems& form) override;
  [[nodiscard]] bool EditSongProperties(TCSongPropertiesForm& form) override;

 private:
  // What the next question stands over.
  [[nodiscard]] QWidget* Parent() const;
  [[nodiscard]] bool MayAsk() const;
  // What the dialog ends with; cancelled at once while another question is open.
  int Run(QDialog& dialog);

  [[nodiscard]] QString NativeName(std::u16string_view path) const;
  // Of all that are not empty; the home folder when none is there.
  [[nodiscard]] QString FirstFolderThere(const QStringList& folders) const;
  [[nodiscard]] QFileInfo FoundOnDisk(std::u16string_view path) const;
  void SetUp(QFileDialog& dialog) const;
  [[nodiscard]] std::optional<std::u16string> Choose(QFileDialog& dialog);
  // The files chosen that the model can hold.
  [[nodiscard]] std::vector<std::u16string> ModelPathsOf(const QFileDialog& dialog);

  TCMainFrame& frame;
  const TCSetListStore& setLists;
  TCFileSystem& files;
  TCNativePaths paths;
  QDialog* open = nullptr;  // the uppermost
  QString mediaFolder;      // where the media chooser was left
};

}  // namespace brevant
