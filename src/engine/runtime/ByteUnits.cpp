#include "engine/runtime/ByteUnits.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace Tessellon {

namespace {

/// Hands a text over in blocks of a size that the compiler knows, the last of which laps over the one ahead of it: so
/// nothing behind the text is touched.
template <class Turn>
void EachBlock(std::size_t count, const Turn& turn)
{
    if (count >= 16) {
        for (std::size_t at = 0; at + 16 < count; at += 16)
            turn.template operator()<16>(at);
        turn.template operator()<16>(count - 16);
    } else if (count >= 8) {
        turn.template operator()<8>(0);
        turn.template operator()<8>(count - 8);
    } else if (count >= 4) {
        turn.template operator()<4>(0);
        turn.template operator()<4>(count - 4);
    } else if (count > 0) {
        turn.template operator()<1>(0);
        turn.template operator()<1>(count / 2);
        turn.template operator()<1>(count - 1);
    }
}

template <std::size_t Size, class Unit>
std::array<Unit, Size> BlockAt(const Unit* from)
{
    std::array<Unit, Size> block;
    std::memcpy(block.data(), from, sizeof block);
    return block;
}

template <class To, class Unit, std::size_t Size>
void WriteBlock(To* to, const std::array<Unit, Size>& block)
{
    std::array<To, Size> turned;
    for (std::size_t index = 0; index < Size; ++index)
        turned[index] =
            static_cast<To>(static_cast<std::conditional_t<sizeof(Unit) == 1, unsigned char, Unit>>(block[index]));
    std::memcpy(to, turned.data(), sizeof turned);
}

/// The bits that are set anywhere in a block, gathered in one word.
template <class Unit, std::size_t Size>
std::uint64_t BitsOf(const std::array<Unit, Size>& block)
{
    constexpr std::size_t words = (sizeof block + sizeof(std::uint64_t) - 1) / sizeof(std::uint64_t);
    std::array<std::uint64_t, words> bits{};
    std::memcpy(bits.data(), block.data(), sizeof block);
    std::uint64_t all = 0;
    for (const std::uint64_t word : bits)
        all |= word;
    return all;
}

constexpr std::uint64_t highBytes = 0xFF00FF00FF00FF00U;
constexpr std::uint64_t highBits = 0x8080808080808080U;

} // namespace

bool FitsBytes(std::u16string_view text)
{
    std::uint64_t all = 0;
    EachBlock(text.size(), [&]<std::size_t Size>(std::size_t at) { all |= BitsOf(BlockAt<Size>(text.data() + at)); });
    return (all & highBytes) == 0;
}

bool Narrow(char* to, std::u16string_view text)
{
    std::uint64_t all = 0;
    EachBlock(text.size(), [&, to]<std::size_t Size>(std::size_t at) {
        const auto block = BlockAt<Size>(text.data() + at);
        WriteBlock(to + at, block);
        all |= BitsOf(block);
    });
    return (all & highBytes) == 0;
}

bool Widen(char16_t* to, std::string_view bytes)
{
    std::uint64_t all = 0;
    EachBlock(bytes.size(), [&, to]<std::size_t Size>(std::size_t at) {
        const auto block = BlockAt<Size>(bytes.data() + at);
        WriteBlock(to + at, block);
        all |= BitsOf(block);
    });
    return (all & highBits) == 0;
}

} // namespace Tessellon
