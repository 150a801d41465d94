#include "orders/Options.h"

#include "roads/Road.h"

#include <charconv>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace Orders {

namespace {

[[noreturn]] void Refuse(const std::string& what)
{
    throw std::runtime_error(what);
}

/// The options one by one, each with its value behind it or behind an equals sign.
class Arguments {
public:
    Arguments(int count, const char* const* arguments)
        : count_(count)
        , arguments_(arguments)
    {
    }

    bool Next()
    {
        if (++at_ >= count_)
            return false;
        name_ = arguments_[at_];
        joined_.reset();
        const std::size_t sign = name_.find('=');
        if (name_.starts_with("--") && sign != std::string_view::npos) {
            joined_ = name_.substr(sign + 1);
            name_ = name_.substr(0, sign);
        }
        return true;
    }

    [[nodiscard]] std::string_view Name() const { return name_; }
    [[nodiscard]] bool HasJoinedValue() const { return joined_.has_value(); }

    std::string Value(const char* meaning)
    {
        std::string_view value;
        if (joined_)
            value = *joined_;
        else if (at_ + 1 < count_)
            value = arguments_[++at_];
        if (value.empty())
            Refuse(std::string(name_) + " needs a value: say " + std::string(name_) + " " + meaning);
        return std::string(value);
    }

private:
    int count_;
    const char* const* arguments_;
    int at_ = 0;
    std::string_view name_;
    std::optional<std::string_view> joined_;
};

std::int64_t RowsOf(const std::string& text)
{
    std::int64_t rows = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, rows);
    if (error != std::errc() || stop != end || rows < 0 || rows > MostRows)
        Refuse("--rows takes a whole number from 0 to " + std::to_string(MostRows) + ", not \"" + text + "\"");
    return rows;
}

void CheckTogether(const Options& options)
{
    if (options.Database && options.Rows)
        Refuse("--rows makes orders and --database shows those of a file; say only one of them");
    if ((options.Connection || options.Query) && (options.Database || options.Rows))
        Refuse("--connection shows what a query gives; leave --database and --rows out");
    if (options.Connection && !options.Query)
        Refuse("--connection wants to know what to show: say --query \"SELECT ...\" with it");
    if (options.Query && !options.Connection)
        Refuse("--query wants to know where to ask: say --connection TEXT with it");
}

/// What is shown is read from there.
std::optional<std::filesystem::path> ReadFile(const Options& options)
{
    return options.Connection ? Roads::Address(*options.Connection).File() : options.Database;
}

void CheckPlace(const char* option, const std::filesystem::path& path, const Options& options)
{
    const auto refuse = [&](const std::string& why) {
        Refuse(std::string(option) + " cannot write " + path.string() + ": " + why);
    };
    std::error_code ignored;
    if (path.filename().empty() || std::filesystem::is_directory(path, ignored))
        refuse("it is a folder; name a file in it");
    const std::filesystem::path folder = path.has_parent_path() ? path.parent_path() : ".";
    if (!std::filesystem::is_directory(folder, ignored))
        refuse("there is no folder " + folder.string() + "; make it first");
    const bool isThere = std::filesystem::exists(path, ignored);
    const std::optional<std::filesystem::path> read = ReadFile(options);
    if (isThere && read && std::filesystem::equivalent(path, *read, ignored))
        refuse("it is the database that is shown; name another file");
    if (access(isThere ? path.c_str() : folder.c_str(), W_OK) != 0)
        refuse("writing there is not allowed; name a file in another folder");
}

} // namespace

Options ParseOptions(int count, const char* const* arguments)
{
    Options options;
    Arguments given(count, arguments);
    while (given.Next()) {
        const std::string_view name = given.Name();
        if (name == "--database")
            options.Database = given.Value("FILE");
        else if (name == "--rows")
            options.Rows = RowsOf(given.Value("N"));
        else if (name == "--connection")
            options.Connection = given.Value("TEXT");
        else if (name == "--query")
            options.Query = given.Value("\"SELECT ...\"");
        else if (name == "--picture")
            options.Picture = given.Value("FILE");
        else if (name == "--log")
            options.Log = given.Value("FILE");
        else if ((name == "--help" || name == "-h") && !given.HasJoinedValue())
            options.Help = true;
        else
            Refuse("unknown option \"" + std::string(name) + "\"; --help lists the options");
    }
    if (!options.Help)
        CheckTogether(options);
    return options;
}

void CheckPlaces(const Options& options)
{
    if (options.Picture)
        CheckPlace("--picture", *options.Picture, options);
    if (options.Log)
        CheckPlace("--log", *options.Log, options);
    if (options.Picture && options.Log && options.Picture->lexically_normal() == options.Log->lexically_normal())
        Refuse("--picture and --log name the same file; name two");
}

} // namespace Orders
