#include "engine/Failures.h"

#include <array>
#include <string>

namespace Tessellon {

namespace {

struct NumberedText {
    std::int32_t Number;
    std::u16string_view Text;
};

constexpr std::array texts{
    NumberedText{5, u"Invalid procedure call or argument"},
    NumberedText{6, u"Overflow"},
    NumberedText{7, u"Out of memory"},
    NumberedText{9, u"Subscript out of range"},
    NumberedText{11, u"Division by zero"},
    NumberedText{13, u"Type mismatch"},
    NumberedText{28, u"Out of stack space"},
    NumberedText{91, u"Object variable not set"},
    NumberedText{340, u"Control array element does not exist"},
    NumberedText{360, u"Object already loaded"},
    NumberedText{380, u"Invalid property value"},
    NumberedText{381, u"Invalid property array index"},
    NumberedText{438, u"Object doesn't support this property or method"},
    NumberedText{3021, u"Either BOF or EOF is True"},
    NumberedText{30000, u"Cannot remove a fixed row"},
    NumberedText{30002, u"Cannot add a fixed row"},
    NumberedText{30009, u"Invalid Row value"},
    NumberedText{30010, u"Invalid Col value"},
    NumberedText{30015, u"Cannot remove last non-fixed row"},
    NumberedText{30016, u"Invalid Rows value"},
    NumberedText{30017, u"Invalid Cols value"},
};

} // namespace

std::u16string_view FailureText(std::int32_t number)
{
    for (const NumberedText& entry : texts)
        if (entry.Number == number)
            return entry.Text;
    return u"Application-defined error";
}

Failure FailureOf(std::int32_t number, std::u16string_view source)
{
    return {number, std::u16string(source), std::u16string(FailureText(number))};
}

void Fail(std::int32_t number, std::u16string_view source)
{
    throw FailureOf(number, source);
}

} // namespace Tessellon
