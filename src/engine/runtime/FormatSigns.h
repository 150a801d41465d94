#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Tessellon {

/// One unit of a format: a sign, or a literal because it is quoted or behind a backslash.
struct FormatSign {
    char16_t Unit = 0;
    bool Literal = false;
};

/// Walks a format, taking off quotes and backslashes. A backslash at the end is nothing, a quote that is never closed
/// holds to the end.
class FormatScanner {
public:
    explicit FormatScanner(std::u16string_view format)
        : format_(format)
    {
    }

    bool Next(FormatSign& sign)
    {
        while (position_ < format_.size()) {
            const char16_t unit = format_[position_++];
            if (unit == u'"') {
                quoted_ = !quoted_;
            } else if (unit == u'\\' && !quoted_) {
                if (position_ == format_.size())
                    return false;
                sign = {format_[position_++], true};
                return true;
            } else {
                sign = {unit, quoted_};
                return true;
            }
        }
        return false;
    }
    /// Units read so far.
    [[nodiscard]] std::size_t Position() const { return position_; }
    [[nodiscard]] std::u16string_view Rest() const { return format_.substr(position_); }

private:
    std::u16string_view format_;
    std::size_t position_ = 0;
    bool quoted_ = false;
};

/// What a format has to say about its kind.
struct FormatTraits {
    bool Zero = false; ///< 0
    bool NumberPlace = false; ///< 0 or #
    bool Percent = false; ///< %
    bool TextPlace = false; ///< @ or &
    bool MaskPlace = false; ///< 9 or ?
    bool MaskLetters = false; ///< A, a or C, in no word with other letters
    bool TextOrder = false; ///< < > or !
    bool DateSigns = false; ///< The signs of dates, but no C alone: that is a mask's

    [[nodiscard]] bool HasNumberSigns() const { return NumberPlace || Percent; }
    /// A mask has signs that numbers do not know. Letters and the signs of case are taken for a number's literals
    /// where the format has a 0, which no mask has a place for.
    [[nodiscard]] bool IsMask() const { return TextPlace || MaskPlace || (!Zero && (MaskLetters || TextOrder)); }
    [[nodiscard]] bool IsDate() const { return DateSigns && !HasNumberSigns() && !TextPlace && !MaskPlace; }
};

FormatTraits TraitsOf(std::u16string_view format);
bool HasDateSigns(std::u16string_view format); ///< As `FormatTraits::DateSigns`.

/// The sections of a format, parted by semicolons: at most four, what is behind them is left out.
struct FormatSections {
    std::array<std::u16string_view, 4> Texts;
    std::size_t Count = 0;
};

FormatSections SectionsOf(std::u16string_view format);

enum class NamedFormat : std::uint8_t {
    None,
    GeneralNumber,
    Currency,
    Fixed,
    Standard,
    Percent,
    Scientific,
    YesNo,
    TrueFalse,
    OnOff,
    GeneralDate,
    LongDate,
    MediumDate,
    ShortDate,
    LongTime,
    MediumTime,
    ShortTime,
};

/// Case does not count.
NamedFormat NamedFormatOf(std::u16string_view format);
constexpr bool IsNamedDate(NamedFormat format)
{
    return format >= NamedFormat::GeneralDate;
}

} // namespace Tessellon
