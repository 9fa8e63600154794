// The road from the address words of a macro line to a control: first the window, then the control below it.
#pragma once

#include <cstdint>
#include <string>

namespace basMain {

struct ControlAddress {
  std::string window = {};   // title word
  std::string exact = {};    // "1": whole titles; anything else: a part of the title
  std::string text = {};     // whole text of the control; empty: any
  std::string cls = {};      // its class; empty, together with the text: the window alone is wanted
  std::string id = "0";      // its id as a number; 0: any
  std::string frameId = {};  // takes the place of the id in the search for the window
};

// The number of an id or index; 0 for a text that is no number. Faults: Overflow.
std::int32_t NumberOrZero(const std::string& text);

// The window that SearchWindow finds, or 0. A control that it finds on the way is not kept: each verb looks below the
// window in its own way.
std::int32_t FindAddressedWindow(const ControlAddress& address);

// Below a window the first descendant of the address's text, class and id; 0 when there is none or no window. Faults:
// TypeMismatch, Overflow of the id.
std::int32_t FindDescendant(std::int32_t hParent, const ControlAddress& address);

// Below a window the direct child `childId` or, where there is none, the descendant of the address. 0 and faults as
// above; a direct child is found without a look at the address.
std::int32_t FindControl(std::int32_t hParent, std::int32_t childId, const ControlAddress& address);

// The direct child with the id; the first child stands in for one that is missing. 0 below no window.
std::int32_t FindFrame(std::int32_t hWindow, std::int32_t frameId);

// The control of "SETOPTION", "GETCHECK" and "READTEXT", or 0. With a frame id the search goes for a window that has
// such a frame, of class `frameClass` (that of the control where it is empty), and the control is looked for below the
// frame. Faults: as FindControl.
std::int32_t FindControlInFrame(const std::string& id, const std::string& window, const std::string& exact,
                                const std::string& cls, const std::string& frameId, const std::string& frameClass);

// The control's text, cut to 254 characters; empty for no control. Faults: Overflow or InvalidCall when the control
// answers with a count beyond 16 bits or a negative one.
std::string ReadControlText(std::int32_t hControl);

}  // namespace basMain
