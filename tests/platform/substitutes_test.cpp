// Windows alone: what stands in for functions of later systems does the same as these.
#ifdef _WIN32

#include "platform/win32/substitutes.h"

#include "fixture.h"
#include "platform/files.h"
#include "platform/win32/late_binding.h"
#include "platform/window_lookup.h"

namespace {

using contract::FaultOf;
using contract::Path;
using platform::FileSizeBySearch;
using runtime::FaultNumber;

class Substitutes : public contract::Test {};

TEST_F(Substitutes, SearchFindsTheSizeAndTheFaultsOfAFile) {
  contract::WriteWhole(Path("a.txt"), "Zeile 1");
  EXPECT_EQ(FileSizeBySearch(Path("a.txt")), 7);
  for (const char* name : {"fehlt.txt", "fehlt\\a.txt", "", "*.txt", "a?txt"}) {
    EXPECT_EQ(FaultOf([&] { FileSizeBySearch(Path(name)); }), FaultOf([&] { platform::FileSize(Path(name)); })) << name;
  }
}

TEST_F(Substitutes, RootIsTheTopLevelWindowAroundAControl) {
  const auto window = contract::AddForeignWindow({.className = contract::kPlainClass, .text = "Wurzel"});
  const auto frame = contract::AddForeignWindow({.className = "Button", .text = "Rahmen", .parent = window});
  const auto inner = contract::AddForeignWindow({.className = "Edit", .text = "innen", .parent = frame});
  EXPECT_EQ(platform::RootOf(inner), window);
  EXPECT_EQ(platform::RootOf(frame), window);
  EXPECT_EQ(platform::RootOf(window), window);
  EXPECT_EQ(platform::RootOf(0), 0);
}

TEST_F(Substitutes, FunctionsAreFoundInLibrariesOfTheSystemAlone) {
  EXPECT_NE(platform::LookForFunction("kernel32.dll", "GetTickCount"), nullptr);
  EXPECT_EQ(platform::LookForFunction("kernel32.dll", "GetNothing"), nullptr);
  EXPECT_TRUE(platform::LoadSystemLibrary("riched20.dll"));
  EXPECT_FALSE(platform::LoadSystemLibrary("gibt es nicht.dll"));
  EXPECT_EQ(platform::LookForFunction("gibt es nicht.dll", "GetTickCount"), nullptr);
  EXPECT_EQ(FaultOf([] { platform::FindFunction("kernel32.dll", "GetNothing"); }), FaultNumber::FunctionMissing);
}

}  // namespace

#endif  // _WIN32
