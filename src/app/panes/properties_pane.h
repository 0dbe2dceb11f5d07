// The content of the properties pane: captions and texts in categories. It tells and changes nothing: of all
// texts only "Title" can be typed over, and what is typed there stands until the next refresh. User-interface
// thread only.
#pragma once

#include <QTreeWidget>
#include <map>

#include "document/properties_display.h"

namespace brevant {

class TCPropertiesPane final : public QTreeWidget, public TCPropertiesDisplay {
  Q_OBJECT

 public:
  explicit TCPropertiesPane(QWidget* parent = nullptr);

  // Makes the categories and their rows; once, when the pane is first shown.
  void BuildPropertiesPane();

  [[nodiscard]] bool IsBuilt() const override { return !rows.empty(); }
  void ShowProperty(TCProperty property, std::u16string_view text) override;

  // Null before the pane is built.
  [[nodiscard]] QTreeWidgetItem* RowOf(TCProperty property) const;
  // The selected row's text can be typed over.
  [[nodiscard]] bool SelectedRowIsEditable() const;

 Q_SIGNALS:
  // The rows are there, with empty texts.
  void built();

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

 private:
  std::map<TCProperty, QTreeWidgetItem*> rows;  // the toolkit owns them
};

// The keys that the pane has for itself while it has the focus; all others are the table's: the four plain
// arrows, and Enter where it opens a text for typing.
[[nodiscard]] bool PropertiesKeepKey(int key, Qt::KeyboardModifiers modifiers, bool editable);

}  // namespace brevant
