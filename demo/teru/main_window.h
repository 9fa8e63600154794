// The main window, whose caption names consultant, client, business year and module.
#pragma once

#include <windows.h>

#include <string>

namespace teru {

constexpr int kIdMenuQuit = 2001;
constexpr int kIdMenuExport = 2101;
constexpr int kIdMenuAssets = 2102;
constexpr int kIdMenuPayments = 2105;
constexpr int kIdMenuStatement = 2106;
constexpr int kIdMenuClientRecord = 2201;
constexpr int kIdMenuClientList = 2202;
constexpr int kIdPostings = 2002;

HWND OpenMainWindow(const std::string& caption);

}  // namespace teru
