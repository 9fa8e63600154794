#include "folder_browser.h"

#include <shlobj.h>

#include "journal.h"

namespace teru {

using namespace standin;

namespace {

int CALLBACK Report(HWND browser, UINT message, LPARAM lParam, LPARAM start) {
  if (message == BFFM_INITIALIZED) SendMessageA(browser, BFFM_SETSELECTIONA, TRUE, start);
  char path[MAX_PATH] = "";
  if (message == BFFM_SELCHANGED && SHGetPathFromIDListA(reinterpret_cast<PIDLIST_ABSOLUTE>(lParam), path)) {
    Journal("Ordner: " + std::string(path));
  }
  return 0;
}

}  // namespace

std::string BrowseForFolder(HWND owner, const char* prompt, const std::string& start) {
  BROWSEINFOA browser{};
  browser.hwndOwner = owner;
  browser.lpszTitle = prompt;
  browser.ulFlags = BIF_RETURNONLYFSDIRS;
  browser.lpfn = Report;
  browser.lParam = reinterpret_cast<LPARAM>(start.c_str());
  PIDLIST_ABSOLUTE chosen = SHBrowseForFolderA(&browser);
  if (chosen == nullptr) return "";
  char path[MAX_PATH] = "";
  SHGetPathFromIDListA(chosen, path);
  CoTaskMemFree(chosen);
  return path;
}

}  // namespace teru
