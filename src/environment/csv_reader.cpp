#include "environment/csv_reader.h"

#include <cstdint>

#include "engine/standard_handler.h"
#include "engine/state.h"
#include "frame/log.h"
#include "runtime/conversions.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {

CsvState csv;

namespace {

TextStream& OpenStream() {
  if (!csv.CsvStream) throw runtime::Fault(runtime::FaultNumber::ObjectNotSet);
  return *csv.CsvStream;
}

bool ReadField(const std::string& positionText, std::string& value) {
  if (!runtime::IsNumeric(positionText)) return Fail("GetCSVValue: Positionsangabe muss numerisch sein.");
  const std::int16_t position = runtime::ToInteger(positionText);
  // The search minds no case, the split does. In an empty record not even the empty separator is found.
  if (csv.CsvLine.empty() || !runtime::ContainsIgnoringCase(csv.CsvLine, csv.CsvSeparator))
    return Fail("GetCSVValue: Trennzeichen in Zeile '" + csv.CsvLine + "' nicht vorhanden.");
  LogWrite("GetCSVValue Line " + csv.CsvLine);
  const auto fields = runtime::Split(csv.CsvLine, csv.CsvSeparator);
  const std::int64_t last = static_cast<std::int64_t>(fields.size()) - 1;
  // The last field is out of reach: records end in a separator.
  if (position >= last)
    return Fail("GetCSVValue: Position geht über Dateiende hinaus. (Pos:" + std::to_string(position) +
                " Ende: " + std::to_string(last) + ")");
  value = runtime::Element(fields, static_cast<std::size_t>(position));
  LogWrite("GetCSVValue: Value=" + value);
  return true;
}

}  // namespace

bool OpenCSV(const std::string& file, const std::string& linesToSkip, const std::string& separator) {
  return Standard("OpenCSV", [&] {
    if (!FileSystem().FileExists(file)) return Fail("CSV-Datei (" + file + ") existiert nicht...");
    csv.CsvStream = FileSystem().OpenTextFile(file, platform::FileMode::Read);
    for (std::int32_t lines = runtime::ToInteger(linesToSkip); lines > 0; --lines) OpenStream().SkipLine();
    csv.CsvLine = OpenStream().ReadLine();
    csv.CsvSeparator = separator;
    LogWrite("CSV-Datei (" + file + ") erfolgreich geöffnet");
    return true;
  });
}

std::string GetCSVValue(const std::string& position) {
  std::string value;
  if (!Standard("GetCSVValue", [&] { return ReadField(position, value); })) run.RunFailed = true;
  return value;
}

bool isCSVFileEOF() {
  return Standard("isCSVFileEOF", [] {
    if (OpenStream().AtEndOfStream()) {
      csv.CsvStream.reset();
      run.LoopStart = 0;
      LogWrite("isCSVFileEOF: EOF=True");
    } else {
      csv.CsvLine = OpenStream().ReadLine();
      run.LoopBack = true;
      LogWrite("isCSVFileEOF: EOF=False");
    }
    return true;
  });
}

}  // namespace basMain
