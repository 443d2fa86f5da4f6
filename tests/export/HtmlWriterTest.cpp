#include "ExportRecords.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

TEST(HtmlWriter, EscapesTextsAndPutsNumbersToTheRight)
{
    ExportRecords records(u"CREATE TABLE T (\"<h>\" TEXT, N INTEGER);"
                          "INSERT INTO T VALUES ('<script>&\"' || char(10) || 'x', 5), (NULL, NULL)"_s);
    records.open(u"SELECT * FROM T"_s);
    const QByteArray page = records.write(u"t.html"_s);
    EXPECT_TRUE(page.startsWith("<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">"));
    EXPECT_TRUE(page.contains("<tr><th>&lt;h&gt;</th><th class=\"n\">N</th></tr>")) << page.data();
    EXPECT_TRUE(page.contains("<tr><td>&lt;script&gt;&amp;&quot;<br>x</td><td class=\"n\">5</td></tr>\n"
                              "<tr><td></td><td class=\"n\"></td></tr>\n</tbody>"))
        << page.data();
    EXPECT_FALSE(page.contains("<script>"));
}
