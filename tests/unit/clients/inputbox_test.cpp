// The client and year dialog.
#include "clients/frmInputbox.h"

#include "clients/state.h"
#include "forms/simulated/user.h"
#include "frame/state.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;

constexpr char kUnknown[] = "Der Mandant und das Wirtschaftsjahr konnten nicht ermittelt werden.";

class InputboxTest : public SystemTest {
 protected:
  // The dialog as it comes up over a window with this caption.
  void ShowOver(const std::string& caption) {
    TargetWindow(caption);
    frmInputbox.Show();
  }

  void ExpectFields(const std::string& client, const std::string& year) {
    EXPECT_EQ(frmInputbox.txtMandant.Text(), client);
    EXPECT_EQ(frmInputbox.txtJahr.Text(), year);
  }

  void ExpectAnswer(const std::string& client, const std::string& year) {
    EXPECT_TRUE(frmInputbox.Result());
    EXPECT_EQ(frmInputbox.Mandant(), client);
    EXPECT_EQ(frmInputbox.Jahr(), year);
    EXPECT_EQ(clients.ContextPath, "\\" + client + "\\" + year);
  }
};

TEST_F(InputboxTest, TheFormOfTheCaptionGivesClientAndYearWithTheirBlanks) {
  ShowOver("Program - 0012 / 4711 / 2005 / Asset register");
  ExpectFields(" 4711 ", " 2005 ");
  EXPECT_EQ(frmInputbox.lblInfo.Caption(),
            "Möchten Sie den Mandanten  4711  aus dem Wirtschaftsjahr  2005  übernehmen?");
  forms::simulated::Press(frmInputbox.cmdOK);
  ExpectAnswer(" 4711 ", " 2005 ");
  EXPECT_EQ(clients.ContextPath, "\\ 4711 \\ 2005 ");
  ExpectLog({"Mandant:  4711 ", "Wirtschaftsjahr:  2005 ", ""});
}

TEST_F(InputboxTest, TitlePictureAndWords) {
  ShowOver("TeRu/4711/2005/x");
  EXPECT_EQ(At(frmInputbox.Window()).text, "TARVEN Datenexport");
  EXPECT_EQ(frmInputbox.imgQuest.Icon(), "ICOQST");
  EXPECT_EQ(frmInputbox.Label1.Caption(), "Mandant:");
  EXPECT_EQ(frmInputbox.Label2.Caption(), "Wirtschaftsjahr:");
  EXPECT_EQ(frmInputbox.cmdOK.Caption(), "OK");
  EXPECT_EQ(frmInputbox.cmdCancel.Caption(), "Abbrechen");
  EXPECT_TRUE(At(frmInputbox.Window()).topMost);
}

TEST_F(InputboxTest, ACaptionThatNamesNeitherLeavesTheFieldsEmpty) {
  for (const char* caption : {"TeRu", "", "TeRu - 0012 / 4711", "TeRu/4711/Anlagen"}) {
    ShowOver(caption);
    EXPECT_EQ(frmInputbox.lblInfo.Caption(), kUnknown) << caption;
    ExpectFields("", "");
    frmInputbox.Unload();
  }
}

TEST_F(InputboxTest, WithoutAWindowTheFieldsAreEmpty) {
  frmInputbox.Show();
  EXPECT_EQ(frmInputbox.lblInfo.Caption(), kUnknown);
  ExpectFields("", "");
}

TEST_F(InputboxTest, PartsBehindTheYearAreLeftOut) {
  ShowOver("TeRu/4711/2005/Anlagen/noch etwas");
  ExpectFields("4711", "2005");
}

TEST_F(InputboxTest, EmptyPartsAreTakenAsTheyStand) {
  ShowOver("TeRu///x");
  ExpectFields("", "");
  EXPECT_EQ(frmInputbox.lblInfo.Caption(), "Möchten Sie den Mandanten  aus dem Wirtschaftsjahr  übernehmen?");
}

TEST_F(InputboxTest, ABackslashInTheCaptionSplitsLikeASlash) {
  ShowOver("TeRu/47\\11/2005/x");
  ExpectFields("47", "11");
}

TEST_F(InputboxTest, TheUserMayCorrectBoth) {
  ShowOver("TeRu/4711/2005/x");
  forms::simulated::Type(frmInputbox.txtMandant, "4712");
  forms::simulated::Type(frmInputbox.txtJahr, "2006");
  forms::simulated::Press(frmInputbox.cmdOK);
  ExpectAnswer("4712", "2006");
  ExpectLog({"Mandant: 4712", "Wirtschaftsjahr: 2006", ""});
}

TEST_F(InputboxTest, TheUserMayTypeBothWhereTheCaptionNamesNeither) {
  ShowOver("TeRu");
  forms::simulated::Type(frmInputbox.txtMandant, "4711");
  forms::simulated::Type(frmInputbox.txtJahr, "2005");
  forms::simulated::Press(frmInputbox.cmdOK);
  ExpectAnswer("4711", "2005");
}

TEST_F(InputboxTest, NothingIsValidated) {
  ShowOver("TeRu");
  forms::simulated::Press(frmInputbox.cmdOK);
  ExpectAnswer("", "");
  EXPECT_EQ(clients.ContextPath, "\\\\");
  ExpectLog({"Mandant: ", "Wirtschaftsjahr: ", ""});
}

TEST_F(InputboxTest, LoadingEmptiesTheContextPath) {
  clients.ContextPath = "\\alt\\2004";
  ShowOver("TeRu/4711/2005/x");
  EXPECT_EQ(clients.ContextPath, "");
}

TEST_F(InputboxTest, CancelLeavesTheContextPathEmpty) {
  clients.ContextPath = "\\alt\\2004";
  ShowOver("TeRu/4711/2005/x");
  forms::simulated::Press(frmInputbox.cmdCancel);
  EXPECT_FALSE(frmInputbox.Loaded());
  EXPECT_FALSE(frmInputbox.Result());
  EXPECT_EQ(clients.ContextPath, "");
  EXPECT_TRUE(Log().empty());
}

TEST_F(InputboxTest, CancelBehindAConfirmationIsACancel) {
  ShowOver("TeRu/4711/2005/x");
  forms::simulated::Press(frmInputbox.cmdOK);
  ShowOver("TeRu/4711/2005/x");
  forms::simulated::Press(frmInputbox.cmdCancel);
  EXPECT_FALSE(frmInputbox.Result());
  EXPECT_EQ(clients.ContextPath, "");
}

TEST_F(InputboxTest, ClosingItBySystemMenuIsACancel) {
  ShowOver("TeRu/4711/2005/x");
  forms::simulated::Press(frmInputbox.cmdOK);
  ShowOver("TeRu/4711/2005/x");
  forms::simulated::Close(frmInputbox);
  EXPECT_FALSE(frmInputbox.Loaded());
  EXPECT_FALSE(frmInputbox.Result());
  EXPECT_EQ(clients.ContextPath, "");
}

TEST_F(InputboxTest, TheCaptionIsThatOfTheMainWindow) {
  TargetWindow("TeRu/4711/2005/x");
  Activate(AddWindow({.className = "X", .text = "Andere/4712/2006/x"}));
  frmInputbox.Show();
  ExpectFields("4711", "2005");
}

TEST_F(InputboxTest, AnyCharactersOfTheCaptionComeThrough) {
  const Lines names = {"A \"B\" C", "A=B",        "A, B & C",           "$DATE", "O'Neil", "<*?>|:", "%1 %3", "Größe",
                       "\t",        "  4711\xA0", std::string(250, 'x')};
  for (const std::string& name : names) {
    PutFile(kProgram + "\\QUMAEXP.LOG", "");
    ShowOver("TeRu - 1/" + name + "/2005/x");
    ExpectFields(name, "2005");
    forms::simulated::Press(frmInputbox.cmdOK);
    ExpectAnswer(name, "2005");
    ExpectLog({"Mandant: " + name, "Wirtschaftsjahr: 2005", ""});
  }
}

}  // namespace
