// The dialog "Stammdaten", a client's master data. It has every kind of control that macros work with, and writes down
// what reaches it.
#pragma once

#include <windows.h>

namespace teru {

constexpr char kClientRecordTitle[] = "Stammdaten";

constexpr int kIdFolder = 2261;
constexpr int kIdBrowse = 2262;

constexpr int kIdSave = 2291;
constexpr int kIdDelete = 2292;  // of class "Button"
constexpr int kIdCopy = 2293;
constexpr int kIdCheck = 2294;
constexpr int kIdCloseRecord = 2295;

constexpr int kIdMenuSave = 2301;
constexpr int kIdMenuReset = 2302;
constexpr int kIdMenuCloseRecord = 2303;
constexpr int kIdMenuFillLists = 2311;
constexpr int kIdMenuClearLists = 2312;

// Opens the dialog, or brings the open one to the front.
void ActivateClientRecord();

}  // namespace teru
