// The field of "Create Set Lists" for song files, as many as there are: each name in quotes on a line of its
// own, where the text itself has a blank. Enter and Tab are the dialog's.
#pragma once

#include <QPlainTextEdit>
#include <string>

namespace brevant {

class TCSongFilesField : public QPlainTextEdit {
 public:
  explicit TCSongFilesField(QWidget* parent);

  // To the letter; a line break, pasted ones too, is a blank.
  [[nodiscard]] std::u16string Text() const;
  // Shown from its beginning. The user may undo it.
  void SetText(std::u16string_view text);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  // Files themselves would arrive as addresses, which name no song.
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;
};

}  // namespace brevant
