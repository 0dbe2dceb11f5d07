#include "app/bars/commands_page.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "app/bars/bar_item_names.h"
#include "app/bars/control_label.h"
#include "app/bars/drag_list.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

QString TargetName(const TCCustomisedBars& bars, const TCBarTarget& target) {
  const QString bar = ToQString(TextOf(target.bar));
  if (!target.menu) return bar;
  return bar + QStringLiteral(" > ") + ToQString(bars.ItemsOf(target.bar)[*target.menu].title);
}

constexpr QSize kPictureSize(20, 20);

void FillList(TCDragList& list, const TCBarItems& items, const TCCommandActions& actions) {
  // Names without a picture stand below those with one.
  QPixmap nothing(kPictureSize);
  nothing.fill(Qt::transparent);
  list.clear();
  for (const TCBarItem& item : items) {
    const QAction* action = actions.ActionOf(item.command);
    const bool pictured = action != nullptr && !action->icon().isNull();
    list.addItem(new QListWidgetItem(pictured ? action->icon() : QIcon(nothing), BarItemName(item)));
  }
}

// Where `item` has come to stand that was to go to `place`: one less where it only moved there.
std::size_t PlaceOf(const TCBarItem& item, const TCBarItems& items, std::size_t place) {
  while (place > 0 && (place >= items.size() || items[place] != item)) --place;
  return place;
}

}  // namespace

// The Tab key goes through the controls in the order in which they are made here.
TCCommandsPage::TCCommandsPage(TCBarSet& barSet)
    : bars(barSet),
      offers(BarOffers(bars.Actions())),
      category(new QComboBox(this)),
      offer(new TCDragList(this)),
      add(new QPushButton(QStringLiteral("A&dd"), this)),
      targetList(new QComboBox(this)),
      placed(new TCDragList(this)),
      remove(new QPushButton(QStringLiteral("&Remove"), this)),
      up(new QPushButton(QStringLiteral("&Up"), this)),
      down(new QPushButton(QStringLiteral("Dow&n"), this)),
      menuName(new QLineEdit(this)),
      menuLabel(MakeLabel(QStringLiteral("&Menu name:"), *menuName)),
      description(new QLabel(this)) {
  category->setObjectName(QStringLiteral("BarCategory"));
  offer->setObjectName(QStringLiteral("BarCommands"));
  add->setObjectName(QStringLiteral("AddToBar"));
  targetList->setObjectName(QStringLiteral("BarTarget"));
  placed->setObjectName(QStringLiteral("BarItems"));
  remove->setObjectName(QStringLiteral("RemoveFromBar"));
  up->setObjectName(QStringLiteral("MoveUp"));
  down->setObjectName(QStringLiteral("MoveDown"));
  menuName->setObjectName(QStringLiteral("MenuName"));
  for (const TCBarOffer& each : offers) category->addItem(each.name);
  category->setMaxVisibleItems(category->count());
  offer->setIconSize(kPictureSize);
  placed->setIconSize(kPictureSize);
  LayOut();
  ConnectControls();
  ShowOffer();
  ShowBars();
}

void TCCommandsPage::LayOut() {
  auto* left = new QVBoxLayout;
  left->addWidget(MakeLabel(QStringLiteral("Ca&tegory:"), *category));
  left->addWidget(category);
  left->addWidget(MakeLabel(QStringLiteral("&Commands:"), *offer));
  left->addWidget(offer, 1);
  left->addWidget(add);

  auto* buttons = new QHBoxLayout;
  for (QPushButton* button : {remove, up, down}) buttons->addWidget(button);
  auto* right = new QVBoxLayout;
  right->addWidget(MakeLabel(QStringLiteral("&Bar:"), *targetList));
  right->addWidget(targetList);
  right->addWidget(MakeLabel(QStringLiteral("&On the bar:"), *placed));
  right->addWidget(placed, 1);
  right->addLayout(buttons);

  auto* lists = new QHBoxLayout;
  lists->setSpacing(12);
  lists->addLayout(left, 1);
  lists->addLayout(right, 1);
  auto* name = new QHBoxLayout;
  name->addWidget(menuLabel);
  name->addWidget(menuName, 1);

  description->setTextFormat(Qt::PlainText);
  description->setWordWrap(true);
  description->setAlignment(Qt::AlignTop);
  description->setMinimumHeight(2 * description->fontMetrics().lineSpacing());
  auto* hint = new QLabel(
      QStringLiteral("Drag a command to any bar of the window, or off the right list to take it away."));
  hint->setWordWrap(true);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(hint);
  layout->addSpacing(6);
  layout->addLayout(lists, 1);
  layout->addLayout(name);
  layout->addWidget(description);
}

void TCCommandsPage::ConnectControls() {
  connect(category, &QComboBox::currentIndexChanged, this, &TCCommandsPage::ShowOffer);
  connect(offer, &QListWidget::currentRowChanged, this, &TCCommandsPage::ShowChosen);
  connect(targetList, &QComboBox::currentIndexChanged, this, [this](int index) {
    ShowTarget(BarTargets(bars.Customised())[static_cast<std::size_t>(index)], 0);
  });
  connect(placed, &QListWidget::currentRowChanged, this, &TCCommandsPage::ShowChosen);
  connect(add, &QPushButton::clicked, this, &TCCommandsPage::AddOffered);
  connect(remove, &QPushButton::clicked, this, &TCCommandsPage::RemovePlaced);
  connect(up, &QPushButton::clicked, this, [this] { MovePlaced(-1); });
  connect(down, &QPushButton::clicked, this, [this] { MovePlaced(1); });
  connect(menuName, &QLineEdit::textEdited, this, [this](const QString& title) {
    TCCustomisedBars wanted = bars.Customised();
    RenameMenu(wanted, target, FromQString(title));
    bars.Customise(std::move(wanted));
    targetList->setItemText(targetList->currentIndex(), TargetName(bars.Customised(), target));
  });

  connect(offer, &TCDragList::dragMoved, this, [this](int /*row*/, QPoint place) {
    if (Offered() != nullptr) ShowGap(GapAt(place, *Offered()));
  });
  connect(placed, &TCDragList::dragMoved, this, [this](int row, QPoint place) {
    const TCBarItems items = ItemsIn(bars.Customised(), target);
    ShowGap(GapAt(place, items[static_cast<std::size_t>(row)]));
  });
  for (const TCDragList* list : {offer, placed}) {
    connect(list, &TCDragList::dragEnded, this, [this] { mark.End(); });
  }
  connect(offer, &TCDragList::dragged, this, [this](int /*row*/, QPoint place) { DropOffered(place); });
  connect(placed, &TCDragList::dragged, this, &TCCommandsPage::DropPlaced);
}

void TCCommandsPage::ShowOffer() {
  {
    const QSignalBlocker silent(offer);
    FillList(*offer, offers[static_cast<std::size_t>(category->currentIndex())].items, bars.Actions());
    offer->setCurrentRow(0);
  }
  ShowChosen();
}

void TCCommandsPage::ShowBars() {
  const std::vector<TCBarTarget> targets = BarTargets(bars.Customised());
  // The menu whose entries were shown may be gone.
  if (std::ranges::find(targets, target) == targets.end()) target.menu.reset();
  ShowTarget(target, 0);
}

void TCCommandsPage::ShowTarget(const TCBarTarget& wanted, std::size_t chosen) {
  target = wanted;
  const std::vector<TCBarTarget> targets = BarTargets(bars.Customised());
  {
    const QSignalBlocker silentTargets(targetList);
    const QSignalBlocker silentItems(placed);
    targetList->clear();
    for (const TCBarTarget& each : targets) {
      targetList->addItem(TargetName(bars.Customised(), each));
      if (each == target) targetList->setCurrentIndex(targetList->count() - 1);
    }
    FillList(*placed, ItemsIn(bars.Customised(), target), bars.Actions());
    placed->setCurrentRow(std::min(static_cast<int>(chosen), placed->count() - 1));
  }
  menuLabel->setVisible(target.menu.has_value());
  menuName->setVisible(target.menu.has_value());
  menuName->setText(target.menu ? ToQString(bars.Customised().ItemsOf(target.bar)[*target.menu].title)
                                : QString());
  ShowChosen();
}

void TCCommandsPage::ShowChosen() {
  const TCBarItem* offered = Offered();
  const TCCommand* command = offered == nullptr ? nullptr : CommandById(offered->command);
  description->setText(command == nullptr ? QString() : ToQString(StatusLine(*command)));
  add->setEnabled(offered != nullptr && Takes(target, *offered));
  const int row = placed->currentRow();
  remove->setEnabled(row >= 0);
  up->setEnabled(row > 0);
  down->setEnabled(row + 1 < placed->count());
}

const TCBarItem* TCCommandsPage::Offered() const {
  const TCBarItems& items = offers[static_cast<std::size_t>(category->currentIndex())].items;
  const auto row = static_cast<std::size_t>(offer->currentRow());
  return row < items.size() ? &items[row] : nullptr;
}

// Behind the chosen entry, where one that is added next goes as well: the order is that of the adding.
void TCCommandsPage::AddOffered() {
  if (Offered() == nullptr) return;
  const auto place = static_cast<std::size_t>(placed->currentRow() + 1);
  const TCBarItem item = *Offered();
  TCCustomisedBars wanted = bars.Customised();
  InsertInto(wanted, target, place, item);
  bars.Customise(std::move(wanted));
  ShowTarget(target, PlaceOf(item, ItemsIn(bars.Customised(), target), place));
}

void TCCommandsPage::RemovePlaced() {
  if (placed->currentRow() < 0) return;
  const auto row = static_cast<std::size_t>(placed->currentRow());
  TCCustomisedBars wanted = bars.Customised();
  RemoveFrom(wanted, target, row);
  bars.Customise(std::move(wanted));
  ShowTarget(target, row);
}

void TCCommandsPage::MovePlaced(int rows) {
  const int from = placed->currentRow();
  const int to = from + rows;
  if (from < 0 || to < 0 || to >= placed->count()) return;
  TCCustomisedBars wanted = bars.Customised();
  MoveWithin(wanted, target, static_cast<std::size_t>(from),
             static_cast<std::size_t>(rows > 0 ? to + 1 : to));
  bars.Customise(std::move(wanted));
  ShowTarget(target, static_cast<std::size_t>(to));
}

std::optional<TCCommandsPage::TCGap> TCCommandsPage::GapAt(QPoint globalPosition,
                                                           const TCBarItem& item) const {
  // The sheet lies over the window and its bars.
  if (window()->frameGeometry().contains(globalPosition)) {
    const int row = placed->RowGapAt(globalPosition);
    if (row < 0 || !Takes(target, item)) return std::nullopt;
    return TCGap{target, static_cast<std::size_t>(row), placed->viewport(), placed->GapRect(row)};
  }
  const std::optional<TCBarSet::TCPlace> place = bars.PlaceAt(globalPosition);
  if (!place) return std::nullopt;
  QWidget* bar = bars.BarOf(place->bar);
  return TCGap{{place->bar, {}},
               place->index,
               bar,
               QRect(bar->mapFromGlobal(place->gap.topLeft()), place->gap.size())};
}

void TCCommandsPage::ShowGap(const std::optional<TCGap>& gap) {
  if (gap) {
    mark.Show(*gap->widget, gap->mark);
  } else {
    mark.Refuse();
  }
}

void TCCommandsPage::DropOffered(QPoint globalPosition) {
  if (Offered() == nullptr) return;
  const TCBarItem item = *Offered();
  const std::optional<TCGap> gap = GapAt(globalPosition, item);
  if (!gap) return;
  TCCustomisedBars wanted = bars.Customised();
  InsertInto(wanted, gap->target, gap->place, item);
  bars.Customise(std::move(wanted));
  ShowTarget(gap->target, PlaceOf(item, ItemsIn(bars.Customised(), gap->target), gap->place));
}

// Off the bars it is taken away.
void TCCommandsPage::DropPlaced(int row, QPoint globalPosition) {
  const auto from = static_cast<std::size_t>(row);
  const TCBarItems items = ItemsIn(bars.Customised(), target);
  if (from >= items.size()) return;
  const std::optional<TCGap> gap = GapAt(globalPosition, items[from]);
  TCCustomisedBars wanted = bars.Customised();
  const TCBarTarget shown = gap ? gap->target : target;
  const std::size_t place = gap ? gap->place : from;
  if (shown == target && gap) {
    MoveWithin(wanted, target, from, place);
  } else {
    RemoveFrom(wanted, target, from);
    if (gap) InsertInto(wanted, shown, place, items[from]);
  }
  bars.Customise(std::move(wanted));
  const TCBarItems now = ItemsIn(bars.Customised(), shown);
  ShowTarget(shown, gap ? PlaceOf(items[from], now, place) : place);
}

}  // namespace brevant
