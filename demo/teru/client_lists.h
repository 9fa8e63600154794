// The fields of the dialog "Stammdaten" that offer many values: combo boxes and list views.
#pragma once

#include <windows.h>

#include <string>

namespace teru {

constexpr int kIdYearFrame = 2250;
constexpr int kIdYear = 2251;      // of class "ComboBox"
constexpr int kIdCurrency = 2252;  // of class "ThunderRT6ComboBox"
constexpr int kIdBranch = 2253;    // has no entries
constexpr int kIdPeriod = 2254;    // text that follows the year, once the form has been told of it

constexpr int kIdPartners = 2271;  // several rows can be selected
constexpr int kIdAccountFrame = 2280;
constexpr int kIdBankAccounts = 2281;  // goes by the first parameter of messages

// Places in pixels at 96 dpi.
void AddYearFrame(HWND form, int x, int y);
void AddPartners(HWND form, int x, int y);
void AddBankAccounts(HWND form, int x, int y);

void FillLists(HWND form);
void ClearLists(HWND form);

// The partners as rows of fields parted by tabs.
std::string PartnersAsText(HWND form);

// What the form does about a combo box's notification. Only these tell it of a choice: an entry that is selected by
// message raises none. False when it is of none of these fields.
bool ReceiveFromList(HWND form, int id, int notification, HWND control);
void ReceiveFromListView(const NMHDR* notification);

}  // namespace teru
