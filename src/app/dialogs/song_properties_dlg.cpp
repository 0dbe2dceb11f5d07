#include "app/dialogs/song_properties_dlg.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/dialogs/prompt_line.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

// The end of a path is what tells one song from another, but its beginning is read first.
void Show(QLineEdit& field, std::u16string_view text) {
  const QString shown = ToQString(text);
  if (field.text() == shown) return;  // the cursor stays where the user put it
  field.setText(shown);
  field.setCursorPosition(0);
}

}  // namespace

// The Tab key goes through the controls in the order in which they stand here.
TCSongProperties::TCSongProperties(TCSongPropertiesForm& songForm, QWidget* parent)
    : TCFormDialog(QStringLiteral("SongProperties"), TCTextId::SongPropertiesTitle, parent),
      form(songForm),
      songPath(MakeField(QStringLiteral("SongPath"), TCTextId::SongFilePathLabel, form.songPath)),
      setDir(MakeButton(QStringLiteral("SetDir"), TCTextId::SetDirButton, [this] { form.SetDir(); })),
      songName(MakeField(QStringLiteral("SongName"), TCTextId::SongNameLabel, form.songName)),
      songTime(MakeReadOnlyField(QStringLiteral("SongTime"), TCTextId::SongTimeLabel)),
      playlistName(MakeReadOnlyField(QStringLiteral("PlaylistName"), TCTextId::PlaylistNameLabel)),
      groupName(MakeReadOnlyField(QStringLiteral("GroupName"), TCTextId::GrouplistNameLabel)),
      pathForAll(MakeBox(QStringLiteral("PathForAll"), TCTextId::PathForAllBox, form.pathForAll)),
      extensionForAll(
          MakeBox(QStringLiteral("ExtensionForAll"), TCTextId::ExtensionForAllBox, form.extensionForAll)),
      ok(MakeOk()),
      cancel(MakeCancel()) {
  songPath->setWhatsThis(QStringLiteral("The folder of the song's file."));
  setDir->setWhatsThis(QStringLiteral("Takes the folder of a song that you choose on the disk."));
  songName->setWhatsThis(QStringLiteral("The name of the song's file."));
  songTime->setWhatsThis(QStringLiteral("How long the song is."));
  playlistName->setWhatsThis(QStringLiteral("The playlist that the song is in."));
  groupName->setWhatsThis(QStringLiteral("The group that the playlist is in."));
  pathForAll->setWhatsThis(QStringLiteral("OK gives this folder to all songs of the playlist."));
  extensionForAll->setWhatsThis(QStringLiteral("OK gives this file type to all songs of the playlist."));
  ok->setWhatsThis(QStringLiteral("Takes over what stands here."));
  cancel->setWhatsThis(QStringLiteral("Closes this window and changes nothing."));
  LayOut();
  ShowForm();
  songPath->setFocus();
}

QLineEdit* TCSongProperties::MakeField(const QString& name, TCTextId label, std::u16string& text) {
  auto* field = new QLineEdit(this);
  field->setObjectName(name);
  field->setAccessibleName(ToQString(TextOf(label)));
  connect(field, &QLineEdit::textChanged, this, [&text](const QString& typed) { text = FromQString(typed); });
  return field;
}

QLineEdit* TCSongProperties::MakeReadOnlyField(const QString& name, TCTextId label) {
  auto* field = new QLineEdit(this);
  field->setObjectName(name);
  field->setAccessibleName(ToQString(TextOf(label)));
  field->setReadOnly(true);
  return field;
}

QCheckBox* TCSongProperties::MakeBox(const QString& name, TCTextId text, bool& isChecked) {
  auto* box = new QCheckBox(ToQString(TextOf(text)), this);
  box->setObjectName(name);
  connect(box, &QCheckBox::toggled, this, [&isChecked](bool on) { isChecked = on; });
  return box;
}

void TCSongProperties::LayOut() {
  auto* grid = new QGridLayout;
  grid->addWidget(songPath, 0, 1);
  grid->addWidget(setDir, 0, 2);
  grid->addWidget(songName, 1, 1, 1, 2);
  grid->addWidget(songTime, 2, 1, 1, 2);
  grid->addWidget(playlistName, 3, 1, 1, 2);
  grid->addWidget(groupName, 4, 1, 1, 2);
  int row = 0;
  for (QLineEdit* field : {songPath, songName, songTime, playlistName, groupName}) {
    auto* label = new QLabel(field->accessibleName());
    label->setBuddy(field);
    grid->addWidget(label, row++, 0);
  }
  grid->setColumnStretch(1, 1);

  auto* lastRow = new QHBoxLayout;
  lastRow->addStretch(1);
  lastRow->addWidget(ok);
  lastRow->addWidget(cancel);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakePromptLine(QStringLiteral("Hint"), TextOf(TCTextId::SetDirHint)));
  layout->addWidget(MakePromptLine(QStringLiteral("HintContinued"), TextOf(TCTextId::SetDirHintContinued)));
  layout->addLayout(grid);
  layout->addWidget(pathForAll);
  layout->addWidget(extensionForAll);
  layout->addStretch(1);
  layout->addLayout(lastRow);
  setMinimumWidth(kPromptWidthInCharacters * fontMetrics().averageCharWidth());
}

void TCSongProperties::ShowForm() {
  Show(*songPath, form.songPath);
  Show(*songName, form.songName);
  Show(*songTime, form.songTime);
  Show(*playlistName, form.playlistName);
  Show(*groupName, form.groupName);
  pathForAll->setChecked(form.pathForAll);
  extensionForAll->setChecked(form.extensionForAll);
}

}  // namespace brevant
