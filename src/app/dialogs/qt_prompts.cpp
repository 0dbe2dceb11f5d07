#include "app/dialogs/qt_prompts.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QTreeView>
#include <utility>

#include "app/dialogs/add_play_items_dlg.h"
#include "app/dialogs/dialog_enter_user_text.h"
#include "app/dialogs/media_file_filters.h"
#include "app/dialogs/refused_name.h"
#include "app/dialogs/song_properties_dlg.h"
#include "resources/string_table.h"
#include "text/regular_file.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

QString QuestionTitle() {
  return ToQString(DocumentTemplateText(TCDocumentTemplateField::WindowTitle));
}

// The toolkit gives every column but the name the width of its title, and cuts a date in its middle.
void ShowColumnsWhole(const QFileDialog& dialog) {
  const auto* files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (files == nullptr) return;  // the desktop's own dialog
  for (int column = 1; column < files->header()->count(); ++column) {
    files->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
  }
}

}  // namespace

TCQtPrompts::TCQtPrompts(TCMainFrame& mainFrame, const TCSetListStore& setListStore,
                         TCNativePaths nativePaths)
    : frame(mainFrame), setLists(setListStore), paths(std::move(nativePaths)) {}

QWidget* TCQtPrompts::Parent() const {
  return open != nullptr ? static_cast<QWidget*>(open) : &frame;
}

bool TCQtPrompts::MayAsk() const {
  if (open == nullptr) return true;
  const auto* form = dynamic_cast<const TCFormDialog*>(open);
  return form != nullptr && form->IsAtWork();
}

int TCQtPrompts::Run(QDialog& dialog) {
  if (!MayAsk()) return QDialog::Rejected;
  const QScopedValueRollback<QDialog*> now(open, &dialog);
  dialog.setWindowModality(Qt::WindowModal);
  const int answer = dialog.exec();
  // Where a question closes together with the dialog that asked it, a busy window manager gives the keys to
  // the dialog that is gone, which leaves them with nobody.
  dialog.parentWidget()->activateWindow();
  return answer;
}

std::optional<std::u16string> TCQtPrompts::EnterText(const TCTextPrompt& prompt) {
  TCDialogEnterUserText dialog(prompt, Parent());
  if (Run(dialog) != QDialog::Accepted) return {};
  return dialog.Text();
}

bool TCQtPrompts::EditSetLists(TCAddPlayItems& form) {
  TCAddPlayItemsDlg dialog(form, Parent());
  return Run(dialog) == QDialog::Accepted;
}

bool TCQtPrompts::EditSongProperties(TCSongPropertiesForm& form) {
  TCSongProperties dialog(form, Parent());
  return Run(dialog) == QDialog::Accepted;
}

bool TCQtPrompts::ConfirmRemove(std::u16string_view question) {
  QMessageBox box(QMessageBox::Question, QuestionTitle(), ToQString(question),
                  QMessageBox::Yes | QMessageBox::No, Parent());
  box.setObjectName(QStringLiteral("ConfirmRemove"));
  box.setTextFormat(Qt::PlainText);
  // Enter is the key that plays: pressed out of habit, it must not take a song off the list, let alone a
  // group with all its playlists. There is no undo.
  box.setDefaultButton(QMessageBox::No);
  box.setEscapeButton(QMessageBox::No);
  return Run(box) == QMessageBox::Yes;
}

TCSaveAnswer TCQtPrompts::AskSaveChanges(std::u16string_view name) {
  const QString question = name.empty() ? QStringLiteral("Save the new document?")
                                        : QStringLiteral("Save changes to %1?").arg(ToQString(name));
  QMessageBox box(QMessageBox::Question, QuestionTitle(), question,
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, Parent());
  box.setObjectName(QStringLiteral("SaveChanges"));
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Save);
  box.setEscapeButton(QMessageBox::Cancel);
  switch (Run(box)) {
    case QMessageBox::Save:
      return TCSaveAnswer::Save;
    case QMessageBox::Discard:
      return TCSaveAnswer::Discard;
    default:
      return TCSaveAnswer::Cancel;
  }
}

QString TCQtPrompts::DocumentFolder() const {
  const QString folder = QFile::decodeName(paths.ToNative(setLists.documentFolder).c_str());
  return !folder.isEmpty() && QDir(folder).exists() ? folder : QDir::homePath();
}

void TCQtPrompts::SetUp(QFileDialog& dialog) const {
  dialog.setNameFilter(ToQString(DocumentTemplateText(TCDocumentTemplateField::FilterName)));
  dialog.setDefaultSuffix(ToQString(TextOf(TCTextId::DocumentExtension)));
  dialog.setDirectory(DocumentFolder());
  ShowColumnsWhole(dialog);
}

std::optional<std::u16string> TCQtPrompts::ChooseDocumentToOpen() {
  QFileDialog dialog(Parent(), QStringLiteral("Open"));
  dialog.setObjectName(QStringLiteral("OpenDocument"));
  SetUp(dialog);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return Choose(dialog);
}

std::optional<std::u16string> TCQtPrompts::ChooseDocumentToSave(std::u16string_view suggestedPath) {
  QFileDialog dialog(Parent(), QStringLiteral("Save As"));
  dialog.setObjectName(QStringLiteral("SaveDocument"));
  SetUp(dialog);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  if (!suggestedPath.empty()) dialog.selectFile(QFile::decodeName(paths.ToNative(suggestedPath).c_str()));
  return Choose(dialog);
}

std::optional<std::u16string> TCQtPrompts::Choose(QFileDialog& dialog) {
  if (Run(dialog) != QDialog::Accepted) return {};
  const std::vector<std::u16string> chosen = ModelPathsOf(dialog);
  return chosen.empty() ? std::nullopt : std::optional(chosen.front());
}

void TCQtPrompts::SetUpForMedia(QFileDialog& dialog, const TCMediaFileQuestion& question) const {
  dialog.setFileMode(question.count == TCChooseFiles::One ? QFileDialog::ExistingFile
                                                          : QFileDialog::ExistingFiles);
  dialog.setNameFilters(MediaFileFilters(question.types));
  dialog.setDefaultSuffix(ToQString(question.defaultType));
  dialog.setDirectory(!mediaFolder.isEmpty() && QDir(mediaFolder).exists() ? mediaFolder : DocumentFolder());
  ShowColumnsWhole(dialog);
  if (question.initialPath.empty()) return;
  const std::string written = paths.ToNative(question.initialPath);
  TCOtherCase otherCase;
  const TCRegularFile found = FindRegularFile(written, otherCase);
  const QFileInfo last(QFile::decodeName(found.file.IsOpen() ? found.native.c_str() : written.c_str()));
  if (last.absoluteDir().exists()) dialog.setDirectory(last.absoluteDir());
  dialog.selectFile(last.fileName());
}

std::optional<std::vector<std::u16string>> TCQtPrompts::ChooseMediaFiles(
    const TCMediaFileQuestion& question) {
  const bool one = question.count == TCChooseFiles::One;
  QFileDialog dialog(Parent(), one ? QStringLiteral("Choose a Song") : QStringLiteral("Find Songs"));
  dialog.setObjectName(QStringLiteral("FindSongs"));
  SetUpForMedia(dialog, question);
  if (Run(dialog) != QDialog::Accepted) return {};
  mediaFolder = dialog.directory().absolutePath();
  return ModelPathsOf(dialog);
}

std::vector<std::u16string> TCQtPrompts::ModelPathsOf(const QFileDialog& dialog) {
  std::vector<std::u16string> chosen;
  for (const QString& file : dialog.selectedFiles()) {
    const std::string native = QFile::encodeName(file).toStdString();
    if (std::optional<std::u16string> path = TCNativePaths::FromNative(native)) {
      chosen.push_back(std::move(*path));
    } else {
      frame.ShowStatus(RefusedNameText(native));
    }
  }
  return chosen;
}

}  // namespace brevant
