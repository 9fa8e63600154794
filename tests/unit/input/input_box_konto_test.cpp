// The question for an account and its bank code.
#include "forms/simulated/user.h"
#include "input/frmInputBoxKonto.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace support;
namespace user = forms::simulated;

class InputBoxKontoTest : public SystemTest {
 protected:
  static void Answer(const std::string& konto, const std::string& blz) {
    frmInputBoxKonto.Show();
    user::Type(frmInputBoxKonto.txtKonto, konto);
    user::Type(frmInputBoxKonto.txtBLZ, blz);
    user::Press(frmInputBoxKonto.cmdOK);
  }

  static void ExpectAnswer(const std::string& konto, const std::string& blz) {
    EXPECT_EQ(frmInputBoxKonto.Konto(), konto);
    EXPECT_EQ(frmInputBoxKonto.BLZ(), blz);
  }
};

TEST_F(InputBoxKontoTest, TitleAndWords) {
  frmInputBoxKonto.Show();
  EXPECT_EQ(platform::simulated::At(frmInputBoxKonto.Window()).text, "TARVEN Datenexport");
  EXPECT_EQ(frmInputBoxKonto.lblInfo.Caption(), "Bitte geben Sie die Konto-Nr und BLZ ein");
  EXPECT_EQ(frmInputBoxKonto.Label1.Caption(), "Konto:");
  EXPECT_EQ(frmInputBoxKonto.Label2.Caption(), "BLZ:");
  EXPECT_EQ(frmInputBoxKonto.cmdOK.Caption(), "OK");
  EXPECT_EQ(frmInputBoxKonto.cmdCancel.Caption(), "Abbrechen");
}

TEST_F(InputBoxKontoTest, OkTakesBothTextsAndCloses) {
  Answer("4711", "10020030");
  EXPECT_FALSE(frmInputBoxKonto.Loaded());
  ExpectAnswer("4711", "10020030");
  ExpectLog({"Konto / Blz Dialog"});
}

TEST_F(InputBoxKontoTest, NothingIsValidated) {
  Answer("kein Konto; ", "");
  ExpectAnswer("kein Konto; ", "");
}

TEST_F(InputBoxKontoTest, CancelLeavesTheAnswerBeforeIt) {
  Answer("4711", "10020030");
  frmInputBoxKonto.Show();
  user::Type(frmInputBoxKonto.txtKonto, "1");
  user::Press(frmInputBoxKonto.cmdCancel);
  EXPECT_FALSE(frmInputBoxKonto.Loaded());
  ExpectAnswer("4711", "10020030");
  ExpectLog({"Konto / Blz Dialog"});
}

TEST_F(InputBoxKontoTest, ClosingItBySystemMenuIsACancel) {
  Answer("4711", "10020030");
  frmInputBoxKonto.Show();
  user::Type(frmInputBoxKonto.txtKonto, "1");
  user::Close(frmInputBoxKonto);
  ExpectAnswer("4711", "10020030");
}

TEST_F(InputBoxKontoTest, TheAnswerIsEmptyOnTheFirstUse) {
  InputBoxKontoForm first;
  first.Show();
  user::Press(first.cmdCancel);
  EXPECT_EQ(first.Konto(), "");
  EXPECT_EQ(first.BLZ(), "");
}

TEST_F(InputBoxKontoTest, TheFieldsComeUpEmptyEachTime) {
  Answer("4711", "10020030");
  frmInputBoxKonto.Show();
  EXPECT_EQ(frmInputBoxKonto.txtKonto.Text(), "");
  EXPECT_EQ(frmInputBoxKonto.txtBLZ.Text(), "");
}

}  // namespace
