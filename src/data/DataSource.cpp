#include "shell/Entry.h"

#include <utility>

namespace Tessellon {

namespace {

constexpr std::int16_t hourglass = 11;
constexpr std::int16_t defaultPointer = 0;
constexpr std::int16_t flexFillRepeat = 1;

enum class FieldClass : std::uint8_t { Boolean, Date, Numeric, Text, Other };

FieldClass ClassOf(std::int32_t type)
{
    switch (type) {
    case 11: return FieldClass::Boolean; // adBoolean
    case 7: // adDate
    case 133: // adDBDate
    case 134: // adDBTime
    case 135: return FieldClass::Date; // adDBTimeStamp
    case 2: // adSmallInt
    case 3: // adInteger
    case 4: // adSingle
    case 5: // adDouble
    case 6: // adCurrency
    case 14: // adDecimal
    case 16: // adTinyInt
    case 17: // adUnsignedTinyInt
    case 18: // adUnsignedSmallInt
    case 19: // adUnsignedInt
    case 20: // adBigInt
    case 21: // adUnsignedBigInt
    case 131: // adNumeric
    case 139: return FieldClass::Numeric; // adVarNumeric
    case 8: // adBSTR
    case 128: // adBinary
    case 129: // adChar
    case 130: // adWChar
    case 200: // adVarChar
    case 201: // adLongVarChar
    case 202: // adVarWChar
    case 203: // adLongVarWChar
    case 204: // adVarBinary
    case 205: return FieldClass::Text; // adLongVarBinary
    default: return FieldClass::Other;
    }
}

} // namespace

/// The mouse pointer is every window's: behind a failure it is given back once more, and also though the sheet be ended
/// inside the load, but not where a load without a connection fails on the way to its host.
void TessellonSheet::DataSource(std::shared_ptr<Recordset> recordset, std::shared_ptr<Connection> connection)
{
    Entry(*this).Run([&] {
        ThreadFailureRecord().Clear();
        try {
            try {
                Load(std::move(recordset));
                Screen->MousePointer(defaultPointer);
                return;
            } catch (const std::exception&) {
                HandleLoadFailure(connection.get());
            }
        } catch (const SheetEnded&) {
            Screen->MousePointer(defaultPointer);
            throw;
        }
        Screen->MousePointer(defaultPointer);
    });
}

/// A failure in the load leaves the members as they stand: the next build and the next load set them right.
void TessellonSheet::Load(std::shared_ptr<Recordset> recordset)
{
    CheckStack();
    Screen->MousePointer(hourglass);
    LoadingRecordset = true;
    if (recordset && ColumnBound > 0) {
        BoundRecordset = platform_->Watched(std::move(recordset));
        ColumnsDeclared = !ColumnsDeclared;
        if (!BoundRecordset->AtEnd())
            LoadRecords();
        ColumnsDeclared = !ColumnsDeclared;
        if (RefreshPicture(ptArrow, 1))
            MarkerRow = 1;
    }
    LoadingRecordset = false;
}

void TessellonSheet::LoadRecords()
{
    const std::shared_ptr<Recordset> recordset = BoundRecordset;
    std::int32_t fieldCount = 0;
    std::int32_t recordCount = 0;
    recordset->MoveFirst();
    GetRecSize(fieldCount, recordCount);
    recordset->MoveFirst();
    MSFlexGrid1->Rows(1);
    MSFlexGrid1->Rows(recordCount + 1);
    RowCount = recordCount + 1;
    GridReady = false;
    for (std::int32_t row = 1; !recordset->AtEnd(); ++row) {
        for (std::int32_t i = 0; i < ColumnBound; ++i)
            LoadCell(*recordset, row, i, fieldCount);
        MSFlexGrid1->RowHeight(row, ToLong(DefaultRowHeight));
        MSFlexGrid1->Redraw(true);
        // The cursor goes to the row ahead of the drawing, and so aloud: the host sees the sheet grow.
        MSFlexGrid1->Row(row);
        MSFlexGrid1->FillStyle(flexFillRepeat);
        PaintBand(ColCount - MSFlexGrid1->FixedCols(), row % 2);
        recordset->MoveNext();
    }
    GridReady = true;
    if (FirstVisibleCol > 0) {
        MSFlexGrid1->LeftCol(FirstVisibleCol);
        MSFlexGrid1->Col(FirstVisibleCol);
        MSFlexGrid1->ColSel(FirstVisibleCol);
    }
    MSFlexGrid1->Row(1);
    MSFlexGrid1->TopRow(1);
    recordset->MoveFirst();
}

void TessellonSheet::LoadCell(Recordset& recordset, std::int32_t row, std::int32_t index, std::int32_t fieldCount)
{
    const std::int32_t col = index + 1;
    if (index >= fieldCount) {
        MSFlexGrid1->TextMatrix(row, col, u"");
        return;
    }
    const ColDataType& column = Column(index);
    std::u16string_view format;
    if (column.cdControlType == fcMaskedEditBox && !column.cdUseMask)
        format = column.cdControlSettingString;
    const FieldClass fieldClass = ClassOf(recordset.FieldType(index));
    const Value value = fieldClass == FieldClass::Other ? Value::Null() : recordset.FieldValue(index);
    switch (fieldClass) {
    case FieldClass::Boolean: MSFlexGrid1->TextMatrix(row, col, TruthOf(value) ? u"True" : u"False"); break;
    case FieldClass::Date:
        MSFlexGrid1->TextMatrix(row, col, value.IsNull() ? u"" : RunTime->Format(value, DateFormatText));
        break;
    case FieldClass::Numeric: {
        const Value zero = Value::OfInteger(0);
        const Value& number = value.IsNull() ? zero : value;
        MSFlexGrid1->TextMatrix(row, col,
                                format.empty() ? RunTime->GeneralText(number) : RunTime->Format(number, format));
        break;
    }
    case FieldClass::Text:
        if (value.IsNull())
            MSFlexGrid1->TextMatrix(row, col, u"");
        else
            MSFlexGrid1->TextMatrix(
                row, col, Trim(value.Type == Value::Kind::Text ? value.Characters : RunTime->GeneralText(value)));
        break;
    case FieldClass::Other: break;
    }
    if (MSFlexGrid1->ColWidth(col) != 0 && column.cdAutoAdjust == faContent && !column.cdHidden)
        FitWidth(col, Trim(MSFlexGrid1->TextMatrix(row, col)));
}

/// A value as a truth value: numbers are true unless 0, null is false.
bool TessellonSheet::TruthOf(const Value& value)
{
    switch (value.Type) {
    case Value::Kind::Null: return false;
    case Value::Kind::Boolean: return value.Boolean;
    case Value::Kind::Integer: return value.Integer != 0;
    case Value::Kind::Unsigned: return value.Unsigned != 0;
    case Value::Kind::Single:
    case Value::Kind::Double:
    case Value::Kind::Date: return value.Real != 0;
    case Value::Kind::Decimal:
    case Value::Kind::Text: break;
    }
    const std::u16string upper(RunTime->UpperCase(Trim(value.Characters)));
    if (upper == u"TRUE" || upper == u"FALSE")
        return upper == u"TRUE";
    return RunTime->ToNumber(value.Characters) != 0;
}

} // namespace Tessellon
