#pragma once

namespace quintara {

class Box;

// How much of the lower end of a box is hidden by controls that lie over it, in twips: from the upper edge of
// the highest of them on. What is shown in the box is to end above, since nothing scrolls it out from there.
double CoveredAtItsEnd(const Box& box);

}  // namespace quintara
