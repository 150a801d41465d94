#include "platform/PlatformContract.h"

#include <algorithm>
#include <array>
#include <map>
#include <tuple>

namespace Tessellon::Contract {

namespace {

/// What moves the focus: code or the user.
enum class Doing {
    HideHolder,
    DisableHolder,
    HideOther,
    DisableOther,
    HideThird,
    DisableThird,
    FocusHolder,
    FocusOther,
    FocusThird,
    FocusGrid,
    PressGrid,
    PressOther,
    LeaveSheet,
    WindowOut,
    WindowIn,
};

std::string NameOf(Doing doing)
{
    constexpr std::array names{"HideHolder",   "DisableHolder", "HideOther",  "DisableOther", "HideThird",
                               "DisableThird", "FocusHolder",   "FocusOther", "FocusThird",   "FocusGrid",
                               "PressGrid",    "PressOther",    "LeaveSheet", "WindowOut",    "WindowIn"};
    return names.at(static_cast<std::size_t>(doing));
}

using Pair = std::tuple<Doing, const char*, Doing>;

std::string PairName(const ::testing::TestParamInfo<Pair>& info)
{
    std::string event = std::get<1>(info.param);
    std::ranges::replace(event, '.', '_');
    return NameOf(std::get<2>(info.param)) + "_In_" + event + "_Of_" + NameOf(std::get<0>(info.param));
}

/// The text box has the focus, check box and combo box are up beside it; the outer doing begins, and the inner one is
/// done within an event that the outer one raises.
class FocusPairs : public PlatformContract, public ::testing::WithParamInterface<Pair> {
protected:
    FocusPairs()
    {
        Up(Check());
        Up(Combo());
        Enter(Text());
        Recorder.AtEach([this](const std::string& event) { Note(event); });
        before_ = Holder();
        ++stays_[before_];
    }

    void Do(Doing doing)
    {
        const auto ask = [](auto& editor) {
            if (editor.Visible() && editor.Enabled())
                editor.SetFocus();
        };
        switch (doing) {
        case Doing::HideHolder: Hide(Text()); break;
        case Doing::HideOther: Hide(Check()); break;
        case Doing::HideThird: Hide(Combo()); break;
        case Doing::DisableHolder: Disable(Text()); break;
        case Doing::DisableOther: Disable(Check()); break;
        case Doing::DisableThird: Disable(Combo()); break;
        case Doing::FocusHolder: ask(Text()); break;
        case Doing::FocusOther: ask(Check()); break;
        case Doing::FocusThird: ask(Combo()); break;
        case Doing::FocusGrid: Cells().SetFocus(); break;
        case Doing::PressGrid: User().Click(3, 3); break;
        case Doing::PressOther: PressOn(Check()); break;
        case Doing::LeaveSheet: User().FocusOut(); break;
        case Doing::WindowOut: User().WindowOut(); break;
        case Doing::WindowIn: User().WindowIn(); break;
        }
        See();
    }

    /// Who has the focus may have it, and every loss was told once for each time that the focus was there.
    void ExpectOrder()
    {
        See();
        EXPECT_EQ(Under->UnhandledFailures(), std::vector<std::int32_t>{});
        EXPECT_LT(count_, 30) << "the events start one another";
        if (const InputControl* holder = Engine().TheFocus().Holder()) {
            EXPECT_TRUE(holder->CanHaveFocus()) << Holder();
            EXPECT_TRUE(Engine().TheFocus().IsInside());
            EXPECT_TRUE(Engine().TheFocus().IsWindowInFront());
        }
        for (const std::string name : {"Text1", "Check1", "Combo1(0)", "MSFlexGrid1"})
            EXPECT_EQ(losses_[name], stays_[name] - (Holder() == name ? 1 : 0)) << name;
        EXPECT_LE(gains_, arrivals_);
        const bool hiddenHold = std::ranges::all_of(down_, [](const auto& isDown) { return isDown(); });
        EXPECT_TRUE(hiddenHold) << "what was hidden or disabled is up again";
    }

private:
    template <class Control>
    void Hide(Control& control)
    {
        control.Visible(false);
        EXPECT_FALSE(control.Visible());
        down_.push_back([&control] { return !control.Visible(); });
    }
    template <class Control>
    void Disable(Control& control)
    {
        control.Enabled(false);
        EXPECT_FALSE(control.Enabled());
        down_.push_back([&control] { return !control.Enabled(); });
    }

    void Note(const std::string& event)
    {
        See();
        ++count_;
        const std::size_t dot = event.rfind('.');
        if (event.substr(dot) == ".LostFocus")
            ++losses_[event.substr(0, dot)];
        if (event.substr(dot) == ".GotFocus") {
            ++gains_;
            EXPECT_EQ(Holder(), event.substr(0, dot)) << "a gain is told to who has the focus";
        }
    }

    /// No move of the focus goes without an event, so that every stay is seen here.
    void See()
    {
        const std::string now = Holder();
        if (now == before_)
            return;
        before_ = now;
        if (now.empty())
            return;
        ++stays_[now];
        ++arrivals_;
    }

    std::string before_;
    std::map<std::string, int> stays_;
    std::map<std::string, int> losses_;
    int gains_ = 0;
    int arrivals_ = 0;
    int count_ = 0;
    std::vector<std::function<bool()>> down_;
};

struct Outer {
    Doing What;
    std::vector<const char*> Raises;
};

std::vector<Pair> Pairs()
{
    const std::vector<Outer> outers{
        {Doing::HideHolder, {"Text1.LostFocus", "MSFlexGrid1.GotFocus"}},
        {Doing::DisableHolder, {"Text1.LostFocus", "MSFlexGrid1.GotFocus"}},
        {Doing::FocusOther, {"Text1.LostFocus", "Check1.GotFocus"}},
        {Doing::PressGrid, {"Text1.Validate", "Text1.LostFocus", "MSFlexGrid1.GotFocus"}},
        {Doing::PressOther, {"Text1.Validate", "Text1.LostFocus", "Check1.GotFocus"}},
        {Doing::LeaveSheet, {"Text1.Validate", "UserControl.ExitFocus", "Text1.LostFocus"}},
        {Doing::WindowOut, {"Text1.LostFocus"}},
        {Doing::WindowIn, {"Text1.GotFocus"}},
    };
    std::vector<Pair> pairs;
    for (const Outer& outer : outers)
        for (const char* event : outer.Raises)
            for (int inner = 0; inner <= static_cast<int>(Doing::WindowIn); ++inner)
                pairs.emplace_back(outer.What, event, static_cast<Doing>(inner));
    return pairs;
}

} // namespace

TEST_P(FocusPairs, KeepTheFocusInOrder)
{
    const auto& [outer, event, inner] = GetParam();
    bool isDone = false;
    if (outer == Doing::WindowIn)
        Do(Doing::WindowOut);
    Recorder.Once(event, [&, what = inner](EventArguments&) {
        isDone = true;
        Do(what);
    });
    Do(outer);
    EXPECT_TRUE(isDone);
    ExpectOrder();
    // The focus is still to be had, whatever came between.
    if (!Engine().TheFocus().IsWindowInFront())
        Do(Doing::WindowIn);
    Do(Doing::FocusThird);
    Do(Doing::FocusGrid);
    EXPECT_EQ(Holder(), "MSFlexGrid1");
    ExpectOrder();
}

TEST_P(FocusPairs, EndThoughTheEventComesAgainAndAgain)
{
    const auto& [outer, event, inner] = GetParam();
    if (outer == Doing::WindowIn)
        Do(Doing::WindowOut);
    int depth = 0;
    Recorder.Always(event, [&, what = inner](EventArguments&) {
        // Whoever leaves or presses in the question whether he may is asked again: that is the host's own loop.
        if (depth < 3) {
            ++depth;
            Do(what);
        }
    });
    Do(outer);
    ExpectOrder();
}

INSTANTIATE_TEST_SUITE_P(All, FocusPairs, ::testing::ValuesIn(Pairs()), PairName);

} // namespace Tessellon::Contract
