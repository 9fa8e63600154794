// The file-system object and its text streams.
#include "environment/file_system.h"

#include "frame/log.h"
#include "platform/simulated/desktop.h"
#include "runtime/fault.h"
#include "support/system.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using platform::FileMode;
using runtime::Fault;
using runtime::FaultNumber;

class FileSystemTest : public support::SystemTest {
 protected:
  template <class Statement>
  void ExpectFault(FaultNumber number, Statement&& statement) {
    try {
      statement();
      ADD_FAILURE() << "no fault";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.number, number);
    }
  }
};

TEST_F(FileSystemTest, OutsideItsTimeThereIsNone) {
  log = {};
  FileSystemState.reset();
  ExpectFault(FaultNumber::ObjectNotSet, [] { FileSystem(); });
}

TEST_F(FileSystemTest, AFileToReadMustBeThere) {
  ExpectFault(FaultNumber::FileNotFound, [] { FileSystem().OpenTextFile("C:\\fehlt.txt", FileMode::Read); });
}

TEST_F(FileSystemTest, AStreamReadsFromItsPositionToTheEnd) {
  PutFile("C:\\x.txt", std::string(200000, 'x') + "\r\nEnde");
  const auto stream = FileSystem().OpenTextFile("C:\\x.txt", FileMode::Read);
  EXPECT_EQ(stream->ReadAll(), std::string(200000, 'x') + "\r\nEnde");
  EXPECT_EQ(stream->ReadAll(), "");
}

using Lines = std::vector<std::string>;

// The lines of a file of these bytes, up to its end.
Lines LinesOfBytes(const std::string& bytes) {
  PutFile("C:\\x.txt", bytes);
  const auto stream = FileSystem().OpenTextFile("C:\\x.txt", FileMode::Read);
  Lines lines;
  while (!stream->AtEndOfStream()) lines.push_back(stream->ReadLine());
  return lines;
}

TEST_F(FileSystemTest, ALineEndsAtALineFeedAndLosesTheCarriageReturnInFrontOfIt) {
  EXPECT_EQ(LinesOfBytes("a\r\nb\nc\r\n"), (Lines{"a", "b", "c"}));
  EXPECT_EQ(LinesOfBytes("a\r\r\n"), Lines{"a\r"});
}

TEST_F(FileSystemTest, TheLastLineNeedsNoLineEnd) { EXPECT_EQ(LinesOfBytes("a\nb"), (Lines{"a", "b"})); }

TEST_F(FileSystemTest, ALoneCarriageReturnEndsNoLine) { EXPECT_EQ(LinesOfBytes("a\rb\r"), Lines{"a\rb\r"}); }

TEST_F(FileSystemTest, EmptyLinesAreLines) {
  EXPECT_EQ(LinesOfBytes("\n\r\n\n"), (Lines{"", "", ""}));
  EXPECT_EQ(LinesOfBytes(""), Lines{});
}

TEST_F(FileSystemTest, ALineKeepsEveryByte) {
  const std::string bytes("Größe\0\x1A\xFF;", 9);
  EXPECT_EQ(LinesOfBytes(bytes + "\r\n" + bytes), (Lines{bytes, bytes}));
}

TEST_F(FileSystemTest, ALineMayBeLongerThanWhatIsReadAtOnce) {
  const std::string text(1'000'000, 'x');
  EXPECT_EQ(LinesOfBytes(text + "\r\n" + text + "\ny"), (Lines{text, text, "y"}));
}

TEST_F(FileSystemTest, ALineEndMayLieAcrossTwoReads) {
  for (const std::size_t length : {65534u, 65535u, 65536u}) {
    const std::string text(length, 'x');
    EXPECT_EQ(LinesOfBytes(text + "\r\ny"), (Lines{text, "y"})) << length;
  }
}

TEST_F(FileSystemTest, ASkippedLineIsGone) {
  PutFile("C:\\x.txt", std::string(100'000, 'x') + "\r\nb\r\nc");
  const auto stream = FileSystem().OpenTextFile("C:\\x.txt", FileMode::Read);
  stream->SkipLine();
  EXPECT_EQ(stream->ReadLine(), "b");
  stream->SkipLine();
  EXPECT_TRUE(stream->AtEndOfStream());
}

TEST_F(FileSystemTest, BehindTheEndThereIsNoLine) {
  PutFile("C:\\x.txt", "a\r\n");
  const auto stream = FileSystem().OpenTextFile("C:\\x.txt", FileMode::Read);
  stream->SkipLine();
  ExpectFault(FaultNumber::InputPastEnd, [&] { stream->ReadLine(); });
  ExpectFault(FaultNumber::InputPastEnd, [&] { stream->SkipLine(); });
}

TEST_F(FileSystemTest, TheRestBehindALineIsReadAtOnce) {
  PutFile("C:\\x.txt", "a\r\n" + std::string(100'000, 'x') + "\r\nb");
  const auto stream = FileSystem().OpenTextFile("C:\\x.txt", FileMode::Read);
  EXPECT_EQ(stream->ReadLine(), "a");
  EXPECT_EQ(stream->ReadAll(), std::string(100'000, 'x') + "\r\nb");
  EXPECT_TRUE(stream->AtEndOfStream());
}

TEST_F(FileSystemTest, AReadThatFailsIsAFaultAndLeavesNoText) {
  PutFile("C:\\x.txt", "a\r\n");
  const auto stream = FileSystem().OpenTextFile("C:\\x.txt", FileMode::Read);
  Fail("ReadFile", 1);
  ExpectFault(FaultNumber::AccessDenied, [&] { stream->ReadLine(); });
  EXPECT_EQ(stream->ReadLine(), "a");
}

TEST_F(FileSystemTest, TwoStreamsThatAppendToAFreshFileLoseNothing) {
  const auto first = FileSystem().OpenToAppend("C:\\x.txt");
  first->WriteLine("1");
  const auto second = FileSystem().OpenToAppend("C:\\x.txt");
  second->WriteLine("2");
  first->WriteLine("3");
  second->WriteLine("4");
  EXPECT_EQ(GetFile("C:\\x.txt"), "1\r\n2\r\n3\r\n4\r\n");
}

TEST_F(FileSystemTest, TheFilesOfAFolderComeWithNameAndPath) {
  PutFile("C:\\x\\a.txt", "");
  PutFile("C:\\x\\ordner\\b.txt", "");
  for (const char* folder : {"C:\\x", "C:\\x\\"}) {
    const auto files = FileSystem().FilesOf(folder);
    ASSERT_EQ(files.size(), 1u);
    EXPECT_EQ(files[0].Name, "a.txt");
    EXPECT_EQ(files[0].Path.Text(), "C:\\x\\a.txt");
  }
}

TEST_F(FileSystemTest, AMissingFolderIsAFault) {
  ExpectFault(FaultNumber::PathNotFound, [] { FileSystem().FilesOf("C:\\fehlt"); });
  ExpectFault(FaultNumber::PathNotFound, [] { FileSystem().FilesOf(""); });
}

TEST_F(FileSystemTest, TheSizeOfAFile) {
  PutFile("C:\\x.txt", "12345");
  EXPECT_EQ(FileSystem().SizeOf("C:\\x.txt"), 5);
  ExpectFault(FaultNumber::FileNotFound, [] { FileSystem().SizeOf("C:\\fehlt.txt"); });
}

}  // namespace
