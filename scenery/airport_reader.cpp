#include "scenery/airport_reader.h"

#include <string>
#include <string_view>

#include "platform/code_page.h"
#include "scenery/bgl_reader.h"
#include "scenery/bgl_units.h"
#include "scenery/runway_reader.h"
#include "scenery/taxi_reader.h"

namespace skerrand {

namespace {

constexpr std::int32_t Rec_Position = 0x10001;
constexpr std::int32_t Rec_Runway = 0x10002;
constexpr std::int32_t Rec_Passed_1 = 0x10003;
constexpr std::int32_t Rec_Aid = 0x10004;
constexpr std::int32_t Rec_Passed_2 = 0x10005;
constexpr std::int32_t Rec_Icao = 0x10006;
constexpr std::int32_t Rec_Taxi = 0x11001;
constexpr std::int32_t Rec_Com = 0x20001;

constexpr std::int64_t Block_Head = 16;

/// What a record leaves to those behind it, beside the airport itself.
struct Reading {
    bool behind_runway = false;  ///< only runway aids since the last runway
    Runway_Headings headings;    ///< of that runway
    std::string_view parking_label;
};

bool Is_Known(std::int32_t type) {
    return (type >= Rec_Position && type <= Rec_Icao) || type == Rec_Taxi || type == Rec_Com;
}

bool Read_Position(std::int64_t record, Airport_Info& airport) {
    if (!Can_Read(record + 8, 16)) return false;
    airport.lat = Latitude_Degrees(Read_Long(record + 12));
    airport.lon = Longitude_Degrees(Read_Long(record + 20));
    return true;
}

bool Read_Icao(std::int64_t record, std::int32_t size, Airport_Info& airport) {
    if (!Can_Read(record + 8, size)) return false;
    airport.icao_id = platform::Upper_Case(Read_Name(record + 8, size));
    return true;
}

std::string* Frequency_Field(std::int32_t com_type, Airport_Info& airport) {
    switch (com_type) {
        case 1:
            return &airport.atis_freq;
        case 5:
            return &airport.ground_freq;
        case 6:
            return &airport.tower_freq;
        case 7:
            return &airport.clearance_freq;
        case 8:
            return &airport.approach_freq;
        case 9:
            return &airport.departure_freq;
        case 10:
            return &airport.center_freq;
        default:
            return nullptr;
    }
}

/// The first frequency of a kind stays.
bool Read_Com(std::int64_t record, Airport_Info& airport) {
    if (!Can_Read(record + 8, 8)) return false;
    std::string* field = Frequency_Field(Read_Long(record + 12), airport);
    if (field && field->empty()) *field = Frequency_Text(Read_Long(record + 8));
    return true;
}

bool Read_Record(std::int32_t type, std::int64_t record, std::int32_t size, Reading& reading,
                 Airport_Info& airport) {
    const bool behind_runway = reading.behind_runway;
    reading.behind_runway = type == Rec_Runway || (type == Rec_Aid && behind_runway);
    switch (type) {
        case Rec_Position:
            return Read_Position(record, airport);
        case Rec_Runway:
            return Read_Runway(record, airport, reading.headings);
        case Rec_Aid:
            return !behind_runway || Read_Aid(record, size, reading.headings, airport);
        case Rec_Icao:
            return Read_Icao(record, size, airport);
        case Rec_Taxi:
            return Read_Taxi_Block(record, size, airport, reading.parking_label);
        case Rec_Com:
            return Read_Com(record, airport);
        case Rec_Passed_1:
        case Rec_Passed_2:
        default:
            return true;
    }
}

}  // namespace

bool Read_Airport(std::int64_t block_offset, Airport_Info& airport) {
    Reading reading;
    std::int64_t record = block_offset + Block_Head;
    for (;;) {
        if (!Can_Read(record, 4)) return false;
        const std::int32_t type = Read_Long(record);
        if (!Is_Known(type)) return true;
        if (!Can_Read(record + 4, 4)) return false;
        const std::int32_t size = Read_Long(record + 4);
        if (!Read_Record(type, record, size, reading, airport)) return false;
        if (!Step_Over(record, size)) return false;
    }
}

}  // namespace skerrand
