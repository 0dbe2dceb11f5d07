#include "app/bars/options_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "app/bars/control_label.h"

namespace brevant {
namespace {

QString SizeName(int pixels) {
  switch (pixels) {
    case 16:
      return QStringLiteral("Small");
    case 32:
      return QStringLiteral("Large");
    case 48:
      return QStringLiteral("Very large");
    default:
      return QStringLiteral("Normal");
  }
}

}  // namespace

TCOptionsPage::TCOptionsPage(TCBarSet& barSet)
    : bars(barSet),
      iconSize(new QComboBox(this)),
      texts(
          MakeBox("TextsUnderIcons", QStringLiteral("&Texts under the icons"), &TCBarLook::textsUnderIcons)),
      toolTips(MakeBox("ToolTips", QStringLiteral("Sho&w tool tips"), &TCBarLook::toolTips)),
      keysInToolTips(
          MakeBox("KeysInToolTips", QStringLiteral("Show &keys in tool tips"), &TCBarLook::keysInToolTips)) {
  iconSize->setObjectName(QStringLiteral("IconSize"));
  for (const int pixels : TCBarLook::kIconSizes) iconSize->addItem(SizeName(pixels), pixels);
  connect(iconSize, &QComboBox::currentIndexChanged, this, [this] {
    TCBarLook look = bars.Customised().look;
    look.iconSize = iconSize->currentData().toInt();
    Change(look);
  });

  auto* sizeRow = new QHBoxLayout;
  sizeRow->addWidget(MakeLabel(QStringLiteral("&Icon size:"), *iconSize));
  sizeRow->addWidget(iconSize);
  sizeRow->addStretch(1);
  auto* indented = new QHBoxLayout;
  indented->addSpacing(2 * fontMetrics().averageCharWidth());
  indented->addWidget(keysInToolTips);

  auto* layout = new QVBoxLayout(this);
  layout->setSpacing(10);
  layout->addLayout(sizeRow);
  layout->addWidget(texts);
  layout->addWidget(toolTips);
  layout->addLayout(indented);
  layout->addStretch(1);
  ShowLook();
}

QCheckBox* TCOptionsPage::MakeBox(const char* name, const QString& text, bool TCBarLook::*option) {
  auto* box = new QCheckBox(text, this);
  box->setObjectName(QLatin1String(name));
  connect(box, &QCheckBox::toggled, this, [this, option](bool on) {
    TCBarLook look = bars.Customised().look;
    look.*option = on;
    Change(look);
  });
  return box;
}

void TCOptionsPage::Change(const TCBarLook& look) {
  TCCustomisedBars wanted = bars.Customised();
  wanted.look = look;
  bars.Customise(std::move(wanted));
  ShowLook();
}

void TCOptionsPage::ShowLook() {
  const TCBarLook& look = bars.Customised().look;
  const QSignalBlocker silent(iconSize);
  iconSize->setCurrentIndex(iconSize->findData(look.iconSize));
  for (const auto& [box, on] : {std::pair(texts, look.textsUnderIcons), std::pair(toolTips, look.toolTips),
                                std::pair(keysInToolTips, look.keysInToolTips)}) {
    const QSignalBlocker alsoSilent(box);
    box->setChecked(on);
  }
  keysInToolTips->setEnabled(look.toolTips);
}

}  // namespace brevant
