// List views as the windows of the stand-ins use them: columns, rows of text, and two habits that the system's list
// view does not have by itself.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace standin {

// A column at the right end; its width is in pixels at 96 dpi.
void AddColumn(HWND list, std::string title, int width);

// A row at the bottom with a text for each column.
void AddRow(HWND list, const std::vector<std::string>& fields);

std::string CellText(HWND list, int row, int column);

// From now on Ctrl+A selects all rows.
void SelectAllByKey(HWND list);

// From now on the list answers a question for an item with the row of the message's first parameter and passes over the
// row in the record, by which the system's list view goes.
void GoByFirstParameter(HWND list);

}  // namespace standin
