#include "qt/CellTexts.h"
#include "qt/Texts.h"

#include <QImage>

#include <gtest/gtest.h>
#include <random>

namespace Tessellon {

namespace {

constexpr int room = 400;
constexpr int height = 60;

/// What a drawing leaves on a screen of some scale, with the text's corner at a pixel's.
template <class Drawing>
QImage Drawn(qreal scale, const QFont& font, const Drawing& draw)
{
    QImage image(QSizeF(room * scale, height * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(font);
    draw(painter);
    return image;
}

std::vector<QFont> Fonts()
{
    std::vector<QFont> fonts;
    for (const char* family : {"DejaVu Sans", "DejaVu Sans Mono", "DejaVu Serif", "DejaVu Sans Condensed"}) {
        for (const double points : {7.0, 8.25, 10.0, 13.0, 21.5}) {
            QFont font(QString::fromLatin1(family));
            font.setPointSizeF(points);
            fonts.push_back(font);
            font.setBold(true);
            fonts.push_back(font);
            font.setItalic(true);
            fonts.push_back(font);
        }
    }
    return fonts;
}

std::u16string SomeFigures(std::mt19937& random)
{
    constexpr std::u16string_view signs = u"0123456789-./:, ";
    std::u16string text;
    const std::size_t length = 1 + random() % 20;
    while (text.size() < length)
        text += signs[random() % signs.size()];
    if (text.front() == u' ')
        text.front() = u'1';
    if (text.back() == u' ')
        text.back() = u'7';
    return text;
}

} // namespace

TEST(Figures, LookAsTheShaperDrawsThem_InAnyFontAndAtAnyScale)
{
    std::mt19937 random(20);
    Figures figures;
    int set = 0;
    for (const QFont& font : Fonts()) {
        for (const qreal scale : {1.0, 1.25, 1.5, 2.0}) {
            figures.Use(font);
            ShapedTextCache shaper;
            shaper.Use(font, scale);
            for (int i = 0; i < 20; ++i) {
                const std::u16string text = SomeFigures(random);
                if (!figures.Set(text))
                    continue;
                ++set;
                const QStaticText& shaped = shaper.Shaped(text, room);
                ASSERT_EQ(figures.Size(), shaped.size()) << font.toString().toStdString() << scale;
                const QImage one = Drawn(
                    scale, font, [&](QPainter& painter) { painter.drawGlyphRun(QPointF(3, 5), figures.Glyphs()); });
                const QImage other =
                    Drawn(scale, font, [&](QPainter& painter) { painter.drawStaticText(QPointF(3, 5), shaped); });
                ASSERT_EQ(one, other) << font.toString().toStdString() << " " << scale << " "
                                      << OwnText(text).toStdString();
            }
        }
    }
    EXPECT_GT(set, 1000) << "most fonts draw figures alike wherever they stand";
}

TEST(Figures, OtherCharacters_AndBlanksAtAnEnd_AreLeftToTheShaper)
{
    Figures figures;
    figures.Use(QFont(QStringLiteral("DejaVu Sans")));
    ASSERT_TRUE(figures.Set(u"2026-11-21 10:30:00"));
    for (const std::u16string_view text : {u"", u" 1", u"1 ", u"1a", u"+1", u"\u0661", u"1\n2"})
        EXPECT_FALSE(figures.Set(text)) << OwnText(text).toStdString();
}

TEST(Figures, LinesAlongTheText_AreLeftToTheShaper)
{
    for (void (QFont::*line)(bool) : {&QFont::setUnderline, &QFont::setOverline, &QFont::setStrikeOut}) {
        QFont font(QStringLiteral("DejaVu Sans"));
        Figures figures;
        (font.*line)(true);
        figures.Use(font);
        EXPECT_FALSE(figures.Set(u"12"));
        (font.*line)(false);
        figures.Use(font);
        EXPECT_TRUE(figures.Set(u"12"));
    }
}

TEST(CellTexts, FiguresTooWideForTheirRoom_EndInAnEllipsis)
{
    CellTexts texts;
    texts.Use(QFont(QStringLiteral("DejaVu Sans")), 1);
    EXPECT_GT(texts.LayOut(u"1234567890", room).width(), 40);
    EXPECT_EQ(texts.Shaped().Count(), 0U);
    EXPECT_LE(texts.LayOut(u"1234567890", 40).width(), 40);
    EXPECT_EQ(texts.Shaped().Count(), 1U);
}

} // namespace Tessellon
