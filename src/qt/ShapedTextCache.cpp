#include "qt/ShapedTextCache.h"

#include "qt/Texts.h"

#include <QFontMetricsF>
#include <QTransform>

#include <utility>

namespace Tessellon {

namespace {

constexpr std::size_t mostYoung = 4096;
constexpr std::size_t beyondRoom = 32;

/// No text that fits has more units than pixels, but for those whose marks have no width of their own.
std::u16string_view StartFor(std::u16string_view text, int room)
{
    return text.substr(0, static_cast<std::size_t>(room) + beyondRoom);
}

bool IsBreak(char16_t unit)
{
    return (unit >= u'\t' && unit <= u'\r') || unit == u'\u0085' || unit == u'\u2028' || unit == u'\u2029';
}

QString OnOneLine(std::u16string_view text)
{
    QString line;
    line.reserve(static_cast<qsizetype>(text.size()));
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n')
            continue;
        line += IsBreak(text[at]) ? u' ' : QChar(text[at]);
    }
    return line;
}

} // namespace

void ShapedTextCache::Use(const QFont& font, qreal scale)
{
    if (font_ == font && scale_ == scale)
        return;
    young_.clear();
    old_.clear();
    font_ = font;
    scale_ = scale;
}

const QStaticText& ShapedTextCache::Shaped(std::u16string_view text, int room)
{
    const std::u16string_view start = StartFor(text, room);
    const Wanted wanted{start, room};
    if (const auto found = young_.find(wanted); found != young_.end())
        return found->second;
    if (young_.size() >= mostYoung)
        old_.swap(young_);
    const auto kept = old_.find(wanted);
    QStaticText shaped = kept != old_.end() ? kept->second : Shape(start, start.size() < text.size(), room);
    // One goes for each that comes, so that the old half is gone when the young one is full: to forget thousands at
    // once would be seen.
    if (!old_.empty())
        old_.erase(old_.begin());
    return young_.emplace(Key{std::u16string(start), room}, std::move(shaped)).first->second;
}

QStaticText ShapedTextCache::Shape(std::u16string_view start, bool isCut, int room) const
{
    constexpr char16_t ellipsis = u'\u2026';
    QString line = OnOneLine(start);
    if (isCut)
        line += ellipsis;
    QStaticText shaped;
    shaped.setTextFormat(Qt::PlainText);
    shaped.setPerformanceHint(QStaticText::AggressiveCaching);
    const auto shape = [&] {
        shaped.setText(line);
        shaped.prepare(QTransform::fromScale(scale_, scale_), font_);
    };
    if (!isCut)
        shape();
    if (isCut || shaped.size().width() > room) {
        line = QFontMetricsF(font_).elidedText(line, Qt::ElideRight, room);
        shape();
    }
    return shaped;
}

} // namespace Tessellon
