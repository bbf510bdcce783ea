#include "host/host_main.h"

int main(int argumentCount, char** arguments) {
  return quintara::host::RunHost(argumentCount, arguments);
}
