#include "app/panes/properties_pane.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <optional>

#include "resources/string_table.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

constexpr int kCaptionColumn = 0;
constexpr int kTextColumn = 1;
constexpr double kDivider = 0.4;  // the captions' share of the width
constexpr int kRowPadding = 2;    // pixels, above and below a text
constexpr int kIndentation = 14;  // pixels; the captions are long

bool IsCategory(const QModelIndex& index) {
  return !index.parent().isValid();
}

bool IsEnter(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

class TCPropertyDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index).grownBy({0, kRowPadding, 0, kRowPadding});
  }

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override {
    if (index.column() != kTextColumn) return nullptr;
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (editor != nullptr) {
      editor->setAccessibleName(index.siblingAtColumn(kCaptionColumn).data().toString());
    }
    return editor;
  }

  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& /*index*/) const override {
    editor->setGeometry(option.rect);
  }

  // A text that is cut off stands whole in its tool tip.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    if (event->type() != QEvent::ToolTip) return QStyledItemDelegate::helpEvent(event, view, option, index);
    const bool cutOff = index.isValid() && !IsCategory(index) &&
                        sizeHint(option, index).width() > view->visualRect(index).width();
    // Escaped: a name that looks like markup is shown as it is.
    QToolTip::showText(
        event->globalPos(),
        cutOff ? QStringLiteral("<span>%1</span>").arg(index.data().toString().toHtmlEscaped()) : QString(),
        view->viewport());
    return true;
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (!IsCategory(index)) return;
    option->font.setBold(true);
    option->fontMetrics = QFontMetrics(option->font);
  }
};

}  // namespace

TCPropertiesPane::TCPropertiesPane(QWidget* parent) : QTreeWidget(parent) {
  setObjectName(QStringLiteral("properties"));
  setAccessibleName(ToQString(TextOf(TCTextId::PropertiesPaneTitle)));
  setWhatsThis(QStringLiteral(
      "Tells of the selected song, the options' numbers, the song's lyric file and the program's folders. "
      "Nothing is changed here."));
  setColumnCount(2);
  setHeaderLabels({QStringLiteral("Property"), QStringLiteral("Value")});  // read aloud, not shown
  setHeaderHidden(true);
  setItemDelegate(new TCPropertyDelegate(this));
  setFrameShape(NoFrame);
  setIndentation(kIndentation);
  setUniformRowHeights(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTextElideMode(Qt::ElideRight);
  setDragDropMode(NoDragDrop);
  // No key but Enter: letters, digits and F2 are stage keys.
  setEditTriggers(DoubleClicked | SelectedClicked);
  header()->setStretchLastSection(true);
  header()->setMinimumSectionSize(0);
}

void TCPropertiesPane::BuildPropertiesPane() {
  if (IsBuilt()) return;
  QTreeWidgetItem* category = nullptr;
  std::optional<TCTextId> categoryCaption;
  for (const TCPropertyRow& row : kPropertyRows) {
    if (categoryCaption != row.category) {
      categoryCaption = row.category;
      category = new QTreeWidgetItem(this, {ToQString(TextOf(row.category))});
      category->setFirstColumnSpanned(true);
      category->setExpanded(row.category == TCTextId::PlaylistManagerInformation);
    }
    auto* item = new QTreeWidgetItem(category, {ToQString(TextOf(row.caption)), QString()});
    // Nothing takes over what is typed into the title; the next refresh shows the lyric file's again.
    if (row.property == TCProperty::Title) item->setFlags(item->flags() | Qt::ItemIsEditable);
    rows.emplace(row.property, item);
  }
  Q_EMIT built();
}

QTreeWidgetItem* TCPropertiesPane::RowOf(TCProperty property) const {
  const auto found = rows.find(property);
  return found == rows.end() ? nullptr : found->second;
}

void TCPropertiesPane::ShowProperty(TCProperty property, std::u16string_view text) {
  QTreeWidgetItem* row = RowOf(property);
  if (row == nullptr) return;
  const QString shown = ToQString(text);
  row->setText(kTextColumn, shown);
  // The keyboard stands on the caption, and that is what a screen reader reads.
  row->setData(kCaptionColumn, Qt::AccessibleDescriptionRole, shown);
}

bool TCPropertiesPane::SelectedRowIsEditable() const {
  const QTreeWidgetItem* row = currentItem();
  return row != nullptr && row->flags().testFlag(Qt::ItemIsEditable);
}

void TCPropertiesPane::showEvent(QShowEvent* event) {
  BuildPropertiesPane();
  QTreeWidget::showEvent(event);
}

void TCPropertiesPane::resizeEvent(QResizeEvent* event) {
  setColumnWidth(kCaptionColumn, static_cast<int>(viewport()->width() * kDivider));
  QTreeWidget::resizeEvent(event);
}

void TCPropertiesPane::keyPressEvent(QKeyEvent* event) {
  // The Enter that ends the typing comes by here as well.
  if (IsEnter(event->key()) && state() != EditingState && SelectedRowIsEditable()) {
    editItem(currentItem(), kTextColumn);
    event->accept();
    return;
  }
  QTreeWidget::keyPressEvent(event);
}

void TCPropertiesPane::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
  if (IsCategory(index)) painter->fillRect(option.rect, palette().brush(QPalette::Button));
  QTreeWidget::drawRow(painter, option, index);
  painter->save();
  painter->setPen(palette().color(QPalette::Button));
  painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
  if (!IsCategory(index)) {
    const int divider = columnViewportPosition(kTextColumn) - 1;
    painter->drawLine(divider, option.rect.top(), divider, option.rect.bottom());
  }
  painter->restore();
}

bool PropertiesKeepKey(int key, Qt::KeyboardModifiers modifiers, bool editable) {
  if ((modifiers & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  if (IsEnter(key)) return editable;
  return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Left || key == Qt::Key_Right;
}

}  // namespace brevant
