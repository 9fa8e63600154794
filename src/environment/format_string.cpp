#include "environment/format_string.h"

#include "engine/standard_handler.h"
#include "engine/state.h"
#include "frame/log.h"
#include "platform/system.h"
#include "runtime/conversions.h"
#include "runtime/dates.h"
#include "runtime/format_value.h"
#include "runtime/text.h"

namespace basMain {
namespace {

std::string FormattedDate(const std::string& value, const std::string& format) {
  const int year = platform::Now().year;
  if (!runtime::IsDate(value, year)) {
    LogWrite("FormatString: Formatieren nicht möglich, da der Wert kein Datum ist.");
    return "";
  }
  // Weeks as the system has them, whereas numbers count them in the plain way.
  return runtime::FormatValue(runtime::ToDate(value, year), format, {runtime::kGermanWeeks, year});
}

std::string FormattedLong(const std::string& value, const std::string& format) {
  if (!runtime::IsNumeric(value)) {
    LogWrite("FormatString: Formatieren nicht möglich, da der Wert nicht numerisch ist.");
    return "";
  }
  return runtime::FormatValue(static_cast<double>(runtime::ToLong(value)), format);
}

std::string Formatted(const std::string& value, const std::string& format, const std::string& type) {
  if (type == "DATE") return FormattedDate(value, format);
  if (type == "LONG") return FormattedLong(value, format);
  return runtime::FormatValue(value, format, {{}, platform::Now().year});
}

}  // namespace

std::string FormatString(const std::string& value, const std::string& format, const std::string& type) {
  std::string text;
  const bool done = Standard("FormatString", [&] {
    text = Formatted(value, format, runtime::ToUpper(type));
    LogWrite("FormatString: " + text);
    return true;
  });
  if (!done) run.RunFailed = true;
  return text;
}

}  // namespace basMain
