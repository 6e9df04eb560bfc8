// Printing without a printer, on sheets of a PDF file.

#include "platform/printer.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

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

TEST_F(Printing, A_File_That_Cannot_Be_Written_Must_Not_Pass_For_A_Print) {
    ASSERT_TRUE(folder.remove());
    EXPECT_FALSE(Print("KSEA Chart"));
    EXPECT_TRUE(messages.isEmpty());
}

}  // namespace

}  // namespace platform
