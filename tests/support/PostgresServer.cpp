#include "support/PostgresServer.h"

#include <cstdlib>
#include <fstream>
#include <pwd.h>
#include <stdexcept>
#include <unistd.h>
#include <vector>

namespace Tessellon {

namespace {

constexpr const char* Configuration = R"(
listen_addresses = ''
max_connections = 20
shared_buffers = 16MB
fsync = off
synchronous_commit = off
full_page_writes = off
autovacuum = off
wal_level = minimal
max_wal_senders = 0
)";

std::string Quoted(const std::string& word)
{
    std::string quoted = "'";
    for (const char character : word)
        quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
    return quoted + "'";
}

/// Runs a command of the shell to its end, and gives what it wrote.
std::string Output(const std::string& command)
{
    std::FILE* pipe = popen(("(" + command + ") 2>&1 </dev/null").c_str(), "re");
    if (pipe == nullptr)
        throw std::runtime_error("The shell could not be started for: " + command);
    std::string output;
    char block[4096];
    for (std::size_t count = 0; (count = std::fread(block, 1, sizeof block, pipe)) > 0;)
        output.append(block, count);
    if (pclose(pipe) != 0)
        throw std::runtime_error(command + "\n" + output);
    return output;
}

std::filesystem::path InstalledPrograms()
{
    std::filesystem::path newest;
    int newestVersion = 0;
    const std::filesystem::path all = "/usr/lib/postgresql";
    if (std::filesystem::exists(all)) {
        for (const auto& entry : std::filesystem::directory_iterator(all)) {
            const int version = std::atoi(entry.path().filename().c_str());
            if (version > newestVersion && std::filesystem::exists(entry.path() / "bin/initdb")) {
                newestVersion = version;
                newest = entry.path() / "bin";
            }
        }
    }
    if (newest.empty())
        throw std::runtime_error("No PostgreSQL server is installed in " + all.string());
    return newest;
}

} // namespace

PostgresServer& PostgresServer::Shared()
{
    static PostgresServer server;
    return server;
}

PostgresServer::PostgresServer()
    : programs_(InstalledPrograms())
{
    std::string pattern = (std::filesystem::temp_directory_path() / "postgres-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error("No temporary folder could be made: " + pattern);
    folder_ = pattern;
    if (geteuid() == 0) {
        // The server refuses to run as root.
        for (const char* name : {"postgres", "nobody"}) {
            if (const passwd* account = getpwnam(name); account != nullptr && user_.empty()) {
                user_ = name;
                if (chown(folder_.c_str(), account->pw_uid, account->pw_gid) != 0)
                    throw std::runtime_error("The server's folder could not be handed to " + user_);
            }
        }
    }

    const std::string data = Quoted(folder_ / "data");
    // It reads until this program closes the pipe or is gone, and outlives the keys that interrupt both.
    const std::string keep = "trap '' INT TERM HUP; cat; " + AsServer("pg_ctl") + " -D " + data +
                             " -m immediate stop; rm -rf " + Quoted(folder_);
    keeper_ = popen(("exec >/dev/null 2>&1; " + keep).c_str(), "we");
    if (keeper_ == nullptr)
        throw std::runtime_error("The shell could not be started for: " + keep);
    try {
        Output(AsServer("initdb") + " -D " + data + " -U " + User +
               " --no-sync --encoding=UTF8 --locale=C --auth=trust --no-instructions");
        std::ofstream(folder_ / "data/postgresql.conf", std::ios::app)
            << Configuration << "unix_socket_directories = '" << folder_.string() << "'\nport = " << Port << '\n';
        std::ofstream(folder_ / "data/pg_hba.conf") << "local all " << GuardedUser << " scram-sha-256\n"
                                                    << "local all all trust\n";
        Start();
        Run(std::string("CREATE ROLE ") + GuardedUser + " LOGIN PASSWORD '" + Password + "'");
    } catch (...) {
        pclose(keeper_);
        throw;
    }
}

PostgresServer::~PostgresServer()
{
    pclose(keeper_);
}

std::string PostgresServer::OdbcText(std::string_view more) const
{
    return "Driver={PostgreSQL Unicode};Server=" + folder_.string() + ";Port=" + std::to_string(Port) +
           ";Database=" + Database + ";UID=" + User + ";" + std::string(more);
}

std::string PostgresServer::Run(std::string_view statements)
{
    const std::filesystem::path file = folder_ / "statements.sql";
    std::ofstream(file) << statements;
    return Output(Quoted(programs_ / "psql") + " -XqAtw -v ON_ERROR_STOP=1 -h " + Quoted(folder_) + " -p " +
                  std::to_string(Port) + " -U " + User + " -d " + Database + " -f " + Quoted(file));
}

void PostgresServer::StopNow()
{
    Output(AsServer("pg_ctl") + " -D " + Quoted(folder_ / "data") + " -m immediate -w -t 60 stop");
}

void PostgresServer::Start()
{
    Output(AsServer("pg_ctl") + " -D " + Quoted(folder_ / "data") + " -l " + Quoted(folder_ / "log") +
           " -w -t 60 start");
}

std::string PostgresServer::AsServer(const std::string& program) const
{
    const std::string command = Quoted(programs_ / program);
    // The programs want to come back to the folder they are started in, which the account may not enter.
    return "cd / && " + (user_.empty() ? "" : "setpriv --reuid=" + user_ + " --regid=" + user_ + " --init-groups ") +
           command;
}

} // namespace Tessellon
