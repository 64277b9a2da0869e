// Which addresses may leave the app, and the replaceable opener.

#include <tovukit_io/platform/TovuUrlOpener.h>

#include <gtest/gtest.h>

TEST(UrlOpener, OnlyWebAddressesAreOpened)
{
    const auto openable = [](const char *text) {
        return TovuUrlOpener::isOpenable(QUrl(QString::fromUtf8(text)));
    };
    EXPECT_TRUE(openable("https://shop.example.com/thanks"));
    EXPECT_TRUE(openable("http://example.com"));
    EXPECT_TRUE(openable("HTTPS://EXAMPLE.COM/x?y=1"));
    EXPECT_FALSE(openable("javascript:alert(1)"));
    EXPECT_FALSE(openable("file:///etc/passwd"));
    EXPECT_FALSE(openable("tel:+15551234"));
    EXPECT_FALSE(openable("shop.example.com/thanks")); // no scheme
    EXPECT_FALSE(openable("https://"));
    EXPECT_FALSE(openable(""));

    TovuRecordingUrlOpener recorder;
    EXPECT_FALSE(recorder.openIfValid(QUrl(QStringLiteral("ftp://example.com/file"))));
    EXPECT_TRUE(recorder.openIfValid(QUrl(QStringLiteral("https://example.com/a"))));
    ASSERT_EQ(recorder.openedUrls().size(), 1u);
    EXPECT_EQ(recorder.openedUrls().front(), QUrl(QStringLiteral("https://example.com/a")));
}

TEST(UrlOpener, TheDefaultIsReplaceableAndFallsBackToTheSystem)
{
    TovuUrlOpener *system = TovuUrlOpener::defaultOpener();
    EXPECT_EQ(system, TovuUrlOpener::system());
    {
        TovuRecordingUrlOpener recorder;
        TovuUrlOpener::setDefault(&recorder);
        EXPECT_EQ(TovuUrlOpener::defaultOpener(), &recorder);
    }
    // A default that goes away leaves the system's in its place, not a dangling one.
    EXPECT_EQ(TovuUrlOpener::defaultOpener(), system);
}
