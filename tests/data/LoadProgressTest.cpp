#include "data/LoadFixture.h"
#include "engine/CountedRecordset.h"

#include <functional>
#include <string>
#include <vector>

namespace Tessellon {
namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;

struct Told {
    std::int32_t Rows;
    std::int32_t Records;
    microseconds At; ///< Since the load began.
};

/// A clock that stands still but for what each record takes, and what it was told by then.
class LoadWithProgress : public Load {
protected:
    /// Records of one number, each of which takes a while to come.
    class SlowRecords : public Recordset {
    public:
        SlowRecords(LoadWithProgress& test, std::int32_t count)
            : test_(test)
            , count_(count)
        {
        }
        bool AtEnd() override { return at_ >= count_; }
        void MoveFirst() override { at_ = 0; }
        void MoveNext() override
        {
            ++at_;
            test_.now_ += test_.perRecord_;
            if (test_.AtEachStep)
                test_.AtEachStep();
        }
        std::int32_t FieldCount() override { return 1; }
        std::int32_t FieldType(std::int32_t) override
        {
            ++test_.TypesAsked;
            return adInteger;
        }
        Value FieldValue(std::int32_t) override { return Value::OfInteger(at_); }

    private:
        LoadWithProgress& test_;
        std::int32_t count_;
        std::int32_t at_ = 0;
    };

    std::shared_ptr<Recordset> Slow(std::int32_t count, microseconds perRecord)
    {
        perRecord_ = perRecord;
        return std::make_shared<SlowRecords>(*this, count);
    }
    std::shared_ptr<CountedRecordset> Counted(std::shared_ptr<Recordset> records)
    {
        return std::make_shared<CountedRecordset>(std::move(records), progress_, [this] { return now_; });
    }
    void LoadCounted(std::int32_t count, microseconds perRecord)
    {
        Columns({fcTextBox});
        Sheet->DataSource(Counted(Slow(count, perRecord)), Link);
    }

    std::function<void()> AtEachStep;
    std::vector<Told> Progress;
    int TypesAsked = 0;
    milliseconds EachTelling{0}; ///< What the host does with it takes so long.

private:
    std::chrono::steady_clock::time_point now_{};
    microseconds perRecord_{0};
    std::shared_ptr<const CountedRecordset::Progress> progress_ =
        std::make_shared<const CountedRecordset::Progress>([this](std::int32_t rows, std::int32_t records) {
            Progress.push_back(
                {rows, records,
                 std::chrono::duration_cast<microseconds>(now_ - std::chrono::steady_clock::time_point())});
            now_ += EachTelling;
        });
};

TEST_F(LoadWithProgress, OfASecondOrLess_TellsNothing)
{
    LoadCounted(1'000, microseconds(499));
    EXPECT_EQ(Sheet->Rows(), 1'001);
    EXPECT_TRUE(Progress.empty());
}

TEST_F(LoadWithProgress, TellsAtMostTenTimesASecond_FromTheFirstSecondOn)
{
    LoadCounted(20'000, microseconds(100));
    // Two walks of two seconds each, the first of which is silent.
    ASSERT_EQ(Progress.size(), 30U);
    EXPECT_GE(Progress.front().At, milliseconds(1'000));
    for (std::size_t i = 1; i < Progress.size(); ++i)
        EXPECT_GE(Progress[i].At - Progress[i - 1].At, milliseconds(100));
}

TEST_F(LoadWithProgress, WhereTheTellingTakesLong_LoadsForATenthOfASecondBetween)
{
    EachTelling = milliseconds(500);
    LoadCounted(20'000, microseconds(100));
    for (std::size_t i = 1; i < Progress.size(); ++i)
        EXPECT_GE(Progress[i].At - Progress[i - 1].At, milliseconds(600));
}

TEST_F(LoadWithProgress, CountsRecordsFirst_ThenRowsOfAll)
{
    constexpr microseconds perRecord(100);
    LoadCounted(20'000, perRecord);
    std::int32_t before = 0;
    bool isFilling = false;
    for (const Told& told : Progress) {
        const auto steps = static_cast<std::int32_t>(told.At / perRecord);
        isFilling = isFilling || told.Rows > 0;
        EXPECT_EQ(told.Rows, isFilling ? steps - 20'000 : 0);
        EXPECT_EQ(told.Records, isFilling ? 20'000 : steps);
        EXPECT_GT(told.Rows + told.Records, before);
        before = told.Rows + told.Records;
    }
    EXPECT_TRUE(isFilling);
    EXPECT_EQ(Progress.front().Rows, 0);
}

TEST_F(LoadWithProgress, RowsThatAreTold_AreFilled)
{
    std::vector<std::u16string> last;
    AtEachStep = [&] {
        if (!Progress.empty() && Progress.back().Rows > 0 && last.size() < Progress.size())
            last.push_back(Sheet->TextMatrix(Progress.back().Rows, 1));
    };
    LoadCounted(20'000, microseconds(100));
    ASSERT_FALSE(last.empty());
    EXPECT_TRUE(std::all_of(last.begin(), last.end(), [](const auto& text) { return !text.empty(); }));
}

TEST_F(LoadWithProgress, AsksThePlatformTheSameAsWithoutIt)
{
    Columns({fcTextBox, fcCheckBox});
    const auto callsOf = [this](const std::shared_ptr<Recordset>& records) {
        Forget();
        Sheet->DataSource(records, Link);
        return std::pair(Sheet.TakeCalls(), Sheet.TakeEvents());
    };
    // The first load finds the cursor elsewhere than the later ones.
    callsOf(Slow(300, milliseconds(10)));
    const auto without = callsOf(Slow(300, milliseconds(10)));
    const auto with = callsOf(Counted(Slow(300, milliseconds(10))));
    EXPECT_FALSE(Progress.empty());
    EXPECT_EQ(with, without);
    EXPECT_GT(without.first.size(), 1'000U);
}

TEST_F(LoadWithProgress, AsksTheTypeOfAFieldOnce)
{
    LoadCounted(1'000, microseconds(0));
    EXPECT_EQ(TypesAsked, 1);
    EXPECT_EQ(Sheet->TextMatrix(1'000, 1), u"999");
}

TEST_F(LoadWithProgress, ThatFailsInTheCount_GoesOnWithWhatWasCounted)
{
    int steps = 0;
    AtEachStep = [&] {
        if (++steps == 640)
            throw Failure(-2147467259, u"Recordset", u"the line is cut");
    };
    LoadCounted(1'000, milliseconds(2));
    EXPECT_EQ(Progress.back().Records, 640);
    EXPECT_EQ(Progress.back().Rows, 640);
}

TEST_F(LoadWithProgress, WhoseHostFails_EndsAsInAnEventOfTheLoad)
{
    Columns({fcTextBox});
    const auto failing = std::make_shared<const CountedRecordset::Progress>(
        [](std::int32_t, std::int32_t) { throw Failure(1000, u"Host", u"enough"); });
    auto at = std::chrono::steady_clock::time_point();
    const auto clock = [&] { return at += std::chrono::seconds(2); };
    Sheet->ShowErrMessage(false);
    Sheet->DataSource(std::make_shared<CountedRecordset>(Slow(100, microseconds(0)), failing, clock), Link);
    EXPECT_EQ(Sheet.TakeEvents().front(),
              "ErrInfo ErrNum=1000 ErrSource=\"enough\" ErrDesc=\"Host\" ErrHelpFile=\"\" ErrHelpContext=\"0\"");
}

TEST_F(LoadWithProgress, BehindTheLoad_PassesOnInSilence)
{
    Columns({fcTextBox});
    const auto records = Counted(Slow(1'000, milliseconds(2)));
    Sheet->DataSource(records, Link);
    const std::size_t told = Progress.size();
    EXPECT_GT(told, 0U);
    std::int32_t walked = 0;
    for (records->MoveFirst(); !records->AtEnd(); records->MoveNext())
        ++walked;
    EXPECT_EQ(walked, 1'000);
    EXPECT_EQ(Progress.size(), told);
}

TEST_F(LoadWithProgress, OfWhichNobodyIsLeftToHear_GoesOnInSilence)
{
    Columns({fcTextBox});
    int looks = 0;
    auto at = std::chrono::steady_clock::time_point();
    const auto clock = [&] {
        ++looks;
        return at += std::chrono::seconds(2);
    };
    Sheet->DataSource(std::make_shared<CountedRecordset>(Slow(1'000, microseconds(0)),
                                                         std::weak_ptr<const CountedRecordset::Progress>(), clock),
                      Link);
    EXPECT_EQ(Sheet->Rows(), 1'001);
    EXPECT_LE(looks, 2);
}

} // namespace
} // namespace Tessellon
