// The system's folder browser, a dialog that takes a path by message too.
#pragma once

#include <windows.h>

#include <string>

namespace teru {

// Lets the user choose a folder; nothing when he cancels. Writes down each folder that is selected on the way.
std::string BrowseForFolder(HWND owner, const char* prompt, const std::string& start);

}  // namespace teru
