// The dialog "Buchungsexport": writes the postings of a client and a period into a folder.
#pragma once

namespace merla {

constexpr char kPostingTitle[] = "Buchungsexport";

constexpr int kIdPostingClientFrame = 40;
constexpr int kIdPostingClient = 41;
constexpr int kIdPostingPeriod = 42;
constexpr int kIdPostingFolder = 43;
constexpr int kIdPostingStart = 1021;
constexpr int kIdPostingClose = 1022;
constexpr int kIdPostingState = 1023;

// Opens the dialog and brings it to the front.
void OpenPostingDialog();

}  // namespace merla
