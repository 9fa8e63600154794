#include "platform/window_lookup.h"

#include <algorithm>
#include <set>
#include <vector>

#include "fixture.h"
#include "platform/messages.h"

namespace {

using contract::AddForeignWindow;
using contract::kPlainClass;

class WindowLookup : public contract::Test {};

std::string TextOf(std::int32_t hWnd) {
  std::string text;
  platform::GetWindowTextA(hWnd, text, 1000);
  return text;
}

std::vector<std::int32_t> TopLevelWindows() {
  std::vector<std::int32_t> windows;
  for (auto h = platform::FindWindowA(nullptr, nullptr); h != 0; h = platform::GetWindow(h, platform::GW_HWNDNEXT))
    windows.push_back(h);
  return windows;
}

std::ptrdiff_t PositionOf(std::int32_t hWnd) {
  const auto windows = TopLevelWindows();
  return std::ranges::find(windows, hWnd) - windows.begin();
}

std::vector<std::int32_t> collected;
std::size_t wanted = 0;

std::int32_t PLATFORM_CALLBACK Collect(std::int32_t hWnd, std::int32_t lParam) {
  EXPECT_EQ(lParam, 4711);
  collected.push_back(hWnd);
  return collected.size() < wanted ? 1 : 0;
}

std::vector<std::int32_t> ChildrenOf(std::int32_t hWnd, std::size_t atMost = 1000) {
  collected.clear();
  wanted = atMost;
  platform::EnumChildWindows(hWnd, &Collect, 4711);
  return collected;
}

TEST_F(WindowLookup, NewWindowStandsAboveOlderOnes) {
  const auto older = contract::AddSettledWindow("älter");
  const auto newer = contract::AddSettledWindow("neuer");
  EXPECT_LT(PositionOf(newer), PositionOf(older));
}

TEST_F(WindowLookup, WalkFromTheTopMeetsEachTopLevelWindowOnceAndEnds) {
  const auto window = AddForeignWindow({kPlainClass, "Fenster"});
  const auto child = AddForeignWindow({"Button", "Knopf", window, 1});
  const auto windows = TopLevelWindows();
  EXPECT_EQ(std::set(windows.begin(), windows.end()).size(), windows.size());
  EXPECT_EQ(std::ranges::count(windows, window), 1);
  EXPECT_EQ(std::ranges::count(windows, child), 0);
}

TEST_F(WindowLookup, FindsByClassAndWholeTitleWithoutCase) {
  const auto window = AddForeignWindow({kPlainClass, "Contract Übersicht"});
  EXPECT_EQ(platform::FindWindowA("CONTRACTWINDOW", "contract übersicht"), window);
  EXPECT_EQ(platform::FindWindowA(nullptr, "Contract Übersicht"), window);
  EXPECT_EQ(platform::FindWindowA(kPlainClass, nullptr), window);
  EXPECT_EQ(platform::FindWindowA(kPlainClass, "Contract"), 0);
  EXPECT_EQ(platform::FindWindowA("NoSuchClass", "Contract Übersicht"), 0);
}

TEST_F(WindowLookup, UppermostOfEqualTitlesIsFound) {
  contract::AddSettledWindow("Zwilling");
  const auto upper = contract::AddSettledWindow("Zwilling");
  EXPECT_EQ(platform::FindWindowA(nullptr, "Zwilling"), upper);
}

TEST_F(WindowLookup, ChildrenStandInTheOrderOfTheirMaking) {
  const auto window = AddForeignWindow({kPlainClass, "Fenster"});
  const auto first = AddForeignWindow({"Static", "eins", window, 1});
  const auto second = AddForeignWindow({"Static", "zwei", window, 2});
  EXPECT_EQ(platform::GetWindow(window, platform::GW_CHILD), first);
  EXPECT_EQ(platform::GetWindow(first, platform::GW_HWNDNEXT), second);
  EXPECT_EQ(platform::GetWindow(second, platform::GW_HWNDNEXT), 0);
  EXPECT_EQ(platform::GetWindow(second, platform::GW_CHILD), 0);
}

TEST_F(WindowLookup, EnumerationMeetsAllDescendantsAChildBeforeItsOwnChildren) {
  const auto window = AddForeignWindow({kPlainClass, "Fenster"});
  const auto frame = AddForeignWindow({kPlainClass, "Rahmen", window, 1});
  const auto last = AddForeignWindow({"Button", "außen", window, 2});
  const auto inner = AddForeignWindow({kPlainClass, "innen", frame, 3});
  const auto innermost = AddForeignWindow({"Static", "ganz innen", inner, 4});
  const auto sibling = AddForeignWindow({"Static", "daneben", frame, 5});
  EXPECT_EQ(ChildrenOf(window), (std::vector{frame, inner, innermost, sibling, last}));
}

TEST_F(WindowLookup, CallbackEndsTheEnumeration) {
  const auto window = AddForeignWindow({kPlainClass, "Fenster"});
  const auto first = AddForeignWindow({"Static", "eins", window, 1});
  const auto second = AddForeignWindow({"Static", "zwei", window, 2});
  AddForeignWindow({"Static", "drei", window, 3});
  EXPECT_EQ(ChildrenOf(window, 2), (std::vector{first, second}));
}

TEST_F(WindowLookup, ClassNameIsCutToTheBuffer) {
  const auto window = AddForeignWindow({kPlainClass, "Fenster"});
  const auto button = AddForeignWindow({"Button", "Knopf", window, 1});
  std::string name;
  EXPECT_EQ(platform::GetClassNameA(window, name, 128), 14);
  EXPECT_EQ(name, "ContractWindow");
  EXPECT_EQ(platform::GetClassNameA(button, name, 128), 6);
  EXPECT_EQ(name, "Button");
  EXPECT_EQ(platform::GetClassNameA(button, name, 4), 3);
  EXPECT_EQ(name, "But");
}

TEST_F(WindowLookup, TitleIsCutToTheBuffer) {
  const auto window = AddForeignWindow({kPlainClass, "Größe"});
  EXPECT_EQ(platform::GetWindowTextLengthA(window), 5);
  std::string text;
  EXPECT_EQ(platform::GetWindowTextA(window, text, 6), 5);
  EXPECT_EQ(text, "Größe");
  EXPECT_EQ(platform::GetWindowTextA(window, text, 5), 4);
  EXPECT_EQ(text, "Größ");
  EXPECT_EQ(platform::GetWindowTextA(window, text, 1), 0);
  EXPECT_EQ(text, "");
}

TEST_F(WindowLookup, WindowWithoutTextHasLengthZero) {
  const auto window = AddForeignWindow({kPlainClass, ""});
  std::string text = "alt";
  EXPECT_EQ(platform::GetWindowTextLengthA(window), 0);
  EXPECT_EQ(platform::GetWindowTextA(window, text, 1), 0);
  EXPECT_EQ(text, "");
}

TEST_F(WindowLookup, TextOfAForeignControlIsThatWhichTheSystemHolds) {
  const auto window = AddForeignWindow({kPlainClass, "Fenster"});
  const auto button = AddForeignWindow({"Button", "vorher", window, 1});
  const auto edit = AddForeignWindow({"Edit", "vorher", window, 2});
  EXPECT_EQ(TextOf(button), "vorher");
  EXPECT_EQ(TextOf(edit), "") << "an edit field keeps its text itself";
  for (const auto control : {button, edit}) platform::SendMessageA(control, platform::WM_SETTEXT, 0, "nachher");
  EXPECT_EQ(TextOf(button), "nachher");
  EXPECT_EQ(TextOf(edit), "");
  EXPECT_EQ(platform::GetWindowTextLengthA(button), 7);
  EXPECT_EQ(platform::GetWindowTextLengthA(edit), 0);
}

TEST_F(WindowLookup, ControlIdAndDirectChildById) {
  const auto window = AddForeignWindow({kPlainClass, "Fenster"});
  const auto frame = AddForeignWindow({kPlainClass, "Rahmen", window, 10});
  const auto inner = AddForeignWindow({"Button", "innen", frame, 20});
  const auto first = AddForeignWindow({"Button", "eins", window, 30});
  AddForeignWindow({"Button", "zwei", window, 30});
  EXPECT_EQ(platform::GetDlgCtrlID(frame), 10);
  EXPECT_EQ(platform::GetDlgCtrlID(inner), 20);
  EXPECT_EQ(platform::GetDlgItem(window, 10), frame);
  EXPECT_EQ(platform::GetDlgItem(window, 20), 0) << "a grandchild is no direct child";
  EXPECT_EQ(platform::GetDlgItem(frame, 20), inner);
  EXPECT_EQ(platform::GetDlgItem(window, 30), first);
}

TEST_F(WindowLookup, ParentOfAChildAndOfATopLevelWindow) {
  const auto window = AddForeignWindow({kPlainClass, "Fenster"});
  const auto frame = AddForeignWindow({kPlainClass, "Rahmen", window, 1});
  const auto inner = AddForeignWindow({"Button", "innen", frame, 2});
  EXPECT_EQ(platform::GetParent(inner), frame);
  EXPECT_EQ(platform::GetParent(frame), window);
  EXPECT_EQ(platform::GetParent(window), 0);
}

TEST_F(WindowLookup, WindowsOfOneProcessShareItsNumbers) {
  const auto window = AddForeignWindow({kPlainClass, "Fenster"});
  const auto other = AddForeignWindow({kPlainClass, "zweites"});
  const auto button = AddForeignWindow({"Button", "Knopf", window, 1});
  const auto own = contract::AddOwnWindow("eigenes");
  std::uint32_t process = 0, otherProcess = 0, buttonProcess = 0, ownProcess = 0;
  const auto thread = platform::GetWindowThreadProcessId(window, process);
  EXPECT_NE(thread, 0u);
  EXPECT_NE(process, 0u);
  EXPECT_EQ(platform::GetWindowThreadProcessId(other, otherProcess), thread);
  EXPECT_EQ(platform::GetWindowThreadProcessId(button, buttonProcess), thread);
  EXPECT_NE(platform::GetWindowThreadProcessId(own, ownProcess), thread);
  EXPECT_EQ(otherProcess, process);
  EXPECT_EQ(buttonProcess, process);
  EXPECT_NE(ownProcess, process);
}

TEST_F(WindowLookup, DeadHandleNamesNothing) {
  const auto window = AddForeignWindow({kPlainClass, "Fenster"});
  const auto button = AddForeignWindow({"Button", "Knopf", window, 7});
  EXPECT_TRUE(platform::IsWindow(button));
  contract::DestroyForeignWindow(window);
  for (const auto dead : {window, button, std::int32_t{0}}) {
    std::string text = "alt";
    std::uint32_t process = 1;
    platform::Rect rect;
    EXPECT_FALSE(platform::IsWindow(dead));
    EXPECT_EQ(platform::GetWindowTextLengthA(dead), 0);
    EXPECT_EQ(platform::GetWindowTextA(dead, text, 20), 0);
    EXPECT_EQ(text, "");
    text = "alt";
    EXPECT_EQ(platform::GetClassNameA(dead, text, 20), 0);
    EXPECT_EQ(text, "");
    EXPECT_EQ(platform::GetDlgCtrlID(dead), 0);
    EXPECT_EQ(platform::GetDlgItem(dead, 7), 0);
    EXPECT_EQ(platform::GetDlgItem(dead, 0), 0) << "top-level windows have no id";
    EXPECT_EQ(platform::GetParent(dead), 0);
    EXPECT_EQ(platform::GetWindow(dead, platform::GW_HWNDNEXT), 0);
    EXPECT_EQ(platform::GetWindow(dead, platform::GW_CHILD), 0);
    EXPECT_EQ(platform::GetWindowThreadProcessId(dead, process), 0u);
    EXPECT_EQ(process, 0u);
    EXPECT_FALSE(platform::GetWindowRect(dead, rect));
    EXPECT_EQ(platform::WindowScale(dead), 1);
    EXPECT_TRUE(ChildrenOf(dead).empty());
  }
}

TEST_F(WindowLookup, ScaleIsHowMuchLargerTheSystemDrawsAWindow) {
  const auto window = contract::AddUnawareWindow();
  const auto button = AddForeignWindow({.className = "Button", .parent = window});
  platform::Rect rect;
  ASSERT_TRUE(platform::GetWindowRect(window, rect));
  EXPECT_DOUBLE_EQ(platform::WindowScale(window), (rect.right - rect.left) / 300.0);
  EXPECT_EQ(platform::WindowScale(button), platform::WindowScale(window));
  EXPECT_EQ(platform::WindowScale(contract::AddOwnWindow("eigenes")), 1);
}

}  // namespace
