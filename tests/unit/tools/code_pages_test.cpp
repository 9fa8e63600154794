#include "common/code_pages.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using tools::Encoding;
using tools::EncodingOf;
using namespace std::string_literals;

TEST(CodePages, TellsTheEncodingOfAFile) {
  EXPECT_EQ(EncodingOf(""), Encoding::CodePage);
  EXPECT_EQ(EncodingOf("MSG=a\r\n"), Encoding::CodePage);
  EXPECT_EQ(EncodingOf("MSG=Größe"), Encoding::CodePage);  // the tests' literals are in the code page
  EXPECT_EQ(EncodingOf("MSG=Gr\xC3\xB6\xC3\x9F"
                       "e"),
            Encoding::Utf8);
  EXPECT_EQ(EncodingOf("MSG=Gr\xC3\xB6\xDF"
                       "e"),
            Encoding::CodePage);  // one byte that does not fit
  EXPECT_EQ(EncodingOf("\xEF\xBB\xBFMSG=a"), Encoding::Utf8WithMark);
  EXPECT_EQ(EncodingOf("\xFF\xFEM\0S\0"s), Encoding::Utf16WithMark);
  EXPECT_EQ(EncodingOf("\xFE\xFF\0M\0S"s), Encoding::Utf16WithMark);
  EXPECT_EQ(EncodingOf("M\0S\0G\0=\0"s), Encoding::Utf16);
  EXPECT_EQ(EncodingOf("\0M\0S\0G\0="s), Encoding::Utf16);
}

TEST(CodePages, NulsHereAndThereAreNoUtf16) {
  EXPECT_EQ(EncodingOf("MSG=a\0b\0"s), Encoding::CodePage);
  EXPECT_EQ(EncodingOf("\0\0\0\0"s), Encoding::CodePage);
}

TEST(CodePages, TakesUtf8AndTheCodePageForAProgramText) {
  EXPECT_EQ(tools::ProgramText("Gr\xC3\xB6\xC3\x9F"
                               "e"),
            "Größe");
  EXPECT_EQ(tools::ProgramText("\xEF\xBB\xBFGr\xC3\xB6"), "Grö");
  EXPECT_EQ(tools::ProgramText("Größe"), "Größe");
}

}  // namespace
