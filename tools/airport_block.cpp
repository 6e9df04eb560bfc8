#include "tools/airport_block.h"

#include "selection/rounding.h"
#include "tools/local_metres.h"

namespace world {

namespace {

constexpr std::int32_t List_Record = 0x30001;
constexpr std::int32_t Airport_Entry = 0x30002;
constexpr std::int32_t Airport_Target = 0x50001;
constexpr std::int32_t Position_Record = 0x10001;
constexpr std::int32_t Runway_Record = 0x10002;
constexpr std::int32_t Aid_Record = 0x10004;
constexpr std::int32_t Ident_Record = 0x10006;
constexpr std::int32_t Com_Record = 0x20001;

constexpr std::int32_t Aid_Is_Ils = 4;
constexpr double Metres_Of_Foot = 0.3048;

void Put_Position(Bytes& bytes, Position position) {
    const std::size_t record = Begin_Record(bytes, Position_Record);
    Put_Latitude(bytes, position.lat);
    Put_Longitude(bytes, position.lon);
    End_Record(bytes, record);
}

void Put_Ident(Bytes& bytes, const std::string& ident) {
    const std::size_t record = Begin_Record(bytes, Ident_Record);
    Put_Text(bytes, ident);
    End_Record(bytes, record);
}

void Put_Com(Bytes& bytes, const Com_Facts& com) {
    const std::size_t record = Begin_Record(bytes, Com_Record);
    Put_Long(bytes, Coded_Frequency(com.frequency));
    Put_Long(bytes, static_cast<std::int32_t>(com.use));
    End_Record(bytes, record);
}

void Put_Runway(Bytes& bytes, const Runway_Facts& runway, double elevation_ft) {
    const Runway_Line line = Line_Of_Runway(runway.end_1, runway.end_2);
    const std::size_t record = Begin_Record(bytes, Runway_Record);
    Put_Latitude(bytes, line.center.lat);
    Put_Longitude(bytes, line.center.lon);
    Put_Zeros(bytes, 4);
    Put_Long(bytes, skerrand::Round_To_Long(elevation_ft * Metres_Of_Foot));
    Put_Long(bytes, Scaled_Angle(line.heading));
    Put_Zeros(bytes, 4);
    Put_Long(bytes, skerrand::Round_To_Long(line.length_m / Metres_Of_Foot));
    Put_Long(bytes, runway.width_ft);
    Put_Long(bytes, static_cast<std::int32_t>(runway.letter));
    Put_Long(bytes, runway.number);
    End_Record(bytes, record);
}

void Put_Ils(Bytes& bytes, const Ils_Facts& ils) {
    const std::size_t record = Begin_Record(bytes, Aid_Record);
    Put_Latitude(bytes, ils.transmitter.lat);
    Put_Longitude(bytes, ils.transmitter.lon);
    Put_Zeros(bytes, 8);
    Put_Long(bytes, Scaled_Angle(ils.course));
    Put_Long(bytes, Coded_Frequency(ils.frequency));
    Put_Long(bytes, Aid_Is_Ils);
    Put_Zeros(bytes, 12);
    Put_Text(bytes, ils.ident);
    End_Record(bytes, record);
}

// Answers the place of the entry's target offset, which is not known yet.
std::size_t Put_Entry(Bytes& bytes, const std::string& name) {
    const std::size_t record = Begin_Record(bytes, Airport_Entry);
    Put_Long(bytes, Airport_Target);
    const std::size_t target = bytes.size();
    Put_Long(bytes, 0);
    Put_Text(bytes, name);
    End_Record(bytes, record);
    return target;
}

}  // namespace

void Put_Airport_Block(Bytes& bytes, const Airport_Facts& airport) {
    for (const std::int32_t head : {1, 0, 1, 0})
        Put_Long(bytes, head);
    // Readers let each record act on what stands before it: the taxi block needs the position, and
    // an aid belongs to the runway right ahead of it.
    Put_Position(bytes, airport.position);
    Put_Ident(bytes, airport.ident);
    for (const Com_Facts& com : airport.coms)
        Put_Com(bytes, com);
    for (const Runway_Facts& runway : airport.runways) {
        Put_Runway(bytes, runway, airport.elevation_ft);
        for (const Ils_Facts& ils : runway.ils)
            Put_Ils(bytes, ils);
    }
    Put_Taxi_Block(bytes, airport);
    Put_Chain_End(bytes);
}

Bytes Airports_File(std::span<const Airport_Facts> airports) {
    Bytes bytes = New_Bgl_File();
    if (airports.empty()) return bytes;
    Begin_Section(bytes, Section::Airports);
    const std::size_t list = Begin_Record(bytes, List_Record);
    Put_Zeros(bytes, 12);
    Put_Long(bytes, static_cast<std::int32_t>(airports.size()) - 1);  // number of the last entry
    std::vector<std::size_t> targets;
    for (const Airport_Facts& airport : airports)
        targets.push_back(Put_Entry(bytes, airport.name));
    End_Record(bytes, list);
    Put_Chain_End(bytes);
    for (std::size_t i = 0; i < airports.size(); ++i) {
        Set_Long(bytes, targets[i], static_cast<std::int32_t>(bytes.size()));
        Put_Airport_Block(bytes, airports[i]);
    }
    return bytes;
}

}  // namespace world
