#include "views/tree_node_delegate.h"

#include <QApplication>
#include <QLineEdit>

#include "views/set_list_tree_model.h"

namespace brevant {

void TCTreeNodeDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  // The toolkit would draw an open node's picture as that of a button that is on.
  option->state.setFlag(QStyle::State_Open, false);
  if (option->state.testFlag(QStyle::State_Selected)) {
    option->icon = index.data(TCSetListTreeModel::kSelectedPictureRole).value<QIcon>();
  }
}

QRect TCTreeNodeDelegate::PartOf(const QStyleOptionViewItem& option, const QModelIndex& index,
                                 QStyle::SubElement part) const {
  QStyleOptionViewItem node = option;
  initStyleOption(&node, index);
  node.showDecorationSelected = false;  // else a text is as wide as its row
  const QStyle* style = option.widget != nullptr ? option.widget->style() : QApplication::style();
  return style->subElementRect(part, &node, option.widget);
}

QRect TCTreeNodeDelegate::LabelRect(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return PartOf(option, index, QStyle::SE_ItemViewItemText);
}

QRect TCTreeNodeDelegate::PictureRect(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return PartOf(option, index, QStyle::SE_ItemViewItemDecoration);
}

bool TCTreeNodeDelegate::IsCutOff(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return sizeHint(option, index).width() > option.rect.width();
}

QWidget* TCTreeNodeDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                          const QModelIndex& index) const {
  labelEditor = QStyledItemDelegate::createEditor(parent, option, index);
  if (labelEditor != nullptr) labelEditor->setAccessibleName(QStringLiteral("Name"));
  return labelEditor;
}

void TCTreeNodeDelegate::setModelData(QWidget* editor, QAbstractItemModel* /*model*/,
                                      const QModelIndex& index) const {
  const auto* field = qobject_cast<const QLineEdit*>(editor);
  // A field that only lost the focus has renamed nothing.
  if (field == nullptr || !field->isModified()) return;
  Q_EMIT labelTyped(index, field->text());
}

}  // namespace brevant
