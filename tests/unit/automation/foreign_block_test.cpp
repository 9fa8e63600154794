// A block in memory that the process of a window can reach. Guard bytes behind it show that no copy goes further.
#include "automation/foreign_block.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "platform/simulated/desktop.h"
#include "platform/simulated/memory.h"
#include "platform/system.h"
#include "runtime/fault.h"
#include "support/system.h"

namespace {

using namespace platform::simulated;
using basMain::ForeignBlock;

constexpr std::uint32_t kProcess = 50;
constexpr std::size_t kSize = 8;
constexpr std::string_view kGuard = "GUARD";

std::span<const std::byte> Bytes(std::string_view text) { return std::as_bytes(std::span(text)); }

// Both families.
class ForeignBlockTest : public support::SystemTest, public testing::WithParamInterface<bool> {
 protected:
  ForeignBlockTest() {
    if (!isWindowsNT_) SetVersion(platform::VER_PLATFORM_WIN32_WINDOWS, 4, 10);
    window_ = AddWindow({.className = "Fenster", .process = kProcess});
  }

  ForeignBlock Allocate() const { return {isWindowsNT_, window_, kSize}; }

  static void Put(std::int32_t address, std::string_view bytes) {
    ASSERT_TRUE(WriteMemory(kProcess, address, bytes.data(), bytes.size()));
  }
  static std::string Seen(std::int32_t address, std::size_t size) {
    std::string bytes(size, '.');
    EXPECT_TRUE(ReadMemory(kProcess, address, bytes.data(), size));
    return bytes;
  }
  static void PutGuard(const ForeignBlock& block) { Put(block.Address() + static_cast<std::int32_t>(kSize), kGuard); }
  static std::string Whole(const ForeignBlock& block) { return Seen(block.Address(), kSize + kGuard.size()); }

  const bool isWindowsNT_ = GetParam();
  std::int32_t window_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Families, ForeignBlockTest, testing::Bool(),
                         [](const auto& family) { return family.param ? "NT" : "Nine"; });

TEST_P(ForeignBlockTest, IsAskedForItsSizeAndCleared) {
  const ForeignBlock block = Allocate();
  EXPECT_EQ(SizeAskedFor(block.Address()), kSize);
  EXPECT_EQ(Seen(block.Address(), kSize), std::string(kSize, '\0'));
  EXPECT_EQ(BlocksLeft(), isWindowsNT_ ? 1u : 0u);
  EXPECT_EQ(ViewsLeft(), isWindowsNT_ ? 0u : 1u);
}

TEST_P(ForeignBlockTest, WholeBlockIsWrittenAndNothingBehindIt) {
  const ForeignBlock block = Allocate();
  PutGuard(block);
  block.Write(Bytes("01234567"));
  EXPECT_EQ(Whole(block), "01234567GUARD");
}

TEST_P(ForeignBlockTest, BytesBeyondTheBlockAreNotWritten) {
  const ForeignBlock block = Allocate();
  PutGuard(block);
  block.Write(Bytes("0123456789"));
  EXPECT_EQ(Whole(block), "01234567GUARD");
}

TEST_P(ForeignBlockTest, FewerBytesLeaveTheRest) {
  const ForeignBlock block = Allocate();
  PutGuard(block);
  block.Write(Bytes("01234567"));
  block.Write(Bytes("ab"));
  EXPECT_EQ(Whole(block), "ab234567GUARD");
}

TEST_P(ForeignBlockTest, ReadingStopsAtTheEndOfTheBlockAndOfTheBuffer) {
  const ForeignBlock block = Allocate();
  PutGuard(block);
  Put(block.Address(), "01234567");
  std::string larger(kSize + kGuard.size(), '.');
  block.Read(std::as_writable_bytes(std::span(larger)));
  EXPECT_EQ(larger, "01234567.....");
  std::string smaller = "........";
  block.Read(std::as_writable_bytes(std::span(smaller).first(3)));
  EXPECT_EQ(smaller, "012.....");
}

TEST_P(ForeignBlockTest, FreeGivesTheHandleBackAndOfTheMemoryWhatTheFamilyCan) {
  Allocate().Free();
  EXPECT_EQ(HandlesLeft(), 0u);
  EXPECT_EQ(BlocksLeft(), 0u);
  EXPECT_EQ(ViewsLeft(), isWindowsNT_ ? 0u : 1u);
}

TEST_P(ForeignBlockTest, NothingIsReleasedByItself) {
  Allocate();
  EXPECT_EQ(HandlesLeft(), 1u);
  EXPECT_EQ(BlocksLeft() + ViewsLeft(), 1u);
}

TEST_P(ForeignBlockTest, RefusedMemoryHasAddressZeroAndTakesNoPart) {
  Fail(isWindowsNT_ ? "VirtualAllocEx" : "MapViewOfFile");
  const ForeignBlock block = Allocate();
  EXPECT_EQ(block.Address(), 0);
  block.Write(Bytes("01234567"));
  std::string seen = "........";
  block.Read(std::as_writable_bytes(std::span(seen)));
  EXPECT_EQ(seen, "........");
  block.Free();
  EXPECT_EQ(HandlesLeft(), 0u);
}

TEST_P(ForeignBlockTest, BlockOfTheNtFamilyIsAFaultOnTheOther) {
  if (isWindowsNT_) EXPECT_NO_THROW(ForeignBlock(true, window_, kSize));
  else EXPECT_THROW(ForeignBlock(true, window_, kSize), runtime::Fault);
}

}  // namespace
