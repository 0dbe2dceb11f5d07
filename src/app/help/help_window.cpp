#include "app/help/help_window.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>

#include "app/help/guide_pages.h"
#include "app/window_placement.h"

namespace brevant {
namespace {

constexpr QSize kUsualSize(860, 760);
constexpr int kFindWidthInCharacters = 28;

}  // namespace

// The Tab key goes through the controls in the order in which they stand here.
TCHelpWindow::TCHelpWindow()
    : browser(new TCGuideBrowser(this)),
      back(AddButton(QStringLiteral("Back"), QStringLiteral("The page before"),
                     QKeyCombination(Qt::AltModifier, Qt::Key_Left))),
      forward(AddButton(QStringLiteral("Forward"), QStringLiteral("The page that you came back from"),
                        QKeyCombination(Qt::AltModifier, Qt::Key_Right))),
      contents(AddButton(QStringLiteral("Contents"), QStringLiteral("All pages of the guide"),
                         QKeyCombination(Qt::AltModifier, Qt::Key_Home))),
      findField(new QLineEdit(this)),
      notFound(new QLabel(this)) {
  setObjectName(QStringLiteral("Help"));
  setWindowFlag(Qt::Window);
  setAttribute(Qt::WA_DeleteOnClose);
  // The program ends with its main window, whether this one is open or not.
  setAttribute(Qt::WA_QuitOnClose, false);

  const QString find = QStringLiteral("Find on this page");
  findField->setObjectName(QStringLiteral("Find"));
  findField->setAccessibleName(find);
  findField->setPlaceholderText(find);
  findField->setToolTip(find + QStringLiteral(" (Ctrl+F)"));
  findField->setClearButtonEnabled(true);
  for (QToolButton* clear : findField->findChildren<QToolButton*>()) {
    clear->setAccessibleName(QStringLiteral("Clear the word"));
  }
  findField->setMaximumWidth(kFindWidthInCharacters * fontMetrics().averageCharWidth());
  notFound->setObjectName(QStringLiteral("NotFound"));

  LayOut();
  ConnectButtons();
  BindKeys();
  resize(SizeOnScreen(*this, kUsualSize));
}

QToolButton* TCHelpWindow::AddButton(const QString& name, const QString& tip, const QKeySequence& key) {
  auto* button = new QToolButton(this);
  button->setObjectName(name);
  button->setText(name);
  button->setToolTip(tip + QStringLiteral(" (") + key.toString(QKeySequence::NativeText) + u')');
  // Not the button's own shortcut, which would press it for a tenth of a second first.
  connect(new QShortcut(key, this), &QShortcut::activated, button, [button] { button->click(); });
  button->setFocusPolicy(Qt::StrongFocus);
  return button;
}

void TCHelpWindow::LayOut() {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(8, 8, 8, 8);
  row->addWidget(back);
  row->addWidget(forward);
  row->addWidget(contents);
  row->addStretch(1);
  row->addWidget(notFound);
  row->addWidget(findField);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addLayout(row);
  rows->addWidget(browser, 1);
}

void TCHelpWindow::ConnectButtons() {
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(back, &QToolButton::clicked, browser, &QTextBrowser::backward);
  connect(forward, &QToolButton::clicked, browser, &QTextBrowser::forward);
  connect(contents, &QToolButton::clicked, browser,
          [this] { browser->Open(QString::fromLatin1(kContentsPage)); });
  connect(browser, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
  connect(browser, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
  connect(browser, &QTextBrowser::sourceChanged, this, [this] {
    setWindowTitle(browser->Title() + QStringLiteral(" - Help"));
    notFound->clear();
  });

  using Direction = TCGuideBrowser::TCDirection;
  using From = TCGuideBrowser::TCFrom;
  connect(findField, &QLineEdit::textChanged, this,
          [this] { Find(Direction::Forward, From::SelectionStart); });
}

void TCHelpWindow::BindKeys() {
  using Direction = TCGuideBrowser::TCDirection;
  using From = TCGuideBrowser::TCFrom;
  const auto bind = [this](const QKeySequence& key, QWidget& where, Qt::ShortcutContext context, auto step) {
    connect(new QShortcut(key, &where, {}, {}, context), &QShortcut::activated, this, step);
  };
  bind(Qt::Key_Escape, *this, Qt::WindowShortcut, [this] { close(); });
  bind(QKeySequence::Find, *this, Qt::WindowShortcut, [this] {
    findField->setFocus(Qt::ShortcutFocusReason);
    findField->selectAll();
  });
  bind(QKeySequence::ZoomIn, *this, Qt::WindowShortcut, [this] { browser->zoomIn(); });
  bind(QKeySequence::ZoomOut, *this, Qt::WindowShortcut, [this] { browser->zoomOut(); });
  for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
    bind(enter, *findField, Qt::WidgetShortcut, [this] { Find(Direction::Forward, From::Selection); });
    bind(QKeyCombination(Qt::ShiftModifier, enter), *findField, Qt::WidgetShortcut,
         [this] { Find(Direction::Backward, From::Selection); });
  }
}

void TCHelpWindow::ShowPage(const QString& page) {
  browser->Open(page);
  browser->setFocus();
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void TCHelpWindow::Find(TCGuideBrowser::TCDirection direction, TCGuideBrowser::TCFrom from) {
  const QString text = findField->text();
  const bool found = browser->Find(text, direction, from);
  notFound->setText(found || text.isEmpty() ? QString() : QStringLiteral("Not on this page"));
}

}  // namespace brevant
