#pragma once

namespace quintara::desktop {

// quintara: the game in its windows, until its user ends it. The exit status is that of Qt's event loop, 0,
// or 1 where there is no display; then a line on the standard error says so.
int RunGame(int argumentCount, char** arguments);

}  // namespace quintara::desktop
