#include "recordset/common/FailureNumbers.h"
#include "recordset/common/Words.h"

#include <gtest/gtest.h>

namespace Tessellon::Common {

namespace {

TEST(Words, BlanksAtTheEndsAreTakenOff)
{
    EXPECT_EQ(WithoutBlanks(u"  a b  "), u"a b");
    EXPECT_EQ(WithoutBlanks(u"   "), u"");
    EXPECT_EQ(WithoutBlanks(u"\ta"), u"\ta");
}

TEST(Words, TruthsAreKnownInAnyCase)
{
    for (const char16_t* yes : {u"1", u"TRUE", u"t", u"Yes", u"y", u"on"})
        EXPECT_EQ(TruthOf(yes), true);
    for (const char16_t* no : {u"0", u"False", u"F", u"no", u"N", u"off"})
        EXPECT_EQ(TruthOf(no), false);
    for (const char16_t* neither : {u"", u"2", u"tr", u"truest", u"perhaps"})
        EXPECT_EQ(TruthOf(neither), std::nullopt);
}

TEST(FailureNumbers, ParticularStatesComeAheadOfTheirClass)
{
    EXPECT_EQ(NumberOfState(u"42S02"), NoSuchTable);
    EXPECT_EQ(NumberOfState(u"42P01"), NoSuchTable);
    EXPECT_EQ(NumberOfState(u"42501"), PermissionDenied);
    EXPECT_EQ(NumberOfState(u"42601"), WrongCommand);
    EXPECT_EQ(NumberOfState(u"28000"), NotLetIn);
    EXPECT_EQ(NumberOfState(u"HYT00"), WaitedInVain);
    EXPECT_EQ(NumberOfState(u"HY001"), OutOfMemory);
    EXPECT_EQ(NumberOfState(u"IM002"), Unspecified);
    EXPECT_EQ(NumberOfState(u""), Unspecified);
}

} // namespace

} // namespace Tessellon::Common
