#pragma once

#include <string_view>

#include "platform/drawing.h"
#include "platform/window.h"

/// The default printer. Its page is a drawing target whose pixels are the printer's own dots,
/// counted from the top left corner of what can be printed; its drawing state lasts from page to
/// page. Without a printer every question answers empty or zero and nothing is printed.
namespace platform {

/// Takes the printer that is the system's default now, and drops an unfinished document. False if
/// there is none that can be reached; a back-end may open a page in its place that takes no
/// document.
bool Open_Printer();

/// The printer's drawing target; null if no printer is open. What is drawn shows only between
/// `Start_Page` and `End_Document`.
Device_Context* Printer_Device();

/// The whole sheet, in twips.
Size Paper_Size();

/// Twips to dots of the printer, not rounded.
double Printer_Twips_To_Pixels_X(double twips);
double Printer_Twips_To_Pixels_Y(double twips);

/// The part of the sheet that can be printed, in dots.
Size Printable_Size();

/// Starts a document of that name with its first page, the text cursor at the page's origin. What
/// an unfinished document held is dropped. False if the printer takes no document.
bool Start_Page(std::string_view document);

/// Moves the text cursor, where the next line of text is printed, to a point in dots.
void Set_Text_Cursor(double x, double y);

/// Width and line height of a text in the printer's default font, in dots.
Size Text_Size(std::string_view text);

/// Prints a text at the text cursor, in the pen's colour and the default font; the cursor goes on
/// to the start of the next line.
void Print_Line(std::string_view text);

/// Ends the document and sends it to the printer. False if none was begun, or if that fails:
/// nothing of it is printed.
bool End_Document();

}  // namespace platform
