#include "platform/windows/canvas.h"

#include <algorithm>

#include "platform/windows/measures.h"

namespace platform::windows {

namespace {

SIZE Client_Size(const Live_Window& window) {
    RECT client;
    GetClientRect(window.handle, &client);
    return {std::max<LONG>(client.right, 1), std::max<LONG>(client.bottom, 1)};
}

/// 32 bits a pixel, rows from the top.
HBITMAP New_Bitmap(SIZE size) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    return CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

HDC New_Context(HBITMAP bitmap) {
    const HDC dc = CreateCompatibleDC(nullptr);
    SelectObject(dc, bitmap);
    SelectObject(dc, Default_Font());
    SetBkMode(dc, TRANSPARENT);
    return dc;
}

/// The picture of the splash window, which lies packed in the program, twice as large.
void Draw_Picture(HDC dc, const RECT& place) {
    const HRSRC found = FindResourceW(nullptr, L"picture", RT_BITMAP);
    const auto* info = static_cast<const BITMAPINFO*>(LockResource(LoadResource(nullptr, found)));
    const BITMAPINFOHEADER& size = info->bmiHeader;
    const HBITMAP bitmap =
        CreateDIBitmap(dc, &size, CBM_INIT, info->bmiColors + size.biClrUsed, info, DIB_RGB_COLORS);
    const HDC whole = New_Context(bitmap);
    SetStretchBltMode(dc, HALFTONE);
    SetBrushOrgEx(dc, 0, 0, nullptr);
    StretchBlt(dc, place.left, place.top, place.right - place.left, place.bottom - place.top, whole,
               0, 0, size.biWidth, size.biHeight, SRCCOPY);
    DeleteDC(whole);
    DeleteObject(bitmap);
}

void Fill_All(const Live_Window& window) {
    const RECT all{0, 0, window.bitmap_size.cx, window.bitmap_size.cy};
    FillRect(window.device.dc, &all, window.back_brush);
    for (const Live_Control& control : window.controls) {
        if (control.row->kind == Control_Kind::Picture)
            Draw_Picture(window.device.dc, control.place);
    }
}

}  // namespace

void Open_Canvas(Live_Window& window) {
    window.device.dots_per_inch = Screen_Dpi();
    Fit_Canvas(window);
}

void Close_Canvas(Live_Window& window) {
    if (window.device.dc == nullptr) return;
    Release_Pen(window.device);
    DeleteDC(window.device.dc);
    DeleteObject(window.bitmap);
    window.device.dc = nullptr;
}

void Fit_Canvas(Live_Window& window) {
    const SIZE size = Client_Size(window);
    const HDC old = window.device.dc;
    const SIZE old_size = window.bitmap_size;
    if (old != nullptr && old_size.cx == size.cx && old_size.cy == size.cy) return;
    const HBITMAP old_bitmap = window.bitmap;
    if (old != nullptr) Release_Pen(window.device);
    window.bitmap = New_Bitmap(size);
    window.bitmap_size = size;
    window.device.dc = New_Context(window.bitmap);
    Fill_All(window);
    if (old != nullptr) {
        BitBlt(window.device.dc, 0, 0, old_size.cx, old_size.cy, old, 0, 0, SRCCOPY);
        DeleteDC(old);
        DeleteObject(old_bitmap);
    }
    window.device.has_changed = true;
    Show_Canvas(window);
}

void Live_Window::Wipe() {
    if (device.dc == nullptr) return;
    Fill_All(*this);
    device.has_changed = true;
}

void Show_Canvas(Live_Window& window) {
    if (!window.device.has_changed) return;
    window.device.has_changed = false;
    InvalidateRect(window.handle, nullptr, FALSE);
    for (const Live_Control& control : window.controls) {
        if (control.row->kind == Control_Kind::Label && control.transparent)
            InvalidateRect(control.handle, nullptr, FALSE);
    }
}

void Paint_Canvas(Live_Window& window) {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(window.handle, &paint);
    const RECT& part = paint.rcPaint;
    BitBlt(dc, part.left, part.top, part.right - part.left, part.bottom - part.top,
           window.device.dc, part.left, part.top, SRCCOPY);
    EndPaint(window.handle, &paint);
}

void Paint_Behind(const Live_Control& label, HDC dc) {
    const RECT& place = label.place;
    BitBlt(dc, 0, 0, place.right - place.left, place.bottom - place.top, label.Holder().device.dc,
           place.left, place.top, SRCCOPY);
}

}  // namespace platform::windows
