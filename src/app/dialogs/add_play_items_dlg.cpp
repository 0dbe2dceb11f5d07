#include "app/dialogs/add_play_items_dlg.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStringListModel>
#include <QVBoxLayout>

#include "app/dialogs/prompt_line.h"
#include "app/dialogs/song_files_field.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

constexpr int kShortestListInCharacters = 30;

QLabel* MakeLabel(TCTextId text, QWidget& control) {
  auto* label = new QLabel(ToQString(TextOf(text)));
  label->setBuddy(&control);
  return label;
}

void Fill(QComboBox& list, const QStringList& names, std::int32_t chosen) {
  const QSignalBlocker silent(list);
  auto& model = static_cast<QStringListModel&>(*list.model());
  // A list that is filled anew forgets where the user was in it.
  if (model.stringList() != names) model.setStringList(names);
  list.setCurrentIndex(chosen);
}

}  // namespace

// The Tab key goes through the controls in the order in which they stand here.
TCAddPlayItemsDlg::TCAddPlayItemsDlg(TCAddPlayItems& setListForm, QWidget* parent)
    : TCFormDialog(QStringLiteral("CreateSetLists"), TCTextId::CreateSetListsTitle, parent),
      form(setListForm),
      groupList(MakeList(QStringLiteral("GroupName"), TCTextId::SetlistGroupNameLabel,
                         &TCAddPlayItems::ChooseGroup)),
      createGroup(MakeButton(QStringLiteral("CreateGroup"), TCTextId::CreateGroupButton,
                             [this] { form.CreateGroup(); })),
      playlistList(MakeList(QStringLiteral("PlaylistName"), TCTextId::SetlistNameLabel,
                            &TCAddPlayItems::ChoosePlaylist)),
      createSet(
          MakeButton(QStringLiteral("CreateSet"), TCTextId::CreateSetButton, [this] { form.CreateSet(); })),
      findSongs(
          MakeButton(QStringLiteral("FindSongs"), TCTextId::FindSongsButton, [this] { form.FindSongs(); })),
      songFiles(MakeSongFiles()),
      create(MakeButton(QStringLiteral("Create"), TCTextId::CreateButton, [this] { form.Create(); })),
      ok(MakeOk()),
      cancel(MakeCancel()),
      help(MakeButton(QStringLiteral("Help"), TCTextId::HelpButton,
                      [] {})) {  // it never did anything; F1 does
  groupList->setWhatsThis(QStringLiteral("The group that the songs' playlist is in."));
  createGroup->setWhatsThis(QStringLiteral("Makes a new group and chooses it."));
  playlistList->setWhatsThis(QStringLiteral("The playlist that the songs are added to."));
  createSet->setWhatsThis(QStringLiteral("Makes a new playlist in the chosen group and chooses it."));
  findSongs->setWhatsThis(QStringLiteral("Finds song files on the disk and enters their paths below."));
  songFiles->setWhatsThis(
      QStringLiteral("The paths of the songs to add, each in double quotes, with blanks between."));
  create->setWhatsThis(
      QStringLiteral("Adds the songs to the playlist and leaves this window open for more."));
  ok->setWhatsThis(QStringLiteral("Closes this window and adds nothing that Create has not added."));
  cancel->setWhatsThis(QStringLiteral("Closes this window. What has been created stays."));
  help->setWhatsThis(QStringLiteral("This button does nothing. F1 opens the guide."));
  LayOut();
  ShowForm();
  songFiles->setFocus();
}

void TCAddPlayItemsDlg::LayOut() {
  auto* grid = new QGridLayout;
  grid->addWidget(MakeLabel(TCTextId::SetlistGroupNameLabel, *groupList), 0, 0);
  grid->addWidget(groupList, 0, 1);
  grid->addWidget(createGroup, 0, 2);
  grid->addWidget(MakeLabel(TCTextId::SetlistNameLabel, *playlistList), 1, 0);
  grid->addWidget(playlistList, 1, 1);
  grid->addWidget(createSet, 1, 2);
  grid->addWidget(MakeLabel(TCTextId::SongFileNamesLabel, *songFiles), 2, 0);
  grid->addWidget(findSongs, 2, 2);
  grid->addWidget(songFiles, 3, 0, 1, 3);
  grid->setColumnStretch(1, 1);
  grid->setColumnMinimumWidth(2, createGroup->sizeHint().width() + 2 * fontMetrics().averageCharWidth());
  grid->setRowStretch(3, 1);

  auto* lastRow = new QHBoxLayout;
  lastRow->addWidget(help);
  lastRow->addStretch(1);
  lastRow->addWidget(create);
  lastRow->addWidget(ok);
  lastRow->addWidget(cancel);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakePromptLine(QStringLiteral("Prompt"), TextOf(TCTextId::AddSongsPrompt)));
  layout->addWidget(MakePromptLine(QStringLiteral("Example"), TextOf(TCTextId::AddSongsHint)));
  layout->addLayout(grid, 1);
  layout->addLayout(lastRow);
}

QComboBox* TCAddPlayItemsDlg::MakeList(const QString& name, TCTextId label,
                                       void (TCAddPlayItems::*choose)(std::int32_t)) {
  auto* list = new QComboBox(this);
  list->setObjectName(name);
  list->setAccessibleName(ToQString(TextOf(label)));
  list->view()->setAccessibleName(list->accessibleName());
  list->setModel(new QStringListModel(list));
  // Not as wide as its longest name: that would be measured for each of thousands.
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  list->setMinimumContentsLength(kShortestListInCharacters);
  connect(list, &QComboBox::currentIndexChanged, this,
          [this, choose](int index) { CarryOut([this, choose, index] { (form.*choose)(index); }); });
  return list;
}

TCSongFilesField* TCAddPlayItemsDlg::MakeSongFiles() {
  auto* field = new TCSongFilesField(this);
  field->setObjectName(QStringLiteral("SongFiles"));
  field->setAccessibleName(ToQString(TextOf(TCTextId::SongFileNamesLabel)));
  field->setAccessibleDescription(ToQString(TextOf(TCTextId::AddSongsPrompt)) + QLatin1Char(' ') +
                                  ToQString(TextOf(TCTextId::AddSongsHint)));
  field->setMinimumWidth(kPromptWidthInCharacters * fontMetrics().averageCharWidth());
  connect(field, &TCSongFilesField::textChanged, this, [this, field] { form.songFiles = field->Text(); });
  return field;
}

void TCAddPlayItemsDlg::ShowForm() {
  QStringList groups;
  QStringList playlists;
  for (const TCGroupNamesLists& list : form.Lists()) groups.append(ToQString(list.groupName));
  if (form.Group() >= 0) {
    const TCGroupNamesLists& chosen = form.Lists()[static_cast<std::size_t>(form.Group())];
    for (const std::u16string& name : chosen.playlistNames) playlists.append(ToQString(name));
  }
  Fill(*groupList, groups, form.Group());
  Fill(*playlistList, playlists, form.Playlist());
  if (songFiles->Text() != form.songFiles) songFiles->SetText(form.songFiles);
}

}  // namespace brevant
