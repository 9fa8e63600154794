#ifndef _WIN32

#include <filesystem>
#include <fstream>
#include <memory>
#include <utility>

#include "fixture.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "runtime/text.h"

namespace contract {
namespace {

using platform::simulated::At;

constexpr std::uint32_t kForeignProcess = 77;

void WorkAndShow(std::int32_t hWnd, std::int32_t milliseconds, const std::string& text) {
  platform::simulated::Schedule(milliseconds, [=] { At(hWnd).text = text; });
  platform::simulated::Occupy(hWnd, milliseconds);
}

}  // namespace

void Test::SetUp() {
  platform::simulated::Reset();
  std::filesystem::create_directories(platform::simulated::HostPath(ScratchFolder()));
}

void Test::TearDown() {}

bool EndsTargetsThatOutgrowTheirLength() { return false; }

std::int32_t AddForeignWindow(const WindowPlan& plan) {
  const auto right = plan.left + plan.width;
  const auto bottom = plan.top + plan.height;
  const auto hWnd = platform::simulated::AddWindow({.className = plan.className,
                                                    .text = plan.text,
                                                    .parent = plan.parent,
                                                    .id = plan.id,
                                                    .process = kForeignProcess,
                                                    .enabled = plan.enabled,
                                                    .rectangle = {plan.left, plan.top, right, bottom},
                                                    .style = plan.style,
                                                    .keyTime = plan.keyTime});
  if (plan.className == kGrowingClass) {
    At(hWnd).className = "ComboBox";
    At(hWnd).entries = {std::string(std::stoul(plan.text), 'x')};
    // Shared by the copies of the procedure that the desktop makes.
    At(hWnd).procedure = [told = std::make_shared<bool>(false)](const platform::simulated::Message& message) {
      const bool first = message.number == platform::CB_GETLBTEXTLEN && !std::exchange(*told, true);
      return first ? std::optional<std::int32_t>(5) : std::nullopt;
    };
  }
  if (plan.className != kPlainClass) return hWnd;
  At(hWnd).procedure = [hWnd](const platform::simulated::Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::WM_KEYDOWN) {
      if (message.wParam == kSlowKey) WorkAndShow(hWnd, 300, "langsam");
      if (message.wParam == kEndlessKey) WorkAndShow(hWnd, 6000, "endlos");
    }
    if (message.number != platform::WM_COMMAND) return std::nullopt;
    At(hWnd).text = std::to_string(message.wParam & 0xFFFF) + " " + std::to_string(message.wParam >> 16) + " " +
                    std::to_string(message.lParam);
    return 0;
  };
  return hWnd;
}

std::int32_t AddUnawareWindow() {
  platform::simulated::SetTwipsPerPixel(10, 10);  // 144 dots to the inch
  return platform::simulated::AddWindow({.className = kPlainClass,
                                         .process = kForeignProcess,
                                         .rectangle = {60, 90, 510, 390},
                                         .knowsResolution = false});
}

void AddEntry(std::int32_t hWnd, const std::string& text) { At(hWnd).entries.push_back(text); }
void AddRow(std::int32_t hWnd, const std::vector<std::string>& columns) { At(hWnd).rows.push_back({columns}); }
void RemoveRow(std::int32_t hWnd, std::int32_t row) { At(hWnd).rows.erase(At(hWnd).rows.begin() + row); }
void SetSelectionMark(std::int32_t hWnd, std::int32_t row) { At(hWnd).selectionMark = row; }

std::int32_t AddOwnWindow(const std::string& text) {
  return platform::simulated::AddWindow({.className = kPlainClass,
                                         .text = text,
                                         .process = platform::simulated::kOwnProcess,
                                         .rectangle = {40, 60, 340, 260}});
}

void DestroyForeignWindow(std::int32_t hWnd) { platform::simulated::DestroyWindow(hWnd); }
void ForeignWindowComesToFront(std::int32_t hWnd) { platform::simulated::Activate(hWnd); }
void DestroyOwnWindow(std::int32_t hWnd) { platform::simulated::DestroyWindow(hWnd); }

void PutOnClipboard(const std::string& text) { platform::simulated::Clipboard() = text; }
void HoldClipboard(bool hold) { platform::simulated::Fail("OpenClipboard", hold ? -1 : 0); }

void RunFor(std::int32_t milliseconds) {
  platform::Sleep(milliseconds);
  platform::simulated::HandleOwnMessages();
}

std::string ScratchFolder() { return "C:\\SCRATCH"; }

void WriteWhole(const std::string& path, const std::string& bytes) { platform::simulated::PutFile(path, bytes); }

void AppendBehindTheBack(const std::string& path, const std::string& bytes) {
  std::ofstream(platform::simulated::HostPath(path), std::ios::binary | std::ios::app) << bytes;
}

std::string ReadWhole(const std::string& path) { return platform::simulated::GetFile(path); }

bool MakeReadOnly(const std::string& path) {
  using std::filesystem::perms;
  std::filesystem::permissions(platform::simulated::HostPath(path),
                               perms::owner_write | perms::group_write | perms::others_write,
                               std::filesystem::perm_options::remove);
  return true;
}

bool IsWine() { return false; }

std::string ShortPath(const std::string& path) { return platform::simulated::ShortPath(path); }

void SetVariable(const std::string& name, const std::string& value) {
  platform::simulated::SetEnvironmentVariable(name, value);
}

void RemoveRegistryKey(const std::string& path) {
  std::erase_if(platform::simulated::Registry(), [&](const auto& key) {
    return runtime::EqualIgnoringCase(std::string_view(key.first).substr(0, path.size()), path);
  });
}

std::string MissingProgram() {
  platform::simulated::SetMissingProgram("C:\\fehlt.exe");
  return "C:\\fehlt.exe";
}

std::optional<int> RunAsForeignProcess(int, char**) { return std::nullopt; }

}  // namespace contract

#endif
