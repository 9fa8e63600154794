// The file dialog's record, and what comes back.
#include "environment/file_dialog.h"

#include "frame/frmMain.h"
#include "platform/simulated/desktop.h"
#include "support/system.h"

namespace {

using namespace basAPI;
using namespace platform::simulated;

class FileDialogTest : public support::SystemTest {};

TEST_F(FileDialogTest, TheRecordWithoutAnyArgument) {
  support::StartProgram();
  FileDialog dialog;
  ShowFileDialog(dialog);
  ASSERT_EQ(FileDialogs().size(), 1u);
  const platform::OPENFILENAME& record = FileDialogs()[0];
  EXPECT_EQ(record.hwndOwner, basMain::frmMain.Window());
  EXPECT_EQ(record.lpstrFilter, "");
  EXPECT_EQ(record.lpstrCustomFilter, std::string(255, '\0'));
  EXPECT_EQ(record.nFilterIndex, 1u);
  EXPECT_EQ(record.lpstrFile, std::string(256, '\0'));
  EXPECT_EQ(record.lpstrFileTitle, std::string(256, '\0'));
  EXPECT_EQ(record.lpstrInitialDir, "C:\\QUMA");
  EXPECT_EQ(record.lpstrTitle, "");
  EXPECT_EQ(record.Flags, 0u);
  EXPECT_EQ(record.lpstrDefExt, "");
}

TEST_F(FileDialogTest, TheRecordWithAllArguments) {
  FileDialog dialog;
  dialog.directory = "C:\\x";
  dialog.filter = AddFileFilter("", "Alles");
  dialog.filterIndex = 2;
  dialog.flags = 4100;
  dialog.defaultExtension = "exe";
  dialog.fileName = "tarven.exe";
  dialog.title = "Titel";
  dialog.owner = 1234;
  ShowFileDialog(dialog);
  ASSERT_EQ(FileDialogs().size(), 1u);
  const platform::OPENFILENAME& record = FileDialogs()[0];
  EXPECT_EQ(record.hwndOwner, 1234);
  EXPECT_EQ(record.lpstrFilter, std::string("Alles\0*.*\0", 10));
  EXPECT_EQ(record.nFilterIndex, 2u);
  EXPECT_EQ(record.lpstrFile, "tarven.exe" + std::string(246, '\0'));
  EXPECT_EQ(record.lpstrInitialDir, "C:\\x");
  EXPECT_EQ(record.lpstrTitle, "Titel");
  EXPECT_EQ(record.Flags, 4100u);
  EXPECT_EQ(record.lpstrDefExt, "exe");
}

TEST_F(FileDialogTest, AnEmptyDirectoryIsNotTheDefault) {
  FileDialog dialog;
  dialog.directory = "";
  ShowFileDialog(dialog);
  EXPECT_EQ(FileDialogs()[0].lpstrInitialDir, "");
}

TEST_F(FileDialogTest, AFileNameBeyond256CharactersIsCut) {
  FileDialog dialog;
  dialog.fileName = std::string(300, 'x');
  ShowFileDialog(dialog);
  EXPECT_EQ(FileDialogs()[0].lpstrFile, std::string(256, 'x'));
}

TEST_F(FileDialogTest, TheChosenPathComesBackWithoutItsNuls) {
  PutFile("C:\\x\\datei.txt", "");
  AnswerFileDialog("C:\\x\\datei.txt");
  FileDialog dialog;
  dialog.fileName = "ein langer Vorschlag, von dem nichts übrig bleibt.txt";
  EXPECT_EQ(ShowFileDialog(dialog), "C:\\x\\datei.txt");
}

TEST_F(FileDialogTest, TheFlagsComeBackAsTheDialogLeavesThem) {
  PutFile("C:\\x\\datei.txt", "");
  AnswerFileDialog("C:\\x\\datei.txt");
  FileDialog dialog;
  dialog.flags = 4100;
  dialog.defaultExtension = "exe";
  ShowFileDialog(dialog);
  EXPECT_EQ(dialog.flags, 4100 | OFN_EXTENSIONDIFFERENT);
}

TEST_F(FileDialogTest, CancelYieldsNothing) {
  FileDialog dialog;
  dialog.fileName = "tarven.exe";
  dialog.flags = 4100;
  EXPECT_EQ(ShowFileDialog(dialog), "");
  EXPECT_EQ(dialog.flags, 4100u);
}

TEST_F(FileDialogTest, ADialogThatCannotBeShownYieldsNothing) {
  AnswerFileDialog("C:\\x\\datei.txt");
  Fail("GetOpenFileNameA", 1);
  FileDialog dialog;
  EXPECT_EQ(ShowFileDialog(dialog), "");
  EXPECT_EQ(ShowFileDialog(dialog), "C:\\x\\datei.txt") << "the next one comes up";
}

TEST_F(FileDialogTest, OpenAndSaveAreTwoDialogs) {
  AnswerFileDialog("C:\\QUMA\\neu.txt");
  AnswerFileDialog("C:\\QUMA\\neu.txt");
  FileDialog save;
  save.open = false;
  Fail("GetOpenFileNameA");
  EXPECT_EQ(ShowFileDialog(save), "C:\\QUMA\\neu.txt");
  Fail("GetOpenFileNameA", 0);
  Fail("GetSaveFileNameA");
  FileDialog open;
  EXPECT_EQ(ShowFileDialog(open), "C:\\QUMA\\neu.txt");
}

TEST_F(FileDialogTest, FiltersAreAddedInTheDoubleNulForm) {
  const std::string one = AddFileFilter("", "Programme", "*.exe");
  EXPECT_EQ(one, std::string("Programme\0*.exe\0", 16));
  EXPECT_EQ(AddFileFilter(one, "Alles"), std::string("Programme\0*.exe\0Alles\0*.*\0", 26));
}

}  // namespace
