#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon::Replay {

/// Draws that a seed makes the same on every machine.
class Dice {
public:
    explicit Dice(std::uint32_t seed)
        : engine_(seed)
    {
    }

    std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(engine_() % limit); }
    bool OneIn(std::size_t count) { return Below(count) == 0; }
    template <class Items>
    const auto& OneOf(const Items& items)
    {
        return items[Below(items.size())];
    }

private:
    std::mt19937 engine_;
};

/// An argument as a script writes it, sensible or odd. The letter says what it is: r row, c column, n count of rows,
/// N count of columns, t text, b truth, h height or width, x and y places in twips, k kind of column, a alignment,
/// j how a width follows its text, l limit of length, g setting of a column, f format of dates, i index of a colour,
/// o colour, m how values compare, p place of a caret or an item, d date, z size of a font, w name of a font,
/// K key, M modifiers.
std::string RandomValue(char letter, Dice& dice);

/// A setting that serves a column of the kind, mostly.
std::string RandomSetting(std::string_view kind, Dice& dice);

std::vector<std::string> AllKeys(); ///< The keys with names, and one character of each sort.
std::vector<std::string> AllModifiers(); ///< None, and all sums.
const std::vector<std::string>& AllKinds(); ///< Of columns.

} // namespace Tessellon::Replay
