#include "support/PostgresServer.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace Tessellon {

namespace {

/// Bounded, by asking.
bool GoesAway(const std::filesystem::path& path)
{
    for (int i = 0; i < 3000 && std::filesystem::exists(path); ++i)
        usleep(10'000);
    return !std::filesystem::exists(path);
}

TEST(TestsOwnServer, IsGoneWithItsObject_AndListensToNobodyElse)
{
    std::filesystem::path folder;
    {
        PostgresServer server;
        folder = server.SocketFolder();
        EXPECT_EQ(server.Run("SHOW listen_addresses"), "\n");
        EXPECT_EQ(server.Run("SELECT 1, 'a'; SELECT 2"), "1|a\n2\n");
        EXPECT_THROW(server.Run("SELEC"), std::runtime_error);
        server.StopNow();
        EXPECT_THROW(server.Run("SELECT 1"), std::runtime_error);
        server.Start();
        EXPECT_EQ(server.Run("SELECT 3"), "3\n");
    }
    EXPECT_FALSE(std::filesystem::exists(folder));
}

TEST(TestsOwnServer, IsGoneWithAProgramThatIsKilled)
{
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t program = fork();
    if (program == 0) {
        PostgresServer server;
        const std::string folder = server.SocketFolder();
        static_cast<void>(!write(ends[1], folder.data(), folder.size()));
        raise(SIGKILL);
    }
    close(ends[1]);
    waitpid(program, nullptr, 0);
    char told[256] = {};
    ASSERT_GT(read(ends[0], told, sizeof told - 1), 0);
    close(ends[0]);
    EXPECT_TRUE(GoesAway(told));
}

} // namespace

} // namespace Tessellon
