#include "app/dialogs/about_box.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace brevant {
namespace {

constexpr int kTextWidth = 440;

QLabel* AddText(QVBoxLayout& layout, const QString& text) {
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setFixedWidth(kTextWidth);
  label->setAccessibleName(text);
  layout.addWidget(label);
  return label;
}

TCAboutBox* OpenOver(QWidget& parent) {
  for (QObject* child : parent.children()) {
    auto* box = dynamic_cast<TCAboutBox*>(child);
    if (box != nullptr && box->isVisible()) return box;
  }
  return nullptr;
}

}  // namespace

TCAboutBox::TCAboutBox(const QStringList& libraries, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("AboutBox"));
  setWindowTitle(QStringLiteral("About Brevant"));

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(24, 20, 24, 16);
  layout->setSpacing(10);
  QLabel* name = AddText(*layout, QStringLiteral("Brevant ") + QCoreApplication::applicationVersion());
  QFont large = name->font();
  large.setPointSize(large.pointSize() * 2);
  large.setBold(true);
  name->setFont(large);

  AddText(*layout, QStringLiteral(
                       "Plays set lists on stage: songs in playlists, playlists in groups, one key for each "
                       "thing a show needs."));
  AddText(*layout, QStringLiteral("Free software under the MIT licence."));
  if (!libraries.isEmpty())
    AddText(*layout, QStringLiteral("Built on %1.").arg(libraries.join(QStringLiteral(", "))));

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
  QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
  ok->setDefault(true);
  ok->setFocus();
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  layout->addWidget(buttons);
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void TCAboutBox::Open(const QStringList& libraries, QWidget& parent) {
  if (OpenOver(parent) != nullptr) return;
  auto* box = new TCAboutBox(libraries, &parent);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->open();
}

void TCAboutBox::Close(QWidget& parent) {
  if (TCAboutBox* box = OpenOver(parent)) box->accept();
}

}  // namespace brevant
