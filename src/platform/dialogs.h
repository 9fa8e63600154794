// The system's own modal dialogs.
#pragma once

#include <cstdint>
#include <string>

namespace platform {

constexpr std::uint32_t MB_OK = 0;
constexpr std::uint32_t MB_ICONSTOP = 16;
constexpr std::uint32_t MB_ICONINFORMATION = 64;
constexpr std::int32_t IDOK = 1;

// Yields the id of the button that closed the box.
std::int32_t MessageBoxA(std::int32_t hWnd, const std::string& lpText, const std::string& lpCaption,
                         std::uint32_t uType);

constexpr std::uint32_t OFN_HIDEREADONLY = 4;
constexpr std::uint32_t OFN_FILEMUSTEXIST = 4096;

// The file dialog's record, 76 bytes in the form that the system gets.
struct OPENFILENAME {
  std::int32_t hwndOwner = 0;
  std::string lpstrFilter;        // description NUL mask NUL ...
  std::string lpstrCustomFilter;  // buffer
  std::uint32_t nFilterIndex = 1;
  std::string lpstrFile;       // in: file name followed by NULs; out: the chosen path, ended by a NUL
  std::string lpstrFileTitle;  // buffer
  std::string lpstrInitialDir;
  std::string lpstrTitle;
  std::uint32_t Flags = 0;  // in and out
  std::string lpstrDefExt;
};

// True when the user chose a file.
bool GetOpenFileNameA(OPENFILENAME& lpofn);
bool GetSaveFileNameA(OPENFILENAME& lpofn);

}  // namespace platform
