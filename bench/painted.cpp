#include "painted.h"

#include <unistd.h>

#include <fstream>
#include <string>

namespace bench {

void reportMemoryAndExit() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line) && !line.starts_with("VmHWM:")) {
    }
    line += '\n';
    [[maybe_unused]] const auto told = ::write(STDOUT_FILENO, line.data(), line.size());
    ::_exit(0);
}

} // namespace bench
