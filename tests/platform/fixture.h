// What the contract tests need besides the platform operations themselves. Implemented once for the simulated desktop
// and once for Windows, where a second process owns the foreign windows.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "runtime/fault.h"

namespace contract {

struct WindowPlan {
  // "Button", "Static", "Edit", "ComboBox", "SysListView32" (in report form with three columns) or kPlainClass.
  std::string className;
  std::string text = {};
  std::int32_t parent = 0;
  std::int32_t id = 0;
  std::int32_t left = 40, top = 60, width = 300, height = 200;
  bool enabled = true;
  std::uint32_t style = 0;   // beyond that of every window
  std::int32_t keyTime = 0;  // milliseconds that an "Edit" takes for a character
};

// Styles of controls.
constexpr std::uint32_t kGroup = 0x20000;
constexpr std::uint32_t kCheckBox = 2, kAutoCheckBox = 3, kAutoThreeState = 6, kGroupBox = 7, kAutoOption = 9;
constexpr std::uint32_t kDropDown = 2, kDropDownList = 3;
constexpr std::uint32_t kSingleSelection = 4;

// A plain window, which shows a WM_COMMAND that it gets by changing its text to "id notification handle", and works for
// 300 milliseconds at the slow key before it changes its text to "langsam", and for 6 seconds at the endless key before
// it changes it to "endlos".
constexpr char kPlainClass[] = "ContractWindow";
constexpr std::uint8_t kSlowKey = 113;     // F2
constexpr std::uint8_t kEndlessKey = 114;  // F3

// A window whose entries grow between two messages: it tells a length of 5 when it is asked first, and from then on the
// number of characters, all "x", that its text names. Only for windows of another process.
constexpr char kGrowingClass[] = "ContractGrowing";

// Wine since version 9 gives a target room for its answer by the length that it has told before. What Windows does is
// not documented; the program has to be safe either way.
bool EndsTargetsThatOutgrowTheirLength();

class Test : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
};

// A visible window of another process; the same process for all of them.
std::int32_t AddForeignWindow(const WindowPlan& plan);
// A plain window, 300 by 200 pixels in its own eyes, of a program that does not know the resolution of the screen.
std::int32_t AddUnawareWindow();
// Puts an entry at the end of a combo box.
void AddEntry(std::int32_t hWnd, const std::string& text);
// Puts a row at the end of a list view, and takes one out.
void AddRow(std::int32_t hWnd, const std::vector<std::string>& columns);
void RemoveRow(std::int32_t hWnd, std::int32_t row);
void SetSelectionMark(std::int32_t hWnd, std::int32_t row);
// A visible top-level window of this process with the system's own behaviour, in the place that a plan has by default.
std::int32_t AddOwnWindow(const std::string& text);
void DestroyForeignWindow(std::int32_t hWnd);
// The other process puts a window of its own in front.
void ForeignWindowComesToFront(std::int32_t hWnd);
void DestroyOwnWindow(std::int32_t hWnd);

// Another process puts these bytes and a NUL on the clipboard as text.
void PutOnClipboard(const std::string& text);
// Another process keeps the clipboard open, or closes it.
void HoldClipboard(bool hold);

// Lets so many milliseconds pass in which all processes handle their messages, this one too.
void RunFor(std::int32_t milliseconds);

// An empty folder of this test, without a trailing backslash.
std::string ScratchFolder();
// Writes a whole file, or adds to its end, without the operations under test.
void WriteWhole(const std::string& path, const std::string& bytes);
void AppendBehindTheBack(const std::string& path, const std::string& bytes);
std::string ReadWhole(const std::string& path);
// False where the system lets this user write it all the same.
bool MakeReadOnly(const std::string& path);

// Whether the system is Wine, for what Windows is documented to do otherwise.
bool IsWine();

// A path in the empty folder.
inline std::string Path(const std::string& name) { return ScratchFolder() + "\\" + name; }
// The path with short names for its long ones.
std::string ShortPath(const std::string& path);
void SetVariable(const std::string& name, const std::string& value);

// The number of the fault that the statement must raise.
template <class Statement>
runtime::FaultNumber FaultOf(Statement statement) {
  try {
    statement();
  } catch (const runtime::Fault& fault) {
    return fault.number;
  }
  ADD_FAILURE() << "no fault";
  return {};
}

// Removes a key below HKEY_LOCAL_MACHINE with all below it.
void RemoveRegistryKey(const std::string& path);

// A command line that starts nothing.
std::string MissingProgram();

// Runs this program as the owner of the foreign windows when it was started for that, and yields its exit code.
std::optional<int> RunAsForeignProcess(int argc, char** argv);

// A plain window in its final place: window managers move, raise and activate new windows in their own time.
inline std::int32_t AddSettledWindow(const std::string& text) {
  const auto window = AddForeignWindow({kPlainClass, text});
  RunFor(500);
  return window;
}

}  // namespace contract
