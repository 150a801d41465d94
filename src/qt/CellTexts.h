#pragma once

#include "qt/Figures.h"
#include "qt/ShapedTextCache.h"

#include <QPainter>

#include <string_view>

namespace Tessellon {

/// The texts of cells on their way to the screen: numbers, dates and times are set figure by figure, all others are
/// shaped once and kept.
class CellTexts {
public:
    void Use(const QFont& font, qreal scale)
    {
        shaped_.Use(font, scale);
        figures_.Use(font);
    }
    [[nodiscard]] const QFont& Font() const { return shaped_.Font(); }

    /// Brings a text on one line and into a room, in logical pixels. Its size.
    QSizeF LayOut(std::u16string_view text, qreal room)
    {
        const bool isSet = figures_.Set(text) && figures_.Size().width() <= room;
        laidOut_ = isSet ? nullptr : &shaped_.Shaped(text, static_cast<int>(room));
        return isSet ? figures_.Size() : laidOut_->size();
    }
    /// Draws the text that was laid out last, in the painter's colour and font.
    void Draw(QPainter& painter, QPointF at) const
    {
        if (laidOut_ == nullptr)
            painter.drawGlyphRun(at, figures_.Glyphs());
        else
            painter.drawStaticText(at, *laidOut_);
    }

    [[nodiscard]] const ShapedTextCache& Shaped() const { return shaped_; }

private:
    ShapedTextCache shaped_;
    Figures figures_;
    const QStaticText* laidOut_ = nullptr; ///< None: figures.
};

} // namespace Tessellon
