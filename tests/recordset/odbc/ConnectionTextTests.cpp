#include "recordset/odbc/ConnectionText.h"

#include <gtest/gtest.h>

namespace Tessellon::Odbc {

namespace {

std::u16string Shown(std::u16string_view connectionText, std::u16string words)
{
    std::vector<ProviderError> errors(1);
    errors.front().Description = std::move(words);
    Mask(errors, SecretsOf(connectionText));
    return errors.front().Description;
}

TEST(DriverOfAText, AreNamedByTheirKey)
{
    EXPECT_EQ(DriverOf(u"Driver=SQLite3;Database=a"), u"SQLite3");
    EXPECT_EQ(DriverOf(u"UID={driver=no};DRIVER = {A; b} ;x"), u"{A; b}");
    EXPECT_EQ(DriverOf(u"DSN=orders"), u"");
    EXPECT_EQ(DriverOf(u"driver"), u"");
    EXPECT_EQ(DriverOf(u""), u"");
}

TEST(Secrets, AreTheValuesOfPasswords_InWhateverLettersAndWithBlanks)
{
    for (const std::u16string key :
         {u"PWD", u"pwd", u" Password ", u"SSLPassword", u"PASSWD", u"Client_Secret", u"AccessToken", u"passphrase"})
        EXPECT_EQ(Shown(u"UID=ada;" + key + u"= hunter2 ;Port=1", u"ada said hunter2 at 1, hunter2"),
                  u"ada said *** at 1, ***");
}

TEST(Secrets, OtherValues_Stay)
{
    EXPECT_TRUE(SecretsOf(u"DSN=orders;UID=ada;Server=/tmp").empty());
    EXPECT_TRUE(SecretsOf(u"").empty());
    EXPECT_TRUE(SecretsOf(u"PWD").empty());
    EXPECT_TRUE(SecretsOf(u"PWD=").empty());
    EXPECT_TRUE(SecretsOf(u"PWD=;UID=ada").empty());
    EXPECT_TRUE(SecretsOf(u"PWD={};UID=ada").empty());
}

TEST(Secrets, InBraces_AreKnownWithAndWithoutThem)
{
    const std::u16string text = u"Driver={A; PWD=no};PWD={a;b}}c=};UID=ada";
    EXPECT_EQ(Shown(text, u"failed with a;b}c= here"), u"failed with *** here");
    EXPECT_EQ(Shown(text, u"failed with PWD={a;b}}c=};"), u"failed with PWD=***;");
    EXPECT_EQ(Shown(text, u"no ada"), u"no ada");
    EXPECT_EQ(Shown(u"PWD={never closed", u"never closed"), u"***");
}

TEST(Secrets, ThatArePartsOfOthers_AreMaskedWhole)
{
    EXPECT_EQ(Shown(u"PWD=abc;SSLPassword=xabcx", u"xabcx abc"), u"*** ***");
}

TEST(Secrets, ThatOverlap_AreMaskedAsOne)
{
    EXPECT_EQ(Shown(u"PWD=abcb;Token=bcd", u"xabcbcdx abcabcb"), u"x***x abc***");
    EXPECT_EQ(Shown(u"PWD=aa", u"aaa a"), u"*** a");
    EXPECT_EQ(Shown(u"PWD=*", u"a*b**"), u"a***b***");
}

TEST(Secrets, ThatAreCutIntoSeveralErrors_AreMaskedInEach)
{
    const auto secrets = SecretsOf(u"PWD=hunter2");
    for (std::size_t cut = 0; cut <= 7; ++cut) {
        const std::u16string secret = u"hunter2";
        std::vector<ProviderError> errors(3);
        errors[0].Description = u"with " + secret.substr(0, cut);
        errors[2].Description = secret.substr(cut) + u" here";
        Mask(errors, secrets);
        EXPECT_EQ(errors[0].Description, cut > 0 ? u"with ***" : u"with ");
        EXPECT_EQ(errors[1].Description, u"");
        EXPECT_EQ(errors[2].Description, cut < 7 ? u"*** here" : u" here");
    }
}

} // namespace

} // namespace Tessellon::Odbc
