#include "engine/runtime/ByteUnits.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>

namespace Tessellon {
namespace {

constexpr char mark = '#';

/// Texts of all lengths up to some blocks, with few units that are out of the ordinary.
template <class Text>
Text AnyText(typename Text::value_type odd)
{
    const std::size_t size = *rc::gen::inRange<std::size_t>(0, 70);
    Text text = *rc::gen::container<Text>(size, rc::gen::inRange<typename Text::value_type>(u' ', u'z'));
    if (size > 0 && *rc::gen::arbitrary<bool>())
        text[*rc::gen::inRange<std::size_t>(0, size)] = odd;
    return text;
}

RC_GTEST_PROP(ByteUnits, Narrowed_HaveEveryLowByteAndTouchNothingBehind, ())
{
    const auto text = AnyText<std::u16string>(*rc::gen::element(u'\u007F', u'\u00FF', u'\u0100', u'\u4100', u'\uFFFF'));
    std::string bytes(text.size() + 1, mark);
    const bool fits = std::ranges::all_of(text, [](char16_t unit) { return unit < 256; });
    RC_ASSERT(Narrow(bytes.data(), text) == fits);
    RC_ASSERT(FitsBytes(text) == fits);
    for (std::size_t at = 0; at < text.size(); ++at)
        RC_ASSERT(static_cast<unsigned char>(bytes[at]) == (text[at] & 0xFF));
    RC_ASSERT(bytes.back() == mark);
}

RC_GTEST_PROP(ByteUnits, Widened_HaveEveryByteAndTouchNothingBehind, ())
{
    const auto bytes = AnyText<std::string>(*rc::gen::element('\x7F', '\x80', '\xFF'));
    std::u16string units(bytes.size() + 1, mark);
    RC_ASSERT(Widen(units.data(), bytes) == std::ranges::all_of(bytes, [](char byte) { return (byte & 0x80) == 0; }));
    for (std::size_t at = 0; at < bytes.size(); ++at)
        RC_ASSERT(units[at] == static_cast<unsigned char>(bytes[at]));
    RC_ASSERT(units.back() == mark);
}

} // namespace
} // namespace Tessellon
