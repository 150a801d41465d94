#include "recordset/kept/KeptRecords.h"
#include "support/AllocationCount.h"
#include "support/Recordsets.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <rapidcheck/gtest.h>

namespace Tessellon {

namespace {

/// A value that owns its characters.
struct OwnValue {
    Value Shape;
    std::u16string Characters;

    [[nodiscard]] Value Get() const
    {
        Value value = Shape;
        value.Characters = Characters;
        return value;
    }
};

bool IsText(const Value& value)
{
    return value.Type == Value::Kind::Text || value.Type == Value::Kind::Decimal;
}

/// Whether two values are one to the last bit: not every real equals itself, and two zeros are equal.
bool IsSame(const Value& one, const Value& other)
{
    if (one.Type != other.Type)
        return false;
    if (IsText(one))
        return one.Characters == other.Characters;
    switch (one.Type) {
    case Value::Kind::Null: return true;
    case Value::Kind::Boolean: return one.Boolean == other.Boolean;
    default: return std::memcmp(&one.Integer, &other.Integer, sizeof one.Integer) == 0;
    }
}

void ExpectKept(const Value& value)
{
    KeptRecords records(1);
    records.Add(value);
    records.MoveFirst();
    EXPECT_TRUE(IsSame(records.FieldValue(0), value));
}

/// Records of one field: 1, 2, ...
KeptRecords Numbers(int count)
{
    KeptRecords records(1);
    for (int i = 1; i <= count; ++i)
        records.Add(Value::OfInteger(i));
    return records;
}

TEST(KeptRecords, NumbersAtTheEdges_AreKept)
{
    for (unsigned bit = 0; bit < 64; ++bit)
        for (const std::uint64_t near : {-1, 0, 1}) {
            const std::uint64_t number = (std::uint64_t{1} << bit) + near;
            ExpectKept(Value::OfUnsigned(number));
            ExpectKept(Value::OfInteger(static_cast<std::int64_t>(number)));
            ExpectKept(Value::OfInteger(-static_cast<std::int64_t>(number >> 1U)));
        }
    ExpectKept(Value::OfInteger(std::numeric_limits<std::int64_t>::min()));
    ExpectKept(Value::OfInteger(std::numeric_limits<std::int64_t>::max()));
    ExpectKept(Value::OfUnsigned(std::numeric_limits<std::uint64_t>::max()));
}

TEST(KeptRecords, RealsAtTheEdges_AreKept)
{
    using Limits = std::numeric_limits<double>;
    for (const double real : {0.0, -0.0, 1.0, 0.1, -12.5, 45366.75, Limits::denorm_min(), Limits::min(), Limits::max(),
                              Limits::lowest(), Limits::infinity(), -Limits::infinity(), std::nan("7")}) {
        ExpectKept(Value::OfDouble(real));
        ExpectKept(Value::OfDate(real));
    }
    using SingleLimits = std::numeric_limits<float>;
    for (const float real :
         {0.0F, -0.0F, 0.1F, SingleLimits::denorm_min(), SingleLimits::max(), SingleLimits::infinity(), std::nanf("7")})
        ExpectKept(Value::OfSingle(real));
}

TEST(KeptRecords, TextsOfEveryLength_AreKept)
{
    for (const std::size_t length : {0U, 1U, 31U, 32U, 33U, 127U, 128U, 129U, 255U, 256U, 4095U, 4096U, 70'000U}) {
        for (const char16_t unit : {u'\0', u'x', u'\xFF', u'\x100', u'\xD800', u'\xFFFF'}) {
            const std::u16string text(length, unit);
            ExpectKept(Value::OfText(text));
            ExpectKept(Value::OfDecimal(text));
        }
        std::u16string last(length, u'x');
        last += u'€';
        ExpectKept(Value::OfText(last));
    }
}

TEST(KeptRecords, NullAndTruths_AreKept)
{
    ExpectKept(Value::Null());
    ExpectKept(Value::OfBoolean(true));
    ExpectKept(Value::OfBoolean(false));
}

TEST(KeptRecords, Walks_ServeAsOftenAsWanted)
{
    KeptRecords records = Numbers(3);
    for (int walk = 0; walk < 3; ++walk) {
        records.MoveFirst();
        for (int i = 1; i <= 3; ++i, records.MoveNext()) {
            ASSERT_FALSE(records.AtEnd());
            EXPECT_EQ(records.FieldValue(0).Integer, i);
        }
        EXPECT_TRUE(records.AtEnd());
    }
    records.MoveFirst();
    records.MoveNext();
    records.MoveFirst();
    EXPECT_EQ(records.FieldValue(0).Integer, 1);
}

TEST(KeptRecords, Fields_AreReadInAnyOrderAndAgain)
{
    KeptRecords records(3);
    for (int i = 0; i < 6; ++i)
        records.Add(Value::OfInteger(i));
    EXPECT_EQ(records.Count(), 2);
    records.MoveFirst();
    records.MoveNext();
    for (const std::int32_t field : {2, 0, 0, 1, 2, 2, 1})
        EXPECT_EQ(records.FieldValue(field).Integer, 3 + field);
}

TEST(KeptRecords, NewOnes_StandOnTheirFirst)
{
    KeptRecords records = Numbers(2);
    EXPECT_EQ(records.FieldValue(0).Integer, 1);
}

TEST(KeptRecords, WithoutARecord_AreAtTheEndAndHaveNoFirst)
{
    KeptRecords records(2);
    EXPECT_TRUE(records.AtEnd());
    EXPECT_EQ(FailureOf([&] { records.MoveFirst(); }).Number, 3021);
    EXPECT_EQ(FailureOf([&] { records.MoveNext(); }).Number, 3021);
    EXPECT_EQ(FailureOf([&] { (void)records.FieldValue(0); }).Number, 3021);
    records.Add(Value::OfInteger(1));
    EXPECT_TRUE(records.AtEnd()) << "a record that is not whole";
    EXPECT_EQ(records.Count(), 0);
}

TEST(KeptRecords, BehindTheLast_EveryReadFails)
{
    KeptRecords records = Numbers(1);
    records.MoveNext();
    EXPECT_TRUE(records.AtEnd());
    EXPECT_EQ(FailureOf([&] { records.MoveNext(); }).Source, u"Recordset");
    EXPECT_EQ(FailureOf([&] { (void)records.FieldValue(0); }).Number, 3021);
}

TEST(KeptRecords, FieldThatIsNone_IsASubscriptFailure)
{
    KeptRecords records = Numbers(1);
    EXPECT_EQ(FailureOf([&] { (void)records.FieldValue(1); }).Number, 9);
    EXPECT_EQ(FailureOf([&] { (void)records.FieldValue(-1); }).Number, 9);
}

TEST(KeptRecords, RecordsAddedInAWalk_AreWalked)
{
    KeptRecords records(1);
    for (int i = 0; i < 10'000; ++i) {
        records.Add(Value::OfText(std::u16string(static_cast<std::size_t>(i % 100), u'x')));
        ASSERT_FALSE(records.AtEnd());
        ASSERT_EQ(records.FieldValue(0).Characters.size(), static_cast<std::size_t>(i % 100));
        records.MoveNext();
        ASSERT_TRUE(records.AtEnd());
    }
}

TEST(KeptRecords, ValueThatNoChunkHolds_GetsOne)
{
    KeptRecords records(1);
    for (const std::size_t length : {5'000'000U, 3U, 1'048'576U, 3U, 3'000'000U, 3'000'000U})
        records.Add(Value::OfText(std::u16string(length, u'€')));
    for (const std::size_t length : {5'000'000U, 3U, 1'048'576U, 3U, 3'000'000U, 3'000'000U}) {
        EXPECT_EQ(records.FieldValue(0).Characters, std::u16string(length, u'€'));
        records.MoveNext();
    }
    EXPECT_TRUE(records.AtEnd());
}

TEST(KeptRecords, SmallOnes_TakeLittle)
{
    EXPECT_LT(KeptRecords(10).Bytes(), 5'000U);
}

TEST(KeptRecords, ManyRecords_TakeTheirTextAndAFewBytesAValue)
{
    constexpr std::int32_t count = 400'000;
    KeptRecords records(5);
    std::size_t textBytes = 0;
    for (std::int32_t i = 0; i < count; ++i) {
        const std::string digits = std::to_string(i);
        const std::u16string name = u"customer " + std::u16string(digits.begin(), digits.end());
        records.Add(Value::OfInteger(i));
        records.Add(Value::OfText(name));
        records.Add(Value::OfDate(45366 + i % 1000));
        records.Add(Value::Null());
        records.Add(Value::OfBoolean(i % 2 == 0));
        textBytes += name.size();
    }
    EXPECT_LT(records.Bytes() - textBytes, 3U * 5U * count);
}

TEST(KeptRecords, ManyRecords_CostNoAllocationEach)
{
    KeptRecords records(2);
    const long before = AllocationCount();
    for (int i = 0; i < 10'000; ++i) {
        records.Add(Value::OfInteger(i));
        records.Add(Value::OfText(u"a text that is too long for a string to keep it inside itself"));
    }
    EXPECT_LT(AllocationCount() - before, 30);
    std::size_t units = 0;
    const auto walk = [&] {
        for (records.MoveFirst(); !records.AtEnd(); records.MoveNext())
            units += records.FieldValue(1).Characters.size();
    };
    walk();
    const long read = AllocationCount();
    walk();
    EXPECT_EQ(AllocationCount(), read);
    EXPECT_EQ(units, 2U * 10'000U * 61U);
}

TEST(KeptRecords, ValueThatFindsNoMemory_IsNotAdded)
{
    KeptRecords records(1);
    std::int64_t added = 0;
    const auto fill = [&] {
        const NoMemory none;
        for (; added < 100'000; ++added)
            records.Add(Value::OfInteger(added));
    };
    for (int times = 0; times < 5; ++times) {
        EXPECT_THROW(fill(), std::bad_alloc);
        EXPECT_EQ(records.Count(), added);
        records.Add(Value::OfInteger(added++));
    }
    for (std::int64_t i = 0; i < added; ++i, records.MoveNext())
        ASSERT_EQ(records.FieldValue(0).Integer, i);
    EXPECT_TRUE(records.AtEnd());
}

rc::Gen<OwnValue> AnyValue()
{
    const auto ofNumber = [](Value (*make)(std::int64_t)) {
        return rc::gen::map(rc::gen::arbitrary<std::int64_t>(), [make](std::int64_t number) {
            return OwnValue{make(number), {}};
        });
    };
    const auto ofText = [](Value (*make)(std::u16string_view), std::uint16_t limit) {
        const auto units = rc::gen::container<std::vector<std::uint16_t>>(rc::gen::inRange<std::uint16_t>(0, limit));
        return rc::gen::map(rc::gen::scale(5.0, units), [make](const std::vector<std::uint16_t>& text) {
            return OwnValue{make({}), std::u16string(text.begin(), text.end())};
        });
    };
    return rc::gen::oneOf(
        rc::gen::just(OwnValue{}), ofNumber([](std::int64_t number) { return Value::OfBoolean(number % 2 != 0); }),
        ofNumber([](std::int64_t number) { return Value::OfInteger(number); }),
        ofNumber([](std::int64_t number) { return Value::OfUnsigned(static_cast<std::uint64_t>(number)); }),
        ofNumber([](std::int64_t bits) { return Value::OfDouble(std::bit_cast<double>(bits)); }),
        ofNumber([](std::int64_t number) { return Value::OfDouble(static_cast<double>(number) / 4); }),
        ofNumber([](std::int64_t number) { return Value::OfSingle(static_cast<float>(number) / 3); }),
        ofNumber([](std::int64_t number) { return Value::OfDate(static_cast<double>(number % 3'000'000) / 24); }),
        ofText(Value::OfText, 256), ofText(Value::OfText, 0xFFFF), ofText(Value::OfDecimal, 128));
}

RC_GTEST_PROP(KeptRecordsProperty, AnyRecords_ComeBackAsTheyWere, ())
{
    const auto fields = *rc::gen::inRange(1, 12);
    const auto values = *rc::gen::scale(4.0, rc::gen::container<std::vector<OwnValue>>(AnyValue()));
    KeptRecords records(fields);
    for (const OwnValue& value : values)
        records.Add(value.Get());
    const std::size_t whole = values.size() / static_cast<std::size_t>(fields);
    RC_ASSERT(records.Count() == static_cast<std::int64_t>(whole));
    for (int walk = 0; walk < 2 && whole > 0; ++walk) {
        records.MoveFirst();
        for (std::size_t record = 0; record < whole; ++record, records.MoveNext())
            for (std::int32_t field = *rc::gen::inRange(0, 2); field < fields; field += *rc::gen::inRange(1, 3)) {
                const std::size_t index = record * static_cast<std::size_t>(fields) + static_cast<std::size_t>(field);
                RC_ASSERT(IsSame(records.FieldValue(field), values[index].Get()));
            }
        RC_ASSERT(records.AtEnd());
    }
}

} // namespace

} // namespace Tessellon
