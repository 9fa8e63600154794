#include "runtime/format_value.h"

#include <optional>

#include "runtime/conversions.h"
#include "runtime/format_date.h"
#include "runtime/format_notation.h"
#include "runtime/format_number.h"
#include "runtime/text.h"

namespace runtime {
namespace {

enum class Kind { Plain, Date, Number, Text };

struct NamedFormat {
  const char* name;  // in lower case
  Kind kind;
  const char* notation;
};

constexpr NamedFormat kNamedFormats[] = {
    {"general date", Kind::Date, "c"},
    {"long date", Kind::Date, "dddddd"},
    {"medium date", Kind::Date, "dd. mmm yy"},
    {"short date", Kind::Date, "ddddd"},
    {"long time", Kind::Date, "ttttt"},
    {"medium time", Kind::Date, "hh:nn AM/PM"},
    {"short time", Kind::Date, "hh:nn"},
    {"general number", Kind::Number, ""},
    {"currency", Kind::Number, "#,##0.00 €"},
    {"fixed", Kind::Number, "0.00"},
    {"standard", Kind::Number, "#,##0.00"},
    {"percent", Kind::Number, "0.00%"},
    {"scientific", Kind::Number, "0.00E+00"},
    {"yes/no", Kind::Number, "\"Ja\";\"Ja\";\"Nein\""},
    {"true/false", Kind::Number, "\"Wahr\";\"Wahr\";\"Falsch\""},
    {"on/off", Kind::Number, "\"Ein\";\"Ein\";\"Aus\""},
};

bool IsTextSign(const Sign& sign) {
  return sign.Is('@') || sign.Is('&') || sign.Is('<') || sign.Is('>') || sign.Is('!');
}

// The first sign with a meaning decides.
Kind KindOf(const Notation& notation) {
  for (std::size_t i = 0; i < notation.size(); ++i) {
    if (IsNumberSign(notation[i])) return Kind::Number;
    if (IsTextSign(notation[i])) return Kind::Text;
    if (IsDateSign(notation, i)) return Kind::Date;
  }
  return Kind::Plain;
}

std::string PlainText(const Value& value) {
  if (const auto* number = std::get_if<double>(&value)) return NumberText(*number);
  if (const auto* date = std::get_if<DateTime>(&value)) return DateText(*date);
  return std::get<std::string>(value);
}

std::optional<double> NumberOf(const Value& value) {
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* date = std::get_if<DateTime>(&value)) return DateNumber(*date);
  const auto& text = std::get<std::string>(value);
  if (!IsNumeric(text)) return std::nullopt;
  return ToDouble(text);
}

std::optional<DateTime> DateOf(const Value& value, int presentYear) {
  if (const auto* date = std::get_if<DateTime>(&value)) return *date;
  const auto* text = std::get_if<std::string>(&value);
  if (text && IsDate(*text, presentYear)) return ToDate(*text, presentYear);
  const auto number = NumberOf(value);
  if (!number) return std::nullopt;
  return DateOfNumber(*number);
}

bool IsPlace(const Sign& sign) { return sign.Is('@') || sign.Is('&'); }

// The text runs into the places from the right, or behind a "!" from the left; what has no place stands at the outer
// one, and without any place behind the literals. "@" shows a blank where the text is used up.
std::string FillIn(const std::string& text, const Notation& section) {
  std::size_t places = 0;
  bool fromLeft = false;
  for (const Sign& sign : section) {
    if (IsPlace(sign)) ++places;
    else if (sign.Is('!')) fromLeft = true;
  }
  std::size_t blanks = places > text.size() ? places - text.size() : 0;
  const std::size_t surplus = text.size() > places ? text.size() - places : 0;
  std::string result;
  std::size_t at = 0;
  std::size_t place = 0;
  const auto take = [&](std::size_t count) {
    result.append(text, at, count);
    at += count;
  };
  for (const Sign& sign : section) {
    if (!IsPlace(sign)) {
      if (!IsTextSign(sign)) result += sign.character;
      continue;
    }
    const bool outer = fromLeft ? ++place == places : ++place == 1;
    const bool blank = fromLeft ? at == text.size() : blanks > 0;
    if (!blank) take(1 + (outer ? surplus : 0));
    else if (sign.Is('@')) result += ' ';
    if (blank && blanks > 0) --blanks;
  }
  if (places == 0) take(text.size());
  return result;
}

std::string FormatText(const std::string& text, const Notation& notation) {
  const auto sections = Sections(notation);
  const Notation& section = sections[text.empty() && sections.size() > 1 ? 1 : 0];
  std::string cased = text;
  for (const Sign& sign : section) {
    if (sign.Is('<')) cased = ToLower(text);
    else if (sign.Is('>')) cased = ToUpper(text);
  }
  return FillIn(cased, section);
}

std::string Format(const Value& value, Kind kind, const Notation& notation, const FormatRules& rules) {
  switch (kind) {
    case Kind::Number:
      if (const auto number = NumberOf(value))
        return notation.empty() ? NumberText(*number) : FormatNumber(*number, notation);
      return PlainText(value);
    case Kind::Date:
      if (const auto date = DateOf(value, rules.presentYear)) return FormatDate(*date, notation, rules.weeks);
      return PlainText(value);
    case Kind::Text:
      return FormatText(PlainText(value), notation);
    case Kind::Plain:
      break;
  }
  if (notation.empty()) return PlainText(value);
  std::string literals;
  for (const Sign& sign : notation) literals += sign.character;
  return literals;
}

}  // namespace

std::string FormatValue(const Value& value, std::string_view format, const FormatRules& rules) {
  const std::string name = ToLower(format);
  for (const NamedFormat& named : kNamedFormats) {
    if (name == named.name) return Format(value, named.kind, ReadNotation(named.notation), rules);
  }
  const Notation notation = ReadNotation(format);
  return Format(value, KindOf(notation), notation, rules);
}

}  // namespace runtime
