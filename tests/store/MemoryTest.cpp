// How much memory a change of a large table takes: three times the file at most, at any moment.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <new>

#include "store/RecordLine.h"
#include "store/RecordStore.h"
#include "store/Text.h"
#include "tests/store/FaultyDisk.h"
#include "tests/store/TestFolder.h"

namespace {

std::size_t inUse = 0;
std::size_t most = 0;
// In front of each block stands its size, in the space that keeps the block aligned.
constexpr std::size_t kHead = alignof(std::max_align_t);

void* Allocated(std::size_t size) {
  void* block = std::malloc(size + kHead);
  if (block == nullptr) std::abort();
  *static_cast<std::size_t*>(block) = size;
  inUse += size;
  most = std::max(most, inUse);
  return static_cast<char*>(block) + kHead;
}

void Freed(void* memory) {
  if (memory == nullptr) return;
  void* block = static_cast<char*>(memory) - kHead;
  inUse -= *static_cast<std::size_t*>(block);
  std::free(block);
}

}  // namespace

void* operator new(std::size_t size) { return Allocated(size); }
void* operator new[](std::size_t size) { return Allocated(size); }
void operator delete(void* memory) noexcept { Freed(memory); }
void operator delete[](void* memory) noexcept { Freed(memory); }
void operator delete(void* memory, std::size_t) noexcept { Freed(memory); }
void operator delete[](void* memory, std::size_t) noexcept { Freed(memory); }

namespace kontorwerk {
namespace {

TEST(Memory, ChangeOfAHundredThousandCustomersTakesThreeTimesTheFileAtMost) {
  const testing_support::TestFolder folder;
  std::size_t size = 0;
  {
    std::string text;
    for (int customer = 0; customer < 100'000; ++customer)
      text += Concat(RecordLine({PadZeros(std::to_string(customer), 5), "Meier", std::string(285, 'x')}), "\r\n");
    size = text.size();
    folder.Put("Kundendb.dbf", text);
  }
  testing_support::FaultyDisk disk;
  const FileSystemObject files(disk);
  Settings settings;
  settings.DBPath = folder.DataPath();
  RecordStore store(files, settings);
  const auto change = [](std::string_view row) {
    return RecordField(row, 1) == "50000" ? RowChange::Replace("'50000','Meyer") : RowChange::Keep();
  };
  const std::size_t before = inUse;
  most = inUse;
  EXPECT_TRUE(store.AppendRow(table::kCustomers, "'100000','neu"));
  EXPECT_TRUE(store.PrependRow(table::kCustomers, "'100001','neu"));
  EXPECT_TRUE(store.RewriteTable(table::kCustomers, BlankRows::Keep, change));
  EXPECT_TRUE(store.ReplaceRowByNumber(table::kCustomers, "Meyer", "'50000','Meyer','neu"));
  EXPECT_GT(most - before, size) << "the measuring itself";
  EXPECT_LE(most - before, 3 * size);
}

}  // namespace
}  // namespace kontorwerk
