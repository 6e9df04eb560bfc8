// Printing without a printer, on sheets of a PDF file, and the measures that a printer may tell.

#include "platform/printer.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace platform {

namespace {

/// A scratch folder as the working folder, where no printer is reached, least of all a real one.
class Printing : public testing::Test {
  protected:
    void SetUp() override {
        qputenv("CUPS_SERVER", "/no/such/socket");
        ASSERT_TRUE(QDir::setCurrent(folder.path()));
        QObject::connect(&answers, &QTimer::timeout, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) return;
            messages << box->text();
            box->accept();
        });
        answers.start(5);
        ASSERT_TRUE(Open_Printer());
    }

    static std::string Files() {
        return QDir().entryList(QDir::Files | QDir::Hidden, QDir::Name).join('|').toStdString();
    }

    QTemporaryDir folder;
    QTimer answers;
    QStringList messages;
};

bool Print(const char* title) {
    if (!Start_Page(title)) return false;
    Print_Line("Skerrand v2.0");
    return End_Document();
}

TEST_F(Printing, A_File_Must_Not_Be_Overwritten_Or_Bear_A_Name_That_No_Folder_Takes) {
    for (const char* title : {"KSEA Chart", "KSEA Chart", "../A\\B\n", ""})
        EXPECT_TRUE(Print(title)) << title;
    EXPECT_EQ(Files(), "KSEA Chart (2).pdf|KSEA Chart.pdf|_.._A_B_.pdf|_.pdf");
    ASSERT_EQ(messages.size(), 4);
    EXPECT_TRUE(messages[1].contains("\"" + folder.path() + "/KSEA Chart (2).pdf\""))
        << messages[1].toStdString();
}

TEST_F(Printing, A_Dropped_Document_Must_Not_Come_Out_Later) {
    EXPECT_TRUE(Start_Page("dropped"));
    EXPECT_TRUE(Print("printed"));
    EXPECT_TRUE(Start_Page("dropped by opening"));
    EXPECT_TRUE(Open_Printer());
    EXPECT_FALSE(End_Document());
    EXPECT_EQ(Files(), "printed.pdf");
}

TEST_F(Printing, A_Full_Disk_Must_Not_Leave_A_Part_Or_Pass_For_A_Print) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit tiny{100, limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tiny);
    const bool printed = Print("KSEA Chart");
    setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_FALSE(printed);
    EXPECT_EQ(Files(), "");
    EXPECT_TRUE(messages.isEmpty());
    EXPECT_TRUE(Print("KSEA Chart"));
}

TEST_F(Printing, The_Sheet_Must_Not_Be_Taken_For_What_Can_Be_Printed_On_It) {
    constexpr double Five_Millimetres = 5 / 25.4 * 600;  // in dots
    const Size sheet = Paper_Size();
    const Size printable = Printable_Size();
    EXPECT_GT(sheet.width, 11880);  // A4 and Letter are wider
    EXPECT_NEAR(Printer_Twips_To_Pixels_X(sheet.width) - printable.width, 2 * Five_Millimetres, 3);
    EXPECT_NEAR(Printer_Twips_To_Pixels_Y(sheet.height) - printable.height, 2 * Five_Millimetres,
                3);
    // Two lines fill the title's box: they are as high as the cursor goes down, near 12 points.
    EXPECT_NEAR(Text_Size("KSEA").height, 12 * 600 / 72.0, 25);
    EXPECT_NEAR(Text_Size("KSEA KSEA").width, Text_Size("KSEA ").width + Text_Size("KSEA").width,
                2);
}

}  // namespace

}  // namespace platform
