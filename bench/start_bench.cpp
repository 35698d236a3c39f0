#include "bench.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace {

namespace fs = std::filesystem;

struct Start {
    double milliseconds = 0; ///< from the start of the process until it reports that its window is painted
    double mebibytes = 0;    ///< peak memory until then
};

pid_t spawn(const fs::path& executable, int output) {
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_adddup2(&files, output, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    std::string path = executable.string();
    char* arguments[] = {path.data(), nullptr};
    pid_t process = 0;
    const int failed = posix_spawn(&process, path.c_str(), &files, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&files);
    if (failed != 0) throw std::runtime_error("cannot start " + path);
    return process;
}

Start start(const fs::path& executable, const std::string& platform) {
    ::setenv("QT_QPA_PLATFORM", platform.c_str(), 1);
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    char line[64] = {};
    Start result;
    pid_t process = 0;
    result.milliseconds = bench::milliseconds([&] {
        process = spawn(executable, ends[1]);
        ::close(ends[1]);
        if (::read(ends[0], line, sizeof line - 1) <= 0)
            throw std::runtime_error(executable.string() + " ended before its window was painted");
    });
    ::close(ends[0]);
    ::waitpid(process, nullptr, 0);
    result.mebibytes = std::strtod(line + sizeof "VmHWM:" - 1, nullptr) / 1024;
    return result;
}

/// The program in its own folder. A first start creates its client database, so that the measured starts find it and
/// have nothing to update.
const fs::path& program() {
    static const fs::path executable = [] {
        const fs::path folder = bench::emptyFolder("program");
        for (const char* name : {"Default.Mdb", "Print.mdb", "units.mdb", "Diary.mdb"})
            fs::copy_file(fs::path(MARLOWBECK_DATABASE_DIR) / name, folder / name);
        fs::copy_file(START_OURS, folder / "start_ours");
        start(folder / "start_ours", "offscreen");
        return folder / "start_ours";
    }();
    return executable;
}

void race(const std::string& platform) {
    const std::string where = " (" + platform + ")";
    const auto measured = [platform](double Start::*figure) {
        return [platform, figure](auto executable) {
            return [platform, figure, executable] { return start(executable(), platform).*figure; };
        };
    };
    const auto floor = [] { return fs::path(START_FLOOR); };
    const auto ours = [] { return program(); };
    bench::registry().push_back({.name = "start to painted main window, files checked" + where,
                                 .unit = "ms",
                                 .floor = measured(&Start::milliseconds)(floor),
                                 .ours = measured(&Start::milliseconds)(ours),
                                 .goal = 1.3,
                                 .rounds = 41});
    bench::registry().push_back({.name = "peak memory at that point" + where,
                                 .unit = "MiB",
                                 .floor = measured(&Start::mebibytes)(floor),
                                 .ours = measured(&Start::mebibytes)(ours),
                                 .goal = 1.3,
                                 .rounds = 5});
}

const bool registered = [] {
    race("offscreen");
    if (std::getenv("DISPLAY") != nullptr) race("xcb");
    return true;
}();

} // namespace
