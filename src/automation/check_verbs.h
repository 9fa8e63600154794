// The verbs on option buttons and check boxes, by window message.
#pragma once

#include <string>

namespace basMain {

// "SETOPTION": clicks the button; true when it then reports that it is checked, which is logged as text 1027. Otherwise
// LastError is text 1028 with its answer. Without a control LastError says so.
bool SetOption(const std::string& id, const std::string& window, const std::string& exact, const std::string& cls,
               const std::string& frameId, const std::string& frameClass);

// "GETCHECK": true when the box is checked. Either state is logged, also that there is no such box; LastError is set
// only when the box answers neither 0 nor 1.
bool GetCheck(const std::string& id, const std::string& window, const std::string& exact, const std::string& cls,
              const std::string& frameId, const std::string& frameClass);

// "SETCHECK": a click where `value` is "1", which clears a box that was set already; any other value clears the box
// without an event in the application. True when the box then reports the wanted state, logged as text 1027; otherwise
// LastError is text 1028 with its answer. `frameOrText` is the id of the frame around the box (the window's first child
// stands in for a frame that is missing) or the box's own text; without it, as without a box, LastError is text 1029.
bool SetCheck(const std::string& value, const std::string& id, const std::string& window, const std::string& exact,
              const std::string& frameOrText);

}  // namespace basMain
