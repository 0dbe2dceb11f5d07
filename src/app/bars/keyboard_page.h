// The customise sheet's page of keys: every command with the keys it has, and a field into which a new one is
// pressed. What is assigned acts at once.
#pragma once

#include <QWidget>

#include "app/bars/bar_set.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTreeWidget;

namespace brevant {

class TCKeyField;

class TCKeyboardPage final : public QWidget {
  Q_OBJECT

 public:
  // `barSet` outlives the page.
  explicit TCKeyboardPage(TCBarSet& barSet);

  // Gives the keyboard to the field that finds a command.
  void BeginSearch();

  // Shows the keys as they are now: something else has changed them.
  void ShowKeys();

 private:
  void LayOut();
  void ConnectControls();
  void ShowCommands();
  void ShowCommand();
  void ShowUse();
  void AssignKey();
  void RemoveKey();
  void Change(const TCKeyAssignment& keys);
  [[nodiscard]] TCCommandId Chosen() const;

  TCBarSet& bars;
  QComboBox* category;
  QLineEdit* search;
  QTreeWidget* list;
  QLabel* description;
  QListWidget* keyList;
  QPushButton* remove;
  TCKeyField* newKey;
  QPushButton* assign;
  QLabel* use;
  QPushButton* defaults;
};

}  // namespace brevant
