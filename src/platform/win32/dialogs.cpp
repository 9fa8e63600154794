#include "platform/dialogs.h"

#include <cstddef>

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

namespace {

// The first version of the record, which every Windows of both families takes, ends before this field.
constexpr std::size_t kRecordSize = offsetof(::OPENFILENAMEA, pvReserved);
static_assert(kRecordSize == 76);

using FileDialog = BOOL(WINAPI*)(::OPENFILENAMEA*);

// What is empty is not handed over.
const char* TextOrNone(const std::string& text) { return text.empty() ? nullptr : text.c_str(); }
char* BufferOrNone(std::string& buffer) { return buffer.empty() ? nullptr : buffer.data(); }

bool Ask(FileDialog dialog, OPENFILENAME& record) {
  std::string filter = record.lpstrFilter;
  filter.push_back('\0');  // with the text's own, the two that end the list
  ::OPENFILENAMEA native = {};
  native.lStructSize = kRecordSize;
  native.hwndOwner = HandleOf<HWND>(record.hwndOwner);
  native.lpstrFilter = filter.c_str();
  native.lpstrCustomFilter = BufferOrNone(record.lpstrCustomFilter);
  native.nMaxCustFilter = static_cast<DWORD>(record.lpstrCustomFilter.size());
  native.nFilterIndex = record.nFilterIndex;
  native.lpstrFile = BufferOrNone(record.lpstrFile);
  native.nMaxFile = static_cast<DWORD>(record.lpstrFile.size());
  native.lpstrFileTitle = BufferOrNone(record.lpstrFileTitle);
  native.nMaxFileTitle = static_cast<DWORD>(record.lpstrFileTitle.size());
  native.lpstrInitialDir = TextOrNone(record.lpstrInitialDir);
  native.lpstrTitle = TextOrNone(record.lpstrTitle);
  native.Flags = record.Flags;
  native.lpstrDefExt = TextOrNone(record.lpstrDefExt);
  const bool chosen = dialog(&native) != FALSE;
  record.nFilterIndex = native.nFilterIndex;
  record.Flags = native.Flags;
  return chosen;
}

}  // namespace

std::int32_t MessageBoxA(std::int32_t hWnd, const std::string& lpText, const std::string& lpCaption,
                         std::uint32_t uType) {
  return ::MessageBoxA(HandleOf<HWND>(hWnd), lpText.c_str(), lpCaption.c_str(), uType);
}

bool GetOpenFileNameA(OPENFILENAME& lpofn) { return Ask(::GetOpenFileNameA, lpofn); }

bool GetSaveFileNameA(OPENFILENAME& lpofn) { return Ask(::GetSaveFileNameA, lpofn); }

}  // namespace platform
