#include "engine/DefaultProperties.h"
#include "engine/EnginePlatform.h"
#include "headless/HeadlessHand.h"
#include "headless/HeadlessToolkit.h"
#include "shell/TessellonSheet.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <tuple>

namespace Tessellon {

namespace {

/// A thread whose stack is soon used up.
struct ShallowToolkit : HeadlessToolkit {
    std::size_t StackBudget() override { return 150'000; }
};

struct Act {
    const char* Name;
    std::function<void(TessellonSheet&)> Do;
};

const std::vector<Act>& Acts()
{
    static const std::vector<Act> acts{
        {"AddsARow", [](TessellonSheet& sheet) { sheet.Add(1); }},
        {"DeletesTheRow", [](TessellonSheet& sheet) { sheet.Delete(sheet.Row()); }},
        {"BuildsTheColumns", [](TessellonSheet& sheet) { sheet.BuildGridColumns(); }},
        {"MovesOn", [](TessellonSheet& sheet) { sheet.Row(sheet.Row() == 1 ? 2 : 1); }},
        {"Clears", [](TessellonSheet& sheet) { sheet.Clear(); }},
        {"Colours", [](TessellonSheet& sheet) { sheet.BackColor(1, Red); }},
    };
    return acts;
}

struct Moment {
    const char* Name;
    std::function<void(TessellonSheet&, std::function<void()>)> Hear;
};

const std::vector<Moment>& Moments()
{
    static const std::vector<Moment> moments{
        {"EnterCell", [](TessellonSheet& sheet, const auto& act) { sheet.EnterCell += act; }},
        {"LeaveCell", [](TessellonSheet& sheet, const auto& act) { sheet.LeaveCell += act; }},
        {"RowColChange", [](TessellonSheet& sheet, const auto& act) { sheet.RowColChange += act; }},
        {"SelChange", [](TessellonSheet& sheet, const auto& act) { sheet.SelChange += act; }},
        {"Scroll", [](TessellonSheet& sheet, const auto& act) { sheet.Scroll += act; }},
        {"EditorChange", [](TessellonSheet& sheet, const auto& act) { sheet.EditorChange += act; }},
        {"AdvanceToNextCell",
         [](TessellonSheet& sheet, const auto& act) { sheet.AdvanceToNextCell += [act](bool&) { act(); }; }},
        {"KeyDown", [](TessellonSheet& sheet, const auto& act) { sheet.KeyDown += [act](auto&&...) { act(); }; }},
    };
    return moments;
}

class EndlessHandlers : public testing::TestWithParam<std::tuple<std::size_t, std::size_t>> {};

} // namespace

TEST_P(EndlessHandlers, AnswersItsOwnActions_EndsInOneReportForEachInput)
{
    const Moment& moment = Moments()[std::get<0>(GetParam())];
    const Act& act = Acts()[std::get<1>(GetParam())];
    const auto platform = std::make_shared<EnginePlatform>(std::make_shared<ShallowToolkit>(), Locale::English());
    const SheetPointer owner = TessellonSheet::Create(platform);
    TessellonSheet& sheet = *owner;
    DefaultProperties properties;
    sheet.UserControl_ReadProperties(properties);
    platform->Resize(9600, 4800);
    sheet.ShowErrMessage(false);
    sheet.Cols(3);
    sheet.CreateColumnDataType(1, u"Name", fcTextBox, u"", false, fcLeft, 0, faNil, false);
    sheet.CreateColumnDataType(2, u"Open", fcCommandButton, u"", false, fcLeft, 0, faNil, false);
    sheet.BuildGridColumns();
    sheet.AllowAddNew(true);
    sheet.Add(0, 40);
    int spent = 0;
    sheet.ErrInfo += [&](std::int32_t number, auto&&...) { spent += number == 28 ? 1 : 0; };
    bool isOver = false;
    moment.Hear(sheet, [&] {
        if (!isOver)
            act.Do(sheet);
    });

    HeadlessHand hand(platform);
    hand.Click(2, 1);
    hand.Press({.Code = u'A', .Shift = 0, .HasCharacter = true, .Character = u'a'});
    hand.Press({.Code = 13, .Shift = 0, .HasCharacter = true, .Character = 13});
    hand.Scroll(20, 1);

    isOver = true;
    // Press and release of the click, down, character and up of each key, and the scrolling are inputs.
    EXPECT_LE(spent, 9);
    sheet.Cols(3);
    sheet.CreateColumnDataType(1, u"Name", fcTextBox, u"", false, fcLeft, 0, faNil, false);
    sheet.BuildGridColumns();
    sheet.Add(0, 2);
    hand.Click(2, 1);
    hand.Press({.Code = u'A', .Shift = 0, .HasCharacter = true, .Character = u'a'});
    EXPECT_EQ(sheet.TextMatrix(2, 1), u"a");
}

INSTANTIATE_TEST_SUITE_P(Each, EndlessHandlers,
                         testing::Combine(testing::Range<std::size_t>(0, Moments().size()),
                                          testing::Range<std::size_t>(0, Acts().size())),
                         [](const auto& each) {
                             return std::string(Moments()[std::get<0>(each.param)].Name) +
                                    Acts()[std::get<1>(each.param)].Name;
                         });

} // namespace Tessellon
