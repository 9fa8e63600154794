// The window of a list view. It holds no items: it asks the control for the rows that it shows, so a list of any length
// is there at once.
#pragma once

#include <cstddef>

#include "forms/control.h"
#include "forms/layout.h"

namespace forms::win32 {

// Columns, check boxes, and what the user does.
void PrepareList(ListView& list);

// Room for the lines of the control's size and as many characters side by side.
Extent ExtentOfList(const ListView& list, int characters, int lines);

// To be called when the list comes up: as many rows as there are items, columns as wide as their contents.
void ShowItems(const ListView& list);

// Widths of the columns for the list's present size: the widest give way where there is too little room. Before the
// list has come up it does nothing.
void FitColumns(const ListView& list);

// As ShowItems, for a list that is visible already; one that is not yet shown does nothing.
void ShowItemCount(const ListView& list);
void ShowItem(const ListView& list, std::size_t item);
void ShowSelection(const ListView& list, std::size_t item);
void ScrollToItem(const ListView& list, std::size_t item);

// A notification of the list's window to its form; the record is the system's.
void OnListNotification(ListView& list, void* record);

// Whether each column is as wide as its widest text, or the list has a bar to scroll to it.
bool ColumnsFit(const ListView& list);

}  // namespace forms::win32
