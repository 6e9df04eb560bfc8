// Printing without a printer, on sheets of a PDF file.

#include "platform/printer.h"

#include <QtCore>
#include <gtest/gtest.h>

#include "tests/conformance/driver.h"

using namespace platform;

class Printing : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(QDir::setCurrent(folder.path()));
        ASSERT_TRUE(Open_Printer());
        driver::Take_Messages();
    }

    QTemporaryDir folder;
};

static bool Print(const char* title) {
    if (!Start_Page(title)) return false;
    Print_Line("Skerrand v2.0");
    return End_Document();
}

TEST_F(Printing, A_File_Must_Not_Be_Overwritten_Or_Bear_A_Name_That_No_Folder_Takes) {
    for (const char* title : {"KSEA Chart", "KSEA Chart", "../A\\B\n", ""})
        EXPECT_TRUE(Print(title)) << title;
    const QStringList files = QDir().entryList(QDir::Files | QDir::Hidden, QDir::Name);
    EXPECT_EQ(files.join('|').toStdString(),
              "KSEA Chart (2).pdf|KSEA Chart.pdf|_.._A_B_.pdf|_.pdf");
    const auto messages = driver::Take_Messages();
    ASSERT_EQ(messages.size(), 4U);
    const std::string path = "\"" + folder.path().toStdString() + "/KSEA Chart (2).pdf\"";
    EXPECT_NE(messages[1].text.find(path), std::string::npos) << messages[1].text;
}

TEST_F(Printing, A_File_That_Cannot_Be_Written_Must_Not_Pass_For_A_Print) {
    ASSERT_TRUE(folder.remove());
    EXPECT_FALSE(Print("KSEA Chart"));
    EXPECT_TRUE(driver::Take_Messages().empty());
}
