// Prints one page on the system's default printer:
//   print_page [wait | measure]
// It tells in a line the dots to the inch, and in dots the size of what can be printed and that of
// the page's first text. With "wait" it waits for a line before it prints, with "measure" it does
// not print. The status is 0 if the printer has taken the page, 1 if not.

#include <QApplication>
#include <iostream>

#include "platform/desktop/program.h"
#include "platform/drawing.h"
#include "platform/printer.h"

using namespace platform;

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    desktop::Set_Up_Application();
    if (!Open_Printer()) return EXIT_FAILURE;
    constexpr std::string_view Text = "S\xE3o Paulo, Z\xFCrich, \x8Alapanice & Co";
    const int width = static_cast<int>(Printable_Size().width);
    const int height = static_cast<int>(Printable_Size().height);
    const Size text = Text_Size(Text);
    std::cout << Printer_Twips_To_Pixels_X(1440) << ' ' << width << ' ' << height << ' '
              << text.width << ' ' << text.height << std::endl;
    const std::string mode = argc > 1 ? argv[1] : "";
    if (mode == "measure") return EXIT_SUCCESS;
    std::string line;
    if (mode == "wait") std::getline(std::cin, line);

    Device_Context* page = Printer_Device();
    Set_Fill_Colour(page, {255, 0, 0});  // which has to outlast the start of the page
    if (!Start_Page("KSEA Chart")) return EXIT_FAILURE;
    Rectangle(page, 0, 0, width, height);
    Set_Pen_Style(page, Pen_Style::Dashed);
    MoveToEx(page, 0, height / 4);
    LineTo(page, width, height / 4);
    Set_Pen_Style(page, Pen_Style::Solid);
    Set_Fill_Style(page, Fill_Style::Solid);
    Rectangle(page, width / 2, height / 20, width * 3 / 4, height / 5);
    // What runs past the edge is cut off.
    TextOutA(page, width - width / 10, height * 3 / 10, "A text that is cut off at the edge");
    Set_Text_Cursor(0.1 * width, 0.2 * height);
    Print_Line(Text);
    Print_Line("2");
    Rectangle(page, width - 200, height / 2, width + 9, height / 2 + 200);
    return End_Document() ? EXIT_SUCCESS : EXIT_FAILURE;
}
