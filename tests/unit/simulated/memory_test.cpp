// Memory of the simulated processes: who reaches what, and what is left of it.
#include "platform/simulated/memory.h"

#include <gtest/gtest.h>

#include "platform/process_memory.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "runtime/fault.h"

namespace {

using namespace platform;
using namespace platform::simulated;

class SimulatedMemory : public testing::Test {
 protected:
  void SetUp() override {
    platform::simulated::Reset();
    window = AddWindow({.className = "Fenster", .process = 50});
    AddWindow({.className = "Fenster", .process = 60});
  }

  static std::int32_t Open() {
    return OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, false, 50);
  }
  static std::int32_t Allocate(std::int32_t handle, std::uint32_t size) {
    return VirtualAllocEx(handle, 0, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
  }
  static std::int32_t View(std::uint32_t size) {
    return MapViewOfFile(CreateFileMappingA(-1, PAGE_READWRITE, 0, size, nullptr), FILE_MAP_ALL_ACCESS, 0, 0, size);
  }
  // "x" for memory that the process reaches, "." for none.
  static std::string Seen(std::uint32_t process, std::int32_t address) {
    std::string byte = ".";
    ReadMemory(process, address, byte.data(), 1);
    return byte;
  }

  std::int32_t window = 0;
};

TEST_F(SimulatedMemory, BlockBelongsToOneProcess) {
  const std::int32_t block = Allocate(Open(), 10);
  EXPECT_TRUE(WriteMemory(50, block, "x", 1));
  EXPECT_EQ(Seen(50, block), "x");
  EXPECT_EQ(Seen(60, block), ".");
  EXPECT_EQ(Seen(kOwnProcess, block), ".");
  EXPECT_EQ(SizeAskedFor(block), 10u);
  EXPECT_EQ(SizeAskedFor(block + 1), 0u);
}

TEST_F(SimulatedMemory, ProcessGivesTheRightsToItsMemoryAndNoOthers) {
  constexpr std::uint32_t kAll = 0x1F0FFF;
  EXPECT_EQ(OpenProcess(kAll, false, 50), 0);
  EXPECT_EQ(OpenProcess(PROCESS_VM_READ, true, 50), 0);
  EXPECT_NE(OpenProcess(PROCESS_VM_READ, false, 50), 0);
}

TEST_F(SimulatedMemory, ViewIsTheProgramsOwnOnTheNtFamily) {
  const std::int32_t view = View(10);
  RtlMoveMemory(view, "x", 1);
  EXPECT_EQ(Seen(kOwnProcess, view), "x");
  EXPECT_EQ(Seen(50, view), ".");
}

TEST_F(SimulatedMemory, ViewIsEverybodysOnThe9xFamily) {
  SetVersion(VER_PLATFORM_WIN32_WINDOWS, 4, 10);
  const std::int32_t view = View(10);
  RtlMoveMemory(view, "x", 1);
  EXPECT_LT(view, 0);
  EXPECT_EQ(Seen(kOwnProcess, view), "x");
  EXPECT_EQ(Seen(50, view), "x");
}

TEST_F(SimulatedMemory, BlocksOfOtherProcessesAreMissingOnThe9xFamily) {
  const std::int32_t handle = Open();
  SetVersion(VER_PLATFORM_WIN32_WINDOWS, 4, 10);
  const auto missing = [](auto call) {
    try {
      call();
      return false;
    } catch (const runtime::Fault& fault) {
      return fault.number == runtime::FaultNumber::FunctionMissing;
    }
  };
  EXPECT_TRUE(missing([&] { Allocate(handle, 10); }));
  EXPECT_TRUE(missing([&] { VirtualFreeEx(handle, 0x10000, 0, MEM_RELEASE); }));
}

TEST_F(SimulatedMemory, WhatIsLeftIsCounted) {
  const std::int32_t handle = Open();
  const std::int32_t block = Allocate(handle, 10);
  const std::int32_t view = View(10);
  EXPECT_EQ(BlocksLeft(), 1u);
  EXPECT_EQ(ViewsLeft(), 1u);
  EXPECT_EQ(HandlesLeft(), 2u);
  VirtualFreeEx(handle, block, 0, MEM_RELEASE);
  CloseHandle(handle);
  UnmapViewOfFile(reinterpret_cast<const void*>(static_cast<std::intptr_t>(view)));
  EXPECT_EQ(Seen(50, block), ".");
  EXPECT_EQ(Seen(kOwnProcess, view), ".");
  EXPECT_EQ(BlocksLeft(), 0u);
  EXPECT_EQ(ViewsLeft(), 0u);
  EXPECT_EQ(HandlesLeft(), 1u);
}

TEST_F(SimulatedMemory, ProcessTakesItsBlocksAlongWhenItEnds) {
  const std::int32_t handle = Open();
  const std::int32_t block = Allocate(handle, 10);
  DestroyWindow(window);
  EXPECT_EQ(BlocksLeft(), 0u);
  EXPECT_EQ(HandlesLeft(), 1u);
  EXPECT_EQ(Open(), 0);
  EXPECT_EQ(Allocate(handle, 10), 0);
  std::uint32_t count = 0;
  EXPECT_FALSE(WriteProcessMemory(handle, block, "x", 1, count));
  EXPECT_EQ(count, 0u);
}

TEST_F(SimulatedMemory, EveryOperationCanBeToldToFail) {
  const std::int32_t handle = Open();
  const std::int32_t block = Allocate(handle, 10);
  const std::int32_t mapping = CreateFileMappingA(-1, PAGE_READWRITE, 0, 10, nullptr);
  const std::int32_t view = View(10);
  for (const char* operation :
       {"OpenProcess", "VirtualAllocEx", "VirtualFreeEx", "WriteProcessMemory", "ReadProcessMemory",
        "CreateFileMappingA", "MapViewOfFile", "UnmapViewOfFile", "CloseHandle"})
    Fail(operation);
  std::uint32_t count = 0;
  char byte = 0;
  EXPECT_EQ(Open(), 0);
  EXPECT_EQ(Allocate(handle, 10), 0);
  EXPECT_FALSE(VirtualFreeEx(handle, block, 0, MEM_RELEASE));
  EXPECT_FALSE(WriteProcessMemory(handle, block, "x", 1, count));
  EXPECT_FALSE(ReadProcessMemory(handle, block, &byte, 1, count));
  EXPECT_EQ(CreateFileMappingA(-1, PAGE_READWRITE, 0, 10, nullptr), 0);
  EXPECT_EQ(MapViewOfFile(mapping, FILE_MAP_ALL_ACCESS, 0, 0, 10), 0);
  EXPECT_FALSE(UnmapViewOfFile(reinterpret_cast<const void*>(static_cast<std::intptr_t>(view))));
  EXPECT_FALSE(CloseHandle(handle));
}

}  // namespace
