#include "host/host_main.h"

#ifdef _WIN32

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <cstdlib>

// There `main` gets its arguments in a code page that lacks most letters, the name that the program was
// called by may lack its folder, and the standard streams change line ends.
int wmain(int argumentCount, wchar_t** arguments) {
  arguments[0] = _wpgmptr;
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  return quintara::host::RunHost({arguments, arguments + argumentCount});
}

#else

int main(int argumentCount, char** arguments) {
  return quintara::host::RunHost({arguments, arguments + argumentCount});
}

#endif
