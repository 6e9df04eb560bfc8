#include "platform/windows/controls.h"
#include "platform/windows/measures.h"
#include "platform/windows/paths.h"
#include "platform/windows/text.h"

namespace platform::windows {

namespace {

std::wstring Label_Of(const std::wstring& root) {
    wchar_t label[MAX_PATH + 1] = L"";
    if (GetDriveTypeW(root.c_str()) == DRIVE_FIXED) {
        GetVolumeInformationW(root.c_str(), label, MAX_PATH, nullptr, nullptr, nullptr, nullptr, 0);
    }
    return label[0] != L'\0' ? L" [" + std::wstring(label) + L"]" : L"";
}

bool Is_Root(const std::wstring& whole) {
    return whole.ends_with(L'\\');
}

std::wstring Joined(const std::wstring& folder, const std::wstring& name) {
    return Is_Root(folder) ? folder + name : folder + L'\\' + name;
}

using Names = std::vector<std::wstring>;

void Fill(Live_Control& list) {
    const std::wstring whole = To_Wide(list.folder);
    list.subfolders = Names_In(Long_Form(whole), Entry_Kind::Folder).value_or(Names());
    SendMessageW(list.handle, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list.handle, LB_RESETCONTENT, 0, 0);
    const auto add = [&list](const wchar_t* name) {
        SendMessageW(list.handle, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
    };
    if (!Is_Root(whole)) add(L"..");
    list.entries.clear();
    for (const std::wstring& name : list.subfolders) {
        list.entries.push_back(From_Wide_Lossy(name));
        add(name.c_str());
    }
    SendMessageW(list.handle, LB_SETCURSEL, 0, 0);
    SendMessageW(list.handle, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list.handle, nullptr, TRUE);
    SetWindowTextW(list.path_line, whole.c_str());
}

/// False, changing nothing, if there is no such folder or it is the same.
bool Go_To(Live_Control& list, const std::wstring& whole) {
    const auto text = From_Wide(whole);
    if (!text || *text == list.folder || !Is_Folder(whole)) return false;
    list.folder = *text;
    Fill(list);
    return true;
}

LRESULT CALLBACK List_Procedure(HWND handle, UINT message, WPARAM first, LPARAM second, UINT_PTR,
                                DWORD_PTR reference) {
    if (message == WM_GETDLGCODE && first == VK_RETURN) return DLGC_WANTALLKEYS;
    if (message == WM_KEYDOWN && first == VK_RETURN) {
        Walk_Folder_List(*reinterpret_cast<Live_Control*>(reference));
        return 0;
    }
    return DefSubclassProc(handle, message, first, second);
}

}  // namespace

void Fill_Drives(Live_Control& list) {
    const std::wstring here = Whole_Path(L".");
    const DWORD drives = GetLogicalDrives();
    for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) {
        if ((drives >> (letter - L'A') & 1) == 0) continue;
        const std::wstring name = {letter, L':'};
        const std::wstring entry = name + Label_Of(name + L'\\');
        list.entries.push_back(From_Wide_Lossy(entry));
        const auto place =
            SendMessageW(list.handle, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
        if (here.starts_with(letter)) {
            SendMessageW(list.handle, CB_SETCURSEL, static_cast<WPARAM>(place), 0);
            list.selected = static_cast<int>(place);
        }
    }
}

void Set_Up_Folder_List(Live_Control& list) {
    const RECT& place = list.place;
    const LONG line = Text_Extent(Default_Font(), L"X").cy + 2;
    const int width = place.right - place.left;
    list.path_line = CreateWindowExW(
        0, L"STATIC", L"", WS_CHILD | WS_VISIBLE | SS_NOPREFIX | SS_PATHELLIPSIS, place.left,
        place.top, width, line, list.Holder().handle, nullptr, GetModuleHandleW(nullptr), nullptr);
    SendMessageW(list.path_line, WM_SETFONT, reinterpret_cast<WPARAM>(Default_Font()), FALSE);
    MoveWindow(list.handle, place.left, place.top + line, width, place.bottom - place.top - line,
               FALSE);
    SetWindowSubclass(list.handle, List_Procedure, 0, reinterpret_cast<DWORD_PTR>(&list));
    if (!Go_To(list, Whole_Path(L"."))) Go_To(list, Whole_Path(L"\\"));
}

void Walk_Folder_List(Live_Control& list) {
    if (Is_Busy()) return;
    const std::wstring here = To_Wide(list.folder);
    const auto row = SendMessageW(list.handle, LB_GETCURSEL, 0, 0) - (Is_Root(here) ? 0 : 1);
    if (row >= static_cast<LRESULT>(list.subfolders.size())) return;
    const std::wstring name = row < 0 ? L".." : list.subfolders[static_cast<std::size_t>(row)];
    const std::wstring there = Whole_Path(Joined(here, name));
    if (!From_Wide(there)) {
        Refuse_Folder(From_Wide_Lossy(there));
    } else if (Go_To(list, there)) {
        Fire(list);
    }
}

bool Live_Control::Go_To(std::string_view path) {
    // A drive's name alone is what the system takes it for: that drive's current folder.
    return windows::Go_To(*this, Whole_Path(path.empty() ? L"." : To_Wide(path)));
}

}  // namespace platform::windows
