#pragma once
// Reinforcement of a surface element from bars: the arithmetic behind the calculator. Bar
// values are nominal diameters in millimetres; results are in the project's base unit of
// reinforcement, m² per metre width.

// Cross section of one bar, m².
double vkd_a_barCrossSection(float barValue);

// Bars per metre width for a centre-to-centre spacing in metres; 0 for a spacing that is not
// positive.
double vkd_a_barsPerMetre(double spacing);

// Reinforcement, m²/m, of `layers` equal layers of bars of this value at this number of bars
// per metre. 0 where the bar names no diameter or the count is not positive.
double vkd_a_reinforcementFromBars(float barValue, double barsPerMetre, int layers);
