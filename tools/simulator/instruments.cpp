#include "tools/simulator/instruments.h"

#include <cmath>
#include <cstddef>

#include "platform/headless/simulator.h"

namespace simulator {

namespace {

constexpr std::size_t Latitude_Offset = 0x0564;   // 32 bits, 10001750 to the quarter meridian
constexpr std::size_t Longitude_Offset = 0x056C;  // 32 bits, a full circle
constexpr std::size_t Heading_Offset = 0x0580;    // 32 bits, a full circle
constexpr std::size_t Altimeter_Offset = 0x0EC6;  // 16 bits, sixteenths of a millibar
constexpr std::size_t Fs_Version_Offset = 0x3308;

constexpr double Quarter_Meridian = 10001750;
constexpr double Full_Circle = 4294967296;

void Put(std::size_t offset, std::int64_t value, std::size_t width) {
    const auto bytes = platform::headless::State_Area().subspan(offset, width);
    for (std::size_t i = 0; i < width; ++i)
        bytes[i] = static_cast<std::uint8_t>(value >> 8 * i);
}

}  // namespace

void Start(const char* window_class, std::uint32_t fs_version) {
    platform::headless::Start_Simulator(window_class);
    Put(Fs_Version_Offset, fs_version, 4);
}

// The upper bits of a full circle fall off.
void Show(const Aircraft& aircraft) {
    Put(Latitude_Offset, std::llround(aircraft.lat / 90 * Quarter_Meridian), 4);
    Put(Longitude_Offset, std::llround(aircraft.lon / 360 * Full_Circle), 4);
    Put(Heading_Offset, std::llround(aircraft.heading / 360 * Full_Circle), 4);
}

void Show_Altimeter(double millibars) {
    Put(Altimeter_Offset, std::llround(millibars * 16), 2);
}

}  // namespace simulator
