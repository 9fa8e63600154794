// Reading and writing one value of the registry.
#include "environment/modRegistry.h"

#include "engine/state.h"
#include "platform/registry.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace modRegistry;
using namespace platform::simulated;

using Value = std::variant<std::string, std::int32_t>;

constexpr char kKey[] = "Software\\TARVEN\\Setup\\Destinations";

class RegistryTest : public support::SystemTest {
 protected:
  void Put(std::uint32_t type, const std::string& bytes) { Registry()[kKey]["Teru"] = {type, bytes}; }

  static Value Read(const std::string& key = kKey, const std::string& name = "Teru") {
    return ReadRegistryValue(platform::HKEY_LOCAL_MACHINE, key, name);
  }

  static void Write(const std::string& value) { WriteRegistryValue(platform::HKEY_LOCAL_MACHINE, kKey, "Teru", value); }

  static Value Text(const std::string& text) { return text; }
};

TEST_F(RegistryTest, ATextIsCutAtItsFirstNul) {
  Put(platform::REG_SZ, std::string("C:\\TeRu\0", 9));
  EXPECT_EQ(Read(), Text("C:\\TeRu"));
  Put(platform::REG_SZ, std::string("C:\\Te\0Ru\0", 9));
  EXPECT_EQ(Read(), Text("C:\\Te"));
  EXPECT_FALSE(state.RegError);
  EXPECT_EQ(state.RegResult, 0);
}

TEST_F(RegistryTest, ATextWithoutANulIsTakenWhole) {
  Put(platform::REG_SZ, "C:\\TeRu");
  EXPECT_EQ(Read(), Text("C:\\TeRu"));
}

TEST_F(RegistryTest, ATextKeepsItsBlanks) {
  Put(platform::REG_SZ, std::string("  C:\\Te Ru \0", 11));
  EXPECT_EQ(Read(), Text("  C:\\Te Ru "));
}

TEST_F(RegistryTest, AnEmptyTextIsEmpty) {
  Put(platform::REG_SZ, "");
  EXPECT_EQ(Read(), Text(""));
  Put(platform::REG_SZ, std::string(1, '\0'));
  EXPECT_EQ(Read(), Text(""));
}

TEST_F(RegistryTest, ALongTextIsReadWhole) {
  Put(platform::REG_SZ, std::string(100000, 'x') + '\0');
  EXPECT_EQ(Read(), Text(std::string(100000, 'x')));
}

TEST_F(RegistryTest, ANumberIsANumber) {
  Put(platform::REG_DWORD, std::string("\x39\x30\0\0", 4));
  EXPECT_EQ(Read(), Value(12345));
  Put(platform::REG_DWORD, "\xFF\xFF\xFF\xFF");
  EXPECT_EQ(Read(), Value(-1));
}

TEST_F(RegistryTest, EveryOtherTypeIsEmptyAndNoError) {
  for (const std::uint32_t type : {0u, 2u, 3u, 5u, 6u, 7u, 11u}) {
    Put(type, std::string("C:\\TeRu\0", 8));
    EXPECT_EQ(Read(), Text("")) << type;
    EXPECT_FALSE(state.RegError);
  }
}

TEST_F(RegistryTest, AMissingKeyIsEmptyAndSetsRegError) {
  EXPECT_EQ(Read(), Text(""));
  EXPECT_TRUE(state.RegError);
  // The code of closing no key.
  EXPECT_NE(state.RegResult, 0);
}

TEST_F(RegistryTest, AMissingValueIsEmptyAndLeavesRegErrorClear) {
  Registry()[kKey]["Andere"] = {platform::REG_SZ, "x"};
  EXPECT_EQ(Read(), Text(""));
  EXPECT_FALSE(state.RegError);
  EXPECT_EQ(state.RegResult, 0);
}

TEST_F(RegistryTest, RegErrorIsClearedAtTheNextRead) {
  Read();
  Put(platform::REG_SZ, "x");
  Read();
  EXPECT_FALSE(state.RegError);
}

TEST_F(RegistryTest, KeysAndNamesAreMatchedWithoutCaseAndATrailingBackslashDoesNotMatter) {
  Put(platform::REG_SZ, "x");
  EXPECT_EQ(Read("SOFTWARE\\tarven\\SETUP\\destinations\\", "TERU"), Text("x"));
}

TEST_F(RegistryTest, AReadThatFailsIsEmpty) {
  Put(platform::REG_SZ, "x");
  Fail("RegOpenKeyA", 1);
  EXPECT_EQ(Read(), Text(""));
  EXPECT_TRUE(state.RegError);
  Fail("RegQueryValueExA", 1);
  EXPECT_EQ(Read(), Text(""));
  EXPECT_FALSE(state.RegError);
}

TEST_F(RegistryTest, WritingTrimsTheTextAndAddsATerminator) {
  Write("  C:\\Te Ru  ");
  const RegistryValue& value = Registry().at("Software\\TARVEN\\Setup\\Destinations").at("Teru");
  EXPECT_EQ(value.type, 1u);
  EXPECT_EQ(value.bytes, std::string("C:\\Te Ru\0", 9));
  EXPECT_EQ(state.RegResult, 0);
}

TEST_F(RegistryTest, WritingNothingStoresATerminator) {
  Write("   ");
  EXPECT_EQ(Registry().at(kKey).at("Teru").bytes, std::string(1, '\0'));
}

TEST_F(RegistryTest, WritingReplacesAValueOfAnotherType) {
  Put(platform::REG_DWORD, std::string(4, '\0'));
  Write("x");
  EXPECT_EQ(Read(), Text("x"));
}

TEST_F(RegistryTest, ARefusedWriteIsNotReported) {
  Put(platform::REG_SZ, "alt");
  for (const char* operation : {"RegCreateKeyA", "RegSetValueExA"}) {
    Fail(operation, 1);
    Write("neu");
    // The code of the last call, which closes the key, or no key.
    EXPECT_EQ(state.RegResult == 0, operation == std::string("RegSetValueExA"));
    EXPECT_EQ(Read(), Text("alt")) << operation;
  }
  EXPECT_EQ(basMain::run.LastError, "");
  EXPECT_TRUE(support::Log().empty());
  EXPECT_TRUE(MessageBoxes().empty());
}

}  // namespace
