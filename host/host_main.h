#pragma once

#include <filesystem>
#include <vector>

namespace quintara::host {

// quintara-host [DATA_FOLDER]: answers the commands of the standard input on the standard output, until
// `quit` or the end of the input. The data folder is the one beside the executable unless another is named.
// `arguments` begin with the executable's own name. The exit status is 0, or 2 where the arguments are wrong;
// then a line on the standard error says why.
int RunHost(const std::vector<std::filesystem::path>& arguments);

}  // namespace quintara::host
