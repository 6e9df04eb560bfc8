#include <climits>
#include <filesystem>
#include <iterator>

#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/headless/program.h"
#include "platform/headless/protocol.h"

// What a user does with controls, and with a window's client area and frame.
namespace platform::headless {

namespace {

void Click(Arguments arguments, Reply& reply) {
    const Target target = Control_Named(arguments[0], reply);
    if (!target) return;
    const Control& row = target.Row();
    const bool is_option = row.kind == Control_Kind::Option;
    if (row.kind != Control_Kind::Check && !is_option && row.kind != Control_Kind::Button &&
        row.kind != Control_Kind::Menu) {
        return Fail(reply, "this control cannot be clicked");
    }
    if (!Takes_Input(target, reply)) return;
    // Choosing an option button anew calls its handler too.
    if (is_option && target.State().checked) return Call(row.handler);
    Take_Click(target.State());
}

void Double_Click(Arguments arguments, Reply& reply) {
    const Target list = Control_Named(arguments[0], Control_Kind::List, reply);
    if (list && Takes_Input(list, reply)) Call(list.Row().handler);
}

void Pick(Arguments arguments, Reply& reply) {
    const Target target = Control_Named(arguments[0], reply);
    if (!target) return;
    const Control_Kind kind = target.Row().kind;
    if (kind != Control_Kind::Combo && kind != Control_Kind::List) {
        return Fail(reply, "nothing can be picked from this control");
    }
    const auto index = Whole_Number(arguments[1], -1, Entry_Count(target.Ref()) - 1, reply);
    if (index && Takes_Input(target, reply)) Take_Pick(target.State(), static_cast<int>(*index));
}

void Type(Arguments arguments, Reply& reply) {
    const Target combo = Control_Named(arguments[0], Control_Kind::Combo, reply);
    if (!combo) return;
    const auto text = Program_Text(arguments[1], reply);
    if (text && Takes_Input(combo, reply)) Set_Text(combo.Ref(), *text);
}

/// By its native name, since the program has none for a folder that Windows-1252 cannot write.
bool Is_Folder(std::string_view utf8) {
    std::error_code ignored;
    return std::filesystem::is_directory(std::u8string(utf8.begin(), utf8.end()), ignored);
}

void Move_To_Folder(Arguments arguments, Reply& reply) {
    const Target list = Control_Named(arguments[0], Control_Kind::Folder, reply);
    if (!list) return;
    const auto path = From_Utf8(arguments[1]);
    const bool exists = path ? !path->empty() && Folder_Exists(*path) : Is_Folder(arguments[1]);
    if (!exists) return Fail(reply, "no such folder");
    if (!Takes_Input(list, reply)) return;
    const std::string whole = path ? Whole_Path(*path) : std::string();
    if (whole.empty()) return Refuse_Folder(From_Utf8_Lossy(arguments[1]));
    Move_Folder_List(list.State(), whole);
    Call(list.Row().handler);
}

void Choose_Drive(Arguments arguments, Reply& reply) {
    const Target list = Control_Named(arguments[0], Control_Kind::Drive, reply);
    if (!list) return;
    const auto index = Whole_Number(arguments[1], 0, Entry_Count(list.Ref()) - 1, reply);
    if (!index || !Takes_Input(list, reply)) return;
    Take_Pick(list.State(), static_cast<int>(*index));
    Call(list.Row().handler);
}

std::optional<Mouse_Button> Button_Named(std::string_view name) {
    if (name == "left") return Mouse_Button::Left;
    if (name == "middle") return Mouse_Button::Middle;
    if (name == "right") return Mouse_Button::Right;
    return std::nullopt;
}

void Press(Arguments arguments, Reply& reply) {
    const Form* form = Form_Named(arguments[0], reply);
    if (form == nullptr) return;
    const auto button = Button_Named(arguments[1]);
    if (!button) return Fail(reply, "no such button");
    const auto x = Whole_Number(arguments[2], 0, form->client_width - 1, reply);
    const auto y = Whole_Number(arguments[3], 0, form->client_height - 1, reply);
    if (!x || !y || !Takes_Input(*form, reply)) return;
    if (Is_Covered(*form, static_cast<int>(*x), static_cast<int>(*y))) return;
    form->Take_Press(*button, static_cast<double>(*x), static_cast<double>(*y),
                     {form->client_width, form->client_height});
}

void Resize(Arguments arguments, Reply& reply) {
    Form* form = Form_Named(arguments[0], reply);
    if (form == nullptr) return;
    if (form->table.frame != Frame_Style::Sizable || form->minimised) {
        return Fail(reply, "this window cannot be resized");
    }
    const auto width = Whole_Number(arguments[1], Frame_Width(form->table), INT_MAX, reply);
    const auto height = Whole_Number(arguments[2], Frame_Height(form->table), INT_MAX, reply);
    if (!width || !height || !Takes_Input(*form, reply)) return;
    Resize_Form(*form, static_cast<int>(*width), static_cast<int>(*height));
}

void Minimise_Window(Arguments arguments, Reply& reply) {
    Form* form = Form_Named(arguments[0], reply);
    if (form == nullptr) return;
    const Frame_Style frame = form->table.frame;
    if (frame != Frame_Style::Fixed && frame != Frame_Style::Sizable) {
        return Fail(reply, "this window cannot be minimised");
    }
    if (Takes_Input(*form, reply)) Set_Minimised(*form, true);
}

void Restore(Arguments arguments, Reply& reply) {
    Form* form = Form_Named(arguments[0], reply);
    if (form != nullptr && Takes_Input(*form, reply)) Set_Minimised(*form, false);
}

void Close(Arguments arguments, Reply& reply) {
    const Form* form = Form_Named(arguments[0], reply);
    if (form != nullptr && Takes_Input(*form, reply)) platform::Unload(form->table);
}

void Untop(Arguments arguments, Reply& reply) {
    if (Form* form = Form_Named(arguments[0], reply)) form->is_topmost = false;
}

constexpr Command commands[] = {
    {"click", 1, Click},
    {"double_click", 1, Double_Click},
    {"pick", 2, Pick},
    {"type", 2, Type},
    {"folder", 2, Move_To_Folder},
    {"drive", 2, Choose_Drive},
    {"mouse", 4, Press},
    {"resize", 3, Resize},
    {"minimise", 1, Minimise_Window},
    {"restore", 1, Restore},
    {"close", 1, Close},
    {"untop", 1, Untop},
};

}  // namespace

std::span<const Command> Doing_Commands() {
    return commands;
}

}  // namespace platform::headless
