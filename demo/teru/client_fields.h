// The fields of the dialog "Stammdaten" that hold one value each: text boxes, option buttons and check boxes in their
// frames.
#pragma once

#include <windows.h>

#include <string>

namespace teru {

constexpr int kIdAddressFrame = 2210;
constexpr int kIdName = 2211;
constexpr int kIdStreet = 2212;
constexpr int kIdPlace = 2213;
constexpr int kIdTaxNumber = 2214;  // puts the text into its own form: says that it has not taken it as it is
constexpr int kIdNote = 2215;       // takes 300 characters and answers with their number
constexpr int kIdNumber = 2216;     // locked: refuses every text
constexpr int kIdMailToConsultant = 2217;

constexpr int kIdLegalFormFrame = 2220;
constexpr int kIdSoleTrader = 2221;
constexpr int kIdPartnership = 2222;
constexpr int kIdCorporation = 2223;
constexpr int kIdFoundation = 2224;  // not open to this client: a click does not choose it

constexpr int kIdProfitFrame = 2230;
constexpr int kIdBalanceSheet = 2231;
constexpr int kIdCashBasis = 2232;

constexpr int kIdFeatureFrame = 2240;
constexpr int kIdSalesTax = 2241;
constexpr int kIdPayroll = 2242;
constexpr int kIdAudit = 2243;   // set, clear, or undecided as at the start
constexpr int kIdClosed = 2244;  // set by the program alone: a click does not change it
constexpr int kIdExtension = 2245;
constexpr int kIdElectronic = 2246;

// Frames with their fields; places in pixels at 96 dpi.
void AddAddressFrame(HWND form, int x, int y);
void AddLegalFormFrame(HWND form, int x, int y);
void AddProfitFrame(HWND form, int x, int y);
void AddFeatureFrame(HWND form, int x, int y);

// Writes down a notification of these fields. False when it is of none of them.
bool ReceiveFromField(int id, int notification, HWND control);

}  // namespace teru
