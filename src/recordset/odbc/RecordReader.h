#pragma once

#include "platform/Value.h"
#include "recordset/odbc/FieldShape.h"
#include "recordset/odbc/Statement.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <sql.h>
#include <string>
#include <vector>

namespace Tessellon {

class KeptRecords;

namespace Odbc {

/// Reads the records of a statement that has run, forward, a block at a time where the driver can.
class RecordReader {
public:
    explicit RecordReader(std::unique_ptr<Statement> statement);

    struct Field {
        std::u16string Name;
        FieldShape Shape;
    };
    /// The fields, which the reader needs no more itself.
    std::vector<Field> TakeFields() { return std::move(fields_); }

    /// Adds the next records, some at a time. False where there are none left.
    bool Read(KeptRecords& records);

private:
    /// Where the driver puts the values of a column: one a record of the block, each of `Width` bytes.
    struct Column {
        Reading As = Reading::Text;
        SQLSMALLINT CType = 0;
        std::size_t Width = 0;
        std::size_t Terminator = 0; ///< Bytes of the zero that ends a text.
        char* Values = nullptr;
        SQLLEN* Lengths = nullptr;
    };
    /// A value as the driver gave it.
    struct Cell {
        const char* At = nullptr; ///< None: null.
        std::size_t Bytes = 0;
    };

    void Describe();
    void Bind();
    [[nodiscard]] std::size_t AgreeOnRows(); ///< With the driver, on the size of a block.
    [[nodiscard]] Value ValueOf(std::size_t row, std::size_t column);
    [[nodiscard]] Cell Bound(std::size_t row, std::size_t column);
    [[nodiscard]] Cell Asked(std::size_t column, SQLLEN length);
    void ToText(const Cell& cell);

    std::unique_ptr<Statement> statement_;
    std::vector<Field> fields_;
    std::vector<Column> columns_;
    bool isBound_ = false; ///< Else every value is asked for, from the left to the right.
    std::size_t rows_ = 1; ///< Of a block.
    SQLULEN rowsRead_ = 0;
    std::vector<char> block_;
    std::vector<SQLLEN> lengths_;
    std::vector<SQLUSMALLINT> states_; ///< Of the rows of a block of several.
    std::vector<char> long_; ///< A value that has no room in the block.
    std::u16string text_; ///< Room for the text of the value read last.
};

} // namespace Odbc
} // namespace Tessellon
