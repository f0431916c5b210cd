// What a stock search was opened for, and what the edit screen asks of the search that has opened it.
#pragma once

namespace kontorwerk {

class StockCaller {
 public:
  // At most one of the two is set: the search was opened to receive goods, or to edit stock items. They outlive the
  // closing of the search: the way back from the edit screen opens it as it was.
  bool GoodsReceiptMode = false;
  bool StockEditMode = false;

  // The search comes to the front again, in the mode in which it was opened.
  virtual void ShowSearchAgain() = 0;
  virtual void CloseSearch() = 0;

 protected:
  ~StockCaller() = default;
};

}  // namespace kontorwerk
