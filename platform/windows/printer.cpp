#include "platform/printer.h"

#include <array>
#include <cmath>
#include <string>

#include "platform/windows/device.h"
#include "platform/windows/measures.h"
#include "platform/windows/text.h"

namespace platform {

namespace {

constexpr int Font_Points = 10;
constexpr int Points_Per_Inch = 72;
constexpr std::size_t Longest_Title = 64;

struct Printer {
    HDC dc = nullptr;  ///< null: none is open
    HFONT font = nullptr;
    double cursor_x = 0, cursor_y = 0;
    Device_Context device;  ///< whose native context is that one while a document is under way
};

Printer printer;

int Measure(int index) {
    return printer.dc != nullptr ? GetDeviceCaps(printer.dc, index) : 0;
}

void Drop_Document() {
    if (printer.device.dc == nullptr) return;
    windows::Release_Pen(printer.device);
    printer.device.dc = nullptr;
    AbortDoc(printer.dc);
}

void Close_Printer() {
    Drop_Document();
    if (printer.dc == nullptr) return;
    DeleteDC(printer.dc);
    DeleteObject(printer.font);
    printer.dc = nullptr;
}

std::wstring Default_Printer() {
    DWORD size = 0;
    GetDefaultPrinterW(nullptr, &size);
    std::wstring name(size, L'\0');
    if (size == 0 || !GetDefaultPrinterW(name.data(), &size)) return {};
    name.resize(size - 1);  // without the zero at its end
    return name;
}

SIZE Extent(std::string_view text) {
    const std::wstring wide = windows::To_Wide(text);
    SIZE size{};
    GetTextExtentPoint32W(printer.dc, wide.data(), static_cast<int>(wide.size()), &size);
    return size;
}

}  // namespace

bool Open_Printer() {
    Close_Printer();
    const std::wstring name = Default_Printer();
    if (!name.empty()) printer.dc = CreateDCW(L"WINSPOOL", name.c_str(), nullptr, nullptr);
    // Without one the chart is still of use: its page is that of the screen, which takes no
    // document.
    if (printer.dc == nullptr) printer.dc = CreateCompatibleDC(nullptr);
    if (printer.dc == nullptr) return false;
    printer.device.is_page = true;
    printer.device.dots_per_inch = Measure(LOGPIXELSX);
    printer.font =
        windows::Make_Default_Font(MulDiv(Font_Points, Measure(LOGPIXELSY), Points_Per_Inch));
    SelectObject(printer.dc, printer.font);
    return true;
}

Device_Context* Printer_Device() {
    return printer.dc != nullptr ? &printer.device : nullptr;
}

Size Paper_Size() {
    if (printer.dc == nullptr) return {};
    return {Measure(PHYSICALWIDTH) / Printer_Twips_To_Pixels_X(1),
            Measure(PHYSICALHEIGHT) / Printer_Twips_To_Pixels_Y(1)};
}

double Printer_Twips_To_Pixels_X(double twips) {
    return twips * Measure(LOGPIXELSX) / windows::Twips_Per_Inch;
}

double Printer_Twips_To_Pixels_Y(double twips) {
    return twips * Measure(LOGPIXELSY) / windows::Twips_Per_Inch;
}

Size Printable_Size() {
    return {static_cast<double>(Measure(HORZRES)), static_cast<double>(Measure(VERTRES))};
}

bool Start_Page(std::string_view document) {
    if (printer.dc == nullptr || Measure(TECHNOLOGY) == DT_RASDISPLAY) return false;
    Drop_Document();
    const std::wstring title = windows::To_Wide(document.substr(0, Longest_Title));
    DOCINFOW info{};
    info.cbSize = sizeof info;
    info.lpszDocName = title.c_str();
    if (StartDocW(printer.dc, &info) <= 0) return false;
    if (::StartPage(printer.dc) <= 0) {
        AbortDoc(printer.dc);
        return false;
    }
    SetBkMode(printer.dc, TRANSPARENT);
    printer.device.dc = printer.dc;
    printer.device.state_is_set = false;
    Set_Text_Cursor(0, 0);
    return true;
}

void Set_Text_Cursor(double x, double y) {
    printer.cursor_x = x;
    printer.cursor_y = y;
}

Size Text_Size(std::string_view text) {
    if (printer.dc == nullptr) return {};
    TEXTMETRICW metrics;
    GetTextMetricsW(printer.dc, &metrics);
    return {static_cast<double>(Extent(text).cx), static_cast<double>(metrics.tmHeight)};
}

void Print_Line(std::string_view text) {
    TextOutA(Printer_Device(), static_cast<int>(std::lround(printer.cursor_x)),
             static_cast<int>(std::lround(printer.cursor_y)), text);
    Set_Text_Cursor(0, printer.cursor_y + Text_Size(text).height);
}

bool End_Document() {
    if (printer.device.dc == nullptr) return false;
    if (EndPage(printer.dc) <= 0) {
        Drop_Document();
        return false;
    }
    windows::Release_Pen(printer.device);
    printer.device.dc = nullptr;
    return EndDoc(printer.dc) > 0;
}

}  // namespace platform
