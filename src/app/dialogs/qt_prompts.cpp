#include "app/dialogs/qt_prompts.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTreeView>
#include <utility>

#include "app/dialogs/add_play_items_dlg.h"
#include "app/dialogs/dialog_enter_user_text.h"
#include "app/dialogs/media_file_filters.h"
#include "app/dialogs/refused_name.h"
#include "app/dialogs/song_properties_dlg.h"
#include "app/part_of.h"
#include "resources/string_table.h"
#include "text/disk_question.h"
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

TCQtPrompts::TCQtPrompts(TCMainFrame& mainFrame, const TCSetListStore& setListStore, TCFileSystem& fileSystem,
                         TCNativePaths nativePaths)
    : frame(mainFrame), setLists(setListStore), files(fileSystem), paths(std::move(nativePaths)) {}

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
  const QPointer<QWidget> before = QApplication::activeWindow();
  dialog.setWindowModality(Qt::WindowModal);
  const int answer = dialog.exec();
  // Where a question closes together with the dialog that asked it, a busy window manager gives the keys to
  // the dialog that is gone, which leaves them with nobody. A pane that floats gets them back.
  const bool isOurs = before != nullptr && before->isVisible() && IsPartOf(frame, before);
  (isOurs ? before.data() : dialog.parentWidget())->activateWindow();
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

QString TCQtPrompts::NativeName(std::u16string_view path) const {
  return QFile::decodeName(paths.ToNative(path).c_str());
}

// The toolkit would wait for a folder whose disk is gone, and Save As is the way out when that is the
// document's.
QString TCQtPrompts::FirstFolderThere(const QStringList& folders) const {
  for (const QString& folder : folders) {
    if (folder.isEmpty()) continue;
    auto exists = AskDisk(files, [folder](TCFileSystem&) { return QDir(folder).exists(); });
    if (HasCome(exists, kDiskPatience) && exists.get()) return folder;
  }
  return QDir::homePath();
}

void TCQtPrompts::SetUp(QFileDialog& dialog) const {
  dialog.setNameFilter(ToQString(DocumentTemplateText(TCDocumentTemplateField::FilterName)));
  dialog.setDefaultSuffix(ToQString(TextOf(TCTextId::DocumentExtension)));
  ShowColumnsWhole(dialog);
}

std::optional<std::u16string> TCQtPrompts::ChooseDocumentToOpen() {
  QFileDialog dialog(Parent(), QStringLiteral("Open"),
                     FirstFolderThere({NativeName(setLists.documentFolder)}));
  dialog.setObjectName(QStringLiteral("OpenDocument"));
  SetUp(dialog);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return Choose(dialog);
}

std::optional<std::u16string> TCQtPrompts::ChooseDocumentToSave(std::u16string_view suggestedPath) {
  const QFileInfo suggested(NativeName(suggestedPath.empty() ? setLists.documentFolder : suggestedPath));
  QFileDialog dialog(Parent(), QStringLiteral("Save As"), FirstFolderThere({suggested.absolutePath()}));
  dialog.setObjectName(QStringLiteral("SaveDocument"));
  SetUp(dialog);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.selectFile(suggested.fileName());
  return Choose(dialog);
}

std::optional<std::u16string> TCQtPrompts::Choose(QFileDialog& dialog) {
  if (Run(dialog) != QDialog::Accepted) return {};
  const std::vector<std::u16string> chosen = ModelPathsOf(dialog);
  return chosen.empty() ? std::nullopt : std::optional(chosen.front());
}

// As the file is spelled on its disk; as `path` has it when it is not there.
QFileInfo TCQtPrompts::FoundOnDisk(std::u16string_view path) const {
  const std::string written = paths.ToNative(path);
  auto found = AskDisk(files, [written](TCFileSystem&) {
    TCOtherCase otherCase;
    const TCRegularFile opened = FindRegularFile(written, otherCase);
    return opened.file.IsOpen() ? opened.native : written;
  });
  return QFileInfo(QFile::decodeName((HasCome(found, kDiskPatience) ? found.get() : written).c_str()));
}

std::optional<std::vector<std::u16string>> TCQtPrompts::ChooseMediaFiles(
    const TCMediaFileQuestion& question) {
  const bool one = question.count == TCChooseFiles::One;
  QStringList folders{mediaFolder, NativeName(setLists.documentFolder)};
  QString lastName;
  if (!question.initialPath.empty()) {
    const QFileInfo last = FoundOnDisk(question.initialPath);
    folders.prepend(last.absolutePath());
    lastName = last.fileName();
  }
  QFileDialog dialog(Parent(), one ? QStringLiteral("Choose a Song") : QStringLiteral("Find Songs"),
                     FirstFolderThere(folders));
  dialog.setObjectName(QStringLiteral("FindSongs"));
  dialog.setFileMode(one ? QFileDialog::ExistingFile : QFileDialog::ExistingFiles);
  dialog.setNameFilters(MediaFileFilters(question.types));
  dialog.setDefaultSuffix(ToQString(question.defaultType));
  ShowColumnsWhole(dialog);
  dialog.selectFile(lastName);
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
