#include "orders/BareLoopProcess.h"

#include <cerrno>
#include <cstring>
#include <stdexcept>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

namespace Orders {

namespace {

[[noreturn]] void FailBySystem(const char* what)
{
    throw std::runtime_error(std::string(what) + ": " + std::strerror(errno));
}

/// The child's side: what it found goes into the pipe as bytes, or else the words of its failure.
[[noreturn]] void Tell(int pipe, const std::filesystem::path& path, const std::string& query)
{
    int status = 0;
    std::string told;
    try {
        BareLoopCost cost{RunBareLoop(path, query), {}};
        cost.PeakMemory = PeakMemory();
        told.assign(reinterpret_cast<const char*>(&cost), sizeof cost);
    } catch (const std::exception& failure) {
        told = failure.what();
        status = 1;
    }
    std::string_view rest = told;
    while (!rest.empty()) {
        const ssize_t written = write(pipe, rest.data(), rest.size());
        if (written < 0)
            _exit(2);
        rest.remove_prefix(static_cast<std::size_t>(written));
    }
    _exit(status);
}

std::string ReadAll(int pipe)
{
    std::string all;
    char part[512];
    while (true) {
        const ssize_t got = read(pipe, part, sizeof part);
        if (got == 0 || (got < 0 && errno != EINTR))
            return all;
        if (got > 0)
            all.append(part, static_cast<std::size_t>(got));
    }
}

} // namespace

BareLoopCost RunBareLoopApart(const std::filesystem::path& path, const std::string& query)
{
    static_assert(std::is_trivially_copyable_v<BareLoopCost>);
    int ends[2];
    if (pipe(ends) != 0)
        FailBySystem("cannot start the bare loop");
    const pid_t child = fork();
    if (child < 0)
        FailBySystem("cannot start the bare loop");
    if (child == 0) {
        close(ends[0]);
        Tell(ends[1], path, query);
    }
    close(ends[1]);
    const std::string told = ReadAll(ends[0]);
    close(ends[0]);
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    BareLoopCost cost;
    if (!WIFEXITED(status) || WEXITSTATUS(status) > 1)
        throw std::runtime_error("the bare loop ended before it was done");
    if (WEXITSTATUS(status) == 1)
        throw std::runtime_error(told);
    std::memcpy(&cost, told.data(), sizeof cost);
    return cost;
}

} // namespace Orders
