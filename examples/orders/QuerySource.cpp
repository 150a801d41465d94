#include "orders/QuerySource.h"

#include "platform/Failure.h"

#include <algorithm>

namespace Orders {

using namespace Tessellon;

namespace {

constexpr std::int32_t adDBDate = 133;
constexpr std::int32_t adDBTime = 134;

enum class Class : std::uint8_t { Boolean, Date, Number, Text };

/// Numbers of DataTypeEnum in the classes by which a load reads them.
Class ClassOf(std::int32_t type)
{
    switch (type) {
    case 11: return Class::Boolean;
    case 7:
    case adDBDate:
    case adDBTime:
    case 135: return Class::Date;
    case 2:
    case 3:
    case 4:
    case 5:
    case 6:
    case 14:
    case 16:
    case 17:
    case 18:
    case 19:
    case 20:
    case 21:
    case 131:
    case 139: return Class::Number;
    default: return Class::Text;
    }
}

/// A heading has one line, and leaves room for the others.
QString Heading(const std::u16string& name)
{
    constexpr qsizetype most = 80;
    QString heading = QString::fromStdU16String(name).left(most);
    for (QChar& unit : heading) {
        if (unit < u' ')
            unit = u' ';
    }
    return name.size() > static_cast<std::size_t>(most) ? heading + u'…' : heading;
}

/// A mask has a fixed number of places and none for a sign, and a format rounds what is typed to its decimals: the
/// masked box of a number has neither, and takes numbers of any kind as they are typed.
Column ColumnOf(const Roads::Field& field)
{
    Column column;
    column.Name = Heading(field.Name);
    switch (ClassOf(field.Type)) {
    case Class::Boolean:
        column.Kind = fcCheckBox;
        column.Alignment = fcCenter;
        column.Total = Totals::None;
        break;
    case Class::Date:
        column.Kind = fcDatePicker;
        column.Alignment = fcCenter;
        column.Total = Totals::Dates;
        break;
    case Class::Number:
        column.Kind = fcMaskedEditBox;
        column.Alignment = fcRight;
        column.Total = Totals::Numbers;
        column.Decimals = AnyDecimals;
        break;
    case Class::Text: break;
    }
    return column;
}

QString DateFormatFor(const std::vector<Roads::Field>& fields)
{
    bool hasDays = false;
    bool hasTimes = false;
    for (const Roads::Field& field : fields) {
        if (ClassOf(field.Type) == Class::Date) {
            hasDays = hasDays || field.Type != adDBTime;
            hasTimes = hasTimes || field.Type != adDBDate;
        }
    }
    if (!hasTimes)
        return QStringLiteral("yyyy-MM-dd");
    return hasDays ? QStringLiteral("yyyy-MM-dd HH:mm:ss") : QStringLiteral("HH:mm:ss");
}

/// A column as wide as a long text would hide all others. The first record tells which have some: to look at more of
/// them would be a walk, of which a recordset need give no more than two. What is wrong with it the load will tell.
void NarrowLongTexts(Columns& columns, Recordset& records)
{
    constexpr std::size_t longest = 120;
    constexpr int width = 420;
    try {
        if (records.AtEnd())
            return;
        std::int32_t field = 0;
        for (Column& column : columns.List) {
            if (column.Total == Totals::Texts && records.FieldValue(field).Characters.size() > longest) {
                column.Width = faHeader;
                column.FirstWidth = width;
            }
            ++field;
        }
    } catch (const Failure&) {
        return;
    }
}

} // namespace

Columns ColumnsOf(const std::vector<Roads::Field>& fields)
{
    Columns columns;
    std::ranges::transform(fields, std::back_inserter(columns.List), ColumnOf);
    columns.DateFormat = DateFormatFor(fields);
    return columns;
}

Source OpenQuery(const std::string& connection, const std::string& query)
{
    Roads::Destination destination = Roads::Travel(connection, query);
    Source source;
    source.Name = QString::fromStdString(Roads::Address(connection).Name());
    source.Connection = std::move(destination.Connection);
    source.Records = std::move(destination.Records);
    source.Layout = ColumnsOf(destination.Fields);
    NarrowLongTexts(source.Layout, *source.Records);
    source.OpenAgain = [connection, query] { return OpenQuery(connection, query); };
    return source;
}

} // namespace Orders
