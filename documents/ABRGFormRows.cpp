#include "documents/ABRGFormRows.h"

#include <algorithm>
#include <string>
#include <utility>

#include "documents/ArticleLookup.h"
#include "platform/Colour.h"
#include "store/Numbers.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr int kRowsOfPageKey = 10;
constexpr int kScrollStep = 10;
constexpr int kRowsOfNotch = 3;
constexpr int kLittleRoom = 5;

}  // namespace

ABRGFormRows::ABRGFormRows(Screen& owner, Settings& settings)
    : Pos(owner, "Pos"),
      LGNr(owner, "LGNr"),
      LGNrSuche(owner, "LGNrSuche"),
      ArtNr(owner, "ArtNr"),
      ArtNrSuche(owner, "ArtNrSuche"),
      S(owner, "S"),
      B(owner, "B"),
      E(owner, "E"),
      G(owner, "G"),
      MWST2_Check(owner, "MWST2_Check"),
      VScroll1(owner, "VScroll1"),
      Label36(owner, "Label36"),
      Label37(owner, "Label37"),
      settings_(settings) {}

// Rows

void ABRGFormRows::Prepare() {
  settings_.PositionRowCount = RowsOfWholePages(settings_.PositionRowCount);
  enabled_ = true;
  currentRow_ = 0;
  Resize(settings_.PositionRowCount);
  LabelRows();
  VScroll1.SetRange(0, ScrollMaximum(Count()));
  ScrollToTop();
}

void ABRGFormRows::Resize(int count) {
  const int old = Count();
  const auto ignore = [](Control&, int) {};
  Pos.Resize(count, [this](Label& label, int row) {
    label.SetCaption(PosLabel(row));
    label.OnClick = [this] { handlers_.explainLabel(); };
  });
  LGNr.Resize(count, ignore);
  LGNrSuche.Resize(count, ignore);
  ArtNr.Resize(count, ignore);
  ArtNrSuche.Resize(count, ignore);
  S.Resize(count, ignore);
  B.Resize(count, ignore);
  E.Resize(count, ignore);
  G.Resize(count, ignore);
  MWST2_Check.Resize(count, ignore);
  for (int row = old; row < count; ++row) {
    WireTexts(row);
    WireRest(row);
  }
}

void ABRGFormRows::WireTexts(int row) {
  for (const Field field : {kLGNr, kArtNr, kS, kB, kE}) {
    Cell(field, row).OnEnter = [this, row] { Enter(row); };
    Cell(field, row).OnKey = [this, field, row](Key& key) { UseKey(field, row, key); };
  }
  LGNr[row].OnLeave = [this, row] { LeaveNumber(row, IsEanInStockNumber(LGNr[row].Text()), LGNr[row]); };
  ArtNr[row].OnLeave = [this, row] { LeaveNumber(row, IsEanInArticleNumber(ArtNr[row].Text()), ArtNr[row]); };
  S[row].OnLeave = [this] { handlers_.edited(); };
  B[row].OnEnter = [this, row] {
    Enter(row);
    ShowRoom(row);
  };
  B[row].OnChange = [this, row] {
    if (B[row].HasFocus()) ShowRoom(row);
  };
  B[row].OnLeave = [this] { HideRoom(); };
  E[row].OnLeave = [this, row] { LeavePrice(row); };
}

void ABRGFormRows::WireRest(int row) {
  G[row].OnEnter = [this, row] { Enter(row); };
  MWST2_Check[row].OnEnter = [this, row] { Enter(row); };
  MWST2_Check[row].OnClick = [this] { handlers_.edited(); };
  MWST2_Check[row].OnLeave = [this] { handlers_.edited(); };
  LGNrSuche[row].OnEnter = [this, row] { Enter(row); };
  LGNrSuche[row].OnClick = [this, row] {
    currentRow_ = row;
    handlers_.searchStock();
  };
  ArtNrSuche[row].OnEnter = [this, row] { Enter(row); };
  ArtNrSuche[row].OnClick = [this, row] {
    currentRow_ = row;
    handlers_.searchArticle();
  };
}

void ABRGFormRows::LabelRows() {
  for (int row = 0; row < Count(); ++row) Pos[row].SetCaption(PosLabel(row));
}

PositionRow ABRGFormRows::RowAt(int row) const {
  return {LGNr[row].Text(), ArtNr[row].Text(),         S[row].Text(), B[row].Text(), E[row].Text(),
          G[row].Text(),    MWST2_Check[row].Checked()};
}

std::vector<PositionRow> ABRGFormRows::Rows() const {
  std::vector<PositionRow> rows;
  rows.reserve(static_cast<std::size_t>(Count()));
  for (int row = 0; row < Count(); ++row) rows.push_back(RowAt(row));
  return rows;
}

void ABRGFormRows::SetRow(int row, const PositionRow& content) {
  LGNr[row].SetText(content.LGNr);
  ArtNr[row].SetText(content.ArtNr);
  S[row].SetText(content.S);
  B[row].SetText(content.B);
  E[row].SetText(content.E);
  G[row].SetText(content.G);
  MWST2_Check[row].SetChecked(content.secondRate);
}

void ABRGFormRows::SetRows(const std::vector<PositionRow>& rows) {
  const int count = std::min(Count(), static_cast<int>(rows.size()));
  for (int row = 0; row < count; ++row) SetRow(row, rows[static_cast<std::size_t>(row)]);
}

void ABRGFormRows::ClearTexts(int row) {
  PositionRow content;
  content.secondRate = MWST2_Check[row].Checked();
  SetRow(row, content);
}

void ABRGFormRows::Clear() {
  for (int row = 0; row < Count(); ++row) SetRow(row, {});
}

void ABRGFormRows::AddPage(NewPage occasion) {
  const int first = Count();
  settings_.PositionRowCount = first + kRowsPerPage;
  Resize(settings_.PositionRowCount);
  if (!enabled_) SetEnabled(false);
  VScroll1.SetRange(0, ScrollMaximum(Count()));
  if (occasion == NewPage::ForInsertion) return;
  VScroll1.SetValue(ScrollValueOfNewPage(Count()));
  LGNr[first].SetFocus();
}

void ABRGFormRows::InsertBehindCurrent() {
  if (IsFilledAt(Count() - 1)) AddPage(NewPage::ForInsertion);
  ShiftRowsDown(
      Count(), currentRow_, [this](int from, int to) { SetRow(to, RowAt(from)); },
      [this](int row) { SetRow(row, {}); });
}

void ABRGFormRows::DeleteCurrent() {
  ShiftRowsUp(
      Count(), currentRow_, [this](int from, int to) { SetRow(to, RowAt(from)); },
      [this](int row) { SetRow(row, {}); });
}

int ABRGFormRows::FreeRowBehind(int row) {
  const int next = row + 1;
  if (next >= Count()) {
    AddPage(NewPage::ByUser);
  } else if (IsFilledAt(next)) {
    currentRow_ = row;
    InsertBehindCurrent();
  }
  return next;
}

int ABRGFormRows::NextRowWithoutDescription(int row) {
  while (row < Count() && !B[row].Text().empty()) ++row;
  if (row == Count()) AddPage(NewPage::ByUser);
  return row;
}

void ABRGFormRows::SetEnabled(bool enabled) {
  enabled_ = enabled;
  for (int row = 0; row < Count(); ++row) {
    for (Control* control : std::initializer_list<Control*>{&LGNr[row], &LGNrSuche[row], &ArtNr[row], &ArtNrSuche[row],
                                                            &S[row], &B[row], &E[row], &G[row], &MWST2_Check[row]})
      control->SetEnabled(enabled);
  }
}

// Leaving a field

void ABRGFormRows::LeaveNumber(int row, bool isEan, const TextBox& number) {
  if (isEan) handlers_.leftEan(row, std::string(number.Text()));
}

// Kept: a price with three decimals or more becomes empty, as every money text does.
void ABRGFormRows::LeavePrice(int row) {
  E[row].SetText(MoneyText(E[row].Text()));
  handlers_.edited();
}

void ABRGFormRows::ShowRoom(int row) {
  const int left = kDescriptionWidth - Len(B[row].Text());
  Label37.SetCaption(std::to_string(left));
  Label37.SetForeColour(left < kLittleRoom ? std::optional(kWarning) : std::nullopt);
  Label36.Show();
  Label37.Show();
}

void ABRGFormRows::HideRoom() {
  Label36.Hide();
  Label37.Hide();
}

// Moving about

void ABRGFormRows::Enter(int row) {
  currentRow_ = row;
  KeepInView(row);
}

void ABRGFormRows::ScrollUp() { VScroll1.SetValue(VScroll1.Value() - kScrollStep); }

void ABRGFormRows::ScrollDown() { VScroll1.SetValue(VScroll1.Value() + kScrollStep); }

void ABRGFormRows::KeepInView(int row) {
  while (row < VScroll1.Value()) ScrollUp();
  while (row >= VScroll1.Value() + kRowsInView && VScroll1.Value() < VScroll1.Maximum()) ScrollDown();
}

void ABRGFormRows::Wheel(int notches) {
  const int rows = kRowsOfNotch * std::max(1, std::abs(notches));
  VScroll1.SetValue(VScroll1.Value() + (notches >= 0 ? -rows : rows));
}

void ABRGFormRows::UseKey(Field field, int row, Key& key) {
  if (key.code == KeyCode::Enter) {
    key.handled = true;
    UseEnter(field, row, key);
    return;
  }
  if (key.ctrl || key.shift || key.alt) return;
  switch (key.code) {
    case KeyCode::PageUp:
      ScrollUp();
      MoveToRow(field, row - kRowsOfPageKey);
      break;
    case KeyCode::PageDown:
      ScrollDown();
      MoveToRow(field, row + kRowsOfPageKey);
      break;
    case KeyCode::Up:
      MoveToRow(field, row - 1);
      break;
    case KeyCode::Down:
      MoveToRow(field, row + 1);
      break;
    default:
      return;
  }
  key.handled = true;
}

void ABRGFormRows::UseEnter(Field field, int row, const Key& key) {
  if (key.Is(KeyCode::Enter)) MoveRight(field, row);
  if (!key.IsCtrl(KeyCode::Enter)) return;
  if (field == kLGNr) handlers_.lookUpStockNumber(row);
  if (field == kArtNr) handlers_.lookUpArticleNumber(row);
}

// Behind the price the next row begins, so that a document is typed without another key.
void ABRGFormRows::MoveRight(Field field, int row) {
  if (field != kE) {
    Cell(static_cast<Field>(field + 1), row).SetFocus();
  } else if (row + 1 < Count()) {
    LGNr[row + 1].SetFocus();
  } else {
    handlers_.wentPastEnd();
  }
}

void ABRGFormRows::MoveToRow(Field field, int row) { Cell(field, std::clamp(row, 0, Count() - 1)).SetFocus(); }

}  // namespace kontorwerk
