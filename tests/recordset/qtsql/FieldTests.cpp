#include "recordset/qtsql/InventedDriver.h"
#include "recordset/qtsql/QtSqlConnection.h"
#include "recordset/qtsql/QtSqlRecordset.h"
#include "support/AllocationCount.h"
#include "support/Recordsets.h"

#include <QDateTime>
#include <QTimeZone>
#include <QUuid>

#include <limits>

namespace Tessellon {

namespace {

/// The fields of a driver that tells nothing but metatypes.
class Fields : public testing::Test {
protected:
    std::shared_ptr<QtSqlRecordset> Of(QMetaType::Type type, const QVariant& value, int length = -1)
    {
        QSqlField field(QStringLiteral("field"), QMetaType(type));
        field.setLength(length);
        return QtSqlConnection().Records(Invented(driver_, field, value));
    }
    std::int32_t TypeOf(QMetaType::Type type, int length = -1) { return Of(type, {}, length)->FieldType(0); }
    /// Of a value whose field is of its own metatype.
    std::shared_ptr<QtSqlRecordset> Of(const QVariant& value)
    {
        return Of(static_cast<QMetaType::Type>(value.typeId()), value);
    }
    std::int64_t IntegerOf(const QVariant& value)
    {
        const Value read = Of(value)->FieldValue(0);
        EXPECT_EQ(read.Type, Value::Kind::Integer);
        return read.Integer;
    }
    double SerialOf(const QVariant& value)
    {
        const Value read = Of(value)->FieldValue(0);
        EXPECT_EQ(read.Type, Value::Kind::Date) << value.toString().toStdString();
        return read.Real;
    }
    std::u16string TextOf(const QVariant& value)
    {
        const auto records = Of(value);
        const Value read = records->FieldValue(0);
        EXPECT_EQ(read.Type, Value::Kind::Text) << value.toString().toStdString();
        return std::u16string(read.Characters);
    }

    InventedDriver driver_;
};

TEST_F(Fields, Types_FollowTheMetatype)
{
    EXPECT_EQ(TypeOf(QMetaType::Bool), 11);
    EXPECT_EQ(TypeOf(QMetaType::SChar), 16);
    EXPECT_EQ(TypeOf(QMetaType::Char), 16);
    EXPECT_EQ(TypeOf(QMetaType::UChar), 17);
    EXPECT_EQ(TypeOf(QMetaType::Short), 2);
    EXPECT_EQ(TypeOf(QMetaType::UShort), 18);
    EXPECT_EQ(TypeOf(QMetaType::Int), 3);
    EXPECT_EQ(TypeOf(QMetaType::UInt), 19);
    EXPECT_EQ(TypeOf(QMetaType::Long), sizeof(long) == 8 ? 20 : 3);
    EXPECT_EQ(TypeOf(QMetaType::ULong), sizeof(long) == 8 ? 21 : 19);
    EXPECT_EQ(TypeOf(QMetaType::LongLong), 20);
    EXPECT_EQ(TypeOf(QMetaType::ULongLong), 21);
    EXPECT_EQ(TypeOf(QMetaType::Float), 4);
    EXPECT_EQ(TypeOf(QMetaType::Double), 5);
    EXPECT_EQ(TypeOf(QMetaType::QDate), 133);
    EXPECT_EQ(TypeOf(QMetaType::QTime), 134);
    EXPECT_EQ(TypeOf(QMetaType::QDateTime), 135);
    EXPECT_EQ(TypeOf(QMetaType::QChar), 130);
    EXPECT_EQ(TypeOf(QMetaType::QString, 20), 202);
    EXPECT_EQ(TypeOf(QMetaType::QString), 203);
    EXPECT_EQ(TypeOf(QMetaType::QByteArray, 20), 204);
    EXPECT_EQ(TypeOf(QMetaType::QByteArray), 205);
    EXPECT_EQ(TypeOf(QMetaType::QUuid), 72);
    EXPECT_EQ(TypeOf(QMetaType::UnknownType), 203);
    EXPECT_EQ(TypeOf(QMetaType::QVariantList), 12);
    EXPECT_EQ(TypeOf(QMetaType::QPointF), 12);
}

TEST_F(Fields, WholeNumbers_AreIntegersOfAnyWidth)
{
    EXPECT_EQ(IntegerOf(QVariant::fromValue<signed char>(-128)), -128);
    EXPECT_EQ(IntegerOf(QVariant::fromValue<unsigned char>(255)), 255);
    EXPECT_EQ(IntegerOf(QVariant::fromValue<short>(-32768)), -32768);
    EXPECT_EQ(IntegerOf(QVariant::fromValue<unsigned short>(65535)), 65535);
    EXPECT_EQ(IntegerOf(std::numeric_limits<int>::min()), std::numeric_limits<int>::min());
    EXPECT_EQ(IntegerOf(std::numeric_limits<unsigned>::max()), std::numeric_limits<unsigned>::max());
    EXPECT_EQ(IntegerOf(QVariant::fromValue<long>(-7)), -7);
    EXPECT_EQ(IntegerOf(QVariant::fromValue<unsigned long>(7)), 7);
    EXPECT_EQ(IntegerOf(std::numeric_limits<qlonglong>::min()), std::numeric_limits<qlonglong>::min());
    EXPECT_EQ(IntegerOf(QVariant::fromValue<qulonglong>(9223372036854775807U)), 9223372036854775807);
}

TEST_F(Fields, WholeNumberPastTheSignedRange_IsUnsigned)
{
    const Value value = Of(std::numeric_limits<qulonglong>::max())->FieldValue(0);
    EXPECT_EQ(value.Type, Value::Kind::Unsigned);
    EXPECT_EQ(value.Unsigned, std::numeric_limits<std::uint64_t>::max());
}

TEST_F(Fields, Reals_AreSinglesAndDoubles)
{
    EXPECT_EQ(Of(0.1F)->FieldValue(0).Type, Value::Kind::Single);
    EXPECT_EQ(Of(0.1F)->FieldValue(0).Real, static_cast<double>(0.1F));
    EXPECT_EQ(Of(0.1)->FieldValue(0).Type, Value::Kind::Double);
    EXPECT_EQ(Of(0.1)->FieldValue(0).Real, 0.1);
}

TEST_F(Fields, DigitsInAFieldOfReals_AreADecimal)
{
    const auto records = Of(QMetaType::Double, QStringLiteral("-12345678901234567890.10"));
    EXPECT_EQ(records->FieldValue(0).Type, Value::Kind::Decimal);
    EXPECT_EQ(records->FieldValue(0).Characters, u"-12345678901234567890.10");
    EXPECT_EQ(Of(QMetaType::Double, QStringLiteral("NaN"))->FieldValue(0).Type, Value::Kind::Text);
}

TEST_F(Fields, Truths_AreBooleansNumbersAndWords)
{
    for (const QVariant& yes : {QVariant(true), QVariant(1), QVariant(2U), QVariant(0.5), QVariant(" Yes ")})
        EXPECT_TRUE(Of(QMetaType::Bool, yes)->FieldValue(0).Boolean) << yes.toString().toStdString();
    for (const QVariant& no : {QVariant(false), QVariant(0), QVariant(0U), QVariant(0.0), QVariant("off")}) {
        const Value value = Of(QMetaType::Bool, no)->FieldValue(0);
        EXPECT_EQ(value.Type, Value::Kind::Boolean) << no.toString().toStdString();
        EXPECT_FALSE(value.Boolean) << no.toString().toStdString();
    }
    EXPECT_EQ(Of(QMetaType::Bool, QStringLiteral("perhaps"))->FieldValue(0).Type, Value::Kind::Text);
}

TEST_F(Fields, Dates_AreSerials)
{
    EXPECT_EQ(SerialOf(QDate(2024, 3, 15)), 45366);
    EXPECT_EQ(SerialOf(QDate(100, 1, 1)), -657434);
    EXPECT_EQ(SerialOf(QTime(6, 0)), 0.25);
    EXPECT_DOUBLE_EQ(SerialOf(QTime(0, 0, 0, 250)), 0.25 / 86400);
    EXPECT_EQ(SerialOf(QDateTime(QDate(2024, 3, 15), QTime(18, 0))), 45366.75);
    EXPECT_EQ(SerialOf(QDateTime(QDate(1899, 12, 29), QTime(6, 0))), -1.25);
}

TEST_F(Fields, MomentOfAZone_IsTakenAsQtTellsIt)
{
    EXPECT_EQ(SerialOf(QDateTime(QDate(2024, 3, 15), QTime(12, 0), Qt::UTC)), 45366.5);
    EXPECT_EQ(SerialOf(QDateTime(QDate(2024, 3, 15), QTime(12, 0), Qt::OffsetFromUTC, 7200)), 45366.5);
}

TEST_F(Fields, MomentThatItsZoneLeavesOut_IsThatMoment)
{
    const QTimeZone zone("Europe/Berlin");
    if (!zone.isValid())
        GTEST_SKIP() << "This machine knows no zones";
    EXPECT_DOUBLE_EQ(SerialOf(QDateTime(QDate(2024, 3, 31), QTime(2, 30), zone)), 45382 + 2.5 / 24);
}

TEST_F(Fields, DatesOutsideTheYears_AreText)
{
    EXPECT_EQ(TextOf(QDate(99, 12, 31)), u"0099-12-31");
    EXPECT_EQ(TextOf(QDateTime(QDate(99, 12, 31), QTime(10, 30))), u"0099-12-31T10:30:00.000");
    EXPECT_EQ(TextOf(QDate(12024, 1, 1)), QDate(12024, 1, 1).toString(Qt::ISODate).toStdU16String());
}

TEST_F(Fields, MomentsThatAreNone_AreEmptyText)
{
    EXPECT_EQ(TextOf(QDate()), u"");
    EXPECT_EQ(TextOf(QTime()), u"");
    EXPECT_EQ(TextOf(QDateTime()), u"");
}

TEST_F(Fields, Texts_AreKeptWhateverTheyHold)
{
    const std::u16string odd = std::u16string(u" a\0\xD800 😀\r\n", 9);
    EXPECT_EQ(TextOf(QString::fromStdU16String(odd)), odd);
    EXPECT_EQ(TextOf(QString(QLatin1String(""))), u"");
    EXPECT_EQ(TextOf(QString(100'000, QChar(u'€'))), std::u16string(100'000, u'€'));
    EXPECT_EQ(TextOf(QChar(u'€')), u"€");
}

TEST_F(Fields, Bytes_AreHexadecimalDigits)
{
    EXPECT_EQ(TextOf(QByteArray("\x00\xFF\xA5", 3)), u"00FFA5");
    EXPECT_EQ(TextOf(QByteArray("")), u"");
}

TEST_F(Fields, OtherValues_AreTheirText)
{
    EXPECT_EQ(TextOf(QUuid(QStringLiteral("{0b5c0000-0000-0000-0000-000000000001}"))),
              u"{0b5c0000-0000-0000-0000-000000000001}");
    EXPECT_EQ(TextOf(QVariantList{1, 2}), u"");
}

TEST_F(Fields, Null_IsNullInEveryType)
{
    for (const QMetaType::Type type : {QMetaType::Bool, QMetaType::Int, QMetaType::Double, QMetaType::QDate,
                                       QMetaType::QString, QMetaType::QByteArray, QMetaType::QUuid}) {
        EXPECT_TRUE(Of(type, QVariant(QMetaType(type)))->FieldValue(0).IsNull()) << type;
        EXPECT_TRUE(Of(type, QVariant())->FieldValue(0).IsNull()) << type;
    }
}

TEST_F(Fields, DriverThatHoldsNothing_IsReadOnce)
{
    QSqlRecord record;
    record.append(QSqlField(QStringLiteral("field"), QMetaType(QMetaType::Int)));
    const auto records = QtSqlConnection().Records(
        QSqlQuery(new InventedResult(&driver_, record, {{{1}, {2}, {3}}, {{1}, {2}, {3}, {4}}})));
    for (int walk = 0; walk < 3; ++walk) {
        records->MoveFirst();
        EXPECT_EQ(CountOnwards(*records), 3);
    }
}

TEST_F(Fields, RecordThatFindsNoMemory_IsAFailureFromThenOn)
{
    QSqlRecord record;
    record.append(QSqlField(QStringLiteral("field"), QMetaType(QMetaType::QString)));
    const QString longText(100'000, QLatin1Char('x'));
    const auto records =
        QtSqlConnection().Records(QSqlQuery(new InventedResult(&driver_, record, {{{"short"}, {longText}, {"c"}}})));
    EXPECT_FALSE(records->AtEnd());
    const auto step = [&] {
        const NoMemory none;
        records->MoveNext();
    };
    EXPECT_THROW(step(), std::bad_alloc);
    EXPECT_EQ(FailureOf([&] { records->AtEnd(); }).Number, 7);
    EXPECT_EQ(FailureOf([&] { records->MoveFirst(); }).Number, 7);
}

TEST_F(Fields, Value_CostsNoAllocationBesideQts)
{
    std::vector<QVariantList> rows(1'000, QVariantList{QStringLiteral("a text of some length"), 12.5, 7});
    QSqlRecord record;
    for (const QMetaType::Type type : {QMetaType::QString, QMetaType::Double, QMetaType::Int})
        record.append(QSqlField(QStringLiteral("field"), QMetaType(type)));
    const auto records = QtSqlConnection().Records(QSqlQuery(new InventedResult(&driver_, record, {rows})));
    EXPECT_FALSE(records->AtEnd());
    const long before = AllocationCount();
    EXPECT_EQ(CountOnwards(*records), 1'000);
    EXPECT_LT(AllocationCount() - before, 20);
}

} // namespace

} // namespace Tessellon
