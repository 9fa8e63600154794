// Memory that another process can reach.
#include "automation/SharedMemory.h"

#include "platform/process_memory.h"
#include "platform/simulated/desktop.h"
#include "platform/simulated/memory.h"
#include "support/system.h"

namespace {

using namespace platform::simulated;

class SharedMemoryTest : public support::SystemTest {
 protected:
  SharedMemoryTest() { AddWindow({.className = "Fenster", .process = 50}); }
};

TEST_F(SharedMemoryTest, ForeignBlockIsReachedByTheOtherProcess) {
  std::int32_t hProcess = 0;
  const std::int32_t block = SharedMemory::AllocateForeign(50, 40, hProcess);
  ASSERT_NE(block, 0);
  ASSERT_NE(hProcess, 0);
  std::uint32_t count = 0;
  EXPECT_TRUE(platform::WriteProcessMemory(hProcess, block, "abc", 3, count));
  std::string seen(3, '.');
  EXPECT_TRUE(ReadMemory(50, block, seen.data(), 3));
  EXPECT_EQ(seen, "abc");
  EXPECT_EQ(SizeAskedFor(block), 40u);
  SharedMemory::FreeForeign(hProcess, block, 40);
  EXPECT_EQ(BlocksLeft(), 0u);
  EXPECT_EQ(HandlesLeft(), 0u);
}

TEST_F(SharedMemoryTest, NoProcessGivesNoBlock) {
  std::int32_t hProcess = 1;
  EXPECT_EQ(SharedMemory::AllocateForeign(99, 40, hProcess), 0);
  EXPECT_EQ(hProcess, 0);
  SharedMemory::FreeForeign(hProcess, 0, 40);
}

TEST_F(SharedMemoryTest, RefusedBlockGivesAddressZeroAndTheHandle) {
  Fail("VirtualAllocEx");
  std::int32_t hProcess = 0;
  EXPECT_EQ(SharedMemory::AllocateForeign(50, 40, hProcess), 0);
  EXPECT_NE(hProcess, 0);
}

TEST_F(SharedMemoryTest, SharedBlockKeepsItsViewWhenItIsFreed) {
  std::int32_t hMapping = 0;
  const std::int32_t block = SharedMemory::AllocateShared(80, hMapping);
  ASSERT_NE(block, 0);
  EXPECT_EQ(SizeAskedFor(block), 80u);
  platform::RtlMoveMemory(block, "abc", 3);
  SharedMemory::FreeShared(hMapping, block);
  EXPECT_EQ(HandlesLeft(), 0u);
  EXPECT_EQ(ViewsLeft(), 1u);
  std::string seen(3, '.');
  platform::RtlMoveMemory(seen.data(), block, 3);
  EXPECT_EQ(seen, "abc");
}

TEST_F(SharedMemoryTest, RefusedMappingGivesAddressZero) {
  Fail("CreateFileMappingA");
  std::int32_t hMapping = 1;
  EXPECT_EQ(SharedMemory::AllocateShared(80, hMapping), 0);
  EXPECT_EQ(hMapping, 0);
  SharedMemory::FreeShared(hMapping, 0);
}

}  // namespace
