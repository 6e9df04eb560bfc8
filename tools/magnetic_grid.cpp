#include "tools/magnetic_grid.h"

#include <cmath>

#include "selection/rounding.h"
#include "tools/fact_fields.h"

namespace world {

namespace {

constexpr std::size_t Grid_Pointer_Place = 110;
constexpr std::size_t Grid_Place = 128;

double Between(double from, double to, double part) {
    return std::remainder(from + std::remainder(to - from, 360.0) * part, 360.0);
}

double On_Row(const Coarse_Grid& grid, int row, int lon) {
    const int column = lon / Coarse_Step;
    const double* const values = grid.data() + row * Coarse_Columns;
    return Between(values[column], values[(column + 1) % Coarse_Columns],
                   static_cast<double>(lon % Coarse_Step) / Coarse_Step);
}

}  // namespace

std::string Parse_Magnetic_Grid(std::string_view text, Coarse_Grid& grid) {
    grid.clear();
    while (!text.empty()) {
        Fact_Fields line{text.substr(0, text.find('\n'))};
        text.remove_prefix(std::min(line.rest.size() + 1, text.size()));
        if (line.rest.ends_with('\r')) line.rest.remove_suffix(1);
        if (line.rest.starts_with('#')) continue;
        while (!line.rest.empty()) {
            const auto value = Next_Number(line, -180, 180);
            if (!value) return "a value is no variation in degrees";
            grid.push_back(*value);
        }
    }
    const std::size_t expected = Coarse_Rows * Coarse_Columns;
    if (grid.size() == expected) return "";
    return "expected " + std::to_string(expected) + " values, found " + std::to_string(grid.size());
}

double Variation_At(const Coarse_Grid& grid, int lat, int lon) {
    const int row = (lat + 90) / Coarse_Step;
    const int rest = (lat + 90) % Coarse_Step;
    const double south = On_Row(grid, row, lon);
    if (rest == 0) return south;
    return Between(south, On_Row(grid, row + 1, lon), static_cast<double>(rest) / Coarse_Step);
}

Bytes Magdec_File(const Coarse_Grid& grid) {
    Bytes bytes(Grid_Place);
    Set_Long(bytes, Grid_Pointer_Place, static_cast<std::int32_t>(Grid_Place));
    Put_Zeros(bytes, 8);
    for (int lon = 0; lon < 360; ++lon) {
        for (int lat = -90; lat <= 90; ++lat) {
            const double variation = Variation_At(grid, lat, lon);
            Put_Word(bytes, skerrand::Round_To_Long(variation * 65536 / 360));
        }
    }
    return bytes;
}

}  // namespace world
