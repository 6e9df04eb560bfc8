#include <sys/stat.h>

#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/headless/commands.h"
#include "platform/headless/folder_list.h"
#include "platform/headless/form.h"
#include "platform/headless/program.h"
#include "platform/headless/targets.h"
#include "platform/message_box.h"

namespace platform::headless {

namespace {

/// A folder whose name, or the way to it, Windows-1252 cannot hold: it stands in the list, but the
/// program could not name it.
bool Is_Folder_By_Native_Name(std::string_view utf8) {
    struct stat status {};
    return stat(std::string(utf8).c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

void Refuse_Folder(std::string_view utf8) {
    Message_Box("The folder \"" + From_Utf8_Lossy(utf8) +
                    "\" cannot be used, because its name holds characters that this program cannot "
                    "write.",
                Icon::Exclamation, Message_Title);
}

}  // namespace

void Click_Command(Arguments arguments, Reply& reply) {
    const Target target = Control_Named(arguments[0], reply);
    if (!target) return;
    const Control& row = target.Row();
    const bool is_check = row.kind == Control_Kind::Check;
    const bool is_option = row.kind == Control_Kind::Option;
    if (!is_check && !is_option && row.kind != Control_Kind::Button &&
        row.kind != Control_Kind::Menu) {
        return Fail(reply, "this control cannot be clicked");
    }
    if (!Takes_Input(target, reply)) return;
    if (is_check) target.State().checked = !target.State().checked;
    if (is_option) Set_Option(target.Ref(), true);
    Call(row.handler);
}

void Double_Click_Command(Arguments arguments, Reply& reply) {
    const Target list = Control_Named(arguments[0], Control_Kind::List, reply);
    if (list && Takes_Input(list, reply)) Call(list.Row().handler);
}

void Pick_Command(Arguments arguments, Reply& reply) {
    const Target target = Control_Named(arguments[0], reply);
    if (!target) return;
    const Control_Kind kind = target.Row().kind;
    if (kind != Control_Kind::Combo && kind != Control_Kind::List) {
        return Fail(reply, "nothing can be picked from this control");
    }
    const auto index = Whole_Number(arguments[1], -1, Entry_Count(target.Ref()) - 1, reply);
    if (index && Takes_Input(target, reply)) Select_Entry(target.Ref(), static_cast<int>(*index));
}

void Type_Command(Arguments arguments, Reply& reply) {
    const Target combo = Control_Named(arguments[0], Control_Kind::Combo, reply);
    if (!combo) return;
    const auto text = Program_Text(arguments[1], reply);
    if (text && Takes_Input(combo, reply)) Set_Text(combo.Ref(), *text);
}

void Folder_Command(Arguments arguments, Reply& reply) {
    const Target list = Control_Named(arguments[0], Control_Kind::Folder, reply);
    if (!list) return;
    const auto path = From_Utf8(arguments[1]);
    const bool exists =
        path ? !path->empty() && Folder_Exists(*path) : Is_Folder_By_Native_Name(arguments[1]);
    if (!exists) return Fail(reply, "no such folder");
    if (!Takes_Input(list, reply)) return;
    const std::string whole = path ? Whole_Path(*path) : std::string();
    if (whole.empty()) return Refuse_Folder(arguments[1]);
    Move_Folder_List(list.Ref(), whole);
}

void Drive_Command(Arguments arguments, Reply& reply) {
    const Target list = Control_Named(arguments[0], Control_Kind::Drive, reply);
    if (!list) return;
    const auto index = Whole_Number(arguments[1], 0, Entry_Count(list.Ref()) - 1, reply);
    if (!index || !Takes_Input(list, reply)) return;
    Select_Entry(list.Ref(), static_cast<int>(*index));
    Call(list.Row().handler);
}

}  // namespace platform::headless
