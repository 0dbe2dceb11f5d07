// Renaming in place: which click opens a label's field, and what becomes of the name that was typed.

#include "text/white_space.h"
#include "views/play_list_manager_tree_view.h"
#include "views/text_conversion.h"

namespace brevant {

bool TCPlayListManagerTreeView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
  return trigger == SelectedClicked && !clickMayEdit ? false : QTreeView::edit(index, trigger, event);
}

void TCPlayListManagerTreeView::ForgetClick() {
  clickMayEdit = false;
  // The toolkit waits whether the click becomes a double-click; a change of the current node ends that.
  QTreeView::edit(currentIndex(), CurrentChanged, nullptr);
}

void TCPlayListManagerTreeView::RenameFromLabel(const QModelIndex& index, const QString& typed) {
  const TCTreeNode node = nodes->NodeAt(index);
  const QString name = ToQString(Trim(FromQString(typed)));
  nodes->SetText(node, name.isEmpty() ? typed : name);
  if (!name.isEmpty() && !rename(node, name)) nodes->SetText(node, typed);
}

}  // namespace brevant
