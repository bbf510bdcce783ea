#pragma once

namespace quintara::desktop {

// quintara --tour FOLDER: plays the tour on a screen in memory and leaves the pictures in FOLDER. Says what
// it does on the standard output. The exit status is 0 when all pictures are written, 1 where not and 2 where
// the arguments are wrong; then a line on the standard error says why.
int RunTour(int argumentCount, char** arguments);

}  // namespace quintara::desktop
