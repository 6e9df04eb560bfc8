#include "platform/headless/surroundings.h"

#include "platform/headless/commands.h"
#include "platform/headless/keys.h"
#include "platform/headless/link.h"
#include "platform/headless/printer.h"
#include "platform/headless/simulator.h"
#include "platform/headless/targets.h"

namespace platform::headless {

std::vector<std::string> drive_entries;

void Reset_Surroundings() {
    drive_entries.clear();
    Reset_Keys();
    Reset_Printer();
    Reset_Simulator();
    Reset_Link();
}

void Drives_Command(Arguments arguments, Reply& reply) {
    const auto text = Program_Text(arguments[0], reply);
    if (!text) return;
    drive_entries.clear();
    std::string_view rest = *text;
    while (!rest.empty()) {
        const std::string_view entry = rest.substr(0, rest.find('|'));
        drive_entries.emplace_back(entry);
        rest.remove_prefix(entry.size());
        if (!rest.empty()) rest.remove_prefix(1);
    }
}

}  // namespace platform::headless
