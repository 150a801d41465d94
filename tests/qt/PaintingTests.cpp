#include "Form.h"
#include "PaintedArea.h"

#include "qt/CellPainter.h"
#include "qt/Colors.h"

#include <cmath>
#include <set>

namespace Tessellon {

namespace {

class Painting : public Form {
protected:
    void SetUp() override
    {
        Form::SetUp();
        Fill(*Sheet, 60);
        QTest::qWait(20);
        Sheet->Row(2);
        Click({2, 1});
        QTest::qWait(20);
    }
};

QPalette DarkPalette()
{
    QPalette dark(QColor(60, 60, 63), QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    dark.setColor(QPalette::ToolTipBase, QColor(60, 60, 40));
    return dark;
}

} // namespace

TEST_F(Painting, AdvanceByEnter_PaintsTwoCellsAndNoMore)
{
    ASSERT_EQ(QApplication::focusWidget(), &Box());
    const PaintedArea area(View());
    Key(Qt::Key_Return);
    QTest::qWait(20);
    ASSERT_EQ(Sheet->Col(), 2);
    const QRegion expected = QRegion(PlaceOf({2, 1})) + PlaceOf({2, 2});
    EXPECT_FALSE(area.Painted.isEmpty());
    EXPECT_TRUE((area.Painted - expected).isEmpty()) << area.Pixels;
    EXPECT_LE(area.Pixels, PaintedArea::PixelsOf(expected)) << "nothing twice";
}

TEST_F(Painting, AdvanceToAnotherRow_PaintsTwoCellsAndTheMarker)
{
    const PaintedArea area(View());
    Key(Qt::Key_Down);
    QTest::qWait(20);
    ASSERT_EQ(Sheet->Row(), 3);
    const QRegion expected = QRegion(PlaceOf({2, 1})) + PlaceOf({3, 1}) + PlaceOf({2, 0}) + PlaceOf({3, 0});
    EXPECT_TRUE((area.Painted - expected).isEmpty()) << area.Pixels;
    EXPECT_LE(area.Pixels, PaintedArea::PixelsOf(expected)) << "nothing twice";
}

TEST_F(Painting, TypingInTheBox_PaintsNothingOfTheGridButItsCell)
{
    const PaintedArea area(View());
    Type(QStringLiteral("abc"));
    QTest::qWait(20);
    EXPECT_TRUE((area.Painted - PlaceOf({2, 1})).isEmpty()) << area.Pixels;
}

TEST_F(Painting, FocusThatComesAndGoes_DoesNotPaintTheWholeGrid)
{
    Key(Qt::Key_Escape);
    QTest::qWait(20);
    const PaintedArea area(View());
    Before->setFocus();
    Frame().setFocus(Qt::TabFocusReason);
    QTest::qWait(20);
    EXPECT_EQ(area.Pixels, 0);
}

TEST_F(Painting, OnlyCellsInView_AreShaped)
{
    Sheet->Add(1, 20'000);
    QTest::qWait(20);
    EXPECT_LT(View().Texts().Count(), 200U);
}

TEST(ShapedTexts, LongText_IsCutBeforeItIsShaped_AndEndsInAnEllipsis)
{
    ShapedTextCache texts;
    texts.Use(QFont(), 1);
    const std::u16string longText(100'000, u'x');
    const QStaticText& shaped = texts.Shaped(longText, 60);
    EXPECT_LT(shaped.text().size(), 60);
    EXPECT_TRUE(shaped.text().endsWith(QChar(0x2026)));
    EXPECT_LE(shaped.size().width(), 60);
}

TEST(ShapedTexts, LineBreaks_AreBlanks)
{
    ShapedTextCache texts;
    texts.Use(QFont(), 1);
    EXPECT_EQ(texts.Shaped(u"a\r\nb\nc\td", 200).text(), QStringLiteral("a b c d"));
}

TEST(ShapedTexts, TextOfTheSameRoom_IsShapedOnce)
{
    ShapedTextCache texts;
    texts.Use(QFont(), 1);
    const QStaticText* const first = &texts.Shaped(u"text", 100);
    EXPECT_EQ(&texts.Shaped(u"text", 100), first);
    EXPECT_EQ(texts.Count(), 1U);
    static_cast<void>(texts.Shaped(u"text", 90));
    EXPECT_EQ(texts.Count(), 2U);
}

TEST(ShapedTexts, AnotherFontOrScale_ForgetsThem)
{
    ShapedTextCache texts;
    texts.Use(QFont(), 1);
    static_cast<void>(texts.Shaped(u"text", 100));
    texts.Use(QFont(), 1);
    EXPECT_EQ(texts.Count(), 1U);
    texts.Use(QFont(), 1.5);
    EXPECT_EQ(texts.Count(), 0U);
    static_cast<void>(texts.Shaped(u"text", 100));
    QFont other;
    other.setPointSize(30);
    texts.Use(other, 1.5);
    EXPECT_EQ(texts.Count(), 0U);
}

TEST(ShapedTexts, TextsThatAreNotPaintedAnyMore_GoInTheEnd)
{
    ShapedTextCache texts;
    texts.Use(QFont(), 1);
    for (int number = 0; number < 20'000; ++number)
        static_cast<void>(texts.Shaped(QString::number(number).toStdU16String(), 100));
    EXPECT_LE(texts.Count(), 2U * 4096U);
}

TEST(CellsOnTheScreen, LinesAreCrisp_AtEveryScale_WhereverTheWidgetBegins)
{
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        for (const int begin : {0, 1, 11, 13}) {
            QImage image(static_cast<int>(std::lround(80 * scale)), static_cast<int>(std::lround(16 * scale)),
                         QImage::Format_RGB32);
            image.setDevicePixelRatio(scale);
            image.fill(Qt::magenta);
            QPainter painter(&image);
            painter.translate(begin, 0);
            const DevicePixels pixels = DevicePixels::Of(painter.deviceTransform());
            CellTexts texts;
            texts.Use(QFont(), scale);
            const QPalette palette(Qt::lightGray);
            CellPainter cells(painter, texts, palette, pixels);
            double left = pixels.Left();
            const double first = left;
            for (const double edge : {20.3, 33.4, 47.1, 60.0}) {
                const double right = pixels.Across(edge);
                cells.Paint({.Place = QRectF(left, 0, right - left, pixels.Down(16)), .Text = {}, .Color = 0x00FFFFFF});
                left = right;
            }
            painter.end();
            std::set<QRgb> colors;
            const auto device = [&](double x) { return static_cast<int>(std::lround((x + begin) * scale)); };
            EXPECT_EQ(device(first), static_cast<int>(std::floor(begin * scale)));
            for (int x = device(first); x < device(left); ++x)
                colors.insert(image.pixel(x, 2));
            EXPECT_EQ(colors.size(), 2U) << "white and the lines, nothing between, at " << scale << " from " << begin;
        }
    }
}

TEST(CellColors, DesktopColours_ComeFromThePalette)
{
    const QPalette dark = DarkPalette();
    EXPECT_EQ(ColorFrom(static_cast<std::int32_t>(WindowBackground), dark), dark.color(QPalette::Base));
    EXPECT_EQ(ColorFrom(static_cast<std::int32_t>(InfoBackground), dark), dark.color(QPalette::ToolTipBase));
    EXPECT_EQ(ColorFrom(static_cast<std::int32_t>(HighLight), dark), dark.color(QPalette::Highlight));
    EXPECT_EQ(ColorFrom(static_cast<std::int32_t>(Red), dark), QColor(Qt::red));
    EXPECT_EQ(ColorFrom(static_cast<std::int32_t>(Blue), dark), QColor(Qt::blue));
    EXPECT_EQ(ColorFrom(static_cast<std::int32_t>(0x800000FF), dark), dark.color(QPalette::Base));
}

TEST(CellColors, TextThatCouldNotBeRead_IsBlackOrWhite)
{
    const QColor nearlyWhite(230, 230, 230);
    EXPECT_EQ(ReadableOn(QColor(30, 30, 30), nearlyWhite), nearlyWhite);
    EXPECT_EQ(ReadableOn(QColor(Qt::cyan), nearlyWhite), QColor(Qt::black));
    EXPECT_EQ(ReadableOn(QColor(Qt::blue), QColor(Qt::black)), QColor(Qt::white));
}

TEST_F(Painting, DarkPalette_GivesADarkSheet_WhoseBandsKeepTheirColours)
{
    Key(Qt::Key_Escape);
    Window->setPalette(DarkPalette());
    QTest::qWait(20);
    const QImage image = View().grab().toImage();
    const auto colorIn = [&](GridCell cell) {
        const QRect place = PlaceOf(cell);
        return image.pixelColor(place.right() - 4, place.top() + 3);
    };
    EXPECT_EQ(colorIn({0, 1}), DarkPalette().color(QPalette::Button));
    EXPECT_EQ(colorIn({4, 1}), QColor(Qt::cyan));
    EXPECT_EQ(colorIn({5, 1}), DarkPalette().color(QPalette::ToolTipBase));
    EXPECT_EQ(image.pixelColor(image.width() - 3, 3), DarkPalette().color(QPalette::Window));
}

TEST_F(Painting, AnotherFont_IsTakenFromThatOn)
{
    QFont font = Sheet->font();
    font.setPointSize(20);
    Sheet->setFont(font);
    QTest::qWait(20);
    EXPECT_EQ(View().Texts().Font().pointSize(), 20);
}

} // namespace Tessellon
