#include <string_view>

#include "desktop/game_main.h"
#include "desktop/tour_main.h"

int main(int argumentCount, char** arguments) {
  using namespace quintara::desktop;
  const bool isTour = argumentCount > 1 && std::string_view(arguments[1]) == "--tour";
  return isTour ? RunTour(argumentCount, arguments) : RunGame(argumentCount, arguments);
}
