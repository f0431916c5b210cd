// The grid of the document screen: its position rows as arrays of controls with the scroll bar and the count of
// characters left. It moves the focus and the rows; what an edit is followed by is the screen's, through the handlers.
//
// Invariants: 1. there are `Settings::PositionRowCount` rows, whole pages of 17; 2. the current row is the one that was
// entered last; 3. a row that has the focus is in view.
#pragma once

#include <array>
#include <functional>
#include <string_view>
#include <vector>

#include "documents/PositionGrid.h"
#include "platform/ChoiceControls.h"
#include "platform/ControlArray.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"
#include "store/Settings.h"

namespace kontorwerk {

// What the grid tells the screen.
struct RowHandlers {
  std::function<void()> edited;                    // a quantity, price or tax mark was left
  std::function<void(int row)> lookUpStockNumber;  // Ctrl+Enter
  std::function<void(int row)> lookUpArticleNumber;
  std::function<void(int row, std::string_view text)> leftEan;  // a number field was left that holds an EAN
  std::function<void()> searchStock;                            // for the current row
  std::function<void()> searchArticle;
  std::function<void()> explainLabel;  // a row's number was clicked
  std::function<void()> wentPastEnd;   // Enter in the last field of the last row
};

class ABRGFormRows {
 public:
  // The arrays become controls of `owner`; both must outlive the grid.
  ABRGFormRows(Screen& owner, Settings& settings);

  void SetHandlers(RowHandlers handlers) { handlers_ = std::move(handlers); }

  // As many rows as the settings say, at the top. To be called when the screen loads.
  void Prepare();
  [[nodiscard]] int Count() const { return LGNr.Count(); }
  [[nodiscard]] int CurrentRow() const { return currentRow_; }
  void SetCurrentRow(int row) { currentRow_ = row; }

  [[nodiscard]] PositionRow RowAt(int row) const;
  [[nodiscard]] std::vector<PositionRow> Rows() const;
  // Writes what differs.
  void SetRow(int row, const PositionRow& content);
  void SetRows(const std::vector<PositionRow>& rows);
  void ClearTexts(int row);
  // Every row becomes empty.
  void Clear();
  [[nodiscard]] bool IsFilledAt(int row) const { return IsFilled(RowAt(row)); }

  // A page more. By the user: its first row gets the focus; for an insertion nothing moves.
  enum class NewPage { ByUser, ForInsertion };
  void AddPage(NewPage occasion);
  // An empty row behind the current one; a page more first if the last row is filled.
  void InsertBehindCurrent();
  void DeleteCurrent();
  // The row behind `row`, made free by a new page or an inserted row.
  int FreeRowBehind(int row);
  // The first row from `row` on without a description; a page more if there is none.
  int NextRowWithoutDescription(int row);

  // The wheel: 3 rows a notch, away from the user is up.
  void Wheel(int notches);
  void ScrollToTop() { VScroll1.SetValue(VScroll1.Minimum()); }
  // All that is locked while a printed document is shown.
  void SetEnabled(bool enabled);

  ControlArray<Label> Pos;
  ControlArray<TextBox> LGNr;
  ControlArray<CommandButton> LGNrSuche;
  ControlArray<TextBox> ArtNr;
  ControlArray<CommandButton> ArtNrSuche;
  ControlArray<TextBox> S;
  ControlArray<TextBox> B;
  ControlArray<TextBox> E;
  ControlArray<TextBox> G;
  ControlArray<CheckBox> MWST2_Check;
  ScrollBar VScroll1;
  Label Label36;  // characters left in a description: caption ...
  Label Label37;  // ... and number

 private:
  // Places of the fields that Enter goes through, in a row.
  enum Field : int { kLGNr, kArtNr, kS, kB, kE };

  void Resize(int count);
  void WireTexts(int row);
  void WireRest(int row);
  void LabelRows();
  void Enter(int row);
  void KeepInView(int row);
  void ScrollUp();
  void ScrollDown();
  void UseKey(Field field, int row, Key& key);
  void UseEnter(Field field, int row, const Key& key);
  void MoveRight(Field field, int row);
  void MoveToRow(Field field, int row);
  void LeaveNumber(int row, bool isEan, const TextBox& number);
  void LeavePrice(int row);
  void ShowRoom(int row);
  void HideRoom();
  [[nodiscard]] TextBox& Cell(Field field, int row) { return (*fields_[static_cast<std::size_t>(field)])[row]; }

  Settings& settings_;
  RowHandlers handlers_;
  std::array<ControlArray<TextBox>*, 5> fields_{&LGNr, &ArtNr, &S, &B, &E};
  int currentRow_ = 0;
  bool enabled_ = true;
};

}  // namespace kontorwerk
