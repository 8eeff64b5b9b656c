#include "vkd_a_reinforcement.h"

#include <cmath>

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kSquareMillimetre = 1.0e-6; // m²

} // namespace

double vkd_a_barCrossSection(float barValue)
{
    if (!std::isfinite(barValue) || barValue <= 0.0f)
        return 0.0;
    const double d = double(barValue);
    return kPi * d * d / 4.0 * kSquareMillimetre;
}

double vkd_a_barsPerMetre(double spacing)
{
    return spacing > 0.0 ? 1.0 / spacing : 0.0;
}

double vkd_a_reinforcementFromBars(float barValue, double barsPerMetre, int layers)
{
    if (!(barsPerMetre > 0.0) || layers < 1)
        return 0.0;
    return vkd_a_barCrossSection(barValue) * barsPerMetre * layers;
}
