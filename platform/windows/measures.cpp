#include "platform/windows/measures.h"

#include <cmath>
#include <string>

#include "platform/windows/text.h"

namespace platform {

namespace windows {

namespace {

constexpr double Default_Points = 8.25;
constexpr double Points_Per_Inch = 72;

int Font_Pixels(double points) {
    return static_cast<int>(std::lround(points * Screen_Dpi() / Points_Per_Inch));
}

HFONT New_Font(int pixels, bool bold, const wchar_t* family) {
    return CreateFontW(-pixels, 0, 0, 0, bold ? FW_BOLD : FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET,
                       OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                       DEFAULT_PITCH | FF_SWISS, family);
}

/// Width of the small letters in sizes of the font that the measures were made for; in a wider face
/// captions would be cut.
constexpr double Widest_Alphabet = 13.4;

bool Is_Narrow(const wchar_t* family) {
    constexpr int Size = 32;
    const HFONT font = New_Font(Size, false, family);
    const LONG width = Text_Extent(font, L"abcdefghijklmnopqrstuvwxyz").cx;
    DeleteObject(font);
    return width <= Widest_Alphabet * Size;
}

/// The outline face of the one that the windows' measures were made for: that one itself comes in
/// some sizes only, and is drawn out to others. The system puts another face in the place of one
/// that it does not have, and that may be a wide one.
const wchar_t* Default_Family() {
    static const wchar_t* const family = [] {
        for (const wchar_t* name :
             {L"Microsoft Sans Serif", L"MS Sans Serif", L"Arial", L"DejaVu Sans Condensed"}) {
            if (Is_Narrow(name)) return name;
        }
        return L"MS Shell Dlg";
    }();
    return family;
}

}  // namespace

int Screen_Dpi() {
    static const int dpi = [] {
        const HDC screen = GetDC(nullptr);
        const int dots = GetDeviceCaps(screen, LOGPIXELSX);
        ReleaseDC(nullptr, screen);
        return dots;
    }();
    return dpi;
}

int To_Pixels(int twips) {
    return static_cast<int>(std::lround(twips * Screen_Dpi() / Twips_Per_Inch));
}

RECT To_Pixels(const Box& box) {
    return {To_Pixels(box.left), To_Pixels(box.top), To_Pixels(box.left + box.width),
            To_Pixels(box.top + box.height)};
}

HFONT Default_Font() {
    static const HFONT font = Make_Default_Font(Font_Pixels(Default_Points));
    return font;
}

HFONT Make_Default_Font(int pixels) {
    return New_Font(pixels, false, Default_Family());
}

HFONT Make_Font(const Font& font) {
    const std::string_view name = font.name;
    if (name.empty() && font.size <= 0 && !font.bold) return nullptr;
    const std::wstring wide = To_Wide(name);
    const bool is_default = name.empty() || name == "MS Sans Serif";
    return New_Font(Font_Pixels(font.size > 0 ? font.size : Default_Points), font.bold,
                    is_default ? Default_Family() : wide.c_str());
}

HFONT Make_Narrow_Font(HFONT font, std::wstring_view text, int room) {
    constexpr int Least_Stretch = 75;  // per cent
    TEXTMETRICW metrics;
    LOGFONTW narrow;
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ old = SelectObject(screen, font);
    GetTextMetricsW(screen, &metrics);
    SelectObject(screen, old);
    ReleaseDC(nullptr, screen);
    GetObjectW(font, sizeof narrow, &narrow);
    HFONT made = nullptr;
    narrow.lfWidth = metrics.tmAveCharWidth;
    do {
        if (made != nullptr) DeleteObject(made);
        --narrow.lfWidth;
        made = CreateFontIndirectW(&narrow);
    } while (Text_Extent(made, text).cx > room &&
             (narrow.lfWidth - 1) * 100 >= metrics.tmAveCharWidth * Least_Stretch);
    return made;
}

SIZE Text_Extent(HFONT font, std::wstring_view text) {
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ old = SelectObject(screen, font);
    SIZE size{};
    GetTextExtentPoint32W(screen, text.data(), static_cast<int>(text.size()), &size);
    SelectObject(screen, old);
    ReleaseDC(nullptr, screen);
    return size;
}

}  // namespace windows

double Twips_To_Pixels_X(double twips) {
    return twips * windows::Screen_Dpi() / windows::Twips_Per_Inch;
}

double Twips_To_Pixels_Y(double twips) {
    return Twips_To_Pixels_X(twips);
}

}  // namespace platform
