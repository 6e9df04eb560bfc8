#include "tools/magnetic_grid.h"

#include <cmath>
#include <cstdlib>
#include <cstring>

namespace world {

namespace {

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

std::string Parse_Magnetic_Grid(const std::string& text, Coarse_Grid& grid) {
    for (const char* at = text.c_str(); *(at += std::strspn(at, " \r\n")) != '\0';) {
        if (*at == '#') {
            at += std::strcspn(at, "\n");
            continue;
        }
        char* end = nullptr;
        const double value = std::strtod(at, &end);
        if (end == at || !(std::abs(value) <= 180)) return "a value is no variation in degrees";
        grid.push_back(value);
        at = end;
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

}  // namespace world
