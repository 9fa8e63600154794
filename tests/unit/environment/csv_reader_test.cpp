// Walking over a delimited text file.
#include "environment/csv_reader.h"

#include "engine/run_loop.h"
#include "engine/state.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

const std::string kFile = "C:\\Daten\\Liste.csv";
const std::string kOpened = "CSV-Datei (C:\\Daten\\Liste.csv) erfolgreich geöffnet";
const std::string kPastEnd = "Fehler in Funktion OpenCSV:Eingabe hinter Dateiende";
const std::string kNoNumber = "Fehler in Funktion OpenCSV:Typen unverträglich";

class CsvReaderTest : public SystemTest {
 protected:
  // Opens a file of these bytes without skipping a line.
  void Open(const std::string& bytes, const std::string& separator = ";") {
    PutFile(kFile, bytes);
    ASSERT_TRUE(OpenCSV(kFile, "0", separator));
  }

  // The record that is current when this line is all there is.
  void SetRecord(const std::string& record, const std::string& separator = ";") { Open(record + "\r\n", separator); }

  void ExpectFailedValue(const std::string& position, const std::string& error) {
    run.LastError.clear();
    run.RunFailed = false;
    EXPECT_EQ(GetCSVValue(position), "") << position;
    EXPECT_EQ(run.LastError, error);
    EXPECT_TRUE(run.RunFailed);
  }
};

// "OPENCSV".

TEST_F(CsvReaderTest, OpensAFileWithItsFirstRecord) {
  PutFile(kFile, "a;b;\r\nc;d;\r\n");
  EXPECT_TRUE(OpenCSV(kFile, "0", ";"));
  EXPECT_EQ(csv.CsvLine, "a;b;");
  EXPECT_EQ(csv.CsvSeparator, ";");
  EXPECT_TRUE(csv.CsvStream);
  ExpectLog({kOpened});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(CsvReaderTest, SkipsLines) {
  PutFile(kFile, "Kopf\r\n\r\na;b;\r\n");
  EXPECT_TRUE(OpenCSV(kFile, "2", ";"));
  EXPECT_EQ(csv.CsvLine, "a;b;");
}

TEST_F(CsvReaderTest, ANegativeNumberOfLinesSkipsNone) {
  PutFile(kFile, "a;b;\r\n");
  EXPECT_TRUE(OpenCSV(kFile, "-3", ";"));
  EXPECT_EQ(csv.CsvLine, "a;b;");
}

TEST_F(CsvReaderTest, TheNumberOfLinesIsRounded) {
  PutFile(kFile, "1\r\n2\r\n3\r\n");
  EXPECT_TRUE(OpenCSV(kFile, "1,5", ";"));
  EXPECT_EQ(csv.CsvLine, "3");
}

TEST_F(CsvReaderTest, AMissingFileIsRefused) {
  EXPECT_FALSE(OpenCSV(kFile, "0", ";"));
  EXPECT_EQ(run.LastError, "CSV-Datei (C:\\Daten\\Liste.csv) existiert nicht...");
  ExpectLog({});
  EXPECT_FALSE(csv.CsvStream);
}

TEST_F(CsvReaderTest, AFolderIsNoFile) {
  PutFile(kFile, "");
  EXPECT_FALSE(OpenCSV("C:\\Daten", "0", ";"));
  EXPECT_EQ(run.LastError, "CSV-Datei (C:\\Daten) existiert nicht...");
}

TEST_F(CsvReaderTest, AMissingFileKeepsTheOpenOne) {
  Open("a;b;\r\nc;d;\r\n");
  EXPECT_FALSE(OpenCSV("C:\\fehlt.csv", "0", ","));
  EXPECT_EQ(csv.CsvLine, "a;b;");
  EXPECT_EQ(csv.CsvSeparator, ";");
  EXPECT_TRUE(isCSVFileEOF());
  EXPECT_EQ(csv.CsvLine, "c;d;");
}

TEST_F(CsvReaderTest, WithoutANumberOfLinesTheOpenFailsAndLeavesTheStreamOpen) {
  PutFile(kFile, "a;b;\r\n");
  for (const char* lines : {"", "eine", "1 2"}) {
    csv = {};
    EXPECT_FALSE(OpenCSV(kFile, lines, ";")) << lines;
    EXPECT_EQ(run.LastError, kNoNumber);
    EXPECT_TRUE(csv.CsvStream);
    EXPECT_EQ(csv.CsvLine, "");
    EXPECT_EQ(csv.CsvSeparator, "");
  }
  ExpectLog({});
}

TEST_F(CsvReaderTest, ANumberOfLinesBeyond16BitsFails) {
  PutFile(kFile, "a;b;\r\n");
  EXPECT_FALSE(OpenCSV(kFile, "32768", ";"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion OpenCSV:Überlauf");
  EXPECT_TRUE(csv.CsvStream);
}

TEST_F(CsvReaderTest, AFileWithNoLineBehindTheSkippedOnesFails) {
  PutFile(kFile, "Kopf\r\n");
  EXPECT_FALSE(OpenCSV(kFile, "1", ";"));
  EXPECT_EQ(run.LastError, kPastEnd);
  EXPECT_TRUE(csv.CsvStream);
  ExpectLog({});
}

TEST_F(CsvReaderTest, MoreLinesToSkipThanThereAreFail) {
  PutFile(kFile, "a\r\nb\r\n");
  EXPECT_FALSE(OpenCSV(kFile, "32767", ";"));
  EXPECT_EQ(run.LastError, kPastEnd);
}

TEST_F(CsvReaderTest, AnEmptyFileFails) {
  PutFile(kFile, "");
  EXPECT_FALSE(OpenCSV(kFile, "0", ";"));
  EXPECT_EQ(run.LastError, kPastEnd);
}

TEST_F(CsvReaderTest, AFailedOpenKeepsRecordAndSeparatorOfTheFileBefore) {
  Open("a;b;\r\nc;d;\r\n");
  PutFile("C:\\leer.csv", "");
  EXPECT_FALSE(OpenCSV("C:\\leer.csv", "0", "|"));
  EXPECT_EQ(csv.CsvLine, "a;b;");
  EXPECT_EQ(csv.CsvSeparator, ";");
  EXPECT_EQ(GetCSVValue("0"), "a");
}

TEST_F(CsvReaderTest, AFileThatCannotBeOpenedFails) {
  PutFile(kFile, "a;b;\r\n");
  Fail("OpenFile", 1);
  EXPECT_FALSE(OpenCSV(kFile, "0", ";"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion OpenCSV:Zugriff verweigert");
}

TEST_F(CsvReaderTest, WithoutTheFileSystemObjectTheOpenFails) {
  FileSystemState.reset();
  EXPECT_FALSE(OpenCSV(kFile, "0", ";"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion OpenCSV:Objektvariable oder With-Blockvariable nicht festgelegt");
}

TEST_F(CsvReaderTest, AnOpenFileIsReplaced) {
  Open("a;b;\r\nc;d;\r\n");
  PutFile("C:\\zwei.csv", "x|y|\r\n");
  EXPECT_TRUE(OpenCSV("C:\\zwei.csv", "0", "|"));
  EXPECT_EQ(csv.CsvLine, "x|y|");
  EXPECT_EQ(GetCSVValue("1"), "y");
  EXPECT_TRUE(isCSVFileEOF());
  EXPECT_FALSE(csv.CsvStream);
}

TEST_F(CsvReaderTest, TheSameFileCanBeOpenedAgainFromTheStart) {
  Open("a;b;\r\nc;d;\r\n");
  EXPECT_TRUE(isCSVFileEOF());
  EXPECT_TRUE(OpenCSV(kFile, "0", ";"));
  EXPECT_EQ(csv.CsvLine, "a;b;");
}

// "CSVVALUE".

TEST_F(CsvReaderTest, YieldsAFieldAndLogsTheRecord) {
  SetRecord("4711;Müller GmbH;2005;");
  EXPECT_EQ(GetCSVValue("0"), "4711");
  EXPECT_EQ(GetCSVValue("1"), "Müller GmbH");
  EXPECT_EQ(GetCSVValue("2"), "2005");
  const std::string record = "GetCSVValue Line 4711;Müller GmbH;2005;";
  ExpectLog({kOpened, record, "GetCSVValue: Value=4711", record, "GetCSVValue: Value=Müller GmbH", record,
             "GetCSVValue: Value=2005"});
  EXPECT_FALSE(run.RunFailed);
  EXPECT_EQ(run.LastError, "");
}

TEST_F(CsvReaderTest, TheLastFieldCannotBeRead) {
  SetRecord("a;b;c");
  EXPECT_EQ(GetCSVValue("1"), "b");
  EXPECT_FALSE(run.RunFailed);
  ExpectFailedValue("2", "GetCSVValue: Position geht über Dateiende hinaus. (Pos:2 Ende: 2)");
  ExpectLog({kOpened, "GetCSVValue Line a;b;c", "GetCSVValue: Value=b", "GetCSVValue Line a;b;c"});
}

TEST_F(CsvReaderTest, APositionBehindTheLastFieldFails) {
  SetRecord("a;b;");
  ExpectFailedValue("7", "GetCSVValue: Position geht über Dateiende hinaus. (Pos:7 Ende: 2)");
}

TEST_F(CsvReaderTest, AnEmptyFieldIsAValue) {
  SetRecord(";b;;");
  EXPECT_EQ(GetCSVValue("0"), "");
  EXPECT_EQ(GetCSVValue("2"), "");
  EXPECT_FALSE(run.RunFailed);
  ExpectLog({kOpened, "GetCSVValue Line ;b;;", "GetCSVValue: Value=", "GetCSVValue Line ;b;;", "GetCSVValue: Value="});
}

TEST_F(CsvReaderTest, APositionThatIsNoNumberFails) {
  SetRecord("a;b;");
  for (const char* position : {"", "eins", "1a"})
    ExpectFailedValue(position, "GetCSVValue: Positionsangabe muss numerisch sein.");
  ExpectLog({kOpened});
}

TEST_F(CsvReaderTest, ANegativePositionFails) {
  SetRecord("a;b;");
  ExpectFailedValue("-1", "Fehler in Funktion GetCSVValue:Index außerhalb des gültigen Bereichs");
  ExpectLog({kOpened, "GetCSVValue Line a;b;"});
}

TEST_F(CsvReaderTest, APositionBeyond16BitsFails) {
  SetRecord("a;b;");
  ExpectFailedValue("32768", "Fehler in Funktion GetCSVValue:Überlauf");
  ExpectLog({kOpened});
}

TEST_F(CsvReaderTest, ThePositionIsRounded) {
  SetRecord("a;b;c;d;");
  EXPECT_EQ(GetCSVValue("1,5"), "c");
  EXPECT_EQ(GetCSVValue("2,5"), "c");
}

TEST_F(CsvReaderTest, ARecordWithoutTheSeparatorFails) {
  SetRecord("a,b,c");
  ExpectFailedValue("0", "GetCSVValue: Trennzeichen in Zeile 'a,b,c' nicht vorhanden.");
  ExpectLog({kOpened});
}

TEST_F(CsvReaderTest, AnEmptyRecordFails) {
  SetRecord("");
  ExpectFailedValue("0", "GetCSVValue: Trennzeichen in Zeile '' nicht vorhanden.");
}

TEST_F(CsvReaderTest, BeforeAnyFileThereIsNoSeparator) {
  ExpectFailedValue("0", "GetCSVValue: Trennzeichen in Zeile '' nicht vorhanden.");
}

TEST_F(CsvReaderTest, AnEmptySeparatorDoesNotCut) {
  SetRecord("a;b;", "");
  ExpectFailedValue("0", "GetCSVValue: Position geht über Dateiende hinaus. (Pos:0 Ende: 0)");
}

TEST_F(CsvReaderTest, TheSeparatorIsFoundWithoutCaseButDoesNotCut) {
  SetRecord("1X2X", "x");
  ExpectFailedValue("0", "GetCSVValue: Position geht über Dateiende hinaus. (Pos:0 Ende: 0)");
  ExpectLog({kOpened, "GetCSVValue Line 1X2X"});
}

TEST_F(CsvReaderTest, TheSeparatorMayHaveSeveralCharacters) {
  SetRecord("a||b|c||", "||");
  EXPECT_EQ(GetCSVValue("0"), "a");
  EXPECT_EQ(GetCSVValue("1"), "b|c");
}

TEST_F(CsvReaderTest, TheSeparatorKeepsItsBlanks) {
  SetRecord("a;b; c; ", "; ");
  EXPECT_EQ(GetCSVValue("0"), "a;b");
  EXPECT_EQ(GetCSVValue("1"), "c");
}

TEST_F(CsvReaderTest, QuotesProtectNothingAndStay) {
  SetRecord("\"a;b\";");
  EXPECT_EQ(GetCSVValue("0"), "\"a");
  EXPECT_EQ(GetCSVValue("1"), "b\"");
}

TEST_F(CsvReaderTest, AFieldKeepsItsBytes) {
  const std::string field("ä\0ß", 3);
  SetRecord(field + ";");
  EXPECT_EQ(GetCSVValue("0"), field);
}

TEST_F(CsvReaderTest, ARecordMayBeVeryLong) {
  const std::string field(1'000'000, 'x');
  SetRecord("a;" + field + ";");
  EXPECT_EQ(GetCSVValue("1"), field);
}

// "LOOP UNTIL CSVFILE.EOF".

TEST_F(CsvReaderTest, TheLoopEndReadsTheNextRecord) {
  Open("a;\r\nb;\r\n");
  run.LoopStart = 5;
  EXPECT_TRUE(isCSVFileEOF());
  EXPECT_EQ(csv.CsvLine, "b;");
  EXPECT_TRUE(run.LoopBack);
  EXPECT_EQ(run.LoopStart, 5);
  ExpectLog({kOpened, "isCSVFileEOF: EOF=False"});
}

TEST_F(CsvReaderTest, AtTheEndTheFileIsClosedAndTheRecordStays) {
  Open("a;\r\n");
  run.LoopStart = 5;
  EXPECT_TRUE(isCSVFileEOF());
  EXPECT_FALSE(csv.CsvStream);
  EXPECT_FALSE(run.LoopBack);
  EXPECT_EQ(run.LoopStart, 0);
  EXPECT_EQ(GetCSVValue("0"), "a");
  ExpectLog({kOpened, "isCSVFileEOF: EOF=True", "GetCSVValue Line a;", "GetCSVValue: Value=a"});
}

TEST_F(CsvReaderTest, WithoutAnOpenFileTheLoopEndFails) {
  EXPECT_FALSE(isCSVFileEOF());
  EXPECT_EQ(run.LastError, "Fehler in Funktion isCSVFileEOF:Objektvariable oder With-Blockvariable nicht festgelegt");
  ExpectLog({});
}

TEST_F(CsvReaderTest, AReadThatFailsInTheLoopEndFails) {
  Open("a;\r\n" + std::string(100'000, 'x'));
  Fail("ReadFile");
  EXPECT_FALSE(isCSVFileEOF());
  EXPECT_EQ(run.LastError, "Fehler in Funktion isCSVFileEOF:Zugriff verweigert");
  EXPECT_TRUE(csv.CsvStream);
}

TEST_F(CsvReaderTest, AFileOfCarriageReturnsOnlyIsOneRecord) {
  Open("a;\rb;\r");
  EXPECT_EQ(csv.CsvLine, "a;\rb;\r");
  EXPECT_TRUE(isCSVFileEOF());
  EXPECT_FALSE(csv.CsvStream);
}

// In a macro.

const std::vector<std::string> kWalk = {
    "OPENCSV=C:\\Daten\\Liste.csv,1,;", "DIM Wert", "DO", "Wert=CSVVALUE(0)", "MSG=Wert", "LOOP UNTIL CSVFILE.EOF"};

TEST_F(CsvReaderTest, AHeaderAndOneRecordRunTheLoopOnce) {
  PutFile(kFile, "Nummer;Name;\r\n4711;Müller;\r\n");
  EXPECT_TRUE(RunLines(kWalk));
  ExpectLog(Completed(
      {kOpened, "GetCSVValue Line 4711;Müller;", "GetCSVValue: Value=4711", "MSG: 4711", "isCSVFileEOF: EOF=True"}));
  EXPECT_FALSE(csv.CsvStream);
}

TEST_F(CsvReaderTest, TheLoopSeesEveryRecord) {
  PutFile(kFile, "Nummer;Name;\r\n1;a;\r\n2;b;\n3;c;");
  EXPECT_TRUE(RunLines(kWalk));
  ExpectLog(Completed({kOpened, "GetCSVValue Line 1;a;", "GetCSVValue: Value=1", "MSG: 1", "isCSVFileEOF: EOF=False",
                       "GetCSVValue Line 2;b;", "GetCSVValue: Value=2", "MSG: 2", "isCSVFileEOF: EOF=False",
                       "GetCSVValue Line 3;c;", "GetCSVValue: Value=3", "MSG: 3", "isCSVFileEOF: EOF=True"}));
}

TEST_F(CsvReaderTest, AValueThatCannotBeReadFailsTheRun) {
  PutFile(kFile, "a;b;c\r\n");
  EXPECT_FALSE(RunLines({"OPENCSV=C:\\Daten\\Liste.csv,0,;", "CSVVALUE=2", "MSG=nie"}));
  const std::string error = "GetCSVValue: Position geht über Dateiende hinaus. (Pos:2 Ende: 2)";
  EXPECT_EQ(run.LastError, error);
  EXPECT_EQ(Log(), (std::vector<std::string>{kOpened, "GetCSVValue Line a;b;c", error}));
}

TEST_F(CsvReaderTest, AStoppedRunLeavesTheFileOpenForTheNextOne) {
  PutFile(kFile, "Kopf\r\n1;\r\n2;\r\n");
  EXPECT_TRUE(RunLines({"OPENCSV=C:\\Daten\\Liste.csv,1,;", "STOP"}));
  EXPECT_TRUE(csv.CsvStream);
  EXPECT_TRUE(RunLines({"REM", "DO", "CSVVALUE=0", "LOOP UNTIL CSVFILE.EOF"}));
  EXPECT_EQ(csv.CsvLine, "2;");
  EXPECT_FALSE(csv.CsvStream);
}

TEST_F(CsvReaderTest, ALoopEndWithoutAFileFailsTheRun) {
  EXPECT_FALSE(RunLines({"LOOP UNTIL CSVFILE.EOF"}));
  EXPECT_TRUE(run.RunFailed);
}

TEST_F(CsvReaderTest, InASkippedBranchNothingIsOpenedOrRead) {
  PutFile(kFile, "a;\r\n");
  EXPECT_TRUE(RunLines({"IF STRCOMP=a,b", "OPENCSV=C:\\Daten\\Liste.csv,0,;", "CSVVALUE=9", "LOOP UNTIL CSVFILE.EOF"}));
  ExpectLog(Completed({"STRCOMP: a, b = False"}));
  EXPECT_FALSE(csv.CsvStream);
}

}  // namespace
