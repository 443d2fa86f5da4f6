#include "session/records/LinkText.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

TEST(LinkText, OnlyAddressesOfPagesAndMailboxesAreLinks)
{
    for (const QString &text :
         {u"http://example.org"_s, u"https://example.org/a?b=c#d"_s, u" HTTPS://例子.中国/茶 "_s,
          u"mailto:a@example.org"_s, u"http://[::1]:8080/"_s})
        EXPECT_TRUE(linkIn(text).isValid()) << text.toStdString();
    for (const QString &text :
         {u""_s, u"example.org"_s, u"file:///etc/passwd"_s, u"javascript:alert(1)"_s, u"ftp://example.org"_s,
          u"C:\\Windows\\a.exe"_s, u"http://"_s, u"https:///path"_s, u"mailto:"_s, u"mailto:nobody"_s,
          u"见 https://example.org"_s, u"https://example.org 和别的"_s, u"https://a\nhttps://b"_s, u"http"_s,
          u"vbscript:http://example.org"_s, u"\\\\server\\share"_s, u"ms-settings:x"_s,
          u"http://example.org/"_s + QString(2000, u'x')})
        EXPECT_FALSE(linkIn(text).isValid()) << text.left(60).toStdString();
}
