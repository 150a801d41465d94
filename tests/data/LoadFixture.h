#pragma once

#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Tessellon {

using Cell = TestRecordset::Cell;

inline Cell OfNull()
{
    return {};
}

inline Cell OfInteger(std::int64_t number)
{
    return {.Kind = Value::Kind::Integer, .Text = {}, .Integer = number};
}

inline Cell OfBoolean(bool truth)
{
    return {.Kind = Value::Kind::Boolean, .Text = {}, .Integer = truth ? 1 : 0};
}

inline Cell OfReal(Value::Kind kind, double number)
{
    return {.Kind = kind, .Text = {}, .Integer = 0, .Real = number};
}

inline Cell OfDate(double serial)
{
    return OfReal(Value::Kind::Date, serial);
}

inline Cell OfText(std::u16string text)
{
    return {.Kind = Value::Kind::Text, .Text = std::move(text)};
}

inline Cell OfDecimal(std::u16string digits)
{
    return {.Kind = Value::Kind::Decimal, .Text = std::move(digits)};
}

constexpr std::int32_t adInteger = 3;
constexpr std::int32_t adDouble = 5;
constexpr std::int32_t adDate = 7;
constexpr std::int32_t adBoolean = 11;
constexpr std::int32_t adGUID = 72;
constexpr std::int32_t adVarWChar = 202;

inline std::shared_ptr<TestRecordset> Records(std::vector<std::int32_t> types, std::vector<std::vector<Cell>> records)
{
    auto recordset = std::make_shared<TestRecordset>();
    recordset->Types = std::move(types);
    recordset->Records = std::move(records);
    return recordset;
}

/// Records of one text field.
inline std::shared_ptr<TestRecordset> Texts(const std::vector<std::u16string>& texts)
{
    std::vector<std::vector<Cell>> records;
    for (const std::u16string& text : texts)
        records.push_back({OfText(text)});
    return Records({adVarWChar}, std::move(records));
}

/// A sheet with columns but no rows, into which records are loaded.
class Load : public testing::Test {
protected:
    void Columns(const std::vector<FieldControlType>& kinds)
    {
        Sheet->Cols(static_cast<std::int32_t>(kinds.size()) + 1);
        std::int32_t col = 0;
        for (const FieldControlType kind : kinds)
            Sheet.Column(++col, kind);
        Sheet->BuildGridColumns();
        Forget();
    }
    void Forget()
    {
        Sheet.Heard.clear();
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
    }
    Lines CallsOf(const std::shared_ptr<TestRecordset>& records)
    {
        Forget();
        Sheet->DataSource(records, Link);
        return Sheet.TakeCalls();
    }
    std::u16string Text(std::int32_t row, std::int32_t col) { return Sheet->TextMatrix(row, col); }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
    std::shared_ptr<TestConnection> Link = std::make_shared<TestConnection>();
};

} // namespace Tessellon
