#include "app/qt_prompts.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <utility>

#include "app/dialog_enter_user_text.h"
#include "app/refused_name.h"
#include "resources/string_table.h"
#include "views/text_conversion.h"

namespace brevant {

TCQtPrompts::TCQtPrompts(TCMainFrame& mainFrame, const TCSetListStore& setListStore,
                         TCNativePaths nativePaths)
    : frame(mainFrame), setLists(setListStore), paths(std::move(nativePaths)) {}

int TCQtPrompts::Run(QDialog& dialog) {
  if (asking) return QDialog::Rejected;
  const QScopedValueRollback<bool> now(asking, true);
  dialog.setWindowModality(Qt::WindowModal);
  return dialog.exec();
}

std::optional<std::u16string> TCQtPrompts::EnterText(const TCTextPrompt& prompt) {
  TCDialogEnterUserText dialog(prompt, &frame);
  if (Run(dialog) != QDialog::Accepted) return {};
  return dialog.Text();
}

TCSaveAnswer TCQtPrompts::AskSaveChanges(std::u16string_view name) {
  QMessageBox box(&frame);
  box.setObjectName(QStringLiteral("SaveChanges"));
  box.setWindowTitle(ToQString(DocumentTemplateText(TCDocumentTemplateField::WindowTitle)));
  box.setIcon(QMessageBox::Question);
  box.setTextFormat(Qt::PlainText);
  box.setText(name.empty() ? QStringLiteral("Save the new document?")
                           : QStringLiteral("Save changes to %1?").arg(ToQString(name)));
  box.setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
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

void TCQtPrompts::SetUp(QFileDialog& dialog) const {
  dialog.setNameFilter(ToQString(DocumentTemplateText(TCDocumentTemplateField::FilterName)));
  dialog.setDefaultSuffix(ToQString(TextOf(TCTextId::DocumentExtension)));
  const QString folder = QFile::decodeName(paths.ToNative(setLists.documentFolder).c_str());
  dialog.setDirectory(QDir(folder).exists() && !folder.isEmpty() ? folder : QDir::homePath());
}

std::optional<std::u16string> TCQtPrompts::ChooseDocumentToOpen() {
  QFileDialog dialog(&frame, QStringLiteral("Open"));
  SetUp(dialog);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return Choose(dialog);
}

std::optional<std::u16string> TCQtPrompts::ChooseDocumentToSave(std::u16string_view suggestedPath) {
  QFileDialog dialog(&frame, QStringLiteral("Save As"));
  SetUp(dialog);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  if (!suggestedPath.empty()) dialog.selectFile(QFile::decodeName(paths.ToNative(suggestedPath).c_str()));
  return Choose(dialog);
}

std::optional<std::u16string> TCQtPrompts::Choose(QFileDialog& dialog) {
  if (Run(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  const std::string native = QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString();
  std::optional<std::u16string> path = TCNativePaths::FromNative(native);
  if (!path) frame.ShowStatus(RefusedNameText(native));
  return path;
}

}  // namespace brevant
