#include "qt/TextWidths.h"

#include <QFontMetricsF>
#include <QString>
#include <QWidget>
#include <gtest/gtest.h>

namespace Tessellon {

namespace {

TEST(TextWidths, TextsPutTogether_AreAsWideAsMeasuredWhole)
{
    const QWidget widget;
    TextWidths widths;
    for (const double size : {8.0, 9.85, 24.0}) {
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPointSizeF(size);
        widths.Use(font, widget);
        const QFontMetricsF metrics(font, &widget);
        for (const char16_t* text :
             {u"", u"A", u"AVATAR WAY, TYPE Ty.", u"10,001.95 EUR", u"ZIELIŃSKI & O'CONNOR", u"ÅRHUS – KØBENHAVN",
              u"office affliction flight", u"e\u0301 and \u0915\u094D\u0937", u"שלום עולם", u"tab\tand\x7F",
              u"\xD800 lone", u"soft\u00ADhyphen", u"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW.i"}) {
            for (int again = 0; again < 2; ++again)
                EXPECT_NEAR(widths.WidthOf(text), metrics.horizontalAdvance(QString::fromUtf16(text)), 0.01)
                    << size << ' ' << QString::fromUtf16(text).toStdString();
        }
    }
}

} // namespace

} // namespace Tessellon
