// The system's modal dialogs and the user who answers them.
#include "platform/dialogs.h"

#include "platform/files.h"
#include "platform/simulated/host_paths.h"
#include "platform/simulated/modal.h"
#include "platform/simulated/state.h"
#include "runtime/text.h"

namespace platform {
namespace simulated {
namespace {

constexpr std::int32_t kStaticId = 0xFFFF;

// The box as a window, so that whoever looks through the desktop sees it.
std::int32_t AddBox(const std::string& text, const std::string& caption) {
  const std::int32_t box = AddWindow({.className = "#32770", .text = caption, .process = kOwnProcess});
  AddWindow({.className = "Button", .text = "OK", .parent = box, .id = IDOK});
  AddWindow({.className = "Static", .text = text, .parent = box, .id = kStaticId});
  Activate(box);
  return box;
}

bool HasOtherExtension(const std::string& path, const std::string& extension) {
  return !extension.empty() && !runtime::EqualIgnoringCase(path.substr(path.rfind('.') + 1), extension);
}

// The file that the user chooses, or nothing when he cancels.
std::string ChosenFile(const OPENFILENAME& record) {
  auto& answers = TheDesktop().fileAnswers;
  if (answers.empty()) return "";
  std::string path = std::move(answers.front());
  answers.pop_front();
  const std::string fileTitle = path.substr(path.rfind('\\') + 1);
  if (!record.lpstrDefExt.empty() && fileTitle.find('.') == std::string::npos) path += "." + record.lpstrDefExt;
  if ((record.Flags & OFN_FILEMUSTEXIST) != 0 && !FileExists(path)) return "";
  return path;
}

bool RunFileDialog(const std::string& operation, OPENFILENAME& record) {
  if (Fails(operation)) return false;
  TheDesktop().fileDialogs.push_back(record);
  const ModalScope modal(0);
  HandleOwnMessages();
  const std::string path = ChosenFile(record);
  if (path.empty() || path.size() >= record.lpstrFile.size()) return false;
  record.lpstrFile.replace(0, path.size() + 1, path.c_str(), path.size() + 1);
  if (HasOtherExtension(path, record.lpstrDefExt)) record.Flags |= OFN_EXTENSIONDIFFERENT;
  // As the real dialog does: relative paths are looked for beside the file chosen last.
  TheDesktop().currentDirectory = FolderOf(FullPath(path));
  return true;
}

}  // namespace

ModalScope::ModalScope(std::int32_t dialog) : foreground_(Foreground()) {
  // An outer dialog may have disabled it.
  if (dialog != 0) At(dialog).enabled = true;
  for (const std::int32_t hWnd : TheDesktop().topLevel) {
    Window& window = At(hWnd);
    if (window.process != kOwnProcess || hWnd == dialog || !window.enabled) continue;
    window.enabled = false;
    disabled_.push_back(hWnd);
  }
}

ModalScope::~ModalScope() {
  for (const std::int32_t hWnd : disabled_) {
    if (Window* window = Find(hWnd)) window->enabled = true;
  }
  if (Exists(foreground_) && At(foreground_).visible) TheDesktop().foreground = foreground_;
}

const std::vector<ShownBox>& MessageBoxes() { return TheDesktop().messageBoxes; }
void WhileMessageBox(std::function<void(const ShownBox&)> hook) {
  TheDesktop().messageBoxAwaited = hook != nullptr;
  TheDesktop().whileMessageBox = std::move(hook);
}
const std::vector<OPENFILENAME>& FileDialogs() { return TheDesktop().fileDialogs; }
void AnswerFileDialog(std::string path) { TheDesktop().fileAnswers.push_back(std::move(path)); }

std::vector<std::string> UnaskedAnswers() {
  const Desktop& desktop = TheDesktop();
  std::vector<std::string> unasked(desktop.fileAnswers.begin(), desktop.fileAnswers.end());
  if (desktop.messageBoxAwaited) unasked.push_back("message box");
  return unasked;
}

}  // namespace simulated

using namespace simulated;

std::int32_t MessageBoxA(std::int32_t /*hWnd*/, const std::string& lpText, const std::string& lpCaption,
                         std::uint32_t uType) {
  if (Fails("MessageBoxA")) return 0;
  const ShownBox shown{lpText, lpCaption, uType};
  TheDesktop().messageBoxes.push_back(shown);
  const ModalScope modal(0);
  const std::int32_t box = AddBox(lpText, lpCaption);
  HandleOwnMessages();
  if (const auto hook = TheDesktop().whileMessageBox) {
    TheDesktop().messageBoxAwaited = false;
    hook(shown);
  }
  DestroyWindow(box);
  return IDOK;
}

bool GetOpenFileNameA(OPENFILENAME& lpofn) { return RunFileDialog("GetOpenFileNameA", lpofn); }
bool GetSaveFileNameA(OPENFILENAME& lpofn) { return RunFileDialog("GetSaveFileNameA", lpofn); }

}  // namespace platform
