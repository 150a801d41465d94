#include "qt/Figures.h"

#include <QTextLayout>

#include <limits>

namespace Tessellon {

namespace {

constexpr qreal unknown = -std::numeric_limits<qreal>::infinity();

} // namespace

void Figures::Use(const QFont& font)
{
    if (isAsked_ && font_ == font)
        return;
    font_ = font;
    isAsked_ = true;
    isSimple_ = Learn(font);
}

bool Figures::Learn(const QFont& font)
{
    // What is drawn along the text is drawn by the shaper.
    if (font.underline() || font.overline() || font.strikeOut())
        return false;
    for (auto& row : advances_)
        row.fill(unknown);
    run_ = QGlyphRun();
    for (std::size_t first = 0; first < signs.size(); ++first)
        if (!LearnBehind(first, font))
            return false;
    return true;
}

bool Figures::LearnBehind(std::size_t first, const QFont& font)
{
    QString text;
    std::vector<std::size_t> order;
    for (std::size_t second = 0; second < signs.size(); ++second)
        for (std::size_t third = 0; third < signs.size(); ++third)
            order.insert(order.end(), {first, second, third});
    order.push_back(first);
    for (const std::size_t sign : order)
        text += QChar(signs[sign]);

    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = line.glyphRuns();
    if (runs.size() != 1 || (!run_.isEmpty() && runs.front().rawFont() != run_.rawFont()))
        return false;
    run_ = runs.front();
    const QList<quint32> glyphs = run_.glyphIndexes();
    const QList<QPointF> places = run_.positions();
    if (glyphs.size() != static_cast<qsizetype>(order.size()))
        return false;
    base_ = places.front().y();
    widths_.at(first) = line.naturalTextWidth() - places.back().x();
    size_.setHeight(line.height());
    if (first == 0)
        for (std::size_t sign = 0; sign < signs.size(); ++sign)
            glyphs_.at(sign) = glyphs[static_cast<qsizetype>(3 * sign + 2)];
    for (std::size_t i = 0; i < order.size(); ++i) {
        const auto at = static_cast<qsizetype>(i);
        if (glyphs[at] != glyphs_.at(order[i]) || places[at].y() != base_)
            return false;
        if (i + 1 == order.size())
            break;
        qreal& known = advances_.at(order[i]).at(order[i + 1]);
        const qreal advance = places[at + 1].x() - places[at].x();
        if (known == unknown)
            known = advance;
        else if (known != advance)
            return false;
    }
    return true;
}

bool Figures::Set(std::u16string_view text)
{
    if (!isSimple_ || text.empty() || text.front() == u' ' || text.back() == u' ')
        return false;
    set_.clear();
    places_.clear();
    qreal x = 0;
    std::size_t before = signs.size();
    for (const char16_t unit : text) {
        const std::size_t sign = SignOf(unit);
        if (sign == std::u16string_view::npos)
            return false;
        if (before != signs.size())
            x += advances_[before][sign];
        set_.push_back(glyphs_[sign]);
        places_.emplace_back(x, base_);
        before = sign;
    }
    run_.setRawData(set_.data(), places_.data(), static_cast<int>(set_.size()));
    size_.setWidth(x + widths_[before]);
    return true;
}

} // namespace Tessellon
