#include "orders/OrdersDatabase.h"

#include "orders/Invention.h"

#include <chrono>
#include <cstdio>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace Orders {

namespace {

/// The file under its passing name; unless it took its place, it is gone with this object.
class PassingFile {
public:
    explicit PassingFile(const std::filesystem::path& place)
        : place_(place)
        , path_(place.string() + ".part-" + std::to_string(getpid()))
    {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    PassingFile(const PassingFile&) = delete;
    PassingFile& operator=(const PassingFile&) = delete;
    ~PassingFile()
    {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
    void TakePlace()
    {
        std::error_code error;
        std::filesystem::rename(path_, place_, error);
        if (error)
            throw std::runtime_error("cannot write " + place_.string() + ": " + error.message());
    }

private:
    std::filesystem::path place_;
    std::filesystem::path path_;
};

struct Closer {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

class NewDatabase {
public:
    NewDatabase(const std::filesystem::path& path, const std::filesystem::path& place)
        : place_(place)
    {
        sqlite3* database = nullptr;
        const int code = sqlite3_open(path.c_str(), &database);
        database_.reset(database);
        Check(code == SQLITE_OK);
    }

    void Do(const char* statements)
    {
        Check(sqlite3_exec(database_.get(), statements, nullptr, nullptr, nullptr) == SQLITE_OK);
    }

    void Prepare(const char* statement)
    {
        sqlite3_stmt* prepared = nullptr;
        const int code = sqlite3_prepare_v2(database_.get(), statement, -1, &prepared, nullptr);
        insert_.reset(prepared);
        Check(code == SQLITE_OK);
    }

    void Insert(std::int64_t id, const Order& order)
    {
        sqlite3_stmt* insert = insert_.get();
        sqlite3_bind_int64(insert, 1, id);
        BindText(2, order.Customer->Name);
        BindText(3, order.Customer->Place->Name);
        char date[16];
        const int length =
            std::snprintf(date, sizeof date, "%04d-%02u-%02u", static_cast<int>(order.Date.year()),
                          static_cast<unsigned>(order.Date.month()), static_cast<unsigned>(order.Date.day()));
        BindText(4, {date, static_cast<std::size_t>(length)});
        sqlite3_bind_double(insert, 5, static_cast<double>(order.Cents) / 100);
        BindText(6, order.Customer->Place->Currency);
        BindText(7, order.Customer->Phone);
        sqlite3_bind_int(insert, 8, order.Paid ? 1 : 0);
        sqlite3_bind_int(insert, 9, order.Shipped ? 1 : 0);
        BindText(10, order.Notes);
        Check(sqlite3_step(insert) == SQLITE_DONE);
        sqlite3_reset(insert);
    }

private:
    /// An empty text is stored as none. The text must live until the next record.
    void BindText(int parameter, std::string_view text)
    {
        if (text.empty())
            sqlite3_bind_null(insert_.get(), parameter);
        else
            sqlite3_bind_text(insert_.get(), parameter, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
    }

    void Check(bool isDone) const
    {
        if (!isDone)
            throw std::runtime_error("cannot write " + place_.string() + ": " + sqlite3_errmsg(database_.get()));
    }

    std::filesystem::path place_;
    std::unique_ptr<sqlite3, Closer> database_;
    std::unique_ptr<sqlite3_stmt, Closer> insert_;
};

} // namespace

void MakeDatabase(const std::filesystem::path& path, std::int64_t count)
{
    if (count < 0)
        throw std::runtime_error("cannot make " + std::to_string(count) + " orders: the number must not be negative");
    const std::filesystem::path folder = path.has_parent_path() ? path.parent_path() : ".";
    std::error_code ignored;
    if (!std::filesystem::is_directory(folder, ignored))
        throw std::runtime_error("cannot write " + path.string() + ": there is no folder " + folder.string());
    if (path.filename().empty() || std::filesystem::is_directory(path, ignored))
        throw std::runtime_error("cannot write " + path.string() + ": it is a folder");

    PassingFile file(path);
    {
        NewDatabase database(file.Path(), path);
        // Nobody sees the file before it is whole, so it needs neither journal nor waiting for the disk.
        database.Do("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA locking_mode = EXCLUSIVE; BEGIN;"
                    "CREATE TABLE orders ("
                    "  id INTEGER PRIMARY KEY,"
                    "  customer VARCHAR(60) NOT NULL,"
                    "  city VARCHAR(40) NOT NULL,"
                    "  ordered DATE NOT NULL,"
                    "  amount DECIMAL(12, 2) NOT NULL,"
                    "  currency CHAR(3) NOT NULL,"
                    "  phone VARCHAR(24),"
                    "  paid BOOLEAN NOT NULL,"
                    "  shipped BOOLEAN NOT NULL,"
                    "  notes TEXT)");
        database.Prepare("INSERT INTO orders VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
        Invention invention(count);
        for (std::int64_t number = 0; number < count; ++number)
            database.Insert(FirstOrderNumber + number, invention.Next());
        database.Do("COMMIT");
    }
    file.TakePlace();
}

} // namespace Orders
