// The dialog "Anlagenbuchhaltung": an area, a business year of that area, and the export of its assets.
#pragma once

#include <windows.h>

namespace teru {

constexpr char kAssetTitle[] = "Anlagenbuchhaltung";

constexpr int kIdArea = 2120;
constexpr int kIdAssetYear = 2121;
constexpr int kIdAssetStart = 2122;
constexpr int kIdAssetClose = 2123;
constexpr int kIdAssetFolder = 2124;

// Opens the dialog and brings it to the front. It stays above its owner, so that its place among the windows does not
// change while somebody walks through them.
void ActivateAssetAccounting(HWND owner);

}  // namespace teru
