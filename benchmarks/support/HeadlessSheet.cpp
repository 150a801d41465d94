#include "support/HeadlessSheet.h"

#include "engine/DefaultProperties.h"
#include "headless/HeadlessToolkit.h"
#include "recordset/common/Unicode.h"
#include "recordset/sqlite/SqliteConnection.h"
#include "recordset/sqlite/SqliteRecordset.h"
#include "support/Records.h"

namespace Bench {

using namespace Tessellon;

HeadlessSheet::HeadlessSheet()
    : Platform(std::make_shared<EnginePlatform>(std::make_shared<HeadlessToolkit>(), Locale::English()))
    , Sheet(TessellonSheet::Create(Platform))
{
    constexpr float width = 15000;
    constexpr float height = 10500;
    DefaultProperties properties;
    Sheet->UserControl_ReadProperties(properties);
    Platform->Resize(width, height);
    Sheet->DateFormat(u"yyyy-MM-dd");
    Sheet->Cols(fieldCount + 1);
    std::int32_t col = 0;
    for (const Column& column : columns)
        Sheet->CreateColumnDataType(++col, column.Name, column.Kind, column.Setting, false, column.Alignment, 0, faNil,
                                    false);
    Sheet->AllowAddNew(true);
    Sheet->BuildGridColumns();
}

void Load(TessellonSheet& sheet, const std::string& database, const std::string& limit)
{
    const auto connection = SqliteConnection::Open(Common::ToUtf16(database));
    sheet.DataSource(connection->Query(Common::ToUtf16(query + limit)), connection);
}

} // namespace Bench
