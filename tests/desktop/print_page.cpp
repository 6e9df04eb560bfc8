// Prints one page on the system's default printer:
//   print_page [wait]
// With "wait" it waits for a line of input between opening the printer and printing. The status is
// 0 if the printer has taken the page, 1 if not.

#include <QApplication>
#include <cstdlib>
#include <iostream>
#include <string>

#include "platform/desktop/application.h"
#include "platform/drawing.h"
#include "platform/printer.h"

namespace {

using namespace platform;

void Frame(Device_Context* page, int width, int height) {
    Rectangle(page, 0, 0, width, height);
    Set_Pen_Colour(page, {0, 0, 255});
    Set_Pen_Style(page, Pen_Style::Dashed);
    MoveToEx(page, 0, height / 4);
    LineTo(page, width, height / 4);
    Ellipse(page, width / 10, height / 2, width * 9 / 10, height * 9 / 10);
    Set_Pen_Style(page, Pen_Style::Solid);
    Set_Pen_Width(page, 4);
    MoveToEx(page, 0, height / 3);
    LineTo(page, width, height / 3);
    Set_Pen_Width(page, 1);
}

void Figures(Device_Context* page, int width, int height) {
    Set_Fill_Style(page, Fill_Style::Solid);
    Set_Fill_Colour(page, {255, 0, 0});
    Rectangle(page, width / 2, height / 20, width * 3 / 4, height / 5);
    Set_Pen_Colour(page, {});
    TextOutA(page, width / 10, height / 5,
             "S\xE3o Paulo, Z\xFCrich, \x8Alapanice: 1L ILS 110.30 & Co");
    TextOutA(page, width - width / 10, height * 3 / 10, "A text that is cut off at the edge");
    Set_Fill_Style(page, Fill_Style::Hollow);
    Print_Line("Skerrand v2.0");
    Print_Line("Seattle-Tacoma Intl  (KSEA)");
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    desktop::Set_Up_Application();
    if (!Open_Printer()) return EXIT_FAILURE;
    if (argc > 1) {
        std::cout << "open" << std::endl;
        std::string line;
        std::getline(std::cin, line);
    }
    if (!Start_Page("KSEA Chart")) return EXIT_FAILURE;
    const int width = static_cast<int>(Printable_Size().width);
    const int height = static_cast<int>(Printable_Size().height);
    Frame(Printer_Device(), width, height);
    Figures(Printer_Device(), width, height);
    return End_Document() ? EXIT_SUCCESS : EXIT_FAILURE;
}
