#include "app/bars/customize_sheet.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>
#include <utility>

#include "app/bars/commands_page.h"
#include "app/bars/keyboard_page.h"
#include "app/bars/options_page.h"

namespace brevant {
namespace {

constexpr QSize kSize(620, 560);

}  // namespace

TCCustomizeSheet::TCCustomizeSheet(TCBarSet& barSet, QWidget* parent)
    : QDialog(parent),
      bars(barSet),
      pages(new QTabWidget(this)),
      keyboard(new TCKeyboardPage(barSet)),
      options(new TCOptionsPage(barSet)),
      commands(new TCCommandsPage(barSet)) {
  setObjectName(QStringLiteral("Customize"));
  setWindowTitle(QStringLiteral("Customize"));
  setSizeGripEnabled(true);
  pages->setObjectName(QStringLiteral("Pages"));
  pages->setAccessibleName(QStringLiteral("Pages"));
  keyboard->setWhatsThis(QStringLiteral("Which keys fire a command. What is assigned here acts at once."));
  options->setWhatsThis(QStringLiteral("How the bars look, and what comes up when a button is pointed at."));
  commands->setWhatsThis(
      QStringLiteral("What is on the bars: drag a command onto one, or use the buttons below the lists."));
  pages->addTab(keyboard, QStringLiteral("Keyboard"));
  pages->addTab(options, QStringLiteral("Options"));
  pages->addTab(commands, QStringLiteral("Commands"));

  auto* reset = new QPushButton(QStringLiteral("Reset"), this);
  reset->setObjectName(QStringLiteral("Reset"));
  reset->setToolTip(QStringLiteral("Bring the delivered bars and keys back"));
  connect(reset, &QPushButton::clicked, this, &TCCustomizeSheet::Reset);
  auto* close = new QPushButton(QStringLiteral("Close"), this);
  close->setObjectName(QStringLiteral("Close"));
  connect(close, &QPushButton::clicked, this, &QDialog::accept);

  auto* lastRow = new QHBoxLayout;
  lastRow->addWidget(reset);
  lastRow->addStretch(1);
  lastRow->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(pages, 1);
  layout->addLayout(lastRow);
  for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(false);
  for (const QComboBox* box : findChildren<QComboBox*>())
    box->view()->setAccessibleName(box->accessibleName());
  resize(kSize.expandedTo(minimumSizeHint()));
  AddPageKeys();
  keyboard->BeginSearch();
}

void TCCustomizeSheet::AddPageKeys() {
  // The pages' own answer to these keys comes last, and a combo box takes them for letters of an entry.
  for (const auto& [key, step] :
       {std::pair(QKeySequence::NextChild, 1), std::pair(QKeySequence::PreviousChild, -1)}) {
    auto* shortcut = new QShortcut(key, this);
    connect(shortcut, &QShortcut::activated, pages, [this, by = step] {
      pages->setCurrentIndex((pages->currentIndex() + by + pages->count()) % pages->count());
    });
  }
}

void TCCustomizeSheet::Open(TCBarSet& bars, QWidget& parent) {
  for (const QObject* child : parent.children()) {
    if (qobject_cast<const TCCustomizeSheet*>(child) != nullptr) return;
  }
  auto* sheet = new TCCustomizeSheet(bars, &parent);
  sheet->setAttribute(Qt::WA_DeleteOnClose);
  sheet->open();
}

void TCCustomizeSheet::keyPressEvent(QKeyEvent* event) {
  // Enter presses the button that has the focus. In a list or while searching it would press one that the
  // user does not look at.
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return QDialog::keyPressEvent(event);
  if (auto* button = qobject_cast<QPushButton*>(focusWidget())) button->click();
}

void TCCustomizeSheet::Reset() {
  bars.Reset();
  keyboard->ShowKeys();
  options->ShowLook();
  commands->ShowBars();
}

}  // namespace brevant
