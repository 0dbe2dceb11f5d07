// The customise sheet's page of commands: what can be on a bar at the left, what is on one at the right.
// Entries are dragged from the left to the right or to any bar of the main window, and off again; buttons do
// the same for the keyboard. Acts at once.
#pragma once

#include <QWidget>
#include <cstddef>
#include <optional>
#include <vector>

#include "app/bars/bar_offers.h"
#include "app/bars/bar_set.h"
#include "app/bars/drop_mark.h"
#include "resources/bar_target.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace brevant {

class TCDragList;

class TCCommandsPage final : public QWidget {
  Q_OBJECT

 public:
  // `barSet` outlives the page.
  explicit TCCommandsPage(TCBarSet& barSet);

  // Shows the bars as they are now: something else has changed them.
  void ShowBars();

 private:
  void LayOut();
  void ConnectControls();
  void ShowOffer();
  void ShowTarget(const TCBarTarget& wanted, std::size_t chosen);
  void ShowChosen();
  [[nodiscard]] const TCBarItem* Offered() const;
  void AddOffered();
  void RemovePlaced();
  // Past this many rows.
  void MovePlaced(int rows);

  // Where an entry goes that is let go of.
  struct TCGap {
    TCBarTarget target;
    std::size_t place = 0;
    QWidget* widget = nullptr;  // the bar or list
    QRect mark;                 // in it
  };
  [[nodiscard]] std::optional<TCGap> GapAt(QPoint globalPosition, const TCBarItem& item) const;
  void ShowGap(const std::optional<TCGap>& gap);
  void DropOffered(QPoint globalPosition);
  void DropPlaced(int row, QPoint globalPosition);

  TCBarSet& bars;
  std::vector<TCBarOffer> offers;
  TCBarTarget target;
  QComboBox* category;
  TCDragList* offer;
  QPushButton* add;
  QComboBox* targetList;
  TCDragList* placed;
  QPushButton* remove;
  QPushButton* up;
  QPushButton* down;
  QLineEdit* menuName;
  QLabel* menuLabel;
  QLabel* description;
  TCDropMark mark;
};

}  // namespace brevant
