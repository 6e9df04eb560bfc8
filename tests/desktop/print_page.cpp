// Prints one page on the system's default printer:
//   print_page [wait]
// With "wait" it waits for a line of input between opening the printer and printing. The status is
// 0 if the printer has taken the page, 1 if not.

#include <QApplication>
#include <cstdlib>
#include <iostream>
#include <string>

#include "platform/desktop/program.h"
#include "platform/drawing.h"
#include "platform/printer.h"

using namespace platform;

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    desktop::Set_Up_Application();
    if (!Open_Printer()) return EXIT_FAILURE;
    if (argc > 1) {
        std::cout << "open" << std::endl;
        std::string line;
        std::getline(std::cin, line);
    }
    Device_Context* page = Printer_Device();
    Set_Fill_Colour(page, {255, 0, 0});  // which has to outlast the start of the page
    if (!Start_Page("KSEA Chart")) return EXIT_FAILURE;
    const int width = static_cast<int>(Printable_Size().width);
    const int height = static_cast<int>(Printable_Size().height);
    Rectangle(page, 0, 0, width, height);
    Set_Pen_Style(page, Pen_Style::Dashed);
    MoveToEx(page, 0, height / 4);
    LineTo(page, width, height / 4);
    Set_Pen_Style(page, Pen_Style::Solid);
    Set_Fill_Style(page, Fill_Style::Solid);
    Rectangle(page, width / 2, height / 20, width * 3 / 4, height / 5);
    TextOutA(page, width / 10, height / 5, "S\xE3o Paulo, Z\xFCrich, \x8Alapanice & Co");
    TextOutA(page, width - width / 10, height * 3 / 10, "A text that is cut off at the edge");
    return End_Document() ? EXIT_SUCCESS : EXIT_FAILURE;
}
