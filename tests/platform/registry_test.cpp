#include "platform/registry.h"

#include "fixture.h"

namespace {

constexpr char kKey[] = "Software\\QumaContract";
constexpr std::int32_t kFileNotFound = 2;
constexpr std::int32_t kInvalidHandle = 6;
constexpr std::int32_t kMoreData = 234;

class Registry : public contract::Test {
 protected:
  void SetUp() override {
    Test::SetUp();
    contract::RemoveRegistryKey(kKey);
  }
  void TearDown() override {
    contract::RemoveRegistryKey(kKey);
    Test::TearDown();
  }

  static std::int32_t Create(const std::string& path) {
    std::int32_t key = 0;
    EXPECT_EQ(platform::RegCreateKeyA(platform::HKEY_LOCAL_MACHINE, path, key), 0);
    EXPECT_NE(key, 0);
    return key;
  }

  static std::int32_t Open(const std::string& path) {
    std::int32_t key = 0;
    EXPECT_EQ(platform::RegOpenKeyA(platform::HKEY_LOCAL_MACHINE, path, key), 0);
    EXPECT_NE(key, 0);
    return key;
  }
};

TEST_F(Registry, MissingKeyGivesNoHandle) {
  std::int32_t key = 1234;
  EXPECT_EQ(platform::RegOpenKeyA(platform::HKEY_LOCAL_MACHINE, kKey, key), kFileNotFound);
  EXPECT_EQ(key, 0);
}

TEST_F(Registry, CreatedKeyIsThereWithAllAboveIt) {
  platform::RegCloseKey(Create(std::string(kKey) + "\\Setup\\Destinations\\"));
  platform::RegCloseKey(Open(kKey));
  platform::RegCloseKey(Open("SOFTWARE\\qumacontract\\SETUP"));
  platform::RegCloseKey(Open(std::string(kKey) + "\\Setup\\Destinations\\"));
}

TEST_F(Registry, BeginningOfANameIsNoKey) {
  platform::RegCloseKey(Create(kKey));
  std::int32_t key = 0;
  EXPECT_EQ(platform::RegOpenKeyA(platform::HKEY_LOCAL_MACHINE, "Software\\QumaCon", key), kFileNotFound);
}

TEST_F(Registry, MissingValue) {
  const auto key = Create(kKey);
  std::uint32_t type = 0, size = 0;
  EXPECT_EQ(platform::RegQueryValueExA(key, "Teru", type, nullptr, size), kFileNotFound);
  platform::RegCloseKey(key);
}

TEST_F(Registry, TextIsStoredWithItsEndAndReadBack) {
  const auto key = Create(kKey);
  EXPECT_EQ(platform::RegSetValueExA(key, "Teru", platform::REG_SZ, std::string("C:\\Büro\0", 8)), 0);
  std::uint32_t type = 0, size = 0;
  EXPECT_EQ(platform::RegQueryValueExA(key, "TERU", type, nullptr, size), 0);
  EXPECT_EQ(type, platform::REG_SZ);
  EXPECT_EQ(size, 8u);
  std::string bytes(size, ' ');
  EXPECT_EQ(platform::RegQueryValueExA(key, "Teru", type, bytes.data(), size), 0);
  EXPECT_EQ(size, 8u);
  EXPECT_EQ(bytes, std::string("C:\\Büro\0", 8));
  platform::RegCloseKey(key);
}

TEST_F(Registry, LargerBufferIsFilledInPart) {
  const auto key = Create(kKey);
  platform::RegSetValueExA(key, "Teru", platform::REG_SZ, std::string("ab\0", 3));
  std::string bytes(6, '.');
  std::uint32_t type = 0, size = 6;
  EXPECT_EQ(platform::RegQueryValueExA(key, "Teru", type, bytes.data(), size), 0);
  EXPECT_EQ(size, 3u);
  EXPECT_EQ(bytes, std::string("ab\0...", 6));
  platform::RegCloseKey(key);
}

TEST_F(Registry, BufferThatIsTooSmallIsAnErrorThatTellsTheSize) {
  const auto key = Create(kKey);
  platform::RegSetValueExA(key, "Teru", platform::REG_SZ, std::string("abcdef\0", 7));
  std::string bytes(3, '.');
  std::uint32_t type = 0, size = 3;
  EXPECT_EQ(platform::RegQueryValueExA(key, "Teru", type, bytes.data(), size), kMoreData);
  EXPECT_EQ(size, 7u);
  platform::RegCloseKey(key);
}

TEST_F(Registry, NumberIsFourBytesTheLowestFirst) {
  const auto key = Create(kKey);
  platform::RegSetValueExA(key, "Zahl", platform::REG_DWORD, std::string("\x39\x30\0\0", 4));
  std::uint32_t type = 0, size = 4, number = 0;
  EXPECT_EQ(platform::RegQueryValueExA(key, "Zahl", type, reinterpret_cast<char*>(&number), size), 0);
  EXPECT_EQ(type, platform::REG_DWORD);
  EXPECT_EQ(size, 4u);
  EXPECT_EQ(number, 12345u);
  platform::RegCloseKey(key);
}

TEST_F(Registry, ExpandableTextKeepsItsType) {
  const auto key = Create(kKey);
  platform::RegSetValueExA(key, "Pfad", platform::REG_EXPAND_SZ, std::string("%temp%\0", 7));
  std::uint32_t type = 0, size = 0;
  EXPECT_EQ(platform::RegQueryValueExA(key, "Pfad", type, nullptr, size), 0);
  EXPECT_EQ(type, platform::REG_EXPAND_SZ);
  EXPECT_EQ(size, 7u);
  platform::RegCloseKey(key);
}

TEST_F(Registry, SettingReplacesValueAndType) {
  const auto key = Create(kKey);
  platform::RegSetValueExA(key, "Wert", platform::REG_DWORD, std::string(4, '\1'));
  platform::RegSetValueExA(key, "WERT", platform::REG_SZ, std::string("x\0", 2));
  std::uint32_t type = 0, size = 0;
  EXPECT_EQ(platform::RegQueryValueExA(key, "Wert", type, nullptr, size), 0);
  EXPECT_EQ(type, platform::REG_SZ);
  EXPECT_EQ(size, 2u);
  platform::RegCloseKey(key);
}

TEST_F(Registry, ValuesOutliveTheHandle) {
  auto key = Create(kKey);
  platform::RegSetValueExA(key, "Teru", platform::REG_SZ, std::string("ab\0", 3));
  EXPECT_EQ(platform::RegCloseKey(key), 0);
  key = Create(kKey);
  std::uint32_t type = 0, size = 0;
  EXPECT_EQ(platform::RegQueryValueExA(key, "Teru", type, nullptr, size), 0);
  EXPECT_EQ(size, 3u);
  platform::RegCloseKey(key);
}

TEST_F(Registry, ClosedHandleAndNoHandleAreInvalid) {
  const auto key = Create(kKey);
  EXPECT_EQ(platform::RegCloseKey(key), 0);
  EXPECT_EQ(platform::RegCloseKey(key), kInvalidHandle);
  EXPECT_EQ(platform::RegCloseKey(0), kInvalidHandle);
  std::uint32_t type = 0, size = 0;
  EXPECT_EQ(platform::RegQueryValueExA(key, "Teru", type, nullptr, size), kInvalidHandle);
  EXPECT_EQ(platform::RegSetValueExA(key, "Teru", platform::REG_SZ, std::string("a\0", 2)), kInvalidHandle);
}

}  // namespace
