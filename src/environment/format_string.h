// The verb "FORMATSTRING".
#pragma once

#include <string>

namespace basMain {

// The value in a format (runtime/format_value.h), as a date ("DATE"), a 32-bit integer ("LONG") or, with any other
// type, as text; the type minds no case. Logs "FormatString: " and the result. A value that is no date or no number
// logs that and yields the empty text, which is no failure. A fault sets RunFailed, as the verb counts as successful.
std::string FormatString(const std::string& value, const std::string& format, const std::string& type);

}  // namespace basMain
