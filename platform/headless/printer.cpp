#include "platform/headless/printer.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <optional>
#include <utility>

#include "platform/headless/program.h"
#include "platform/headless/protocol.h"

namespace platform {

namespace {

using headless::Page;

constexpr double Dots_Per_Twip = 600 / 1440.0;
constexpr int Character_Width = 50;  // dots

enum class Condition { Ready, Failing, Absent };

struct Printer {
    Condition condition = Condition::Ready;
    int width = 4960;  ///< of the sheet, in dots: A4
    int height = 7016;
    int print_width = 4800;
    int print_height = 6800;
    bool is_open = false;
    bool has_document = false;  ///< one is begun and not ended
    int cursor_x = 0;
    int cursor_y = 0;
    Device_Context device;
    std::vector<Page> pages;
};

Printer printer;

int Dots(double place) {
    return static_cast<int>(std::lround(std::clamp(place, -1e9, 1e9)));
}

bool Is_There() {
    return printer.is_open && printer.condition != Condition::Absent;
}

}  // namespace

const std::vector<Page>& headless::Printed_Pages() {
    return printer.pages;
}

void headless::Reset_Printer() {
    printer = {};
}

bool Open_Printer() {
    printer.is_open = printer.condition != Condition::Absent;
    printer.has_document = false;
    return printer.is_open;
}

Device_Context* Printer_Device() {
    return printer.is_open ? &printer.device : nullptr;
}

Size Paper_Size() {
    if (!printer.is_open) return {};
    return {printer.width / Dots_Per_Twip, printer.height / Dots_Per_Twip};
}

double Printer_Twips_To_Pixels_X(double twips) {
    return printer.is_open ? twips * Dots_Per_Twip : 0;
}

double Printer_Twips_To_Pixels_Y(double twips) {
    return Printer_Twips_To_Pixels_X(twips);
}

Size Printable_Size() {
    if (!printer.is_open) return {};
    return {static_cast<double>(printer.print_width), static_cast<double>(printer.print_height)};
}

bool Start_Page(std::string_view) {
    if (!Is_There()) return false;
    headless::Wipe(printer.device);
    Set_Text_Cursor(0, 0);
    printer.has_document = true;
    return true;
}

void Set_Text_Cursor(double x, double y) {
    printer.cursor_x = Dots(x);
    printer.cursor_y = Dots(y);
}

Size Text_Size(std::string_view text) {
    if (!printer.is_open) return {};
    return {static_cast<double>(text.size()) * Character_Width, headless::Page_Text_Height};
}

void Print_Line(std::string_view text) {
    TextOutA(Printer_Device(), printer.cursor_x, printer.cursor_y, text);
    Set_Text_Cursor(0, printer.cursor_y + headless::Page_Text_Height);
}

bool End_Document() {
    const bool begun = std::exchange(printer.has_document, false);
    if (!begun || !Is_There() || printer.condition == Condition::Failing) return false;
    printer.pages.push_back(
        {std::exchange(printer.device.picture, {}), printer.print_width, printer.print_height});
    headless::Wipe(printer.device);
    return true;
}

namespace headless {

namespace {

std::optional<Condition> Condition_Named(std::string_view name) {
    if (name == "ready") return Condition::Ready;
    if (name == "failing") return Condition::Failing;
    if (name == "absent") return Condition::Absent;
    return std::nullopt;
}

void Set_Printer(Arguments arguments, Reply& reply) {
    if (const auto condition = Condition_Named(arguments[0])) {
        printer.condition = *condition;
        return;
    }
    std::vector<int> measures;
    for (const std::string_view word : Words_Of(arguments[0])) {
        const auto number = Whole_Number(word, 1, INT_MAX, reply);
        if (!number) return;
        measures.push_back(static_cast<int>(*number));
    }
    if (measures.size() != 4) return Fail(reply, "wrong number of arguments");
    printer.width = measures[0];
    printer.height = measures[1];
    printer.print_width = measures[2];
    printer.print_height = measures[3];
}

constexpr Command commands[] = {{"printer", 1, Set_Printer}};

}  // namespace

std::span<const Command> Printer_Commands() {
    return commands;
}

}  // namespace headless

}  // namespace platform
