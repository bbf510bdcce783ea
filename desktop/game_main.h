#pragma once

namespace quintara::desktop {

// quintara: the game in its windows, until its user ends it. The exit status is that of Qt's event loop, 0.
int RunGame(int argumentCount, char** arguments);

}  // namespace quintara::desktop
