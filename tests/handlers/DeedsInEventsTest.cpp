#include "handlers/Occasions.h"
#include "handlers/Scene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <string>
#include <tuple>

namespace Tessellon::HandlerTests {

namespace {

/// How much of the rows' names has to be left behind a deed.
enum class Keeps { All, AllButOneEach, Nothing };

/// What a host's handler does.
struct Deed {
    std::string Name;
    std::function<void(Scene&)> Do;
    Keeps Keep;
};

/// The names are passed on the way from the first column back to the last of the row above; they are not to go.
void WriteCell(Scene& scene)
{
    if (scene->Col() != Scene::nameCol)
        scene->TextMatrix(scene->Row(), scene->Col(), u"written");
}

const std::vector<Deed>& Deeds()
{
    static const std::vector<Deed> deeds{
        {"AddsRows", [](Scene& scene) { scene->Add(scene->Row(), 2); }, Keeps::All},
        {"DeletesTheRow", [](Scene& scene) { scene->Delete(scene->Row()); }, Keeps::AllButOneEach},
        {"BuildsTheColumns", [](Scene& scene) { scene.Declare(); }, Keeps::Nothing},
        {"LoadsARecordset", [](Scene& scene) { scene.LoadOthers(); }, Keeps::Nothing},
        {"Clears", [](Scene& scene) { scene->Clear(); }, Keeps::Nothing},
        {"WritesTheCell", WriteCell, Keeps::All},
        {"Throws", [](Scene&) { throw std::runtime_error("the host's own"); }, Keeps::All},
        {"EndsTheSheet", [](Scene& scene) { scene.Sheet.reset(); }, Keeps::Nothing},
    };
    return deeds;
}

constexpr std::pair<FieldControlType, const char*> kinds[] = {
    {fcTextBox, "Text"},    {fcCheckBox, "Check"},       {fcComboBox, "Combo"},   {fcListBox, "List"},
    {fcDatePicker, "Date"}, {fcMaskedEditBox, "Masked"}, {fcRichTextBox, "Rich"}, {fcCommandButton, "Button"},
};

using Case = std::tuple<std::size_t, std::size_t, std::size_t>; ///< Kind, occasion, deed.

std::string NameOfCase(const testing::TestParamInfo<Case>& each)
{
    const auto [kind, occasion, deed] = each.param;
    return std::string(kinds[kind].second) + "_" + Occasions()[occasion].Name + "_" + Deeds()[deed].Name;
}

class HostHandler : public testing::TestWithParam<Case> {
protected:
    /// Walks through the sheet while a handler of the occasion does the deed, each time or once. A handler that its own
    /// deed brings on does nothing more.
    void Walk(bool once)
    {
        const auto [kind, occasion, deed] = GetParam();
        Scene scene(kinds[kind].first);
        ASSERT_EQ(scene.Names().size(), static_cast<std::size_t>(Scene::rows));
        bool isOver = false;
        bool isActing = false;
        std::size_t deeds = 0;
        int toldBehindTheEnd = 0;
        for (const Occasion& each : Occasions())
            each.Hear(*scene.Sheet, [&] { toldBehindTheEnd += scene.HasEnded() ? 1 : 0; });
        Occasions()[occasion].Hear(*scene.Sheet, [&, act = Deeds()[deed].Do] {
            if (isOver || isActing || (once && deeds > 0))
                return;
            isActing = true;
            ++deeds;
            struct Done {
                bool& IsActing;
                ~Done() { IsActing = false; }
            } const done{isActing};
            act(scene);
        });
        const std::vector<std::u16string> before = scene.Names();

        scene.Walk();

        isOver = true;
        EXPECT_GT(deeds, 0U) << "the walk never came to the event";
        EXPECT_EQ(toldBehindTheEnd, 0);
        if (scene.HasEnded())
            return;
        ExpectKept(scene, before, Deeds()[deed].Keep, deeds);
        ExpectUsable(scene);
    }

private:
    static void ExpectKept(Scene& scene, const std::vector<std::u16string>& before, Keeps keep, std::size_t deeds)
    {
        if (keep == Keeps::Nothing)
            return;
        std::vector<std::u16string> left = scene.Names();
        if (keep == Keeps::All) {
            EXPECT_EQ(left, before);
            return;
        }
        EXPECT_GE(left.size() + deeds, before.size());
        EXPECT_TRUE(std::ranges::includes(before, left, {}, Place, Place)) << "rows stand in another order";
    }

    static int Place(const std::u16string& name) { return std::stoi(std::string(name.begin() + 4, name.end())); }

    /// A host that builds its sheet anew has one that works.
    static void ExpectUsable(Scene& scene)
    {
        EXPECT_EQ(scene.Engine().MSFlexGrid1().Rows(), scene->Rows());
        scene->Clear();
        scene.Declare();
        scene.Fill();
        EXPECT_EQ(scene.Names().size(), static_cast<std::size_t>(Scene::rows));
        scene.TheHand().Click(3, 2);
        scene.Type(u"k");
        EXPECT_EQ(scene->TextMatrix(3, 2), u"kone");
    }
};

} // namespace

TEST_P(HostHandler, DoesItEachTime_NothingIsLostThatWasNotAskedToGo)
{
    Walk(false);
}

TEST_P(HostHandler, DoesItOnce_TheWalkGoesOn)
{
    Walk(true);
}

INSTANTIATE_TEST_SUITE_P(Of, HostHandler,
                         testing::Combine(testing::Range<std::size_t>(0, std::size(kinds)),
                                          testing::Range<std::size_t>(0, Occasions().size()),
                                          testing::Range<std::size_t>(0, Deeds().size())),
                         NameOfCase);

} // namespace Tessellon::HandlerTests
