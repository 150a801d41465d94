#pragma once

#include <QFont>
#include <QStaticText>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace Tessellon {

/// Texts of cells, shaped once and kept as long as they are painted. Line breaks are blanks, and a text that is too
/// long for its room ends in an ellipsis; it is cut before it is shaped, so that its length costs nothing.
class ShapedTextCache {
public:
    /// Forgets all texts if the font or the screen's scale is another.
    void Use(const QFont& font, qreal scale);
    [[nodiscard]] const QFont& Font() const { return font_; }

    /// `room` in logical pixels. Valid until the next call.
    const QStaticText& Shaped(std::u16string_view text, int room);

    [[nodiscard]] std::size_t Count() const { return young_.size() + old_.size(); }

private:
    struct Wanted {
        std::u16string_view Text;
        int Room;
    };
    struct Key {
        std::u16string Text;
        int Room;
    };
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(const Wanted& wanted) const
        {
            return std::hash<std::u16string_view>()(wanted.Text) * 31 + static_cast<std::size_t>(wanted.Room);
        }
        std::size_t operator()(const Key& key) const { return (*this)(Wanted{key.Text, key.Room}); }
    };
    struct Equal {
        using is_transparent = void;
        template <class One, class Other>
        bool operator()(const One& one, const Other& other) const
        {
            return one.Room == other.Room && one.Text == other.Text;
        }
    };
    using Texts = std::unordered_map<Key, QStaticText, Hash, Equal>;

    [[nodiscard]] QStaticText Shape(std::u16string_view start, bool isCut, int room) const;

    // What was not asked for while the young half filled up goes with the old one.
    Texts young_;
    Texts old_;
    QFont font_;
    qreal scale_ = 0;
};

} // namespace Tessellon
