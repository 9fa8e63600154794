// What the two dialogs that ask for business years have in common: the list of years with check boxes, which follows
// the user as one range from the first year that is checked to the last of the list.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "clients/input_dialog.h"
#include "runtime/fault.h"

namespace basMain {

class YearListDialog : public InputDialog {
 public:
  // Adds a year, dates as text. Passes over its faults: a second year with the same first day gets no item.
  void AddYearRow(const std::string& begin, const std::string& end, bool checked);

  // Adds all rows of a matrix. Faults: OutOfRange when the matrix has not been built.
  template <class Row>
  void AddYearRows(const std::vector<Row>& matrix) {
    if (matrix.empty()) throw runtime::Fault(runtime::FaultNumber::OutOfRange);
    for (const Row& row : matrix) AddYearRow(row.Beginn, row.Ende, row.Checked);
  }

  void lstViewJahr_ItemClick(std::size_t item);
  void lstViewJahr_ItemCheck(std::size_t item);
  void lstViewJahr_DblClick();

  forms::ListView lstViewJahr;

  void Form_Load() override;

 protected:
  explicit YearListDialog(const std::string& formName);

  // Sets or clears the mark of an item and its word in the last column.
  void Mark(std::size_t item, bool checked);

  // Takes the marks over into the rows, by position: where a year got no item, those behind it land one row early.
  // Without any mark the user is told, and the result is false.
  template <class Row>
  bool TakeMarks(std::vector<Row>& matrix) {
    bool any = false;
    for (std::size_t i = 0; i < lstViewJahr.Count() && i < matrix.size(); ++i) {
      matrix[i].Checked = lstViewJahr.Item(i).checked;
      any = any || matrix[i].Checked;
    }
    if (!any) RefuseWithoutYear();
    return any;
  }

 private:
  // A checked year takes all later ones with it and drops the earlier ones; one that is not drops the later ones.
  void PropagateYearCheck(const std::string& date, bool checked);
  void RefuseWithoutYear();

  std::optional<std::size_t> touched_;  // the item that was clicked or checked last
};

}  // namespace basMain
