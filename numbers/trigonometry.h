#pragma once

namespace quintara {

// The sine, the cosine and the arctangent. The libraries of different systems differ in the last bit of
// theirs, and a shell that starts with another bit may land on another spot; these give the same double
// everywhere.
//
// The result is worked out to 2^-100 of its size and rounded once. It is the double nearest to the true value
// for every angle that a control of the game can set, and for all but about one in 10^13 of all others.

// Take any angle in radians. From 2^30 radians on, an angle counts as what a whole number of turns, each
// rounded to a double, leaves of it: the result is a sine still, though of a nearby angle. Infinity and NaN
// give NaN.
double Sin(double radians);
double Cos(double radians);

// The angle in radians, -pi/2 to pi/2, with this tangent. Infinity gives pi/2, NaN gives NaN.
double Atn(double x);

}  // namespace quintara
