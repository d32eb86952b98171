#include "store/pdf_edit.h"

#include "message_double.h"
#include "store_fixture.h"

namespace {

class PdfEditTest : public StoreTest {
 protected:
  PdfEditTest() {
    writeConfig("[A\nK = 70000\nE =\nS = text\n]\n");
    shownMessages.clear();
  }
};

TEST_F(PdfEditTest, KeepsTheOutcomeOfTheLastStep) {
  PdfEdit edit(nullptr, false);
  EXPECT_STREQ(edit.fileName(), config);
  std::int32_t number = 5;
  EXPECT_FALSE(edit.QueryValue("K", &number, T_LONG, 4, true)) << "no section is open";
  EXPECT_TRUE(edit.OpenKey("/A", sectRead, false));
  EXPECT_EQ(edit.status(), PdfEdit::good);
  EXPECT_FALSE(edit.QueryValue("E", &number, T_LONG, 4, true)) << "an empty value is a failure";
  EXPECT_FALSE(edit.QueryValue("none", &number, T_LONG, 4, true));
  EXPECT_EQ(edit.status(), PdfEdit::failed);
  EXPECT_EQ(number, 5);
  EXPECT_TRUE(edit.QueryValue("K", &number, T_LONG, 4, true));
  EXPECT_EQ(edit.status(), PdfEdit::good);
  EXPECT_EQ(number, 70000);
  char text[8] = "old";
  EXPECT_FALSE(edit.QueryValue("E", text, T_STRING, sizeof text, true));
  EXPECT_STREQ(text, "");
  EXPECT_FALSE(edit.OpenKey("/B", sectRead, false));
  EXPECT_FALSE(edit.QueryValue("K", &number, T_LONG, 4, true)) << "no section is current";
  EXPECT_TRUE(shownMessages.empty());
}

TEST_F(PdfEditTest, LogsSizesThatDoNotFit) {
  const std::string log = logged([] {
    PdfEdit edit(nullptr, false);
    edit.OpenKey("/A", sectRead, false);
    std::int32_t number[2] = {};
    EXPECT_TRUE(edit.QueryValue("K", number, T_CHAR, 2, true));
    EXPECT_TRUE(edit.QueryValue("K", number, T_SHORT, 4, true));
    EXPECT_TRUE(edit.QueryValue("K", number, T_INT, 8, true));
    EXPECT_TRUE(edit.QueryValue("K", number, T_LONG, 2, true));
    EXPECT_EQ(number[0], 70000);
    EXPECT_TRUE(edit.QueryValue("S", number, T_STRING, 8, true));
    edit.OpenKey("/B", sectRead, false);
  });
  EXPECT_EQ(log,
            "pdfFileName == ./etc/atm/odconf\n"
            "QueryValue(K): T_CHAR size is '2'\n"
            "QueryValue(K): T_SHORT size is '4'\n"
            "QueryValue(K): T_LONG size is '8'\n"
            "QueryValue(K): T_LONG size is '2'\n"
            "OpenKey(/B) failed.\n");
}

TEST_F(PdfEditTest, CommitsASectionWhenItIsLeft) {
  const std::string log = logged([] {
    PdfEdit edit(nullptr, false);
    std::int32_t number = 7;
    EXPECT_FALSE(edit.SetValue("K", &number, T_LONG, 4, true)) << "no section is open";
    edit.OpenKey("/A", sectWrite, false);
    EXPECT_TRUE(edit.SetValue("K", &number, T_LONG, 8, true));
    EXPECT_EQ(edit.status(), PdfEdit::good);
    EXPECT_FALSE(edit.SetValue("E", &number, 0, 4, true));
    EXPECT_EQ(edit.status(), PdfEdit::failed);
    edit.OpenKey("/A/B", sectWrite, false);
    EXPECT_EQ(read(config), "[A\nK = 7\nE =\nS = text\n]\n");
    EXPECT_TRUE(edit.SetValue("K", &number, T_LONG, 4, true));
  });
  EXPECT_EQ(read(config), "[A\nK = 7\nE =\nS = text\n\t[B\n\t\tK \t\t\t= 7\n\t]\n]\n");
  EXPECT_EQ(log,
            "pdfFileName == ./etc/atm/odconf\n"
            "WriteKey error: K: 2\n"
            "SetValue(K) failure.\n"
            "SetValue(K): T_LONG size is '8'\n"
            "WriteKey error: E: 2\n"
            "SetValue(E) failure.\n");
}

TEST_F(PdfEditTest, ShowsFailuresThatAreAskedFor) {
  for (const bool display : {false, true}) {
    for (const bool show : {false, true}) {
      shownMessages.clear();
      PdfEdit edit(nullptr, display);
      char value;
      edit.OpenKey("/B", sectRead, show);
      edit.QueryValue("K", &value, T_CHAR, 1, show);
      ASSERT_EQ(shownMessages.size(), display && show ? 2u : 0u);
    }
  }
  EXPECT_EQ(shownMessages[0].text, "Pdf Error On - /B");
  EXPECT_EQ(shownMessages[1].text, "Pdf Error On - K");
  EXPECT_EQ(shownMessages[1].title, "Pdf Error");
  EXPECT_EQ(shownMessages[1].style, 48u);
  PdfEdit(nullptr, true).DisplayError(std::string(400, 'x').c_str());
  EXPECT_EQ(shownMessages[2].text.size(), 255u);
}

}  // namespace
