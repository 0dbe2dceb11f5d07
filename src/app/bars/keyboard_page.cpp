#include "app/bars/keyboard_page.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "app/bars/control_label.h"
#include "app/bars/key_field.h"
#include "app/commands/command_categories.h"
#include "resources/menu_text.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

constexpr int kShownKeys = 3;  // rows of the list of one command's keys

QString KeyNames(const std::vector<TCKey>& keys) {
  QStringList names;
  for (const TCKey& key : keys) names.append(ToQString(KeyName(key)));
  return names.join(QStringLiteral(", "));
}

QString UseText(const TCKeyUse& use) {
  switch (use.kind) {
    case TCKeyUse::Kind::NoKey:
      return {};
    case TCKeyUse::Kind::Own:
      return QStringLiteral("The command has this key already.");
    case TCKeyUse::Kind::OpensMenu: {
      const QString menu = ToQString(WithoutMnemonic(MenuTitle(use.menu)));
      return QStringLiteral("Opens the menu %1 and stays with it.").arg(menu);
    }
    case TCKeyUse::Kind::Free:
      return QStringLiteral("Is free.");
    case TCKeyUse::Kind::Taken:
      break;
  }
  const QString owner = CommandName(use.owner);
  if (owner.isEmpty()) return QStringLiteral("Is free.");
  return QStringLiteral("Is used by %1, which loses it.").arg(owner);
}

}  // namespace

TCKeyboardPage::TCKeyboardPage(TCBarSet& barSet)
    : bars(barSet),
      category(new QComboBox(this)),
      search(new QLineEdit(this)),
      list(new QTreeWidget(this)),
      description(new QLabel(this)),
      keyList(new QListWidget(this)),
      remove(new QPushButton(QStringLiteral("&Remove"), this)),
      newKey(new TCKeyField(this)),
      assign(new QPushButton(QStringLiteral("&Assign"), this)),
      use(new QLabel(this)),
      defaults(new QPushButton(QStringLiteral("&Default Keys"), this)) {
  category->setObjectName(QStringLiteral("KeyCategory"));
  search->setObjectName(QStringLiteral("KeySearch"));
  list->setObjectName(QStringLiteral("KeyCommands"));
  keyList->setObjectName(QStringLiteral("CommandKeys"));
  remove->setObjectName(QStringLiteral("RemoveKey"));
  newKey->setObjectName(QStringLiteral("NewKey"));
  assign->setObjectName(QStringLiteral("AssignKey"));
  use->setObjectName(QStringLiteral("KeyUse"));
  defaults->setObjectName(QStringLiteral("DefaultKeys"));

  for (const TCCommandCategory& each : CommandCategories(bars.Actions())) category->addItem(each.name);
  category->setCurrentIndex(category->count() - 1);
  category->setMaxVisibleItems(category->count());
  search->setPlaceholderText(QStringLiteral("Name or key"));
  search->setClearButtonEnabled(true);
  // The toolkit gives the button in the field no name.
  for (auto* clear : search->findChildren<QToolButton*>()) clear->setAccessibleName(QStringLiteral("Clear"));
  list->setHeaderLabels({QStringLiteral("Command"), QStringLiteral("Keys")});
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->header()->setSectionsMovable(false);
  list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  list->header()->setStretchLastSection(false);
  description->setWordWrap(true);
  description->setTextFormat(Qt::PlainText);
  use->setWordWrap(true);
  use->setTextFormat(Qt::PlainText);
  LayOut();
  ConnectControls();
  ShowCommands();
}

// The Tab key goes through the controls in the order in which the constructor makes them.
void TCKeyboardPage::LayOut() {
  auto* above = new QHBoxLayout;
  above->addWidget(MakeLabel(QStringLiteral("Ca&tegory:"), *category));
  above->addWidget(category, 1);
  above->addWidget(MakeLabel(QStringLiteral("&Search:"), *search));
  above->addWidget(search, 2);
  list->setAccessibleName(QStringLiteral("Commands"));

  const int line = keyList->fontMetrics().lineSpacing();
  keyList->setFixedHeight(kShownKeys * (line + 2) + 2 * keyList->frameWidth());
  description->setMinimumHeight(2 * line);
  description->setAlignment(Qt::AlignTop);
  use->setMinimumHeight(line);

  auto* below = new QGridLayout;
  below->addWidget(MakeLabel(QStringLiteral("&Keys:"), *keyList), 0, 0, Qt::AlignTop);
  below->addWidget(keyList, 0, 1);
  below->addWidget(remove, 0, 2, Qt::AlignTop);
  below->addWidget(MakeLabel(QStringLiteral("&New key:"), *newKey), 1, 0);
  below->addWidget(newKey, 1, 1);
  below->addWidget(assign, 1, 2);
  below->addWidget(use, 2, 1, 1, 2);
  below->setColumnStretch(1, 1);

  auto* last = new QHBoxLayout;
  last->addWidget(defaults);
  last->addStretch(1);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(above);
  layout->addWidget(list, 1);
  layout->addWidget(description);
  layout->addLayout(below);
  layout->addLayout(last);
}

void TCKeyboardPage::BeginSearch() {
  search->setFocus();
}

void TCKeyboardPage::ConnectControls() {
  connect(category, &QComboBox::currentIndexChanged, this, &TCKeyboardPage::ShowCommands);
  connect(search, &QLineEdit::textChanged, this, &TCKeyboardPage::ShowCommands);
  connect(list, &QTreeWidget::currentItemChanged, this, &TCKeyboardPage::ShowCommand);
  connect(newKey, &TCKeyField::keyChanged, this, &TCKeyboardPage::ShowUse);
  connect(assign, &QPushButton::clicked, this, &TCKeyboardPage::AssignKey);
  connect(remove, &QPushButton::clicked, this, &TCKeyboardPage::RemoveKey);
  connect(defaults, &QPushButton::clicked, this, [this] { Change(TCKeyAssignment()); });
}

TCCommandId TCKeyboardPage::Chosen() const {
  const QTreeWidgetItem* item = list->currentItem();
  return item == nullptr ? TCCommandId::None : static_cast<TCCommandId>(item->data(0, Qt::UserRole).toInt());
}

void TCKeyboardPage::ShowCommands() {
  const TCCommandId chosen = Chosen();
  const QString wanted = search->text().trimmed();
  {
    const QSignalBlocker silent(list);
    list->clear();
    const std::vector<TCCommandCategory> categories = CommandCategories(bars.Actions());
    for (const TCCommandId command :
         categories[static_cast<std::size_t>(category->currentIndex())].commands) {
      const QString name = CommandName(command);
      const std::vector<TCKey> keys = bars.Customised().keys.KeysOf(command);
      const bool found = name.contains(wanted, Qt::CaseInsensitive) ||
                         std::ranges::any_of(keys, [&wanted](const TCKey& key) {
                           return ToQString(KeyName(key)).compare(wanted, Qt::CaseInsensitive) == 0;
                         });
      if (!found) continue;
      auto* item = new QTreeWidgetItem(list, {name, KeyNames(keys)});
      item->setData(0, Qt::UserRole, static_cast<int>(command));
      if (command == chosen) list->setCurrentItem(item);
    }
    if (list->currentItem() == nullptr) list->setCurrentItem(list->topLevelItem(0));
  }
  ShowCommand();
}

void TCKeyboardPage::ShowCommand() {
  const TCCommandId chosen = Chosen();
  const TCCommand* command = CommandById(chosen);
  description->setText(command == nullptr ? QString() : ToQString(StatusLine(*command)));
  keyList->clear();
  for (const TCKey& key : bars.Customised().keys.KeysOf(chosen)) keyList->addItem(ToQString(KeyName(key)));
  keyList->setCurrentRow(0);
  remove->setEnabled(keyList->count() > 0);
  newKey->setEnabled(command != nullptr);
  newKey->SetKey({});
}

void TCKeyboardPage::ShowUse() {
  const TCKeyUse found = UseOf(bars.Customised().keys, newKey->Key(), Chosen());
  use->setText(UseText(found));
  use->setAccessibleName(use->text());
  assign->setEnabled(found.kind == TCKeyUse::Kind::Free || found.kind == TCKeyUse::Kind::Taken);
}

void TCKeyboardPage::AssignKey() {
  TCKeyAssignment keys = bars.Customised().keys;
  keys.Assign(newKey->Key(), Chosen());
  Change(keys);
  // The button has nothing to do any more. Its focus would pass to the one that brings all delivered keys
  // back.
  list->setFocus();
}

void TCKeyboardPage::RemoveKey() {
  if (keyList->currentItem() == nullptr) return;
  const std::optional<TCKey> key = KeyOfName(FromQString(keyList->currentItem()->text()));
  TCKeyAssignment keys = bars.Customised().keys;
  if (key) keys.Remove(*key);
  Change(keys);
}

void TCKeyboardPage::Change(const TCKeyAssignment& keys) {
  TCCustomisedBars wanted = bars.Customised();
  wanted.keys = keys;
  bars.Customise(std::move(wanted));
  ShowKeys();
}

void TCKeyboardPage::ShowKeys() {
  const int place = keyList->currentRow();
  ShowCommands();
  keyList->setCurrentRow(std::min(place, keyList->count() - 1));
}

}  // namespace brevant
