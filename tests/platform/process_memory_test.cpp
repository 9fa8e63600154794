#include "platform/process_memory.h"

#include <array>

#include "fixture.h"
#include "platform/messages.h"
#include "platform/window_lookup.h"

namespace {

using contract::AddForeignWindow;
using contract::kPlainClass;
using platform::SendMessageA;

constexpr std::uint32_t kAll = platform::PROCESS_VM_OPERATION | platform::PROCESS_VM_READ | platform::PROCESS_VM_WRITE;
constexpr std::uint32_t kPage = 4096;

const void* PointerTo(std::int32_t address) {
  return reinterpret_cast<const void*>(static_cast<std::intptr_t>(address));
}

class ProcessMemory : public contract::Test {
 protected:
  void SetUp() override {
    Test::SetUp();
    window = AddForeignWindow({kPlainClass, "Fenster"});
    platform::GetWindowThreadProcessId(window, process);
    handle = platform::OpenProcess(kAll, false, process);
  }
  void TearDown() override {
    platform::CloseHandle(handle);
    Test::TearDown();
  }

  std::int32_t Allocate(std::uint32_t size) {
    return platform::VirtualAllocEx(handle, 0, size, platform::MEM_COMMIT | platform::MEM_RESERVE,
                                    platform::PAGE_READWRITE);
  }
  bool Free(std::int32_t address, std::uint32_t size = 0) {
    return platform::VirtualFreeEx(handle, address, size, platform::MEM_RELEASE);
  }
  bool Write(std::int32_t address, const std::string& bytes) {
    std::uint32_t count = 99;
    const auto size = static_cast<std::uint32_t>(bytes.size());
    const bool done = platform::WriteProcessMemory(handle, address, bytes.data(), size, count);
    EXPECT_EQ(count, done ? size : 0);
    return done;
  }
  // What is read into a buffer full of dots.
  std::string Read(std::int32_t address, std::size_t size) {
    std::string bytes(size, '.');
    std::uint32_t count = 99;
    const bool done =
        platform::ReadProcessMemory(handle, address, bytes.data(), static_cast<std::uint32_t>(size), count);
    EXPECT_EQ(count, done ? size : 0);
    return bytes;
  }

  std::int32_t window = 0;
  std::uint32_t process = 0;
  std::int32_t handle = 0;
};

TEST_F(ProcessMemory, BlockOfAnotherProcessIsClearedAndYieldsWhatWasWritten) {
  const std::int32_t block = Allocate(40);
  ASSERT_NE(block, 0);
  EXPECT_EQ(Read(block, 40), std::string(40, '\0'));
  EXPECT_TRUE(Write(block + 8, "Prüfung"));
  EXPECT_EQ(Read(block, 20), std::string("\0\0\0\0\0\0\0\0Prüfung\0\0\0\0\0", 20));
  EXPECT_TRUE(Free(block));
}

TEST_F(ProcessMemory, BlockIsAWholePage) {
  const std::int32_t block = Allocate(40);
  EXPECT_TRUE(Write(block + 100, "x"));
  EXPECT_TRUE(Write(block + kPage - 1, "x"));
  EXPECT_TRUE(Free(block));
}

TEST_F(ProcessMemory, CopiesLeaveTheBytesBehindTheBlockAlone) {
  const std::int32_t block = Allocate(40);
  EXPECT_TRUE(Write(block + 40, "GUARD"));
  EXPECT_TRUE(Write(block, std::string(40, 'x')));
  EXPECT_EQ(Read(block, 45), std::string(40, 'x') + "GUARD");
  EXPECT_TRUE(Free(block));
}

TEST_F(ProcessMemory, BlockIsReleasedAsAWholeAlone) {
  const std::int32_t block = Allocate(40);
  EXPECT_FALSE(Free(block, 40));
  EXPECT_TRUE(Write(block, "x"));
  EXPECT_TRUE(Free(block));
  EXPECT_FALSE(Free(block));
}

TEST_F(ProcessMemory, WithoutASizeThereIsNoBlock) { EXPECT_EQ(Allocate(0), 0); }

TEST_F(ProcessMemory, NoProcessHasNoHandleAndNoMemory) {
  EXPECT_EQ(platform::OpenProcess(kAll, false, 0), 0);
  platform::CloseHandle(handle);
  handle = 0;
  EXPECT_EQ(Allocate(40), 0);
  EXPECT_FALSE(Free(0x10000));
  EXPECT_FALSE(Write(0x10000, "x"));
  EXPECT_EQ(Read(0x10000, 1), ".");
}

TEST_F(ProcessMemory, NothingLiesAtAddressZero) {
  EXPECT_FALSE(Write(0, "x"));
  EXPECT_EQ(Read(0, 1), ".");
  EXPECT_FALSE(Free(0));
}

TEST_F(ProcessMemory, HandleAllowsWhatItWasOpenedFor) {
  const std::int32_t block = Allocate(40);
  const std::int32_t all = handle;
  handle = platform::OpenProcess(platform::PROCESS_VM_READ, false, process);
  EXPECT_FALSE(Write(block, "x"));
  EXPECT_EQ(Read(block, 1), std::string(1, '\0'));
  EXPECT_EQ(Allocate(40), 0);
  EXPECT_TRUE(platform::CloseHandle(handle));
  handle = all;
  EXPECT_TRUE(Free(block));
}

TEST_F(ProcessMemory, HandleIsClosedOnce) {
  EXPECT_TRUE(platform::CloseHandle(handle));
  EXPECT_FALSE(platform::CloseHandle(handle));
  EXPECT_FALSE(platform::CloseHandle(0));
}

class Mappings : public contract::Test {
 protected:
  static std::int32_t Create(std::uint32_t size) {
    return platform::CreateFileMappingA(-1, platform::PAGE_READWRITE, 0, size, nullptr);
  }
  static std::int32_t Map(std::int32_t mapping, std::uint32_t size) {
    return platform::MapViewOfFile(mapping, platform::FILE_MAP_ALL_ACCESS, 0, 0, size);
  }
  static std::string Read(std::int32_t address, std::size_t size) {
    std::string bytes(size, '.');
    platform::RtlMoveMemory(bytes.data(), address, static_cast<std::uint32_t>(size));
    return bytes;
  }
};

TEST_F(Mappings, ViewIsClearedAndYieldsWhatWasCopiedIntoIt) {
  const std::int32_t mapping = Create(80);
  const std::int32_t view = Map(mapping, 80);
  ASSERT_NE(view, 0);
  EXPECT_EQ(Read(view, 80), std::string(80, '\0'));
  platform::RtlMoveMemory(view + 2, "abc", 3);
  EXPECT_EQ(Read(view, 6), std::string("\0\0abc\0", 6));
  EXPECT_TRUE(platform::UnmapViewOfFile(PointerTo(view)));
  EXPECT_TRUE(platform::CloseHandle(mapping));
}

TEST_F(Mappings, ViewsOfOneMappingShowTheSame) {
  const std::int32_t mapping = Create(80);
  const std::int32_t first = Map(mapping, 80);
  const std::int32_t second = Map(mapping, 0);
  EXPECT_NE(first, second);
  platform::RtlMoveMemory(first, "abc", 3);
  EXPECT_EQ(Read(second, 3), "abc");
  EXPECT_TRUE(platform::UnmapViewOfFile(PointerTo(first)));
  EXPECT_TRUE(platform::UnmapViewOfFile(PointerTo(second)));
  EXPECT_TRUE(platform::CloseHandle(mapping));
}

TEST_F(Mappings, AddressOfTheVariableUnmapsNothing) {
  const std::int32_t mapping = Create(80);
  const std::int32_t view = Map(mapping, 80);
  platform::RtlMoveMemory(view, "abc", 3);
  EXPECT_FALSE(platform::UnmapViewOfFile(&view));
  EXPECT_TRUE(platform::CloseHandle(mapping));
  EXPECT_EQ(Read(view, 3), "abc");
  EXPECT_TRUE(platform::UnmapViewOfFile(PointerTo(view)));
  EXPECT_FALSE(platform::UnmapViewOfFile(PointerTo(view)));
}

TEST_F(Mappings, WithoutASizeThereIsNoMappingAndWithoutAMappingNoView) {
  EXPECT_EQ(Create(0), 0);
  EXPECT_EQ(Map(0, 80), 0);
  const std::int32_t mapping = Create(80);
  EXPECT_EQ(Map(mapping, 1000000), 0);
  EXPECT_TRUE(platform::CloseHandle(mapping));
  EXPECT_EQ(Map(mapping, 80), 0);
}

TEST_F(Mappings, NothingIsCopiedToOrFromAddressZero) {
  platform::RtlMoveMemory(0, "abc", 3);
  EXPECT_EQ(Read(0, 3), "...");
}

// The record of a list view's messages in the memory of its process.
class ListMessages : public ProcessMemory {
 protected:
  using Record = platform::LVITEM;

  void SetUp() override {
    ProcessMemory::SetUp();
    record = Allocate(sizeof(Record));
    text = Allocate(200);
    list = List({{"4711", "Müller"}, {"4712", "Maier"}, {"4713", "€"}});
  }
  void TearDown() override {
    Free(record);
    Free(text);
    ProcessMemory::TearDown();
  }

  std::int32_t List(const std::vector<std::vector<std::string>>& rows, std::uint32_t style = 0) {
    const auto made = AddForeignWindow({.className = "SysListView32", .parent = window, .id = 12, .style = style});
    for (const auto& row : rows) contract::AddRow(made, row);
    return made;
  }

  std::int32_t Send(std::uint32_t message, std::int32_t parameter, const Record& r) {
    Write(record, std::string(reinterpret_cast<const char*>(&r), sizeof r));
    return SendMessageA(list, message, parameter, record);
  }
  std::int32_t SetState(std::int32_t row, std::uint32_t state, std::uint32_t mask) {
    return Send(platform::LVM_SETITEMSTATE, row, {.iItem = 1, .state = state, .stateMask = mask});
  }
  // Answer and buffer of a question for two-byte text; the record's row counts.
  std::u16string TextW(std::int32_t parameter, std::int32_t row, std::int32_t column, std::int32_t room) {
    Write(text, std::string(200, '.'));
    answer = Send(platform::LVM_GETITEMTEXTW, parameter,
                  {.mask = 1, .iItem = row, .iSubItem = column, .pszText = text, .cchTextMax = room});
    const std::string bytes = Read(text, 40);
    return std::u16string(reinterpret_cast<const char16_t*>(bytes.data()), 20);
  }
  std::string TextA(std::int32_t row, std::int32_t column, std::int32_t room) {
    Write(text, std::string(200, '.'));
    answer =
        Send(platform::LVM_GETITEMTEXTA, row, {.iItem = 1, .iSubItem = column, .pszText = text, .cchTextMax = room});
    return Read(text, 10);
  }
  std::int32_t Selected() { return SendMessageA(list, platform::LVM_GETSELECTEDCOUNT, 0, 0); }
  std::int32_t Mark() { return SendMessageA(list, platform::LVM_GETSELECTIONMARK, 0, 0); }

  static constexpr std::uint32_t kFocused = 1;
  static constexpr std::uint32_t kSelected = 2;
  std::int32_t record = 0;
  std::int32_t text = 0;
  std::int32_t list = 0;
  std::int32_t answer = 0;
};

TEST_F(ListMessages, StateOfARowIsThatOfTheParameter) {
  EXPECT_EQ(SetState(2, 3, 3), 1);
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(Mark(), 2);
  EXPECT_EQ(SetState(0, 3, 3), 1);
  EXPECT_EQ(Selected(), 2);
  EXPECT_EQ(Mark(), 2);
  EXPECT_EQ(SetState(2, 0, kSelected), 1);
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(Mark(), 2);
}

TEST_F(ListMessages, OnlyTheMaskedStateChanges) {
  SetState(1, 3, 3);
  EXPECT_EQ(SetState(1, 0, kFocused), 1);
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(SetState(1, 0, 0), 1);
  EXPECT_EQ(Selected(), 1);
}

TEST_F(ListMessages, AllRowsCanBeSelectedButNotFocused) {
  EXPECT_EQ(SetState(-1, 3, 3), 0);
  EXPECT_EQ(Selected(), 0);
  EXPECT_EQ(Mark(), -1);
  EXPECT_EQ(SetState(-1, kSelected, kSelected), 1);
  EXPECT_EQ(Selected(), 3);
  EXPECT_EQ(Mark(), -1);
  EXPECT_EQ(SetState(2, 3, 3), 1);
  EXPECT_EQ(Mark(), 2);
}

TEST_F(ListMessages, RowThatIsNotThereHasNoState) {
  EXPECT_EQ(SetState(3, 3, 3), 0);
  EXPECT_EQ(SetState(-2, 3, 3), 0);
  EXPECT_EQ(Selected(), 0);
}

TEST_F(ListMessages, ListOfSingleSelectionKeepsOne) {
  list = List({{"a"}, {"b"}}, contract::kSingleSelection);
  EXPECT_EQ(SetState(0, 3, 3), 1);
  EXPECT_EQ(SetState(1, 3, 3), 1);
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(SetState(-1, kSelected, kSelected), 0);
}

TEST_F(ListMessages, TwoByteTextGoesByTheRecordAlone) {
  EXPECT_EQ(TextW(0, 1, 1, 80).substr(0, 6), std::u16string(u"Maier\0", 6));
  EXPECT_EQ(answer, 1);
  EXPECT_EQ(TextW(2, 0, 1, 80).substr(0, 7), std::u16string(u"M\u00FCller\0", 7));
  EXPECT_EQ(TextW(0, 2, 1, 80).substr(0, 2), std::u16string(u"\u20AC\0", 2));
  EXPECT_EQ(TextW(0, 0, 0, 80).substr(0, 5), std::u16string(u"4711\0", 5));
}

TEST_F(ListMessages, TextIsCutToItsRoom) {
  EXPECT_EQ(TextW(0, 0, 1, 4).substr(0, 5), std::u16string(u"M\u00FCl\0\u2E2E", 5));
}

TEST_F(ListMessages, EightBitTextGoesByTheParameterAlone) {
  EXPECT_EQ(TextA(0, 1, 800), std::string("Müller\0...", 10));
  EXPECT_EQ(answer, 6);
  EXPECT_EQ(TextA(2, 0, 800), std::string("4713\0.....", 10));
}

TEST_F(ListMessages, RowThatIsNotThereLeavesTheBuffer) {
  for (const std::int32_t row : {-1, 3}) {
    EXPECT_EQ(TextW(0, row, 0, 80), std::u16string(20, u'\u2E2E'));
    EXPECT_EQ(answer, 0);
    EXPECT_EQ(TextA(row, 0, 80), "..........");
    EXPECT_EQ(answer, 0);
  }
}

TEST_F(ListMessages, ColumnThatIsNotThereIsEmpty) {
  EXPECT_EQ(TextW(0, 0, 9, 80)[0], u'\0');
  EXPECT_EQ(TextW(0, 0, 2, 80)[0], u'\0');
}

TEST_F(ListMessages, WithoutARecordNothingIsAnswered) {
  for (const auto message : {platform::LVM_SETITEMSTATE, platform::LVM_GETITEMTEXTA, platform::LVM_GETITEMTEXTW})
    EXPECT_EQ(SendMessageA(list, message, 0, 0), 0);
}

TEST_F(ListMessages, WithoutABufferNothingIsWritten) {
  EXPECT_EQ(Send(platform::LVM_SETITEMSTATE, 0, {.state = 3, .stateMask = 3}), 1);
  Send(platform::LVM_GETITEMTEXTW, 0, {.mask = 1, .cchTextMax = 80});
  EXPECT_EQ(SendMessageA(list, platform::LVM_GETITEMCOUNT, 0, 0), 3);
}

}  // namespace
