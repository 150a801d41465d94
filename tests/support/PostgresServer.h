#pragma once

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>

namespace Tessellon {

/// A PostgreSQL server of the test's own, of the newest version that is installed. It lives in a temporary folder,
/// listens on a socket in that folder and nowhere else, and is gone, folder and all, when the object goes or the
/// program ends in whatever way. What cannot be done is a std::runtime_error with the words of the command that failed.
class PostgresServer {
public:
    /// One that serves all tests of a program, started by the first that asks.
    static PostgresServer& Shared();

    PostgresServer();
    PostgresServer(const PostgresServer&) = delete;
    PostgresServer& operator=(const PostgresServer&) = delete;
    ~PostgresServer();

    /// Where its socket is: the host, for its clients.
    [[nodiscard]] const std::filesystem::path& SocketFolder() const { return folder_; }
    static constexpr int Port = 5432;
    static constexpr const char* Database = "postgres";
    static constexpr const char* User = "tester"; ///< May do anything, and has no password.
    static constexpr const char* GuardedUser = "guarded"; ///< Gets in by Password only.
    static constexpr const char* Password = "open{sesame";

    /// The text by which ODBC connects as User; `more` is put behind it, as "UseDeclareFetch=1;Fetch=100;".
    [[nodiscard]] std::string OdbcText(std::string_view more = {}) const;

    /// Runs statements by psql, as User and on a connection of their own. Gives their records, a line each, the fields
    /// parted by "|".
    std::string Run(std::string_view statements);

    /// Ends the server as if it had crashed: connections break at once, whatever they were at. Gone when this returns.
    void StopNow();
    /// Starts it again behind StopNow.
    void Start();

private:
    [[nodiscard]] std::string AsServer(const std::string& program) const;

    std::filesystem::path programs_;
    std::string user_; ///< The account the server runs under, where that is another than the test's.
    std::filesystem::path folder_;
    std::FILE* keeper_ = nullptr; ///< Cleans up when this program's end of the pipe is closed.
};

} // namespace Tessellon
